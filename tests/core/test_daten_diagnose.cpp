// The data diagnosis ("Daten-Ampel"): the five tests, the level with its order of tests and the
// report text.
#include "core/daten_diagnose.h"
#include "dienste/skript_oberflaeche.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// Critical point, omega, boiling point, a Frost/Kalkwarf block and a delta(LV)h block.
ProjectState VollerStoff() {
  ProjectState s;
  StoffGruppe& st = s.Stoff;
  st.TKrit = 500;
  st.pKrit = 4000;
  st.omega = 0.3;
  st.TSiede = 350;
  st.FrostKalkwarfGrenzen.TLo = 200;
  st.HLVGrenzen.TLo = 200;
  return s;
}

int16_t Stufe(ProjectState s) {
  return DatenDiagnose(s).DatenAmpel;
}

TEST(DatenDiagnose, GradesByTheOrderOfItsTests) {
  EXPECT_EQ(Stufe(VollerStoff()), 1);

  ProjectState ohneHLV = VollerStoff(); // no test lowers the start value, the all-true test fails
  ohneHLV.Stoff.HLVGrenzen.TLo = 0;
  EXPECT_EQ(Stufe(ohneHLV), 1);

  ProjectState ohneDampfdruck = VollerStoff();
  ohneDampfdruck.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  EXPECT_EQ(Stufe(ohneDampfdruck), 3);

  ProjectState ohneOmega = VollerStoff();
  ohneOmega.Stoff.omega = 0;
  EXPECT_EQ(Stufe(ohneOmega), 2);
  ProjectState ohneSiede = VollerStoff();
  ohneSiede.Stoff.TSiede = 0;
  EXPECT_EQ(Stufe(ohneSiede), 2);

  // Lacking omega as well as every vapour-pressure equation: the later test wins, level 2.
  ProjectState beides = ohneOmega;
  beides.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  EXPECT_EQ(Stufe(beides), 2);

  ProjectState ohneKrit = VollerStoff();
  ohneKrit.Stoff.pKrit = 0;
  const DatenLage d = DatenDiagnose(ohneKrit);
  EXPECT_EQ(d.DatenAmpel, 4);
  EXPECT_FALSE(d.AmpelNichtRot);
  EXPECT_EQ(ohneKrit.Projekt.Ampel.DatenAmpel, 4); // the result stays in the project
  EXPECT_EQ(Stufe(ProjectState{}), 4);
  // Red for level 4; the face colour while nothing is judged.
  const AmpelFarbe rot = FarbeVonAmpel(4);
  EXPECT_TRUE(rot.Rot == 255 && rot.Gruen == 0 && rot.Blau == 0 && !rot.Systemfarbe);
  EXPECT_TRUE(FarbeVonAmpel(0).Systemfarbe);
}

TEST(DatenDiagnose, KnowsEachVapourPressureSourceAndOmegaInSinglePrecision) {
  ProjectState s = VollerStoff();
  s.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  for (TGrenzen* g : {&s.Stoff.AntoineNdGrenzen, &s.Stoff.AntoineHdGrenzen, &s.Stoff.WagnerGrenzen}) {
    g->TLo = 150;
    EXPECT_TRUE(DatenDiagnose(s).DampfdruckOK);
    g->TLo = 0;
  }
  EXPECT_FALSE(DatenDiagnose(s).DampfdruckOK);
  s.Stoff.AugustA = 10.5f; // the August constants alone suffice
  s.Stoff.AugustB = -3000.0f;
  EXPECT_TRUE(DatenDiagnose(s).DampfdruckOK);

  s.Stoff.omega = 1e-50; // not 0 as a double, 0 in single precision
  const DatenLage d = DatenDiagnose(s);
  EXPECT_FALSE(d.OmegaOK);
  EXPECT_TRUE(d.KritOK && d.SiedeOK && d.HLVOK && d.AmpelNichtRot);
}

