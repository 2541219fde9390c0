// The tables of the fitting dialog: tabs, model options with their captions and diagram titles,
// formula texts, labels of the start fields, and its fixed texts.
#include "fitting/fit_modell.h"
#include "fitting/fit_modelle.h"
#include "fitting/fitting_dialog.h"

namespace quor {

namespace fm = fitmodell;

const std::array<const char*, fittab::Anzahl> TabTexte = {"Allgemein", " Dampfdruck p(LV)", "Dichte rho(L)",
                                                          "delta(LV)h", " Wärmekapaz. c(p)"};

const char* const frmQFitting::CaptionOhneDaten = " Fitting y = f(T) (noch keine Daten geladen)";
const char* const frmQFitting::Label11Text = "Rest-Standardabweichung s(R) = SQRT(FQS / (N -NPar))";
const char* const frmQFitting::SplineBereichText = "Eingabe-Bereich Sm = 0 ... 5000; Standard  ist Sm = 0";
const char* const frmQFitting::StDevKopf = "s, Par";
const std::array<const char*, 3> frmQFitting::cpPhasenTexte = {"Idealgas", "flüssig", "fest"};
const std::array<const char*, 2> frmQFitting::LogFitTexte = {"FQS aus y", "FQS aus ln(y)"};
const std::array<const char*, 2> frmQFitting::CalcTexte = {"y = f(x)", "x = f(y)"};
const char* const frmQFitting::cmdStartCaption = "Start Fitting";
const char* const frmQFitting::cmdCalcCaption = "inter- und extrapolieren";
const char* const frmQFitting::cmdApplyCaption = "Parameter übernehmen";
const char* const frmQFitting::cmdSplineParCaption = "Spline-Parameter anzeigen";
const char* const frmQFitting::chkLgCaption = "lg";

const std::vector<FitModellEintrag>& FitModellKatalog() {
  using fittab::Allgemein, fittab::Dampfdruck, fittab::Dichte, fittab::HLV, fittab::Cp;
  static const std::vector<FitModellEintrag> katalog = {
      {fm::Polynom, "Polynom", " Allgemein, y(x) = Polynom", Allgemein, true},
      {fm::Kombi, "Kombi-Ausdruck", " Allgemein, y(x) = Kombi-Ausdruck", Allgemein, true},
      {fm::Reserviert2, "Res2, unsichtbar", "", Allgemein, false},
      {fm::AkimaSpline, "kubischer Spline    (Interpolations-Methode)", " Allgemein, y(x) = AKIMA-Spline",
       Allgemein, true},
      {fm::August, "AUGUST, DUPRÉ-RANKINE", " Dampfdruck p(LV), y(T) = AUGUST-/DUPRE-RANKINE-Gleichung",
       Dampfdruck, true},
      {fm::Antoine, "ANTOINE", " Dampfdruck p(LV), y(T) = ANTOINE-Gleichung", Dampfdruck, true},
      {fm::FrostKalkwarf, "FROST-KALKWARF", " Dampfdruck p(LV), y(T) = FROST-KALKWARF-Gleichung", Dampfdruck,
       true},
      {fm::FrostKalkwarfThodos, "FROST-KALKWARF/THODOS",
       " Dampfdruck p(LV), y(T) = FROST-KALKWARF-THODOS-Gleichung", Dampfdruck, true},
      {fm::DipprDampfdruck, "DIPPR-Gleichung", " Dampfdruck p(LV), y(T) = DIPPR-Gleichung", Dampfdruck, true},
      {fm::Wagner, "WAGNER", " Dampfdruck p(LV), y(T) = WAGNER-Gleichung", Dampfdruck, true},
      {fm::Rackett, "RACKETT  (DIPPR)", " Flüssigkeits-Dichte rho_L, y(T) = RACKETT/DIPPR-Gleichung", Dichte,
       true},
      {fm::Leuna, "LEUNA-Gleichung", " Flüssigkeits-Dichte rho_L, y(T) = Leuna-Gleichung", Dichte, true},
      {fm::PolynomDichte, "Polynom", " Flüssigkeits-Dichte rho_L, y(T) = Polynom", Dichte, true},
      {fm::Reserviert12, "Res12, unsichtbar", "", Dichte, false},
      {fm::Reserviert13, "Res13, unsichtbar", "", Dichte, false},
      {fm::Majer, "MAJER-Gleichung", " Verdampfungsenthalpie delta(LV)h, MAJER-Gleichung", HLV, true},
      {fm::DipprHLV, "DIPPR-Gleichung", " Verdampfungsenthalpie delta(LV)h, DIPPR-Gleichung", HLV, true},
      {fm::PolynomCp, "Polynom", " Wärmekapazität c(p), y(T) = Polynom", Cp, true},
      {fm::Shomate, "SHOMATE-Gleichung", " Wärmekapazität c(p), y(T) = SHOMATE-Gleichung", Cp, true},
      {fm::DipprCp, "DIPPR-Gleichung", " Wärmekapazität c(p), y(T) = DIPPR-Gleichung", Cp, true},
  };
  return katalog;
}

const FitModellEintrag* FitModellVon(int16_t code) {
  for (const FitModellEintrag& e : FitModellKatalog())
    if (e.Code == code) return &e;
  return nullptr;
}

const char* GruppenText(int tab) {
  return tab == fittab::Allgemein ? "lineare Regression (Lösen eines linearen Gleichungssystems)"
                                  : "nichtlineare Regression (Marquardt-Methode)";
}

bool HatLg(int16_t code) {
  return code >= fm::August && code <= fm::DipprDampfdruck;
}

namespace {

// Every "ln" of a vapour-pressure formula becomes "lg" in its decimal form.
std::string MitLg(std::string t) {
  for (std::size_t i = t.find("ln"); i != std::string::npos; i = t.find("ln", i + 2))
    t.replace(i, 2, "lg");
  return t;
}

const char* FormelLn(int16_t code) {
  switch (code) {
  case fm::Polynom:
    return "y = A + B x + C x^2 + D x^3 + E x^4 + F x^5";
  case fm::Kombi:
    return "y = A + B x + C  x^2 + D  x^3 + E/x + F/x^2 + G ln(x)";
  case fm::August:
    return "ln(p/kPa) = A - B / (T/K) + D ln(T/K)";
  case fm::Antoine:
    return "ln(p/kPa) = A - B / (C + t/°C)";
  case fm::FrostKalkwarf:
  case fm::FrostKalkwarfThodos:
    return "ln(p/kPa) = A + B/(C+T/K-273.15) + D ln(T/K) + E (p/kPa)/(T/K)^2";
  case fm::DipprDampfdruck:
    return "ln(p/kPa) = A + B / (T/K) + D ln(T/K) + H(T/K)^I";
  case fm::Wagner:
    return "ln(p/pcr) = (A X + B X^1.5 + C X^3 + D X^6) / (T/Tcr)  (mit X = 1 - T/Tcr)";
  case fm::Rackett:
    return "rho(L) = A / ( B^(X^C) )    mit X = 1 + T/Tcr";
  case fm::Leuna:
    return "rho(L) = A + B (T/K) + C (T/K)^2 + D (T/K)^3 + E (1 - T/Tcr)^1/3";
  case fm::PolynomDichte:
    return "rho(L) = A + B T +  C  T^2 +  D T^3 ";
  case fm::Majer:
    return "delta(LV)h = A*(1-Tr)^beta  exp(-alpha Tr)";
  case fm::DipprHLV:
    return "delta(LV)h = A*(1-Tr)^(B + C*Tr + D*Tr^2 + E*Tr^3)";
  case fm::PolynomCp:
    return "cp = A + B T +  C  T^2 +  D T^3 +  E T^4";
  case fm::Shomate:
    return "cp = A + B T +  C T^2 + DT^3 +  E/ (T^2)";
  case fm::DipprCp:
    return "cp = A + B*((C/T)/sinh(C/T))^2 + D*((E/T)/cosh(E/T))^2";
  default:
    return "";
  }
}

} // namespace

std::string FormelText(int16_t code, bool lg) {
  const std::string t = FormelLn(code);
  return HatLg(code) && lg ? MitLg(t) : t;
}

int ParameterFelder(int16_t code) {
  if (code == fm::FrostKalkwarfThodos) return 5;
  if (code == fm::AkimaSpline) return 0;
  return ModellVorgaben(code, false, 0).n;
}

std::array<std::string, FitMaxPar> StartLabels(int16_t code) {
  std::array<std::string, FitMaxPar> l{};
  const char* const buchstaben[FitMaxPar] = {"A = ", "B = ", "C = ", "D = ", "E = ", "F = ", "G = "};
  const int n = ParameterFelder(code);
  for (int i = 0; i < n; ++i)
    l[i] = buchstaben[i];
  if (code == fm::August) l[2] = "D = ";
  if (code == fm::Majer) {
    l[1] = "alpha = ";
    l[2] = "beta = ";
  }
  if (code == fm::DipprDampfdruck) {
    l[2] = "D = ";
    l[3] = "H = ";
    l[4] = "I = ";
  }
  if (TcrFeld(code) >= 0) l[TcrFeld(code)] = "Tcr/K = ";
  if (PcrFeld(code) >= 0) l[PcrFeld(code)] = "pcr/kPa = ";
  return l;
}

} // namespace quor
