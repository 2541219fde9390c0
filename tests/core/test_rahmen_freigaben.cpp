// What the frame enables in each of its states, and the diagram entries' own refusals.
#include "rahmen_hilfe.h"

namespace quor::test {
namespace {

struct Erwartung {
  const char* name;
  int index;
  bool keineDatenbank, ohneStoff, stoff, modelle;
};

TEST(RahmenFreigaben, FollowTheFourStatesOfTheFrame) {
  Rahmen r;
  r.logik->Start("");
  BefehlsSatz& b = r.logik->Befehle;
  b.SetzeGebaut("mnuCalc", 2); // as a later calculation dialog will do
  b.SetzeGebaut("mnuData_BatchEdit");
  const Erwartung tabelle[] = {
      {"mnuData_OpenBank", 0, true, true, true, true},
      {"mnuData_OpenBank", 2, true, true, true, true},
      {"mnuData_Exit", -1, true, true, true, true},
      {"mnuShowApp_path", -1, true, true, true, true},
      {"mnuStoffwahl", -1, false, true, true, true},
      {"mnuModel", -1, false, false, true, true},
      {"mnuData_BatchEdit", -1, false, false, true, true},
      {"mnuData_ParameterEOS", -1, false, false, false, true},
      {"mnuCalc", 2, false, false, false, true},
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
}

TEST(RahmenFreigaben, CommandsOfLaterBuildsStayDisabledInEveryState) {
  Rahmen r;
  r.logik->Start("");
  r.MitStoffUndModell();
  r.s.Projekt.Freigaben.ExpDaten = true;
  r.s.Mess.ExpAnzahl = 5;
  for (const char* name : {"mnuData_EditDatenbank", "mnuFitting", "mnuData_Joback_CritData"})
    EXPECT_FALSE(r.logik->Freigegeben(name)) << name;
  EXPECT_FALSE(r.logik->Freigegeben("mnuCalc", 2));
  EXPECT_FALSE(r.logik->Freigegeben("mnuGraf_sub_cut", 1));
  EXPECT_FALSE(r.logik->Freigegeben(ToolbarName, 28)); // the database editor
  EXPECT_FALSE(r.logik->Freigegeben(ToolbarName, 3));  // a separator
  EXPECT_FALSE(r.logik->Ausfuehren("mnuData_EditDatenbank"));
  EXPECT_TRUE(r.ui.protokoll.empty());

  // Once built, the toolbar's data button follows its flag.
  r.logik->Befehle.SetzeGebaut("mnuData_BatchEdit");
  EXPECT_TRUE(r.logik->Freigegeben(ToolbarName, 22));
  r.s.Projekt.Freigaben.ExpDaten = false;
  EXPECT_FALSE(r.logik->Freigegeben(ToolbarName, 22));
}

TEST(RahmenFreigaben, CriticalPointAndDatabaseFunctionsGateTheirEntries) {
  Rahmen r;
  r.logik->Start("");
  r.MitStoffUndModell();
  BefehlsSatz& b = r.logik->Befehle;
  b.SetzeGebaut("mnuCalc", 15);
  b.SetzeGebaut("mnuCalc_sub_database", 1);
  b.SetzeGebaut("mnuCalc_sub_database", 3);
  b.SetzeGebaut("mnuCalc_sub_sub_database", 0);
  b.SetzeGebaut("mnuCalc_sub_sub_database", 1);
  EXPECT_TRUE(r.logik->Freigegeben("mnuCalc", 15));
  r.s.Projekt.Freigaben.Saettigung = false; // a virial model: no saturation from the EOS
  EXPECT_FALSE(r.logik->Freigegeben("mnuCalc", 15));

  EXPECT_FALSE(r.logik->Freigegeben("mnuCalc_sub_database", 1)); // no rho(L) limits
  EXPECT_TRUE(r.logik->Freigegeben("mnuCalc_sub_database", 3));
  EXPECT_TRUE(r.logik->Freigegeben("mnuCalc_sub_sub_database", 0));
  EXPECT_FALSE(r.logik->Freigegeben("mnuCalc_sub_sub_database", 1)); // no Wagner limits
  r.s.Stoff.RhoLGrenzen = {0, 180};                                  // one limit suffices
  EXPECT_TRUE(r.logik->Freigegeben("mnuCalc_sub_database", 1));

  b.SetzeGebaut("mnuCalc", 2);
  r.s.Stoff.pKrit = 0;
  EXPECT_FALSE(r.logik->Freigegeben("mnuCalc", 2));
  EXPECT_TRUE(r.logik->Freigegeben("mnuCalc_sub_database", 3)); // database functions need no critical point
}

TEST(GrafikEintraege, ProjectionsNeedACubicModelAndTheSlopePartial) {
  Rahmen r;
  r.MitStoffUndModell();
  const char* const kubisch = "Phasengleichgewichts-Berechnungen sind nur mit einer kubischen "
                              "Zustandsgleichung möglich";
  EXPECT_TRUE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 0));
  r.s.Modell.EOSIndex = 13;
  r.s.Modell.VirialFlag = true;
  r.s.Modell.KonzeptGlobal = false;
  EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 0));
  EXPECT_EQ(r.ui.Letzte().text, kubisch);
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");
  r.s.Modell.EOSIndex = 0; // the ideal gas is no cubic model either
  EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 9));
  EXPECT_EQ(r.ui.Letzte().text, kubisch);

  r.s.Modell.EOSIndex = 6;
  r.s.Modell.VirialFlag = false;
  r.s.Modell.KonzeptGlobal = true;
  EXPECT_TRUE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 8));
  EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 9));
  EXPECT_EQ(r.ui.Letzte().text,
            "nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
            "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
            "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept");
  r.s.Modell.KonzeptGlobal = false;
  EXPECT_TRUE(r.logik->GrafErlaubt("mnuGraf_sub_proj", 9));
  EXPECT_EQ(r.ui.Meldungen().size(), 3u);
}

