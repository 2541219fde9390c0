#include "core/listen_datei.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "core/festtext.h"
#include "core/text_kodierung.h"
#include "core/zahl_lesen.h"

namespace quor {
namespace {

bool IstLeer(char c) {
  return c == ' ' || c == '\t';
}
bool IstLeerOderZeilenende(char c) {
  return IstLeer(c) || c == '\r' || c == '\n';
}

bool GleichOhneGross(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char c = a[i] >= 'a' && a[i] <= 'z' ? static_cast<char>(a[i] - 'a' + 'A') : a[i];
    if (c != b[i]) return false;
  }
  return true;
}

// Rounds like Basic's CInt: to the nearest integer, halves to the even neighbour.
double RundeHalbGerade(double x) {
  double unten = std::floor(x);
  double abstand = x - unten;
  if (abstand > 0.5 || (abstand == 0.5 && std::fmod(unten, 2.0) != 0)) return unten + 1;
  return unten;
}

} // namespace

ListenLeser::ListenLeser(std::string_view dateiBytes) : text_(DateitextZuUtf8(dateiBytes)) {}

bool ListenLeser::IstZeilenende(std::size_t i) const {
  return i < text_.size() && (text_[i] == '\r' || text_[i] == '\n');
}

void ListenLeser::UeberspringeLeer() {
  while (pos_ < text_.size() && IstLeer(text_[pos_]))
    ++pos_;
}

