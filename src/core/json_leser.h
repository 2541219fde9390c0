// A JSON reader for the program's own files: the text becomes a tree of values. It takes any bytes:
// text that is no JSON, nests too deep, or ends early gives no tree and a short German reason.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quor {

class JsonWert {
public:
  enum class Art { Null, Bool, Zahl, Text, Liste, Objekt };

  Art art = Art::Null;
  bool wahr = false;
  double zahl = 0; // always finite
  std::string text; // UTF-8
  std::vector<JsonWert> liste;
  std::vector<std::pair<std::string, JsonWert>> objekt; // in the order of the file

  bool IstZahl() const { return art == Art::Zahl; }
  bool IstText() const { return art == Art::Text; }
  bool IstListe() const { return art == Art::Liste; }
  bool IstObjekt() const { return art == Art::Objekt; }

  // The member of an object by its key (the first of that name); null when this is no object or it
  // has no such member.
  const JsonWert* Feld(std::string_view name) const;
};

struct JsonErgebnis {
  std::optional<JsonWert> wert;
  std::string fehler; // empty when read; else what went wrong and at which byte
};

// Nesting deeper than this is refused (a file of ours needs a handful of levels).
constexpr int JsonMaxTiefe = 64;

// Reads one JSON value that fills the whole text (blanks around it allowed; a UTF-8 byte order mark
// in front is skipped). Numbers beyond the range of a double are refused.
JsonErgebnis LeseJson(std::string_view text);

} // namespace quor
