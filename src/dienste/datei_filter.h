// File dialog helpers shared by every toolkit: the program writes its filters as
// "description|pattern|description|pattern"; toolkits want their own form.
#pragma once

#include <string>
#include <string_view>

namespace quor::ui {

// "Ergebnis-Datei (*.LST)|*.LST" -> "Ergebnis-Datei (*.LST *.lst)". Patterns separated by ';' become
// blanks, and every pattern is offered in upper and lower case, so that files named on systems with
// case-sensitive names are found either way. Entries are joined by ";;".
std::string ToolkitFilter(std::string_view filter);

// Adds the default extension (".QC6") to a file name whose last part has none.
std::string MitStandardEndung(std::string_view pfad, std::string_view endung);

} // namespace quor::ui