TEST(DatenDiagnose, ReportsEveryTestAndTheLevel) {
  ProjectState voll = VollerStoff();
  EXPECT_EQ(DatenAmpelText(voll), "- Kritische Daten verfügbar\r\n"
                                  "- azentrischer Faktor omega verfügbar\r\n"
                                  "- Dampfdruckgleichungen p(T) verfügbar\r\n"
                                  "- Normalsiedetemperatur verfügbar\r\n"
                                  "- Verdampfungsenthalpie-Gleichungen delta(LV)H = f(T)\r\n"
                                  "  verfügbar\r\n"
                                  "\r\n"
                                  "BEI DIESER DATENLAGE BESTEHEN KEINERLEI EINSCHRÄNKUNGEN  \r\n");

  ProjectState leer;
  leer.Projekt.Ampel.DatenAmpel = 1; // the report judges anew
  EXPECT_EQ(DatenAmpelText(leer), "- keine kritischen Daten verfügbar;\r\n"
                                  "  keine Berechnungen möglich\r\n"
                                  "  Verwenden Sie - wenn möglich - die angebotenen Inkrement-Methoden\r\n"
                                  "  (=> Daten / Abschätzung von Stoffdaten aus Molekülstrukturgruppen)\r\n"
                                  "- kein azentrischer Faktor omega verfügbar; es wird omega = 0 gesetzt.\r\n"
                                  "  Damit sind einige kubische Zustandsgleichungen (CEOS)\r\n"
                                  "  nur eingeschränkt anwendbar\r\n"
                                  "- Dampfdruckgleichungen p(T) nicht verfügbar\r\n"
                                  "- keine Normalsiedetemperatur verfügbar;\r\n"
                                  "  damit sind korrelierte Dampfdruckgll. nicht berechenbar\r\n"
                                  "- Keine Verdampfungsenthalpie-Gleichungen delta(LV)H = f(T)\r\n"
                                  "  verfügbar\r\n"
                                  "  keine delta(LV)H-Diagramme und -berechnungen möglich\r\n"
                                  "\r\n"
                                  "BEI DIESER DATENLAGE SIND KEINERLEI BERECHNUNGEN MÖGLICH \r\n"
                                  "Fehlende Daten könnten evtl. im Datenbank-Editor ergänzt werden\r\n"
                                  "(=> Klick auf Icon \"db\"\r\n");
  EXPECT_EQ(leer.Projekt.Ampel.DatenAmpel, 4);

  ProjectState schwer = VollerStoff();
  schwer.Stoff.FrostKalkwarfGrenzen.TLo = 0;
  EXPECT_NE(DatenAmpelText(schwer).find("\r\n\r\nBEI DIESER DATENLAGE BESTEHEN SCHWERE EINSCHRÄNKUNGEN  \r\n"
                                        "Fehlende Daten könnten im Datenbank-Editor ergänzt werden\r\n"
                                        "(=> Klick auf Icon \"db\"\r\n"),
            std::string::npos);

  ProjectState einige = VollerStoff();
  einige.Stoff.TSiede = 0;
  ui::SkriptOberflaeche ui;
  cmdDatenDiagnose(einige, ui);
  ASSERT_EQ(ui.Meldungen().size(), 1u);
  EXPECT_EQ(ui.Letzte().titel, "Stoffdatensituation (Daten-Ampel)");
  const std::string& text = ui.Letzte().text;
  const std::string schluss = "\r\n\r\nBEI DIESER DATENLAGE BESTEHEN EINIGE Einschränkungen \r\n"
                              "Fehlende Daten könnten evtl. im Datenbank-Editor ergänzt werden\r\n"
                              "(=> Klick auf Icon \"db\"\r\n";
  ASSERT_GE(text.size(), schluss.size());
  EXPECT_EQ(text.substr(text.size() - schluss.size()), schluss);
}

} // namespace
} // namespace quor
