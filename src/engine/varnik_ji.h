// Parameter sets of the Varnik/Ji models (EOSIndex 7 and 8): the fitted critical compressibility
// JiZc and the alpha-function parameters JiM, JiN, JiP (and JiB2 for model II) come from the
// parameter program cubpar. The program gets the substance's data in "jipar.tmp", runs hidden in
// the program directory and leaves its result in "PARAM_JI.DAT" (model I) or "PARA_JI2.DAT"
// (model II).
#pragma once

#include "core/project_state.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <cstdint>
#include <string>

namespace quor {

// File names of the exchange, all in the program directory.
extern const char* const JiEingabeDatei; // "jipar.tmp"
extern const char* const JiProgramm;     // "cubpar"

// The parameter file of a model: "PARA_JI2.DAT" for EOSIndex 8, "PARAM_JI.DAT" otherwise.
std::string JiParameterDateiName(int16_t EOSIndex);

// A file name without a directory is taken in the program directory.
std::string JiPfad(const ProjectState& s, const std::string& name);

// The two codes of line 3 that tell cubpar the type of the vapour-pressure block in line 6.
void JiBlockCodes(const std::string& DampfdruckTag, int16_t& code1, int16_t& code2);

// The content of "jipar.tmp" for the loaded substance and EOSIndex: seven lines, CR LF, numbers
// as ".00000000E+00" with a decimal point whatever the locale, in Windows-1252.
std::string JiParDateiBytes(const ProjectState& s);

// The whole exchange: writes "jipar.tmp", deletes an old parameter file of the model, runs cubpar
// (hidden, at most 100000 ms) and loads its result into JiParameter. err > 0 on failure, with the
// message shown.
void JiParameterBerechnen(ProjectState& s, ui::Oberflaeche& ui, int16_t& err);

// Loads the parameter file of the model into JiParameter; without one: "Kein Parameterfile
// erzeugt." and err > 0.
void JiParameterLaden(ProjectState& s, ui::Oberflaeche& ui, int16_t& err);

// Reads a parameter file: a leading number (dropped), an unused value, JiM, JiN, JiP, JiZc and for
// model II (EOSIndex 8) JiB2, value after value whatever the line breaks. Only a complete set
// reaches JiParameter (JiB2 = 0 for model I). A file that cannot be read gives "Meldung von Sub
// Daten_Ji" with the reason and err > 0.
void Daten_Ji(const ProjectState& s, ui::Oberflaeche& ui, const std::string& fileName,
              std::array<double, 9>& JiParameter, int16_t& err);

} // namespace quor
