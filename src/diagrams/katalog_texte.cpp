// The rows of the diagram catalogue and the texts of its axes.
#include "diagrams/diagramm_codes.h"
#include "diagrams/katalog.h"

#include <algorithm>
#include <array>

namespace quor {

namespace {

using G = Groesse;
constexpr int16_t K1 = klasse::Isotherme, K2 = klasse::Isobare, K3 = klasse::Isochore;
constexpr int16_t K5 = klasse::Koexistenz, K6 = klasse::Inversion, K7 = klasse::Datenbank;

// clang-format off
const KatalogZeile Zeilen[] = {
    // p, v, T sections
    {1, K1, "pv", "p - V (isothermer Schnitt)", G::v, G::p},
    {26, K1, "rp", "rho - p (isothermer Schnitt)", G::p, G::Rho},
    {2, K1, "qp", "pV - p (isothermer Schnitt)", G::p, G::PV},
    {3, K2, "Tv", "T - V (isobarer Schnitt)", G::v, G::T},
    {4, K2, "Tr", "T -rho (isobarer Schnitt)", G::Rho, G::T},
    {5, K3, "pT", "p - T (isochorer Schnitt)", G::T, G::p},
    // functions over T at p and at v
    {34, K2, "0T", "differentieller Joule-Thomson-Koeffizient aus EOS (isobarer Scnitt)", G::T, G::JouleThomson},
    {19, K2, "cT", "Wärmekapazazität Cp(real) nach EOS (isobarer Schnitt)", G::T, G::Cp},
    {14, K2, "hT", "Innere Energie U (isobarer Schnitt)", G::T, G::U},
    {15, K2, "hT", "Enthalpie H (isobarer Schnitt)", G::T, G::H},
    {16, K2, "sT", "Entropie S (isobarer Schnitt)", G::T, G::S},
    {17, K2, "hT", "Freie Enthalpie G (isobarer Schnitt)", G::T, G::G},
    {25, K2, "hT", "Freie Energie A (isobarer Schnitt)", G::T, G::A},
    {20, K2, "hT", "Exergie der Inneren Energie E(U) (isobarer Schnitt)", G::T, G::EU},
    {18, K2, "hT", "Exergie der Enthalpie E(H) (isobarer Schnitt)", G::T, G::EH},
    {185, K3, "cT", "Wärmekapazität Cv (isochorer Schnitt)", G::T, G::Cv},
    {184, K3, "sT", "Entropie S (isochorer Schnitt)", G::T, G::S},
    {183, K3, "hT", "Innere Energie U vs. Temperatur T (isochorer Schnitt)", G::T, G::U},
    {182, K3, "hT", "Freie Energie A vs. Temperatur T (isochorer Schnitt)", G::T, G::A},
    {181, K3, "hT", "Exergie der Inneren Energie E(U) (isochorer Schnitt)", G::T, G::EU},
    {180, K3, "hT", "Exergie der Enthalpie E(H) (isochorer Schnitt)", G::T, G::EH},
    // functions over p at T
    {154, K1, "cp", "Wärmekapazazität Cp(real) nach EOS (isothermer Schnitt)", G::p, G::Cp},
    {149, K1, "hp", "Innere Energie U (isothermer Schnitt)", G::p, G::U},
    {150, K1, "hp", "Enthalpie H (isothermer Schnitt)", G::p, G::H},
    {151, K1, "sp", "Entropie S (isothermer Schnitt)", G::p, G::S},
    {152, K1, "hp", "Freie Enthalpie G (isothermer Schnitt)", G::p, G::G},
    {148, K1, "hp", "Freie Energie A (isothermer Schnitt)", G::p, G::A},
    {155, K1, "hp", "Exergie der Inneren Energie E(U) (isothermer Schnitt)", G::p, G::EU},
    {153, K1, "hp", "Exergie der Enthalpie E(H) (isothermer Schnitt)", G::p, G::EH},
    // functions over v at T
    {158, K1, "sv", "Entropie S vs. Volumen (isothermer Schnitt)", G::v, G::S},
    {157, K1, "hv", "Innere Energie U vs. Volumen (isothermer Schnitt)", G::v, G::U},
    {156, K1, "hv", "Freie Energie A vs. Volumen v (isothermer Schnitt)", G::v, G::A},
    {160, K1, "hv", "Exergie der Inneren Energie E(U) vs. Volumen (isothermer Schnitt)", G::v, G::EU},
    {159, K1, "cv", "Wärmekapazität Cv vs. Volumen (isothermer Schnitt)", G::v, G::Cv},
    // residual functions
    {31, K2, "hT", "residuale Enthalpie (H - H_id) (isobarer Schnitt)", G::T, G::ResH},
    {30, K2, "sT", "residuale Entropie (S - S_id) (isobarer Schnitt)", G::T, G::ResS},
    {32, K2, "hT", "residuale Freie Enthalpie (G - G_id) = RT ln(phi) (isobarer Schnitt)", G::T, G::ResG},
    {33, K2, "cT", "residuale Wärmekapazität (Cp - Cp_id) (isobarer Schnitt)", G::T, G::ResCp},
    {41, K1, "hp", "residuale Enthalpie (H - H_id) (isothermer Schnitt)", G::p, G::ResH},
    {40, K1, "sp", "residuale Entropie (S - S_id) (isothermer  Schnitt)", G::p, G::ResS},
    {42, K1, "hp", "residuale Freie Enthalpie (G - G_id) (isothermer  Schnitt)", G::p, G::ResG},
    {43, K1, "cp", "residuale Wärmekapazität (Cp - Cp_id) (isothermer  Schnitt)", G::p, G::ResCp},
    // h over s, eH over T(u)*s and over h
    {107, K1, "hs", "Enthalpie H vs. Entropie S (isothermer  Schnitt)", G::S, G::H},
    {24, K2, "hs", "Enthalpie H vs. Entropie S (isobarer Schnitt)", G::S, G::H},
    {109, K1, "hh", "Exergie der Enthalpie E(H) vs. T(u) * Entropie (isothermer Schnitt)", G::TuS, G::EH},
    {23, K2, "hh", "Exergie der Enthalpie E(H) vs. T(u) * Entropie (isobarer Schnitt)", G::TuS, G::EH},
    {21, K1, "hh", "Exergie der Enthalpie E(H) vs. Enthalpie (isothermer  Schnitt)", G::H, G::EH},
    {22, K2, "hh", "Exergie der Enthalpie E(H) vs. Enthalpie (isobarer Schnitt)", G::H, G::EH},
    // projections of the two-phase region
    {6, K5, "pv", "Projektion p - V", G::v, G::p},
    {106, K5, "qp", "Projektion pV - p", G::p, G::PV},
    {27, K5, "rp", "Projektion rho - p", G::p, G::Rho},
    {12, K5, "Tr", "Projektion T - rho", G::Rho, G::T},
    {8, K5, "rT", "Projektion rho - T", G::T, G::Rho},
    {7, K5, "Tv", "Projektion T - V", G::v, G::T},
    {80, K5, "rT", "Mathias-Cailletet-Halbierende (rho(L) + rho(V))/2 vs. T", G::T, G::Rho},
    {9, K5, "pT", "Dampfdruck p(LV):  p(LV) vs. T", G::T, G::p},
    {10, K5, "0T", "Dampfdruck p(LV): ln(p(LV)) vs. 1/T", G::InvT, G::LnP},
    {11, K5, "0T", "Dampfdruck p(LV): Anstieg d(lnp(LV)) / d(1/T) vs. 1/T", G::InvTAnstieg, G::Anstieg},
    {13, K5, "hT", "Verdampfungsenthalpie delta(LV)H vs. T (Projektion)", G::T, G::HLV},
    // functions along the saturation line over T
    {90, K5, "hT", "Enthalpie H(T) im Phasengleichgewicht V - L", G::T, G::H},
    {91, K5, "sT", "Entropie S(T) im Phasengleichgewicht V - L", G::T, G::S},
    {93, K5, "hT", "Freie Enthalpie G(T) im Phasengleichgewicht V - L", G::T, G::G},
    {94, K5, "hT", "Exergie der Enthalpie  E(H) vs. T im VLE", G::T, G::EH},
    {92, K5, "cT", "Wärmekapazität Cp(T) im Phasengleichgewicht V - L", G::T, G::Cp},
    {95, K5, "hT", "Exergie der Inneren Energie E(U) vs. T im VLE", G::T, G::EU},
    // saturation lines without a menu entry of their own: the two-phase twins of the functions
    // over T (u, a, cV), over p (the eight functions of the isotherms) and over v, and of the
    // h-s, eH-T(u)*s and eH-h diagrams
    {98, K5, "hT", "Innere Energie U(T) im Phasengleichgewicht V - L", G::T, G::U},
    {99, K5, "hT", "Freie Energie A(T) im Phasengleichgewicht V - L", G::T, G::A},
    {88, K5, "cT", "Wärmekapazität Cv(T) im Phasengleichgewicht V - L", G::T, G::Cv},
    {68, K5, "hp", "Innere Energie U(p) im Phasengleichgewicht V - L", G::p, G::U},
    {69, K5, "hp", "Enthalpie H(p) im Phasengleichgewicht V - L", G::p, G::H},
    {70, K5, "sp", "Entropie S(p) im Phasengleichgewicht V - L", G::p, G::S},
    {71, K5, "hp", "Freie Enthalpie G(p) im Phasengleichgewicht V - L", G::p, G::G},
    {72, K5, "cp", "Wärmekapazität Cp(p) im Phasengleichgewicht V - L", G::p, G::Cp},
    {73, K5, "hp", "Freie Energie A(p) im Phasengleichgewicht V - L", G::p, G::A},
    {74, K5, "hp", "Exergie der Inneren Energie E(U) vs. p im VLE", G::p, G::EU},
    {75, K5, "hp", "Exergie der Enthalpie E(H) vs. p im VLE", G::p, G::EH},
    {100, K5, "hv", "Freie Energie A vs. Volumen im Phasengleichgewicht V - L", G::v, G::A},
    {101, K5, "hv", "Innere Energie U vs. Volumen im Phasengleichgewicht V - L", G::v, G::U},
    {102, K5, "sv", "Entropie S vs. Volumen im Phasengleichgewicht V - L", G::v, G::S},
    {89, K5, "cv", "Wärmekapazität Cv vs. Volumen im Phasengleichgewicht V - L", G::v, G::Cv},
    {97, K5, "hv", "Exergie der Inneren Energie E(U) vs. Volumen im VLE", G::v, G::EU},
    {96, K5, "hs", "Enthalpie H vs. Entropie S im Phasengleichgewicht V - L", G::S, G::H},
    {120, K5, "hh", "Exergie der Enthalpie E(H) vs. Enthalpie im Phasengleichgewicht V - L", G::H, G::EH},
    {121, K5, "hh", "Exergie der Enthalpie E(H) vs. T(u) * Entropie im Phasengleichgewicht V - L", G::TuS, G::EH},
    // inversion
    {105, K6, "pT", "Inversionskurve (Joule-Thomson-Effekt)", G::TInversion, G::pInversion},
    {190, K6, "qp", "Inversionskurve (Joule-Thomson-Effekt), delta = 0", G::pInversion, G::PVInversion},
    // database functions of T
    {300, K7, "rT", "Datenbankfunktion L-Dichte = Fu(T)", G::T, G::Rho},
    {310, K7, "rT", "Datenbankfunktion S-Dichte = Fu(T)", G::T, G::Rho},
    {301, K7, "", "L-Volumen aus Datenbankfunktion rho(L) = F(T)", G::T, G::v},
    {302, K7, "cT", "Idealgas-Wärmekapazität Cp = Fu(T), Datenbankfunktion", G::T, G::Cp},
    {311, K7, "cT", "Idealgas-Wärmekapazität Cp = Fu(T), Datenbankfunktion", G::T, G::Cp},
    {303, K7, "cT", "Flüssigkeits-Wärmekapazität Cp = Fu(T), Datenbankfunktion", G::T, G::Cp},
    {304, K7, "cT", "Feststoff-Wärmekapazität Cp = Fu(T), Datenbankfunktion", G::T, G::Cp},
    {305, K7, "hT", "Verdampfungsenthalpie delta(LV)H = Fu(T), Datenbankfunktion", G::T, G::HLV},
    {306, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion", G::T, G::p},
    {307, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion", G::T, G::p},
    {308, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion", G::T, G::p},
    {309, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion", G::T, G::p},
    {312, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), korrelierte Funktion", G::T, G::p},
    {313, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), korrelierte Funktion", G::T, G::p},
    {314, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), korrelierte Funktion", G::T, G::p},
    {315, K7, "pT", "Sättigungsdampfdruck pLV = Fu(T), korrelierte Funktion", G::T, G::p},
};
// clang-format on

using Vier = std::array<const char*, 4>; // by EnergieMode: kJ/kmol, per R, per R*T, per kg

// Texts of the caloric quantities by EnergieMode.
const Vier* EnergieTexte(Groesse g) {
  static const Vier u{"u / (kJ/kmol) ", "u / K", "u / (R T)", "u / (kJ/kg) "};
  static const Vier h{"h / (kJ/kmol) ", "h / K", "h / (R T)", "h / (kJ/kg) "};
  static const Vier a{"a / (kJ/kmol) ", "a / K", "a / (R T)", "a / (kJ/kg) "};
  static const Vier g_{"g / (kJ/kmol) ", "g / K", "g / (R T)", "g / (kJ/kg) "};
  static const Vier s{"s / (kJ/kmol/K) ", "s / R ", "s / (1/K) ", "s / (kJ/kg/K)) "};
  static const Vier cp{"cp / (kJ/kmol/K) ", "cp / R ", "cp / (1/K) ", "cp / (kJ/kg/K)) "};
  static const Vier cv{"cV / (kJ/kmol/K) ", "cV / R ", "cV / (1/K) ", "cV / (kJ/kg/K)) "};
  static const Vier eh{"eH / (kJ/kmol) ", "eH / K", "eH / (R T)", "eH / (kJ/kg) "};
  static const Vier eu{"eU / (kJ/kmol) ", "eU / K", "eU / (R T)", "eU / (kJ/kg) "};
  static const Vier hlv{"delta(LV)h / (kJ/kmol) ", "delta(LV)h / K", "delta(LV)h / (R T)",
                        "delta(LV)h / (kJ/kg) "};
  static const Vier rs{"delta s / (kJ/kmol/K) ", "delta s / R ", "delta s / (1/K) ", "delta s / (kJ/kg/K)) "};
  static const Vier rh{"delta h / (kJ/kmol) ", "delta h / K", "delta h / (R T)", "delta h / (kJ/kg) "};
  static const Vier rg{"delta g / (kJ/kmol) ", "delta g / K", "delta g / (R T)", "delta g / (kJ/kg) "};
  static const Vier rcp{"delta cp / (kJ/kmol/K) ", "delta cp / R ", "delta cp / (1/K) ",
                        "delta cp /(kJ/ (kg K)) "};
  static const Vier tus{"(T(u) * s) / (kJ/kmol) ", "(T(u) * s) / K ", "(T(u) *s) / (R T) ",
                        "T(u) * s / (kJ/kg) "};
  switch (g) {
  case G::U:
    return &u;
  case G::H:
    return &h;
  case G::A:
    return &a;
  case G::G:
    return &g_;
  case G::S:
    return &s;
  case G::Cp:
    return &cp;
  case G::Cv:
    return &cv;
  case G::EH:
    return &eh;
  case G::EU:
    return &eu;
  case G::HLV:
    return &hlv;
  case G::ResS:
    return &rs;
  case G::ResH:
    return &rh;
  case G::ResG:
    return &rg;
  case G::ResCp:
    return &rcp;
  case G::TuS:
    return &tus;
  default:
    return nullptr;
  }
}

// Texts of the p, v, T quantities by VolumenMode; mode 2 shows reduced values.
std::string ZustandsText(Groesse g, int16_t volumenMode) {
  const bool reduziert = volumenMode == 2;
  switch (g) {
  case G::T:
  case G::TInversion:
    return reduziert ? "T / T(cr)" : "T / K";
  case G::p:
  case G::pInversion:
    return reduziert ? "p / p(cr)" : "p / kPa";
  case G::v:
    return reduziert ? "v / v(cr), calc." : volumenMode == 1 ? "v / (m^3/kg)" : "v / (m^3/kmol)";
  case G::PV:
  case G::PVInversion:
    return reduziert ? "p(red) * v(red)" : volumenMode == 1 ? "pv / (kPa*m^3/kg)" : "pv / (kPa*m^3/kmol)";
  case G::Rho:
    return "rho / (kg/m^3)";
  case G::InvT:
    return reduziert ? "1 / T(red)" : "1/T / (1/K) ";
  case G::InvTAnstieg:
    return "1/T / (1/K)";
  case G::LnP:
    return reduziert ? "ln (p/p(cr))" : "ln(p/kPa) ";
  case G::Anstieg:
    return "dln(p/kPa) / d(1/T) ";
  case G::JouleThomson:
    return "delta / (K/kPa)";
  default:
    return "";
  }
}

} // namespace

const KatalogZeile* KatalogZeileVon(int code) {
  const auto* ende = std::end(Zeilen);
  const auto* z =
      std::find_if(std::begin(Zeilen), ende, [code](const KatalogZeile& k) { return k.Code == code; });
  return z == ende ? nullptr : z;
}

bool CodeBekannt(int code) {
  return KatalogZeileVon(code) != nullptr;
}

bool IstKalorisch(Groesse g) {
  return EnergieTexte(g) != nullptr;
}

bool KalorischerCode(int code) {
  const KatalogZeile* z = KatalogZeileVon(code);
  return z && (IstKalorisch(z->X) || IstKalorisch(z->Y));
}

std::string AchsenText(Groesse g, const EinheitenGruppe& e) {
  if (const Vier* t = EnergieTexte(g)) return (*t)[std::clamp<int>(e.EnergieMode, 0, 3)];
  return ZustandsText(g, e.VolumenMode);
}

std::string TitelVon(int code, const EinheitenGruppe& e) {
  const KatalogZeile* z = KatalogZeileVon(code);
  if (!z) return "";
  if (!KalorischerCode(code)) return z->Titel;
  return std::string(e.EnergieMode == 3 ? "spezifische " : "molare ") + z->Titel;
}

bool SetzeKatalogTexte(DiagrammAuftrag& a, const EinheitenGruppe& e) {
  const KatalogZeile* z = KatalogZeileVon(a.Code);
  if (!z) return false;
  a.Klasse = z->Klasse;
  a.Achsentag = z->Achsentag;
  a.Titel = TitelVon(a.Code, e);
  a.XText = AchsenText(z->X, e);
  a.YText = AchsenText(z->Y, e);
  return true;
}

} // namespace quor