TEST(GrafikEintraege, FunctionDiagramsNeedTheirHeatCapacityEquations) {
  Rahmen r;
  r.MitStoffUndModell();
  r.s.Modell.CpIndex = 0;
  EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_FuT", 5));
  EXPECT_EQ(r.ui.Letzte().text, "es stehen keine cp(idG)-Modellparameter zur Verfügung");
  r.s.Modell.CpIndex = 2;
  EXPECT_TRUE(r.logik->GrafErlaubt("mnuGraf_sub_FuT", 5));

  r.s.Stoff.CpSinhOK = true;
  const std::pair<int, const char*> fehlend[] = {
      {3, "für diesen Stoff ist keine Polynom-Funktion cpIdG)= Fu(T) verfügbar."},
      {5, "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar."},
      {6, "für diesen Stoff ist keine Funktion cp(S)= Fu(T) verfügbar."}};
  for (const auto& [index, text] : fehlend) {
    EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_database", index));
    EXPECT_EQ(r.ui.Letzte().text, text);
  }
  EXPECT_TRUE(r.logik->GrafErlaubt("mnuGraf_sub_database", 4));
  r.s.Stoff.CpSinhOK = false;
  EXPECT_FALSE(r.logik->GrafErlaubt("mnuGraf_sub_database", 4));
  EXPECT_EQ(r.ui.Letzte().text, "für diesen Stoff ist keine sinh/cosh-Funktion cpIdG)= Fu(T) verfügbar.");
}

TEST(GrafikEintraege, ThreeDSurfacesAskForRealBehaviourOnlyWithCubicModels) {
  Rahmen r;
  r.MitStoffUndModell();
  r.ui.antworten = {ui::Antwort::Nein};
  EXPECT_FALSE(r.logik->Reales3D(1));
  EXPECT_EQ(r.ui.Letzte().text, "Reales Verhalten zeichnen?\r\n"
                                "(Nein = Zeichnen von S-Kurven im unterkritischen Bereich)");
  EXPECT_EQ(r.ui.Letzte().titel, "nur für kubische EOS");
  EXPECT_TRUE(r.logik->Reales3D(2)); // the volume surface: no question
  r.s.Modell.EOSIndex = 15;
  r.s.Modell.VirialFlag = true;
  EXPECT_TRUE(r.logik->Reales3D(3));
  EXPECT_EQ(r.ui.protokoll.size(), 1u);
}

TEST(GrafikEintraege, VirialEntryNamesWhatTheChosenModelGives) {
  Rahmen r;
  r.logik->Start("");
  EXPECT_EQ(r.logik->VirialEintragText(), "T => 2. Virialkoeffizienten B");
  r.MitStoffUndModell();
  EXPECT_EQ(r.logik->VirialEintragText(), "T => Virialkoeffizienten B, Parameter der CEOS");
  r.s.Modell.EOSIndex = 11;
  r.s.Modell.VirialFlag = true;
  EXPECT_EQ(r.logik->VirialEintragText(), "T => Virialkoeffizienten B");
}

} // namespace
} // namespace quor::test
