// The diagram entries of the menus: what they need before the diagrams are built, and their own
// refusals with the messages the user reads.
#include "diagrams/diagramm_befehle.h"
#include "dienste/skript_oberflaeche.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// A substance with critical data whose cubic model was tested.
struct Eintraege {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  Eintraege() {
    s.Datenbank.DatenbankGeladen = true;
    s.Stoff.TKrit = 190.56;
    s.Stoff.pKrit = 4599;
    MenueFreigaben& f = s.Projekt.Freigaben;
    f.Stoff = f.KritischerPunkt = f.Modell = f.Diagramme = true;
    s.Modell.EOSIndex = 6;
  }
};

TEST(DiagrammBefehle, NothingIsBuiltYetButTheMenusOpenWithTheirNeeds) {
  Eintraege r;
  BefehlsRegister b;
  RegistriereDiagrammBefehle(b);
  EXPECT_TRUE(b.BedarfErfuellt(r.s, "mnuGraf_sub_database", 3));  // the heat capacities refuse later
  EXPECT_FALSE(b.BedarfErfuellt(r.s, "mnuGraf_sub_database", 0)); // no rho(L) limits
  r.s.Stoff.pKrit = 0;
  EXPECT_FALSE(b.BedarfErfuellt(r.s, "mnuGraf_sub_cut", 1));
  EXPECT_TRUE(b.BedarfErfuellt(r.s, "mnuGraf", 14)); // database functions need no critical point
}

TEST(DiagrammBefehle, ProjectionsNeedACubicModelAndTheSlopePartial) {
  Eintraege r;
  const char* const kubisch = "Phasengleichgewichts-Berechnungen sind nur mit einer kubischen "
                              "Zustandsgleichung möglich";
  EXPECT_TRUE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_proj", 0));
  r.s.Modell.EOSIndex = 13;
  r.s.Modell.VirialFlag = true;
  r.s.Modell.KonzeptGlobal = false;
  EXPECT_FALSE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_proj", 0));
  EXPECT_EQ(r.ui.Letzte().text, kubisch);
  EXPECT_EQ(r.ui.Letzte().titel, "Ausführung nicht möglich");

  r.s.Modell.EOSIndex = 6;
  r.s.Modell.VirialFlag = false;
  r.s.Modell.KonzeptGlobal = true;
  EXPECT_TRUE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_proj", 8));
  EXPECT_FALSE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_proj", 9));
  EXPECT_EQ(r.ui.Letzte().text,
            "nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
            "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
            "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept");
}

TEST(DiagrammBefehle, FunctionDiagramsNeedTheirHeatCapacityEquations) {
  Eintraege r;
  r.s.Modell.CpIndex = 0;
  EXPECT_FALSE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_FuT", 5));
  EXPECT_EQ(r.ui.Letzte().text, "es stehen keine cp(idG)-Modellparameter zur Verfügung");
  r.s.Modell.CpIndex = 2;
  EXPECT_TRUE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_FuT", 5));

  r.s.Stoff.CpSinhOK = true;
  const std::pair<int, const char*> fehlend[] = {
      {3, "für diesen Stoff ist keine Polynom-Funktion cpIdG)= Fu(T) verfügbar."},
      {5, "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar."},
      {6, "für diesen Stoff ist keine Funktion cp(S)= Fu(T) verfügbar."}};
  for (const auto& [index, text] : fehlend) {
    EXPECT_FALSE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_database", index));
    EXPECT_EQ(r.ui.Letzte().text, text);
  }
  EXPECT_TRUE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_database", 4));
  r.s.Stoff.CpSinhOK = false;
  EXPECT_FALSE(GrafErlaubt(r.s, r.ui, "mnuGraf_sub_database", 4));
  EXPECT_EQ(r.ui.Letzte().text, "für diesen Stoff ist keine sinh/cosh-Funktion cpIdG)= Fu(T) verfügbar.");
}

TEST(DiagrammBefehle, ThreeDSurfacesAskForRealBehaviourOnlyWithCubicModels) {
  Eintraege r;
  r.ui.antworten = {ui::Antwort::Nein};
  EXPECT_FALSE(Reales3D(r.s, r.ui, 1));
  EXPECT_EQ(r.ui.Letzte().text, "Reales Verhalten zeichnen?\r\n"
                                "(Nein = Zeichnen von S-Kurven im unterkritischen Bereich)");
  EXPECT_EQ(r.ui.Letzte().titel, "nur für kubische EOS");
  EXPECT_TRUE(Reales3D(r.s, r.ui, 2)); // the volume surface: no question
  r.s.Modell.EOSIndex = 15;
  r.s.Modell.VirialFlag = true;
  EXPECT_TRUE(Reales3D(r.s, r.ui, 3));
  EXPECT_EQ(r.ui.protokoll.size(), 1u);
}

} // namespace
} // namespace quor
