#include "diagrams/diagramm_befehle.h"

#include "calc/rechen_befehle.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/markierungen.h"
#include "dienste/oberflaeche.h"
#include "engine/eos_zeilen.h"

#include <map>
#include <vector>

namespace quor {

namespace {

constexpr const char* NichtMoeglich = "Ausführung nicht möglich";
// The entry of the vapour-pressure slope among the projections.
constexpr int AnstiegEintrag = 9;

// clang-format off
const std::vector<MenuePosten> Posten = {
    {"mnu2D", -1, "&2D-Diagramme...", "", -1},
    {"mnuGraf", 0, "isotherme, isobare, isochore Schnitte  p, v, T", "mnu2D", -1},
    {"mnuGraf_sub_cut", 1, "isotherm p - v", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 2, "isotherm rho - p", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 3, "isotherm pv - p", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 4, "-", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 5, "isobar T - V", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 6, "isobar T - rho", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 7, "-", "mnuGraf", 0},
    {"mnuGraf_sub_cut", 8, "isochor p - T", "mnuGraf", 0},
    {"mnuGraf", 1, "thermodynamische Funktionen vs. T  (isobar, isochor)", "mnu2D", -1},
    {"mnuGraf_sub_FuT", 1, "isobar   Joule-Thomson-Koeffizient", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 2, "-", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 3, "isobar   Wärmekapazität Cp(real)", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 4, "isobar   Innere Energie U", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 5, "isobar   Enthalpie H", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 6, "isobar   Entropie S", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 7, "isobar   Freie Enthalpie G", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 8, "isobar   Freie Energie A", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 9, "isobar   Exergie der Inneren Energie E(U)", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 10, "isobar   Exergie der Enthalpie E(H)", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 11, "-", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 12, "isochor  Wärmekapazität Cv", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 13, "isochor  Entropie S", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 14, "isochor  Innere Energie U", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 15, "isochor  Freie Energie A", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 16, "isochor  Exergie der Inneren Energie E(U)", "mnuGraf", 1},
    {"mnuGraf_sub_FuT", 17, "isochor  Exergie der Enthalpie E(H)", "mnuGraf", 1},
    {"mnuGraf", 2, "thermodynamische Funktionen vs. p  (isotherm)", "mnu2D", -1},
    {"mnuGraf_sub_Fup", 0, "Wärmekapazität Cp(real)", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 1, "Innere Energie U", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 2, "Enthalpie H", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 3, "Entropie S", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 4, "Freie Enthalpie G", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 5, "Freie Energie A", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 6, "Exergie der Inneren Energie E(U)", "mnuGraf", 2},
    {"mnuGraf_sub_Fup", 7, "Exergie der Enthalpie E(H)", "mnuGraf", 2},
    {"mnuGraf", 3, "thermodynamische Funktionen vs. v  (isotherm)", "mnu2D", -1},
    {"mnuGraf_sub_FuV", 1, "Entropie S", "mnuGraf", 3},
    {"mnuGraf_sub_FuV", 2, "Innere Energie U", "mnuGraf", 3},
    {"mnuGraf_sub_FuV", 3, "Freie Energie A", "mnuGraf", 3},
    {"mnuGraf_sub_FuV", 4, "Exergie der Inneren Energie E(U)", "mnuGraf", 3},
    {"mnuGraf_sub_FuV", 5, "Wärmekapazität Cv", "mnuGraf", 3},
    {"mnuGraf", 4, "residuale Funktionen vs. T  (isobar)", "mnu2D", -1},
    {"mnuGraf_sub_res_FuT", 1, "residuale Enthalpie H - H_id", "mnuGraf", 4},
    {"mnuGraf_sub_res_FuT", 2, "residuale Entropie S - S_id", "mnuGraf", 4},
    {"mnuGraf_sub_res_FuT", 3, "residuale Freie Enthalpie G - G_id = RT ln(phi)", "mnuGraf", 4},
    {"mnuGraf_sub_res_FuT", 4, "residuale Wärmekapazität Cp - Cp_id", "mnuGraf", 4},
    {"mnuGraf", 5, "residuale Funktionen vs. p  (isotherm)", "mnu2D", -1},
    {"mnuGraf_sub_res_Fup", 1, "residuale Enthalpie H - H_id", "mnuGraf", 5},
    {"mnuGraf_sub_res_Fup", 2, "residuale Entropie S - S_id", "mnuGraf", 5},
    {"mnuGraf_sub_res_Fup", 3, "residuale Freie Enthalpie G - G_id", "mnuGraf", 5},
    {"mnuGraf_sub_res_Fup", 4, "residuale Wärmekapazität Cp - Cp_id", "mnuGraf", 5},
    {"mnuGraf", 6, "-", "mnu2D", -1},
    {"mnuGraf", 7, "Enthalpie vs. Entropie  H - S", "mnu2D", -1},
    {"mnuGraf_sub_HS", 1, "isotherm", "mnuGraf", 7},
    {"mnuGraf_sub_HS", 2, "isobar", "mnuGraf", 7},
    {"mnuGraf", 8, "Exergie E(H) vs. T(u) * Entropie", "mnu2D", -1},
    {"mnuGraf_sub_ES", 1, "isotherm", "mnuGraf", 8},
    {"mnuGraf_sub_ES", 2, "isobar", "mnuGraf", 8},
    {"mnuGraf", 9, "Exergie E(H) vs. Enthalpie", "mnu2D", -1},
    {"mnuGraf_sub_EH", 1, "isotherm", "mnuGraf", 9},
    {"mnuGraf_sub_EH", 2, "isobar", "mnuGraf", 9},
    {"mnuGraf", 10, "-", "mnu2D", -1},
    {"mnuGraf", 11, "Phasengleichgewicht V - L  (Projektionen)", "mnu2D", -1},
    {"mnuGraf_sub_proj", 0, "Projektion p - V", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 1, "Projektion pV - p", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 2, "Projektion rho - p", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 3, "Projektion T - rho", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 4, "Projektion rho - T", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 5, "Projektion T - V", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 6, "-", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 7, "Dampfdruck p(LV) vs. T", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 8, "Dampfdruck ln(p(LV)) vs. 1/T", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 9, "Dampfdruck: Anstieg d(ln p(LV)) / d(1/T) vs. 1/T", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 10, "-", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 11, "Verdampfungsenthalpie delta(LV)H vs. T", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 12, "-", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 13, "Enthalpie H(T) im Phasengleichgewicht V - L", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 14, "Entropie S(T) im Phasengleichgewicht V - L", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 15, "Freie Enthalpie G(T) im Phasengleichgewicht V - L", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 16, "Exergie der Enthalpie E(H) vs. T im VLE", "mnuGraf", 11},
    {"mnuGraf_sub_proj", 17, "Wärmekapazität Cp(T) im Phasengleichgewicht V - L", "mnuGraf", 11},
    {"mnuInversionsKurve", -1, "Inversionskurve (Joule-Thomson-Effekt)", "mnu2D", -1},
    {"mnuGraf", 13, "-", "mnu2D", -1},
    {"mnuGraf", 14, "Datenbankfunktionen F(T)", "mnu2D", -1},
    {"mnuGraf_sub_database", 0, "L-Dichte", "mnuGraf", 14},
    {"mnuGraf_sub_database", 1, "S-Dichte", "mnuGraf", 14},
    {"mnuGraf_sub_database", 2, "L-Volumen aus Datenbankfunktion rho(L) = F(T)", "mnuGraf", 14},
    {"mnuGraf_sub_database", 3, "Idealgas-Wärmekapazität (Polynom)", "mnuGraf", 14},
    {"mnuGraf_sub_database", 4, "Idealgas-Wärmekapazität (sinh/cosh)", "mnuGraf", 14},
    {"mnuGraf_sub_database", 5, "L-Wärmekapazität", "mnuGraf", 14},
    {"mnuGraf_sub_database", 6, "S-Wärmekapazität", "mnuGraf", 14},
    {"mnuGraf_sub_database", 7, "Verdampfungsenthalpie", "mnuGraf", 14},
    {"mnuGraf_sub_database", 8, "-", "mnuGraf", 14},
    {"mnuGraf_sub_database", 9, "Sättigungsdampfdruck pLV = Fu(T)", "mnuGraf", 14},
    {"mnuGraf_sub_sub_database", 0, "erweiterte Frost-Kalkwarf-Gleichung", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 1, "Wagner-Gleichung", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 2, "Antoine-Gleichung (Lo-p)", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 3, "Antoine-Gleichung (Hi-p)", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 4, "-", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 5, "August (korreliert)", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 6, "Frost/Kalkwarf (v.d.Waals korreliert)", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 7, "Frost/Kalkwarf (Redlich/Kwong korreliert)", "mnuGraf_sub_database", 9},
    {"mnuGraf_sub_sub_database", 8, "Antoine (Thompson korreliert)", "mnuGraf_sub_database", 9},
    {"mnuGraf", 15, "-", "mnu2D", -1},
    {"mnuGraf", 16, "3D-Diagramme", "mnu2D", -1},
    {"mnu3DSub", 0, "Druck                      p(v, T) ", "mnuGraf", 16},
    {"mnu3DSub", 1, "Volumen                 v(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 2, "Temperatur            T(p, v)", "mnuGraf", 16},
    {"mnu3DSub", 3, "-", "mnuGraf", 16},
    {"mnu3DSub", 4, "Wärmekapazität    Cp(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 5, "Innere Energie        U(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 6, "Enthalpie                H(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 7, "Entropie                  S(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 8, "Freie Enthalpie       G(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 9, "Exergie von U        EU(p, T)", "mnuGraf", 16},
    {"mnu3DSub", 10, "Exergie von H        EH(p, T)", "mnuGraf", 16},
};
// clang-format on

// The insert menu of the open diagram.
// clang-format off
const std::vector<MenuePosten> Einfuegen = {
    {"mnuInsert", -1, "Einfügen in das 2D-Diagramm", "mnu2D", -1},
    {"mnuMarkKoex", -1, "Koexistenzkurve V - L", "mnuInsert", -1},
    {"mnuMarkIsohygre", -1, "Isohygre (konstanter Dampfanteil x) ...", "mnuInsert", -1},
    {"mnuMarkInversion", -1, "Inversionskurve (Joule-Thomson-Effekt)", "mnuInsert", -1},
    {"mnuMarkSKurve", -1, "S-Kurve (Isotherme, Isobare mit Schleife)", "mnuInsert", -1},
    {"mnuMarkKonnode", -1, "Konnode V - L", "mnuInsert", -1},
    {"mnuMarkHalbierende", -1, "Mathias-Cailletet-Halbierende", "mnuInsert", -1},
    {"", -1, "-", "mnuInsert", -1},
    {"mnuMarkWert", 0, "Temperatur-Markierung", "mnuInsert", -1},
    {"mnuMarkT", 0, "T (Eingabe) ...", "mnuMarkWert", 0},
    {"mnuMarkT", 1, "T(cr)", "mnuMarkWert", 0},
    {"mnuMarkT", 2, "T(Trip.P.)", "mnuMarkWert", 0},
    {"mnuMarkT", 3, "T(LV) bei p", "mnuMarkWert", 0},
    {"mnuMarkT", 4, "T(LV) bei Normaldruck", "mnuMarkWert", 0},
    {"mnuMarkWert", 1, "Druck-Markierung", "mnuInsert", -1},
    {"mnuMarkP", 0, "p (Eingabe) ...", "mnuMarkWert", 1},
    {"mnuMarkP", 1, "p(cr)", "mnuMarkWert", 1},
    {"mnuMarkP", 2, "p(LV) bei T", "mnuMarkWert", 1},
    {"mnuMarkP", 3, "p(SLV) (Tripelpunkt)", "mnuMarkWert", 1},
    {"mnuMarkWert", 2, "Volumen-Markierung", "mnuInsert", -1},
    {"mnuMarkV", 0, "v (Eingabe) ...", "mnuMarkWert", 2},
    {"mnuMarkV", 1, "v(crit)", "mnuMarkWert", 2},
    {"mnuMarkB", -1, "Kovolumen v = b", "mnuInsert", -1},
    {"", -1, "-", "mnuInsert", -1},
    {"mnuMarkCritPointEx", -1, "kritischer Punkt (exp.)", "mnuInsert", -1},
    {"mnuMarkCritPointCalc", -1, "kritischer Punkt (EOS)", "mnuInsert", -1},
    {"mnuDelCritPointEx", -1, "kritischen Punkt (exp.) entfernen", "mnuInsert", -1},
    {"mnuDelCritPointCalc", -1, "kritischen Punkt (EOS) entfernen", "mnuInsert", -1},
    {"", -1, "-", "mnuInsert", -1},
    {"mnuDelMarkTP", -1, "Markierungen T, p, v entfernen", "mnuInsert", -1},
    {"mnuDelMarkLabels", -1, "Beschriftungen der Markierungen entfernen", "mnuInsert", -1},
    {"", -1, "-", "mnuInsert", -1},
    {"mnuProzess", -1, "Prozesslinie", "mnuInsert", -1},
    {"mnuProzessLinie", 0, "Einfügen Gerade (x1, y1) - (x2, y2)", "mnuProzess", -1},
    {"mnuProzessLinie", 1, "Einfügen Isotherme", "mnuProzess", -1},
    {"mnuProzessLinie", 2, "Einfügen Isobare", "mnuProzess", -1},
    {"mnuProzessLinie", 3, "Einfügen Isochore", "mnuProzess", -1},
    {"mnuProzessLinie", 4, "Einfügen Isentrope (= Adiabate-reversibel)", "mnuProzess", -1},
    {"mnuProzessLinie", 5, "Einfügen Isenthalpe", "mnuProzess", -1},
    {"mnuProzessLinie", 6, "Einfügen Polytrope (Zusatz-Information => \"Berechnung\")", "mnuProzess", -1},
    {"mnuProzessLinie", 8, "Einfügen einer Linie konstanten Verdampfungsgrads eta(V)", "mnuProzess", -1},
};
// clang-format on

// The codes of the 2D entries by the catalogue: per submenu the code of each entry's index, 0 for a
// separator or a submenu.
// clang-format off
const std::map<std::string, std::vector<int16_t>> Codes = {
    {"mnuGraf_sub_cut", {0, 1, 26, 2, 0, 3, 4, 0, 5}},
    {"mnuGraf_sub_FuT", {0, 34, 0, 19, 14, 15, 16, 17, 25, 20, 18, 0, 185, 184, 183, 182, 181, 180}},
    {"mnuGraf_sub_Fup", {154, 149, 150, 151, 152, 148, 155, 153}},
    {"mnuGraf_sub_FuV", {0, 158, 157, 156, 160, 159}},
    {"mnuGraf_sub_res_FuT", {0, 31, 30, 32, 33}},
    {"mnuGraf_sub_res_Fup", {0, 41, 40, 42, 43}},
    {"mnuGraf_sub_HS", {0, 107, 24}},
    {"mnuGraf_sub_ES", {0, 109, 23}},
    {"mnuGraf_sub_EH", {0, 21, 22}},
    {"mnuGraf_sub_proj", {6, 106, 27, 12, 8, 7, 0, 9, 10, 11, 0, 13, 0, 90, 91, 93, 94, 92}},
    {"mnuGraf_sub_database", {300, 310, 301, 302, 311, 303, 304, 305, 0, 0}},
    {"mnuGraf_sub_sub_database", {306, 307, 308, 309, 0, 312, 313, 314, 315}},
};
// clang-format on

bool Kubisch(const ProjectState& s) {
  return eos::KubischGewaehlt(s.Modell);
}

// The database function behind an entry of the database submenus is there (entries without one,
// and the heat capacities that refuse with their own message, count as there).
bool FunktionDa(const ProjectState& s, const std::string& name, int index) {
  const StoffGruppe& st = s.Stoff;
  if (name == "mnuGraf_sub_sub_database") return DampfdruckFunktionDa(st, index);
  switch (index) {
  case 0:
  case 2:
    return st.RhoLGrenzen.Vorhanden();
  case 1:
    return st.RhoSGrenzen.Vorhanden();
  case 7:
    return st.HLVGrenzen.Vorhanden();
  default:
    return true;
  }
}

unsigned BedarfVon(const MenuePosten& p) {
  const std::string name = p.name;
  if (name == "mnu2D") return BrauchtModell;
  if (name == "mnuGraf_sub_database" || name == "mnuGraf_sub_sub_database" ||
      (name == "mnuGraf" && p.index == 14))
    return BrauchtDiagramme;
  return BrauchtDiagramme | BrauchtKritischenPunkt;
}

// A heat-capacity function of the database that the substance lacks; empty when it has it.
std::string FehlendeFunktion(const StoffGruppe& st, int index) {
  switch (index) {
  case 3:
    return st.CpPolyOK ? "" : "für diesen Stoff ist keine Polynom-Funktion cpIdG)= Fu(T) verfügbar.";
  case 4:
    return st.CpSinhOK ? "" : "für diesen Stoff ist keine sinh/cosh-Funktion cpIdG)= Fu(T) verfügbar.";
  case 5:
    return st.CpLOK ? "" : "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar.";
  case 6:
    return st.CpSOK ? "" : "für diesen Stoff ist keine Funktion cp(S)= Fu(T) verfügbar.";
  default:
    return "";
  }
}

} // namespace

void RegistriereDiagrammBefehle(BefehlsRegister& r) {
  for (const MenuePosten& p : Posten) {
    BefehlsZeile z = ZeileVon(p, p.eltern[0] ? 0 : rang::Diagramme, BedarfVon(p));
    const std::string name = p.name;
    if ((name == "mnuGraf_sub_database" || name == "mnuGraf_sub_sub_database") && p.index >= 0)
      z.verfuegbar = [name, index = p.index](const ProjectState& s) { return FunktionDa(s, name, index); };
    r.Registriere(std::move(z));
    if (name == "mnuInversionsKurve")
      for (const MenuePosten& e : Einfuegen)
        r.Registriere(ZeileVon(e, 0, BrauchtDiagramme | BrauchtKritischenPunkt));
  }
}

const std::vector<MenuePosten>& EinfuegePosten() {
  return Einfuegen;
}

void EinfuegeHandlerSetzen(BefehlsRegister& r, const std::function<bool()>& seiteOffen,
                           const std::function<void(const std::string&, int)>& start) {
  for (const MenuePosten& p : Einfuegen) {
    const BefehlsZeile* alt = p.name[0] ? r.Finde(p.name, p.index) : nullptr;
    if (!alt) continue;
    BefehlsZeile z = *alt;
    z.verfuegbar = [seiteOffen](const ProjectState&) { return seiteOffen(); };
    r.Registriere(std::move(z));
    if (!r.IstMenue(p.name, p.index))
      r.Handler(p.name, p.index, [start, name = std::string(p.name)](int index) { start(name, index); });
  }
}

bool MarkierungAusfuehren(Markierungen& m, const std::string& name, int index) {
  if (name == "mnuMarkT") return m.mnuMarkT(index);
  if (name == "mnuMarkP") return m.mnuMarkP(index);
  if (name == "mnuMarkV") return m.mnuMarkV(index);
  using Eintrag = bool (Markierungen::*)();
  static const std::map<std::string, Eintrag> kurven = {
      {"mnuMarkKoex", &Markierungen::mnuMarkKoex},
      {"mnuMarkIsohygre", &Markierungen::mnuMarkIsohygre},
      {"mnuMarkInversion", &Markierungen::mnuMarkInversion},
      {"mnuMarkSKurve", &Markierungen::mnuMarkSKurve},
      {"mnuMarkKonnode", &Markierungen::mnuMarkKonnode},
      {"mnuMarkHalbierende", &Markierungen::mnuMarkHalbierende},
      {"mnuMarkB", &Markierungen::mnuMarkB},
      {"mnuMarkCritPointEx", &Markierungen::mnuMarkCritPointEx},
      {"mnuMarkCritPointCalc", &Markierungen::mnuMarkCritPointCalc}};
  if (const auto it = kurven.find(name); it != kurven.end()) return (m.*(it->second))();
  using Loeschen = void (Markierungen::*)();
  static const std::map<std::string, Loeschen> loeschen = {
      {"mnuDelCritPointEx", &Markierungen::mnuDelCritPointEx},
      {"mnuDelCritPointCalc", &Markierungen::mnuDelCritPointCalc},
      {"mnuDelMarkTP", &Markierungen::mnuDelMarkTP},
      {"mnuDelMarkLabels", &Markierungen::mnuDelMarkLabels}};
  if (const auto it = loeschen.find(name); it != loeschen.end()) {
    (m.*(it->second))();
    return true;
  }
  return false;
}

int16_t CodeVonMenue(const std::string& name, int index) {
  if (name == "mnuInversionsKurve") return code::InversionPT;
  const auto zeile = Codes.find(name);
  if (zeile == Codes.end() || index < 0 || index >= static_cast<int>(zeile->second.size())) return 0;
  return zeile->second[static_cast<std::size_t>(index)];
}

void DiagrammHandlerSetzen(BefehlsRegister& r, const std::function<void(const std::string&, int)>& start) {
  for (const MenuePosten& p : Posten)
    if (CodeVonMenue(p.name, p.index) != 0)
      r.Handler(p.name, p.index, [start, name = std::string(p.name)](int index) { start(name, index); });
}

bool GrafErlaubt(const ProjectState& s, ui::Oberflaeche& ui, const std::string& name, int index) {
  if (name == "mnuGraf_sub_proj") {
    if (!Kubisch(s)) {
      ui.Meldung("Phasengleichgewichts-Berechnungen sind nur mit einer kubischen Zustandsgleichung möglich",
                 NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
    if (index == AnstiegEintrag && s.Modell.KonzeptGlobal) {
      ui.Meldung("nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
                 "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
                 "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept",
                 NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
  }
  if (name == "mnuGraf_sub_FuT" && s.Modell.CpIndex < 1) {
    ui.Meldung("es stehen keine cp(idG)-Modellparameter zur Verfügung", NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  if (name == "mnuGraf_sub_database") {
    const std::string fehlt = FehlendeFunktion(s.Stoff, index);
    if (!fehlt.empty()) {
      ui.Meldung(fehlt, NichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
  }
  return true;
}

bool Reales3D(const ProjectState& s, ui::Oberflaeche& ui, int art) {
  if ((art != art3d::Druck && art != art3d::Temperatur) || !Kubisch(s)) return true;
  return ui.Frage("Reales Verhalten zeichnen?\r\n(Nein = Zeichnen von S-Kurven im unterkritischen Bereich)",
                  "nur für kubische EOS", ui::Knoepfe::JaNein, ui::Antwort::Ja) == ui::Antwort::Ja;
}

} // namespace quor
