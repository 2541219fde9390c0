// A small JSON writer for the machine-readable output of the command-line programs and the diagram
// files: objects, arrays, texts and numbers, indented by two blanks; arrays of numbers may stand on one line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class JsonSchreiber {
public:
  void BeginObjekt();
  void EndeObjekt();
  // `kompakt`: the elements stand on one line (for short arrays of numbers).
  void BeginListe(bool kompakt = false);
  void EndeListe();
  // The key of the next value inside an object.
  void Schluessel(std::string_view name);

  void Text(std::string_view utf8);
  void Zahl(double x); // shortest text that reads back to the same double; null when not finite
  void Zahl(float x);  // shortest text that reads back to the same float
  void Ganz(long x);
  void Bool(bool b);
  void Null();

  // Key and value at once.
  template <typename T> void Feld(std::string_view name, const T& wert) {
    Schluessel(name);
    Wert(wert);
  }

  // The document so far, with a final line end once the outermost value is closed.
  const std::string& Ergebnis() const { return text_; }

private:
  void Wert(const std::string& s) { Text(s); }
  void Wert(const char* s) { Text(s); }
  void Wert(double x) { Zahl(x); }
  void Wert(float x) { Zahl(x); }
  void Wert(bool b) { Bool(b); }
  void Wert(int x) { Ganz(x); }
  void Wert(int16_t x) { Ganz(x); }
  void Wert(long x) { Ganz(x); }

  void VorWert();
  void NeueZeile();

  struct Ebene {
    bool liste = false;
    bool kompakt = false;
    int anzahl = 0;
  };
  std::vector<Ebene> ebenen_;
  std::string text_;
  bool nachSchluessel_ = false;
};

// A text as a JSON string literal, quotes included. Text that is not valid UTF-8 is read as
// Windows-1252 first.
std::string JsonText(std::string_view text);

// Shortest decimal texts that read back to the same value ("0.1", "1e-05", "18.0153").
std::string KurzText(double x);
std::string KurzText(float x);

} // namespace quor
