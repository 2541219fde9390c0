#include "core/rahmen_freigaben.h"

#include <utility>

namespace quor {

const char* const ToolbarName = "Toolbar1";

namespace {

constexpr double Schwelle = 1e-6;

bool BeginntMit(const std::string& text, const char* anfang) {
  return text.rfind(anfang, 0) == 0;
}

bool HatGrenzen(const TGrenzen& g) {
  return g.TLo > Schwelle || g.THi > Schwelle;
}

// The command a toolbar button runs; an empty name for a separator.
std::pair<std::string, int> ToolbarZiel(int index) {
  switch (index) {
  case 2:
    return {"mnuData_NewProject", -1};
  case 4:
    return {"mnuData_LoadLastSession", -1};
  case 6:
    return {"mnuData_LoadProject", -1};
  case 8:
    return {"mnuData_SaveProject", -1};
  case 11:
    return {"frmReferenz", -1};
  case 15:
    return {"mnuCalc", 15};
  case 20:
    return {"mnuData_BatchInput", -1};
  case 22:
    return {"mnuData_BatchEdit", -1};
  case 26:
    return {"mnuData_EditXY", -1};
  case 28:
    return {"mnuData_EditDatenbank", -1};
  case 32:
    return {"mnuProjectStatus", -1};
  default:
    return {"", -1};
  }
}

unsigned ToolbarBedarf(int index) {
  switch (index) {
  case 8:
    return BrauchtStoff;
  case 11:
    return BrauchtModell;
  case 15:
    return BrauchtModell | BrauchtKritischenPunkt;
  case 22:
    return BrauchtExpDaten; // the data button follows the number of measured points
  default:
    return BrauchtNichts;
  }
}

unsigned CalcBedarf(const std::string& name, int index) {
  if (name == "mnuCalc_sub_database" || name == "mnuCalc_sub_sub_database")
    return BrauchtModell | (index >= 0 ? BrauchtDatenbankFunktion : BrauchtNichts);
  if (name == "mnuCalcMenue") return BrauchtModell;
  // Every state question starts from the critical point; the vessel by GLOBAL needs the
  // saturation of a cubic equation.
  return BrauchtModell | BrauchtKritischenPunkt | (index == 15 ? BrauchtSaettigung : BrauchtNichts);
}

unsigned GrafBedarf(const std::string& name, int index) {
  if (name == "mnu2D") return BrauchtModell;
  if (name == "mnuGraf_sub_database" || name == "mnuGraf_sub_sub_database")
    return BrauchtDiagramme | (index >= 0 ? BrauchtDatenbankFunktion : BrauchtNichts);
  if (name == "mnuGraf" && index == 14) return BrauchtDiagramme;
  return BrauchtDiagramme | BrauchtKritischenPunkt;
}

} // namespace

std::string BefehlsSchluessel(const std::string& name, int index) {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

RahmenZustand ZustandVon(const ProjectState& s) {
  const MenueFreigaben& f = s.Projekt.Freigaben;
  if (f.Stoff) return f.Modell ? RahmenZustand::ModelleGetestet : RahmenZustand::StoffGewaehlt;
  return s.Datenbank.DatenbankGeladen ? RahmenZustand::DatenbankOhneStoff : RahmenZustand::KeineDatenbank;
}

unsigned BedarfVon(const std::string& name, int index) {
  if (name == ToolbarName) return ToolbarBedarf(index);
  if (name == "mnuStoffwahl") return BrauchtDatenbank;
  if (name == "mnuModel" || name == "mnuData_SaveProject" || name == "mnuData_BatchEdit" ||
      name == "mnuData_Fitting" || name == "mnuFitting" || name == "mnuOptions")
    return BrauchtStoff;
  if (name == "mnuData_ParameterEOS") return BrauchtModell;
  if (BeginntMit(name, "mnuCalc")) return CalcBedarf(name, index);
  if (name == "mnu2D" || BeginntMit(name, "mnuGraf") || name == "mnuInversionsKurve" || name == "mnu3DSub")
    return GrafBedarf(name, index);
  return BrauchtNichts;
}

bool DatenbankFunktionVorhanden(const ProjectState& s, const std::string& name, int index) {
  const StoffGruppe& st = s.Stoff;
  if (name == "mnuCalc_sub_sub_database" || name == "mnuGraf_sub_sub_database") {
    switch (index) {
    case 0:
      return HatGrenzen(st.FrostKalkwarfGrenzen);
    case 1:
      return HatGrenzen(st.WagnerGrenzen);
    case 2:
      return HatGrenzen(st.AntoineNdGrenzen);
    case 3:
      return HatGrenzen(st.AntoineHdGrenzen);
    default:
      return true;
    }
  }
  if (name == "mnuCalc_sub_database") {
    switch (index) {
    case 1:
      return HatGrenzen(st.RhoLGrenzen);
    case 2:
      return HatGrenzen(st.RhoSGrenzen);
    case 3:
      return HatGrenzen(st.HLVGrenzen);
    case 4:
      return HatGrenzen(st.CpPolyGrenzen) || HatGrenzen(st.CpSinhGrenzen);
    case 5:
      return HatGrenzen(st.CpLGrenzen);
    case 6:
      return HatGrenzen(st.CpSGrenzen);
    default:
      return true;
    }
  }
  if (name == "mnuGraf_sub_database") {
    switch (index) {
    case 0:
    case 2:
      return HatGrenzen(st.RhoLGrenzen);
    case 1:
      return HatGrenzen(st.RhoSGrenzen);
    case 7:
      return HatGrenzen(st.HLVGrenzen);
    default:
      return true; // the heat capacities refuse with their own message
    }
  }
  return true;
}

BefehlsSatz::BefehlsSatz() {
  for (const char* name : {"mnuData",
                           "mnuData_NewProject",
                           "mnuData_LoadProject",
                           "mnuData_LoadLastSession",
                           "mnuData_SaveProject",
                           "mnuOptions",
                           "mnuProjectStatus",
                           "mnuData_ParameterEOS",
                           "mnuShowApp_path",
                           "mnuData_Exit",
                           "mnuStoffwahl",
                           "mnuModel",
                           "mnuTavik1W",
                           "mnuWindow",
                           "mnuHilfe",
                           "mnuHilfe_About",
                           "mnuHilfe_Inhalt",
                           "mnuHilfe_Erstnutzer",
                           "mnuHilfe_RechenUebung",
                           "mnuHilfe_Tipps",
                           "mnuHilfeHinweis",
                           "mnuWindow_Kaskade",
                           "mnuWindow_Nebeneinander",
                           "mnuCalcMenue",
                           "mnu2D"})
    gebaut_.insert(name);
  gebaut_.insert(BefehlsSchluessel("mnuData_OpenBank", 0));
  gebaut_.insert(BefehlsSchluessel("mnuData_OpenBank", 2));
}

bool BefehlsSatz::Gebaut(const std::string& name, int index) const {
  if (name == ToolbarName) {
    const auto ziel = ToolbarZiel(index);
    return !ziel.first.empty() && Gebaut(ziel.first, ziel.second);
  }
  return gebaut_.count(BefehlsSchluessel(name, index)) > 0;
}

void BefehlsSatz::SetzeGebaut(const std::string& name, int index, bool gebaut) {
  if (gebaut)
    gebaut_.insert(BefehlsSchluessel(name, index));
  else
    gebaut_.erase(BefehlsSchluessel(name, index));
}

bool Freigegeben(const ProjectState& s, const BefehlsSatz& befehle, const std::string& name, int index) {
  return befehle.Gebaut(name, index) && BedarfErfuellt(s, name, index);
}

bool BedarfErfuellt(const ProjectState& s, const std::string& name, int index) {
  const unsigned bedarf = BedarfVon(name, index);
  const MenueFreigaben& f = s.Projekt.Freigaben;
  const bool kritisch = s.Stoff.TKrit > Schwelle && s.Stoff.pKrit > Schwelle;
  if ((bedarf & BrauchtDatenbank) && !s.Datenbank.DatenbankGeladen) return false;
  if ((bedarf & BrauchtStoff) && !f.Stoff) return false;
  if ((bedarf & BrauchtModell) && !(f.Stoff && f.Modell)) return false;
  if ((bedarf & BrauchtKritischenPunkt) && !(f.KritischerPunkt && kritisch)) return false;
  if ((bedarf & BrauchtDiagramme) && !(f.Stoff && f.Diagramme)) return false;
  if ((bedarf & BrauchtSaettigung) && !f.Saettigung) return false;
  if ((bedarf & BrauchtExpDaten) && !f.ExpDaten) return false;
  if ((bedarf & BrauchtDatenbankFunktion) && !DatenbankFunktionVorhanden(s, name, index)) return false;
  return true;
}

} // namespace quor
