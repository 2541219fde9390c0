#include "calc/rechen_befehle.h"

#include "core/rechen_art.h"
#include "engine/eos_zeilen.h"

#include <vector>

namespace quor {

namespace {

// clang-format off
const std::vector<MenuePosten> Posten = {
    {"mnuCalcMenue", -1, "&Berechnungen...", "", -1},
    {"mnuCalc", 0, "T, rho      => p, Zustand L/V    + thermod. Fu.", "mnuCalcMenue", -1},
    {"mnuCalc", 1, "T, rho(L)  => p, Zustand L/V    + thermod. Fu.", "mnuCalcMenue", -1},
    {"mnuCalc", 2, "T, p         => rho, Zustand L/V + thermod. Fu.", "mnuCalcMenue", -1},
    {"mnuCalc", 3, "p, rho      => T, Zustand L/V    + thermod. Fu.", "mnuCalcMenue", -1},
    {"mnuCalc", 4, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 5, "L-V-Gleichgewicht: T => p(LV), [rho(L), rho(V)] + Fu. ", "mnuCalcMenue", -1},
    {"mnuCalc", 6, "L-V-Gleichgewicht: p => T(LV), [rho(L), rho(V)] + Fu.", "mnuCalcMenue", -1},
    {"mnuCalc", 7, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 8, "Verdampfungsenthalpie: T => delta(LV)H", "mnuCalcMenue", -1},
    {"mnuCalc", 9, "Verdampfungsenthalpie: p => delta(LV)H", "mnuCalcMenue", -1},
    {"mnuCalc", 10, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 11, "Thermodynam. Funktionen: T, p => H, U, S, G, A, E,  Cp, ...", "mnuCalcMenue", -1},
    {"mnuCalc", 12, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 13, "Polytropen-Prozess", "mnuCalcMenue", -1},
    {"mnuCalc", 14, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 15, "Behälter  (T, m, V => p, V(L)/V(V)), Global-Berechnungsmethode", "mnuCalcMenue", -1},
    {"mnuCalc", 16, "Behälter  (T, m, V => p, V(L)/V(V)), Partial-Berechnungsmethode", "mnuCalcMenue", -1},
    {"mnuCalc", 17, "-", "mnuCalcMenue", -1},
    {"mnuCalc", 18, "T => 2. Virialkoeffizienten B", "mnuCalcMenue", -1},
    {"mnuCalc", 19, "-", "mnuCalcMenue", -1},
    {"mnuCalc_sub_database", -1, "Datenbankfunktionen F(T)", "mnuCalcMenue", -1},
    {"mnuCalc_sub_database", 0, "Dampfdruck p(LV) = Fu(T)", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_sub_database", 0, "erweiterte Frost-Kalkwarf-Gleichung", "mnuCalc_sub_database", 0},
    {"mnuCalc_sub_sub_database", 1, "Wagner-Gleichung", "mnuCalc_sub_database", 0},
    {"mnuCalc_sub_sub_database", 2, "Antoine-Gleichung (Lo-p)", "mnuCalc_sub_database", 0},
    {"mnuCalc_sub_sub_database", 3, "Antoine-Gleichung (Hi-p)", "mnuCalc_sub_database", 0},
    {"mnuCalc_sub_database", 1, "L-Dichte", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_database", 2, "S-Dichte", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_database", 3, "Verdampfungsenthalpie", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_database", 4, "Idealgas-Wärmekapazität", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_database", 5, "L-Wärmekapazität", "mnuCalc_sub_database", -1},
    {"mnuCalc_sub_database", 6, "S-Wärmekapazität", "mnuCalc_sub_database", -1},
};
// clang-format on

// Kinds of the database submenu by entry: L-density, S-density, enthalpy of vaporization, ideal-gas,
// liquid and solid heat capacity.
int16_t DatenbankArt(int index) {
  switch (index) {
  case 1:
    return art::DbRhoL;
  case 2:
    return art::DbRhoS;
  case 3:
    return art::DbHLV;
  case 4:
    return art::DbCpIdG;
  case 5:
    return art::DbCpL;
  case 6:
    return art::DbCpS;
  default:
    return art::Keine;
  }
}

int16_t CalcArt(int index) {
  switch (index) {
  case 0:
    return art::TRhoV;
  case 1:
    return art::TRhoL;
  case 2:
    return art::Tp;
  case 3:
    return art::pRho;
  case 5:
    return art::TzuPLV;
  case 6:
    return art::PzuTLV;
  case 8:
    return art::HLVvonT;
  case 9:
    return art::HLVvonP;
  case 11:
    return art::Funktionen;
  case 13:
    return art::Polytrope;
  case 15:
    return art::BehaelterGlobal;
  case 16:
    return art::BehaelterPartial;
  case 18:
    return art::Virial;
  default:
    return art::Keine;
  }
}

// The database function behind an entry is there (one limit suffices).
bool FunktionDa(const StoffGruppe& st, const std::string& name, int index) {
  if (name == "mnuCalc_sub_sub_database") return DampfdruckFunktionDa(st, index);
  switch (DatenbankArt(index)) {
  case art::DbRhoL:
    return st.RhoLGrenzen.Vorhanden();
  case art::DbRhoS:
    return st.RhoSGrenzen.Vorhanden();
  case art::DbHLV:
    return st.HLVGrenzen.Vorhanden();
  case art::DbCpIdG:
    return st.CpPolyGrenzen.Vorhanden() || st.CpSinhGrenzen.Vorhanden();
  case art::DbCpL:
    return st.CpLGrenzen.Vorhanden();
  case art::DbCpS:
    return st.CpSGrenzen.Vorhanden();
  default:
    return true;
  }
}

bool IstDatenbankMenue(const std::string& name) {
  return name == "mnuCalc_sub_database" || name == "mnuCalc_sub_sub_database";
}

// Every state question starts from the critical point; the vessel by GLOBAL needs the saturation of a
// cubic equation. The database functions need the function's limits instead.
unsigned BedarfVon(const MenuePosten& p) {
  const std::string name = p.name;
  if (name == "mnuCalcMenue" || IstDatenbankMenue(name)) return BrauchtModell;
  return BrauchtModell | BrauchtKritischenPunkt |
         (ArtVonMenue(name, p.index) == art::BehaelterGlobal ? BrauchtSaettigung : BrauchtNichts);
}

} // namespace

int16_t ArtVonMenue(const std::string& name, int index) {
  if (name == "mnuCalc") return CalcArt(index);
  if (name == "mnuCalc_sub_database") return DatenbankArt(index);
  if (name == "mnuCalc_sub_sub_database" && index >= 0 && index <= 3)
    return static_cast<int16_t>(art::DbFrostKalkwarf + index);
  return art::Keine;
}

bool MenueVonArt(int16_t art, std::string& name, int& index) {
  if (art == art::Keine) return false;
  for (const MenuePosten& p : Posten) {
    if (ArtVonMenue(p.name, p.index) != art) continue;
    name = p.name;
    index = p.index;
    return true;
  }
  return false;
}

bool DampfdruckFunktionDa(const StoffGruppe& st, int index) {
  const TGrenzen* grenzen[] = {&st.FrostKalkwarfGrenzen, &st.WagnerGrenzen, &st.AntoineNdGrenzen,
                               &st.AntoineHdGrenzen};
  return index < 0 || index > 3 || grenzen[index]->Vorhanden();
}

std::string VirialEintragText(const ProjectState& s) {
  if (!eos::IstGewaehlt(s.Modell.EOSIndex)) return "T => 2. Virialkoeffizienten B";
  if (eos::KubischGewaehlt(s.Modell)) return "T => Virialkoeffizienten B, Parameter der CEOS";
  return "T => Virialkoeffizienten B";
}

void RegistriereRechenBefehle(BefehlsRegister& r) {
  for (const MenuePosten& p : Posten) {
    BefehlsZeile z = ZeileVon(p, p.eltern[0] ? 0 : rang::Berechnungen, BedarfVon(p));
    const std::string name = p.name;
    if (IstDatenbankMenue(name) && p.index >= 0)
      z.verfuegbar = [name, index = p.index](const ProjectState& s) {
        return FunktionDa(s.Stoff, name, index);
      };
    if (ArtVonMenue(name, p.index) == art::Virial) z.textVon = VirialEintragText;
    r.Registriere(std::move(z));
  }
  BefehlsZeile referenz;
  referenz.name = "frmReferenz";
  referenz.versteckt = true;
  referenz.bedarf = BrauchtModell;
  r.Registriere(std::move(referenz));
}

void RechenHandlerSetzen(BefehlsRegister& r, const std::function<void(const std::string&, int)>& start) {
  for (const MenuePosten& p : Posten) {
    const int16_t a = ArtVonMenue(p.name, p.index);
    if (a == art::Keine) continue;
    r.Handler(p.name, p.index, [start, name = std::string(p.name)](int index) { start(name, index); });
  }
}

} // namespace quor
