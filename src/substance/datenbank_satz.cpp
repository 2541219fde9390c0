#include "substance/datenbank_satz.h"

#include "core/text_kodierung.h"

#include <cstring>
#include <ctime>

namespace quor {

namespace {

struct Feld {
  int offset;
  int breite;
};

// Field positions of one kind; a width of 0 means the kind has no such field.
struct Layout {
  int laenge;
  Feld formel, struktur, englisch, deutsch, cas;
  int nummer;
  int zellen;
};

constexpr Layout LayoutQ07{SatzLaengeQ07, {0, 16}, {16, 107}, {123, 60}, {183, 107}, {290, 12}, 384, 386};
constexpr Layout LayoutQ06{SatzLaengeQ06, {0, 16}, {0, 0}, {16, 50}, {66, 50}, {116, 12}, 210, 212};

const Layout& LayoutVon(int typ) {
  return typ == 6 ? LayoutQ06 : LayoutQ07;
}

Feld FeldVon(const Layout& l, SatzFeld f) {
  switch (f) {
  case SatzFeld::Formel:
    return l.formel;
  case SatzFeld::Struktur:
    return l.struktur;
  case SatzFeld::NameEnglisch:
    return l.englisch;
  case SatzFeld::NameDeutsch:
    return l.deutsch;
  case SatzFeld::CASRN:
    return l.cas;
  }
  return {0, 0};
}

uint32_t LeseU32(const std::string& b, int pos) {
  uint32_t v = 0;
  for (int i = 3; i >= 0; --i)
    v = (v << 8) | static_cast<uint8_t>(b[pos + i]);
  return v;
}

void SchreibeU32(std::string& b, int pos, uint32_t v) {
  for (int i = 0; i < 4; ++i)
    b[pos + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
}

} // namespace

int SatzLaenge(int typ) {
  return LayoutVon(typ).laenge;
}

DatenbankSatz::DatenbankSatz(int typ) : typ_(typ == 6 ? 6 : 7), bytes_(SatzLaenge(typ_), '\0') {
  const Layout& l = LayoutVon(typ_);
  for (SatzFeld f : {SatzFeld::Formel, SatzFeld::Struktur, SatzFeld::NameEnglisch, SatzFeld::NameDeutsch,
                     SatzFeld::CASRN}) {
    const Feld fd = FeldVon(l, f);
    bytes_.replace(fd.offset, fd.breite, fd.breite, ' ');
  }
  // The reserved texts between the CAS number and the system number are blank as well.
  const int reserveAnfang = l.cas.offset + l.cas.breite;
  bytes_.replace(reserveAnfang, l.nummer - reserveAnfang, l.nummer - reserveAnfang, ' ');
}

DatenbankSatz::DatenbankSatz(int typ, std::string_view bytes) : typ_(typ == 6 ? 6 : 7), bytes_(bytes) {
  bytes_.resize(SatzLaenge(typ_), '\0');
}

float DatenbankSatz::Zelle(int i) const {
  if (i < 0 || i >= ZellenAnzahl) return 0;
  const uint32_t bits = LeseU32(bytes_, LayoutVon(typ_).zellen + 4 * i);
  float wert;
  std::memcpy(&wert, &bits, sizeof wert);
  return wert;
}

void DatenbankSatz::SetzeZelle(int i, float wert) {
  if (i < 0 || i >= ZellenAnzahl) return;
  uint32_t bits;
  std::memcpy(&bits, &wert, sizeof bits);
  SchreibeU32(bytes_, LayoutVon(typ_).zellen + 4 * i, bits);
}

int16_t DatenbankSatz::Nummer() const {
  const int pos = LayoutVon(typ_).nummer;
  const uint16_t u =
      static_cast<uint16_t>(static_cast<uint8_t>(bytes_[pos]) |
                            (static_cast<uint16_t>(static_cast<uint8_t>(bytes_[pos + 1])) << 8));
  return static_cast<int16_t>(u);
}

void DatenbankSatz::SetzeNummer(int16_t n) {
  const int pos = LayoutVon(typ_).nummer;
  const uint16_t u = static_cast<uint16_t>(n);
  bytes_[pos] = static_cast<char>(u & 0xFF);
  bytes_[pos + 1] = static_cast<char>(u >> 8);
}

int DatenbankSatz::Breite(SatzFeld feld) const {
  return FeldVon(LayoutVon(typ_), feld).breite;
}

std::string DatenbankSatz::Text(SatzFeld feld) const {
  const Feld f = FeldVon(LayoutVon(typ_), feld);
  return Win1252ZuUtf8(std::string_view(bytes_).substr(f.offset, f.breite));
}

void DatenbankSatz::SetzeText(SatzFeld feld, std::string_view utf8) {
  const Feld f = FeldVon(LayoutVon(typ_), feld);
  if (f.breite == 0) return;
  std::string t = Utf8ZuWin1252(utf8);
  t.resize(f.breite, ' ');
  bytes_.replace(f.offset, f.breite, t);
}

DatenbankSatz KopfSatz(int typ, const std::string& datum, int16_t anzahl) {
  DatenbankSatz kopf(typ);
  kopf.SetzeText(SatzFeld::Formel, datum);
  kopf.SetzeNummer(anzahl);
  return kopf;
}

std::string DatenbankDatei(const DatenbankSatz& kopf, const std::vector<DatenbankSatz>& saetze) {
  std::string datei = kopf.Bytes();
  datei.reserve(kopf.Bytes().size() * (saetze.size() + 1));
  for (const DatenbankSatz& s : saetze)
    datei += s.Bytes();
  return datei;
}

std::string HeutigesDatum() {
  const std::time_t jetzt = std::time(nullptr);
  std::tm t{};
  localtime_r(&jetzt, &t);
  char text[16];
  std::strftime(text, sizeof text, "%d.%m.%Y", &t);
  return text;
}

} // namespace quor
