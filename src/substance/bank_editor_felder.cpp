// The pages and fields of the data editor with their labels, the key filter and the texts of values.
#include "substance/bank_editor_felder.h"
#include "core/zahlformat.h"
#include "substance/bank_editor.h"

#include <algorithm>

namespace quor {

const char* const BankSeitenTitel[BankSeitenAnzahl] = {"Einzeldaten",
                                                       "Dampfdruck",
                                                       "Wärmekapazität Idealgas",
                                                       "Dichten rho(T) L und S ",
                                                       "Verdampfungsenthalpie  Fu(T)",
                                                       "Wärmekapazitäten cp(T) L und S"};

namespace {

using S = BankSeite;

// Groups of the pages.
const char* const GStoff = "Stoff";
const char* const GKonstanten = "Stoffkonstanten";
const char* const GBildung = "Bildungsgrößen (idealer Gaszustand, 298.15 K, Normaldruck)";
const char* const GAntoineNd = "Antoine-Gleichung (Niederdruck)";
const char* const GAntoineHd = "Antoine-Gleichung (Hochdruck)";
const char* const GFrost = "erweiterte Frost/Kalkwarf-Gleichung";
const char* const GWagner = "Wagner-Gleichung";
const char* const GCpPoly = "cp(idG) Polynom";
const char* const GCpSinh = "cp(idG) sinh/cosh-Funktion (DIPPR)";
const char* const GRhoL = "Flüssigkeitsdichte rho(L) / (kg/m^3)";
const char* const GRhoS = "Feststoffdichte rho(S) / (kg/m^3)";
const char* const GHLV = "Verdampfungsenthalpie delta(LV)h / (kJ/kmol)";
const char* const GWatson = "Bezugspunkt der Watson-Korrelation";
const char* const GCpL = "cp(L) Flüssigkeit / (kJ/(kmol K))";
const char* const GCpS = "cp(S) Feststoff / (kJ/(kmol K))";

void Block(std::vector<BankFeld>& f, int erster, std::initializer_list<const char*> namen, S seite,
           const char* gruppe) {
  int i = erster;
  for (const char* n : namen)
    f.push_back({i++, n, seite, gruppe});
}

std::vector<BankFeld> BaueFelder() {
  std::vector<BankFeld> f;
  f.push_back({bank::DDName, "Name", S::Einzeldaten, GStoff});
  f.push_back({bank::DDFormel, "Formel", S::Einzeldaten, GStoff});
  f.push_back({bank::DDCAS, "CAS-Nr.", S::Einzeldaten, GStoff});
  f.push_back({bank::DDStruktur, "Struktur", S::Einzeldaten, GStoff});
  Block(f, 0,
        {"Molmasse M / (kg/kmol)", "Normalsiedetemperatur T(b) / K", "Tripelpunkt T(tr) / K",
         "Tripelpunkt p(tr) / kPa", "kritische Temperatur T(cr) / K", "kritischer Druck p(cr) / kPa",
         "kritische Dichte rho(cr) / (kg/m^3)", "azentrischer Faktor omega"},
        S::Einzeldaten, GKonstanten);
  f.push_back({44, "delta(f)H / (kJ/kmol)", S::Einzeldaten, GBildung});
  f.push_back({45, "delta(f)G / (kJ/kmol)", S::Einzeldaten, GBildung});
  f.push_back({122, "S(konv.) / (kJ/(kmol K))", S::Einzeldaten, GBildung});

  Block(f, 8, {"A", "B", "C", "TLo / K", "THi / K"}, S::Dampfdruck, GAntoineNd);
  Block(f, 13, {"A", "B", "C", "TLo / K", "THi / K"}, S::Dampfdruck, GAntoineHd);
  Block(f, 51, {"A", "B", "C", "D", "E", "F", "G", "H", "I", "TLo / K", "THi / K"}, S::Dampfdruck, GFrost);
  Block(f, 62,
        {"A1", "A2", "A3", "n3", "A4", "n4", "A5", "n5", "Tcrit / K", "pcrit / kPa", "TLo / K", "THi / K"},
        S::Dampfdruck, GWagner);

  Block(f, 28, {"C0", "C1", "C2", "C3", "C4", "TLo / K", "THi / K"}, S::CpIdealgas, GCpPoly);
  Block(f, 35, {"C0", "C1", "C2", "C3", "C4", "TLo / K", "THi / K"}, S::CpIdealgas, GCpSinh);

  Block(f, 18, {"A", "B", "C", "D", "E", "F", "G", "T(cr) / K", "TLo / K", "THi / K"}, S::Dichten, GRhoL);
  Block(f, 123, {"A", "B", "C", "D"}, S::Dichten, GRhoS);
  Block(f, 128, {"TLo / K", "THi / K"}, S::Dichten, GRhoS);

  Block(f, 74, {"A", "alpha", "beta", "C", "D", "E", "T(cr) / K", "TLo / K", "THi / K"}, S::Verdampfung,
        GHLV);
  Block(f, 42, {"delta(LV)h / (kJ/kmol)", "T(ref) / K"}, S::Verdampfung, GWatson);

  Block(f, 108, {"C0", "C1", "C2", "C3", "C4", "TLo / K", "THi / K"}, S::CpLS, GCpL);
  Block(f, 115, {"C0", "C1", "C2", "C3", "C4", "TLo / K", "THi / K"}, S::CpLS, GCpS);
  return f;
}

} // namespace

const std::vector<BankFeld>& BankFelder() {
  static const std::vector<BankFeld> felder = BaueFelder();
  return felder;
}

const BankFeld* BankFeldVon(int index) {
  const auto& f = BankFelder();
  auto it = std::find_if(f.begin(), f.end(), [index](const BankFeld& b) { return b.Index == index; });
  return it == f.end() ? nullptr : &*it;
}

bool IstTextFeld(int index) {
  return index == bank::DDName || index == bank::DDFormel || index == bank::DDCAS ||
         index == bank::DDStruktur;
}

char BankTaste(char c) {
  if (c >= '0' && c <= '9') return c;
  switch (c) {
  case 'E':
  case 'e':
  case '-':
  case '.':
  case '\r':
  case '\b':
  case 0x7f:
    return c;
  case ',':
    return '.';
  default:
    return 0;
  }
}

std::string FeldText(float wert) {
  return wert == 0 ? frmQBankEdit::KeinWert : SingleText(wert);
}

std::string GrenzenText(int16_t wert) {
  return wert == 0 ? frmQBankEdit::KeinWert : std::to_string(wert);
}

} // namespace quor
