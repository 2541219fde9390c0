// The command registry: menu order across subsystems, enabling by the frame's states, buttons that
// run other commands, and the frame's own rows.
#include "rahmen_hilfe.h"

namespace quor::test {
namespace {

std::vector<std::string> Texte(const BefehlsRegister& r, const std::string& eltern) {
  std::vector<std::string> t;
  for (const BefehlsZeile* z : r.Kinder(eltern))
    t.push_back(z->Trenner() ? "-" : z->name);
  return t;
}

TEST(BefehlsRegister, RowsOfSeveralSubsystemsStandInTheirRankAndRegistrationOrder) {
  BefehlsRegister r;
  r.Registriere(ZeileVon({"mnuB", -1, "B", "", -1}, 20));
  r.Registriere(ZeileVon({"mnuA", -1, "A", "", -1}, 10));
  r.Registriere(ZeileVon({"a1", -1, "x", "mnuA", -1}, 1));
  r.Registriere(ZeileVon({"", -1, "-", "mnuA", -1}, 2));
  r.Registriere(ZeileVon({"a3", -1, "x", "mnuA", -1}, 3));
  r.Registriere(ZeileVon({"a2", -1, "x", "mnuA", -1}, 2)); // a later subsystem fills rank 2
  EXPECT_EQ(Texte(r, ""), (std::vector<std::string>{"mnuA", "mnuB"}));
  EXPECT_EQ(Texte(r, "mnuA"), (std::vector<std::string>{"a1", "-", "a2", "a3"}));
  EXPECT_TRUE(r.IstMenue("mnuA"));
}

TEST(BefehlsRegister, OnlyBuiltRowsWhoseNeedsAreMetRunTheirHandler) {
  ProjectState s;
  BefehlsRegister r;
  BefehlsZeile z = ZeileVon({"mnuX", 3, "X", "", -1}, 0, BrauchtStoff);
  z.verfuegbar = [](const ProjectState& st) { return st.Stoff.RhoLGrenzen.Vorhanden(); };
  r.Registriere(z);
  int laeufe = -1;
  EXPECT_FALSE(r.Ausfuehren(s, "mnuX", 3)); // not built
  r.Handler("mnuX", 3, [&](int index) { laeufe = index; });
  EXPECT_FALSE(r.Ausfuehren(s, "mnuX", 3)); // no substance
  s.Projekt.Freigaben.Stoff = true;
  EXPECT_FALSE(r.Freigegeben(s, "mnuX", 3)); // no limits of the function
  s.Stoff.RhoLGrenzen = {0, 180};            // one limit suffices
  EXPECT_TRUE(r.Ausfuehren(s, "mnuX", 3));
  EXPECT_EQ(laeufe, 3);
  EXPECT_FALSE(r.Ausfuehren(s, "mnuUnbekannt"));
  EXPECT_FALSE(r.Handler("mnuUnbekannt", [](int) {}));
}

struct Erwartung {
  const char* name;
  int index;
  bool keineDatenbank, ohneStoff, stoff, modelle;
};

TEST(RahmenBefehle, FollowTheFourStatesOfTheFrame) {
  Rahmen r;
  r.logik->Start("");
  BefehlsRegister& b = r.logik->Befehle;
  // The data button's target, the editor of the measured data, comes from another subsystem.
  b.Registriere(ZeileVon({"mnuData_BatchEdit", -1, "Editor", "mnuData", -1}, 0, BrauchtStoff));
  b.Handler("mnuData_BatchEdit", [](int) {});
  b.Handler("mnuModel", [](int) {});
  b.Handler("mnuOptions", [](int) {});
  const Erwartung tabelle[] = {
      {"mnuData_OpenBank", 0, true, true, true, true},
      {"mnuData_Exit", -1, true, true, true, true},
      {"mnuStoffwahl", -1, false, true, true, true},
      {"mnuModel", -1, false, false, true, true},
      {"mnuOptions", -1, false, false, true, true},
      {"mnuData_ParameterEOS", -1, false, false, false, true},
      {"Toolbar1", 32, true, true, true, true},
      {"Toolbar1", 22, false, false, false, false}, // no measured data: the data button stays off
  };
  auto pruefe = [&](RahmenZustand zustand, bool Erwartung::*spalte) {
    ASSERT_EQ(r.logik->Zustand(), zustand);
    for (const Erwartung& e : tabelle)
      EXPECT_EQ(r.logik->Freigegeben(e.name, e.index), e.*spalte)
          << BefehlsSchluessel(e.name, e.index) << " in state " << static_cast<int>(zustand);
  };
  pruefe(RahmenZustand::KeineDatenbank, &Erwartung::keineDatenbank);
  r.s.Datenbank.DatenbankGeladen = true;
  pruefe(RahmenZustand::DatenbankOhneStoff, &Erwartung::ohneStoff);
  r.s.Projekt.Freigaben.Stoff = true;
  pruefe(RahmenZustand::StoffGewaehlt, &Erwartung::stoff);
  r.MitStoffUndModell();
  pruefe(RahmenZustand::ModelleGetestet, &Erwartung::modelle);
  // The data button follows the flag of the measured points.
  r.s.Projekt.Freigaben.ExpDaten = true;
  EXPECT_TRUE(r.logik->Freigegeben(ToolbarName, 22));
}

TEST(RahmenBefehle, ButtonsRunTheirTargetAndTheVesselButtonFollowsTheConcept) {
  Rahmen r;
  r.logik->Start("");
  r.MitStoffUndModell();
  BefehlsRegister& b = r.logik->Befehle;
  EXPECT_FALSE(r.logik->Freigegeben(ToolbarName, 15)); // the vessel isn't registered here
  EXPECT_FALSE(r.logik->Freigegeben(ToolbarName, 3));  // a separator
  std::vector<int> gestartet;
  for (int index : {15, 16}) {
    b.Registriere(ZeileVon({"mnuCalc", index, "Behälter", "mnuCalcMenue", -1}, 0, BrauchtModell));
    b.Handler("mnuCalc", index, [&](int i) { gestartet.push_back(i); });
  }
  r.s.Modell.KonzeptGlobal = true;
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 15));
  r.s.Modell.KonzeptGlobal = false;
  EXPECT_TRUE(r.logik->Ausfuehren(ToolbarName, 15));
  EXPECT_EQ(gestartet, (std::vector<int>{15, 16}));
}

} // namespace
} // namespace quor::test
