// Measured-data files (.BAQ): date, comment, substance and CAS number, the number of rows, then T, p,
// rho(V), rho(L), delta(LV)h and (in the newer form) cp of each row, one value a line, in
// Windows-1252 with CR LF. The reader, the writer, the save command and the preview of a file.
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <string>

namespace quor {

// Reads a .BAQ file into the measured data: `anfuegen` puts its rows behind those held, otherwise
// they replace them. The row length (five or six values) follows from the count of values behind
// the row count. A substance that the database lacks or that isn't the current one is loaded only
// after its warning question is answered yes. False without a message for an empty path or a No;
// false after the message "Message from Sub LadeBatchFile" when the file cannot be read, breaks off,
// holds a value that is no number or counts no rows; the measured data are then empty.
bool LadeBatchDatei(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad, bool anfuegen = false);

// The same for the bytes of a file read before; `pfad` names it in the message and is kept.
bool LadeBatchDateiAusBytes(ProjectState& s, ui::Oberflaeche& ui, const std::string& pfad,
                            const std::string& bytes, bool anfuegen);

// The file's text (UTF-8): `datum`, the comment, the current substance's name and CAS number padded
// to 107 and 12 characters, the count of the active rows, then their six values each, T and p as
// double, the others as single values, in their shortest form with "."; lines end in CR LF.
std::string BatchText(const ProjectState& s, const std::string& datum);

// Writes BatchText with today's date in Windows-1252; false when the file cannot be written.
bool SchreibeBatchDatei(const ProjectState& s, const std::string& pfad);

// The save command: the file dialog, the question before overwriting a file (No ends it), the file.
// On success the file's path and title are kept and BatchGeaendert is cleared; a file that cannot be
// written is told and the data stay as they are. False when cancelled or not written.
bool BatchSpeichernUnter(ProjectState& s, ui::Oberflaeche& ui);

// The preview of a .BAQ file in the open dialog: its first lines as they stand. Never refuses a
// file; one that cannot be read shows nothing and is told when it is loaded.
bool BatchVorschau(const std::string& pfad, std::string& text);

// The question before a file is replaced: true when `pfad` doesn't exist or the user says Yes.
bool UeberschreibenErlaubt(ui::Oberflaeche& ui, const std::string& pfad);

} // namespace quor
