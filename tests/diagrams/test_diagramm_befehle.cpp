// The diagram entries of the menus: what they need before the diagrams are built, and their own
// refusals with the messages the user reads.
#include "diagrams/diagramm_befehle.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/katalog.h"
#include "dienste/skript_oberflaeche.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

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

TEST(DiagrammBefehle, MenusOpenWithTheirNeeds) {
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

// Every 2D entry draws a code the catalogue knows; separators and submenus draw none.
TEST(DiagrammBefehle, EveryTwoDimensionalEntryHasACodeOfTheCatalogue) {
  BefehlsRegister b;
  RegistriereDiagrammBefehle(b);
  std::set<std::string> einfuegen;
  for (const MenuePosten& p : EinfuegePosten())
    einfuegen.insert(p.name);
  int eintraege = 0;
  for (const BefehlsZeile& z : b.Zeilen()) {
    if (z.name == "mnu3DSub" || z.name.empty() || einfuegen.count(z.name)) continue;
    const int16_t c = CodeVonMenue(z.name, z.index);
    if (z.Trenner() || b.IstMenue(z.name, z.index)) {
      EXPECT_EQ(c, 0) << z.Schluessel();
      continue;
    }
    EXPECT_TRUE(CodeBekannt(c)) << z.Schluessel() << " " << c;
    ++eintraege;
  }
  EXPECT_EQ(eintraege, 80);
  BefehlsRegister gebaut;
  RegistriereDiagrammBefehle(gebaut);
  DiagrammHandlerSetzen(gebaut, [](const std::string&, int) {});
  EXPECT_TRUE(gebaut.Gebaut("mnuInversionsKurve"));
  EXPECT_TRUE(gebaut.Gebaut("mnuGraf_sub_sub_database", 8));
  EXPECT_FALSE(gebaut.Gebaut("mnu3DSub", 0));
}

// The entries' positions as the catalogue numbers them, with the separators counted.
TEST(DiagrammBefehle, EntriesGiveTheCodesOfTheirPlaces) {
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_cut", 2), code::RhoP);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_cut", 8), code::pT);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_cut", 7), 0);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_Fup", 0), code::CpVonP);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_proj", 8), code::LnPvonInvT);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_proj", 15), code::KoexG);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_database", 4), code::DbCpIdGSinh);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_sub_database", 5), code::KorrDampfdruck);
  EXPECT_EQ(CodeVonMenue("mnuInversionsKurve", -1), code::InversionPT);
  EXPECT_EQ(CodeVonMenue("mnuGraf_sub_proj", 18), 0);
  EXPECT_EQ(CodeVonMenue("mnuCalc", 2), 0);
  // An entry named isobar or isochor or isotherm opens a curve of that family.
  BefehlsRegister b;
  RegistriereDiagrammBefehle(b);
  const std::pair<const char*, int16_t> familien[] = {
      {"isotherm", klasse::Isotherme}, {"isobar", klasse::Isobare}, {"isochor", klasse::Isochore}};
  for (const BefehlsZeile& z : b.Zeilen())
    for (const auto& [wort, klasse] : familien)
      if (z.text.rfind(wort, 0) == 0 && !b.IstMenue(z.name, z.index)) {
        const KatalogZeile* k = KatalogZeileVon(CodeVonMenue(z.name, z.index));
        ASSERT_NE(k, nullptr) << z.Schluessel();
        EXPECT_EQ(k->Klasse, klasse) << z.Schluessel() << " " << z.text;
      }
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