// One line end: CR LF, CR or LF.
void ListenLeser::UeberspringeZeilenende() {
  if (pos_ < text_.size() && text_[pos_] == '\r') ++pos_;
  if (pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
}

// Takes the comma that ends a field, and a line end if only blanks stand between them.
void ListenLeser::NimmKomma() {
  ++pos_;
  std::size_t nachKomma = pos_;
  UeberspringeLeer();
  if (IstZeilenende(pos_)) {
    UeberspringeZeilenende();
  } else {
    pos_ = nachKomma;
  }
}

// Takes the comma or the line end at the read position, if one stands there.
void ListenLeser::BeendeFeld() {
  if (pos_ < text_.size() && text_[pos_] == ',') {
    NimmKomma();
  } else if (IstZeilenende(pos_)) {
    UeberspringeZeilenende();
  }
}

// Skips blanks and empty lines up to the next value; false at the end of the text.
bool ListenLeser::BeginneFeld() {
  while (pos_ < text_.size() && IstLeerOderZeilenende(text_[pos_]))
    ++pos_;
  feldAnfang_ = pos_;
  return pos_ < text_.size();
}

bool ListenLeser::LeseFeld(std::string& feld, bool zahl) {
  if (!BeginneFeld()) return false;
  if (text_[pos_] == '"') {
    std::size_t ende = text_.find('"', pos_ + 1);
    if (ende == std::string::npos) ende = text_.size();
    feld.assign(text_, pos_ + 1, ende - pos_ - 1);
    pos_ = ende < text_.size() ? ende + 1 : ende;
    while (pos_ < text_.size() && text_[pos_] != ',' && !IstZeilenende(pos_))
      ++pos_;
    BeendeFeld();
    return true;
  }
  std::size_t anfang = pos_;
  while (pos_ < text_.size() && text_[pos_] != ',' && !IstZeilenende(pos_) && !(zahl && IstLeer(text_[pos_])))
    ++pos_;
  feld = std::string(TrimAnsicht(std::string_view(text_).substr(anfang, pos_ - anfang)));
  if (zahl) UeberspringeLeer(); // a number followed by blanks and a further value on the line
  BeendeFeld();
  return true;
}

// Text of a number field, trimmed; an empty field stands for 0.
bool ListenLeser::LeseZahlFeld(std::string& text) {
  if (!LeseFeld(text, true)) return false;
  text = std::string(TrimAnsicht(text));
  if (text.empty()) text = "0";
  return true;
}

bool ListenLeser::LeseText(std::string& s) {
  return LeseFeld(s, false);
}

bool ListenLeser::LeseDouble(double& x) {
  std::string text;
  if (!LeseZahlFeld(text)) return false;
  ZahlErgebnis erg = LeseZahl(text);
  if (erg.ok) x = erg.wert;
  return erg.ok;
}

bool ListenLeser::LeseFloat(float& x) {
  std::string text;
  return LeseZahlFeld(text) && LeseZahlFloat(text, x);
}

bool ListenLeser::LeseInt16(int16_t& x) {
  double d = 0;
  if (!LeseDouble(d)) return false;
  double r = RundeHalbGerade(d);
  if (r < std::numeric_limits<int16_t>::min() || r > std::numeric_limits<int16_t>::max()) return false;
  x = static_cast<int16_t>(r);
  return true;
}

bool ListenLeser::LeseBool(bool& b, bool nurMinusEins) {
  std::string text;
  if (!LeseZahlFeld(text)) return false;
  if (GleichOhneGross(text, "#TRUE#") || GleichOhneGross(text, "#FALSE#")) {
    b = text.size() == 6;
    return true;
  }
  ZahlErgebnis erg = LeseZahl(text);
  if (erg.ok) b = nurMinusEins ? erg.wert == -1 : erg.wert != 0;
  return erg.ok;
}

bool ListenLeser::LeseZeile(std::string& s) {
  feldAnfang_ = pos_;
  if (pos_ >= text_.size()) return false;
  std::size_t ende = text_.find_first_of("\r\n", pos_);
  if (ende == std::string::npos) ende = text_.size();
  s.assign(text_, pos_, ende - pos_);
  pos_ = ende;
  UeberspringeZeilenende();
  return true;
}

bool ListenLeser::AmEnde() const {
  for (std::size_t i = pos_; i < text_.size(); ++i) {
    if (!IstLeerOderZeilenende(text_[i])) return false;
  }
  return true;
}

// Counts line ends before the start of the last value; CR LF counts once. The count is kept, since
// reading only moves forward.
std::size_t ListenLeser::Zeile() const {
  if (feldAnfang_ < gezaehltBis_) {
    gezaehltBis_ = 0;
    gezaehlteZeile_ = 1;
  }
  for (std::size_t i = gezaehltBis_; i < feldAnfang_; ++i) {
    if (text_[i] == '\r' || (text_[i] == '\n' && (i == 0 || text_[i - 1] != '\r'))) ++gezaehlteZeile_;
  }
  gezaehltBis_ = feldAnfang_;
  return gezaehlteZeile_;
}

void ListenSchreiber::Trenner() {
  if (wertDavor_) text_ += ',';
  wertDavor_ = true;
}

// Number text of std::to_chars with the exponent written "E+20" / "E-05".
void ListenSchreiber::Zahltext(const char* anfang, const char* ende) {
  Trenner();
  for (const char* p = anfang; p != ende; ++p)
    text_ += *p == 'e' ? 'E' : *p;
}

void ListenSchreiber::Text(std::string_view s) {
  Trenner();
  text_ += '"';
  for (char c : s)
    text_ += c == '"' ? '\'' : c;
  text_ += '"';
}

void ListenSchreiber::Zahl(double x) {
  char puffer[64];
  auto erg = std::to_chars(puffer, puffer + sizeof puffer, std::isfinite(x) ? x : 0.0);
  Zahltext(puffer, erg.ptr);
}

void ListenSchreiber::Zahl(float x) {
  char puffer[64];
  auto erg = std::to_chars(puffer, puffer + sizeof puffer, std::isfinite(x) ? x : 0.0f);
  Zahltext(puffer, erg.ptr);
}

void ListenSchreiber::Ganz(long x) {
  char puffer[32];
  auto erg = std::to_chars(puffer, puffer + sizeof puffer, x);
  Zahltext(puffer, erg.ptr);
}

void ListenSchreiber::Bool(bool b) {
  Trenner();
  text_ += b ? "-1" : "0";
}

void ListenSchreiber::Roh(std::string_view s) {
  text_ += s;
  wertDavor_ = false;
}

void ListenSchreiber::ZeileEnde() {
  text_ += "\r\n";
  wertDavor_ = false;
}

std::string ListenSchreiber::Utf8() const {
  return text_;
}

std::string ListenSchreiber::Bytes() const {
  return Utf8ZuWin1252(text_);
}

} // namespace quor
