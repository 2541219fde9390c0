// The file commands of the diagram pages: save and load of .oc2 and .oc3 with their dialogs,
// warnings and hints; point sets from and to .XY files; the choice of a picture file; the question
// before printing a black sheet.
#pragma once

#include "core/project_state.h"
#include "diagrams/graph2d.h"
#include "diagrams/graph3d.h"
#include "dienste/oberflaeche.h"

#include <optional>
#include <string>

namespace quor {

// mnuSaveOC2: with swapped axes the advice first (No ends it), then the save dialog, then the file.
// False when cancelled or when the file could not be written (with the message).
bool mnuSaveOC2(ProjectState& s, ui::Oberflaeche& ui, const frmQGraph2D& d);

// mnuLoadOC2: the one-time hint, the open dialog, the reader. A file that cannot be read or is no
// diagram of this kind gives a message and leaves the page as it was; a diagram made with another
// substance, models, normalisation or units is loaded and the differences are told.
bool mnuLoadOC2(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& d);

// The same pair for the 3D page; `ansicht` is the camera the view reports. A loaded page shows the
// file's camera in its picture.
bool mnuSaveOC3(ProjectState& s, ui::Oberflaeche& ui, const frmGraph3D& d, const Ansicht3D& ansicht);
bool mnuLoadOC3(ProjectState& s, ui::Oberflaeche& ui, frmGraph3D& d);

// mnuAddPunkte: an .XY file becomes a point set of the page through cmdExternPoints (the 12-set
// limit and its message first). False when cancelled, refused or unreadable.
bool mnuAddPunkte(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& d);
// A point set (index into PunktSaetze) or, with `satz` below 0, the curve of slot `kurve` into an
// .XY file in displayed units, as shown.
bool PunkteSpeichern(ProjectState& s, ui::Oberflaeche& ui, const frmQGraph2D& d, int satz, int kurve = -1);

// Picture files of the page: PNG and BMP as bitmap pictures, SVG and PDF as vector pictures.
enum class BildFormat { PNG, BMP, SVG, PDF };

struct BildDatei {
  std::string Pfad;
  BildFormat Format = BildFormat::PNG;
};

// The format of a file name by its extension (any case); none for another one.
std::optional<BildFormat> BildFormatVon(const std::string& pfad);

// The save dialog of "Bildfile schreiben" for a bitmap or a vector picture; a name without a known
// extension gets the first of its kind. Nothing when cancelled.
std::optional<BildDatei> BildDateiWaehlen(ProjectState& s, ui::Oberflaeche& ui, bool vektor);

// The question before printing a black sheet; true when printing may go on.
bool DruckenBestaetigt(ui::Oberflaeche& ui, RGBFarbe seitenfarbe);

// The clipboard advice that goes with the choice of a bitmap or vector copy.
extern const char* const ZwischenablageRat;

} // namespace quor
