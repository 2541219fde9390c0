// The process dialog of methane with Peng/Robinson: captions by kind and form, the refusals of the
// draw button in their order and word for word, the start state's region texts, the offered kappa
// values, and what a drawn line hands to the diagram (its request, its states, the continuation).
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "engine/kalorik.h"
#include "engine/saettigung.h"
#include "process/prozess_dialog.h"
#include "dienste/kind_prozess.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

namespace quor::test {
namespace {

using namespace prozess;

bool Beginnt(const std::string& text, const std::string& anfang) {
  return text.rfind(anfang, 0) == 0;
}

struct Dialog {
  ProjectState s = StoffMitModell(CasMethan, 6);
  ui::SkriptOberflaeche ui;
  frmInputProzessLinien d{s, ui};
  DiagrammAuftrag ts; // T over s, a diagram of isobars

  explicit Dialog(int16_t art) {
    ts.Code = 16;
    ts.Klasse = klasse::Isobare;
    ts.Achsentag = "Ts";
    d.Form_Load(art, ts);
  }
  std::string Meldung() const { return ui.Meldungen().empty() ? "" : ui.Meldungen().back().text; }
};

TEST(ProzessDialog, CaptionsLabelsAndFirstDefaultFollowKindAndForm) {
  Dialog t(Isentrope);
  frmInputProzessLinien& d = t.d;
  EXPECT_EQ(d.ArtCaption, "Einfügen Isentrope homogen");
  EXPECT_EQ(d.cmdVScalcCaption, "s berechnen");
  EXPECT_EQ(d.txtVSCalcTip, " fixierter Entropiewert ");
  EXPECT_EQ(d.fraAnfang, "Anfangspunkt");
  EXPECT_EQ(d.lblEnde, " T2/ K = ");
  // The first default temperature is the critical one, with its hint.
  EXPECT_REL(std::stod(d.txtT1), t.s.Stoff.TKrit, 1e-6);
  EXPECT_EQ(d.Hinweis, "Hinweis: Erste Vorgabe-Temperatur ist T(cr)/K");
  EXPECT_TRUE(d.T1Sichtbar && d.P1Sichtbar);

  d.optHomoHetero_Click(true);
  EXPECT_EQ(d.ArtCaption, "Einfügen Isentrope im heterogenen Gebiet V - L");
  EXPECT_EQ(d.fraAnfang, "Anfangspunkt (1. Konnode)");
  EXPECT_EQ(d.fraEnde, "Endpunkt (letzte Konnode)");
  EXPECT_FALSE(d.P1Sichtbar); // a tie line in T needs no pressure
  d.optTp_Click(BereichP);
  EXPECT_EQ(d.lblEnde, "p2/kPa = ");
  EXPECT_TRUE(d.P1Sichtbar && !d.T1Sichtbar);

  // The isotherm runs in p and the isobar in T; neither offers the choice.
  Dialog iso(Isotherme);
  EXPECT_EQ(iso.d.ProzessBereich, BereichP);
  EXPECT_FALSE(iso.d.BereichWaehlbar || iso.d.HeteroMoeglich);
  EXPECT_EQ(iso.d.cmdVScalcCaption, "Phase bestimmen");
  EXPECT_EQ(iso.d.cmdVScalcTip, " bestimmt Phase (V, L) für Anfangspunkt ");
  Dialog isochore(Isochore);
  EXPECT_EQ(isochore.d.cmdVScalcTip, " bestimmt Volumen und Phase (V, L) für Anfangspunkt ");
  Dialog parameter(Parameter);
  EXPECT_EQ(parameter.d.cmdDrawCaption, "übernehmen und schließen");
  EXPECT_EQ(parameter.d.lblParameter, "p / kPa =");
}

TEST(ProzessDialog, RefusalsComeInTheirOrderAndLeaveNothingBehind) {
  struct Fall {
    int16_t art;
    bool hetero;
    const char *T1, *p1, *ende, *eta;
    std::string meldung;
  };
  const std::string zuHoch = "Temperatur für Endkonnode muss kleiner/gleich T(cr) = ";
  const Fall faelle[] = {
      {KonstantesEta, true, "120", "", "130", "1.5", "unzulässige Eingabe"},
      // The end tie line is named, although the start lies above the critical point too.
      {Isochore, true, "400", "", "300", "", zuHoch},
      {Isochore, true, "400", "", "150", "", "Temperatur für Anfangskonnode muss kleiner/gleich T(cr) = "},
      {Isentrope, false, "0", "1000", "200", "", "T- und p-Vorgabe müssen größer Null sein"},
      {Isentrope, false, "300", "1000", "300", "", "Bereichsangabe ungültig"},
      {Isentrope, false, "300", "zehn", "200", "", "Eingabe nicht vollständig oder ungültig"},
  };
  for (const Fall& f : faelle) {
    Dialog t(f.art);
    t.d.optHomoHetero_Click(f.hetero);
    t.d.txtT1 = f.T1, t.d.txtP1 = f.p1, t.d.txtEnde = f.ende, t.d.txtEta = f.eta;
    EXPECT_EQ(t.d.cmdDrawPL(), ProzessFolge::Nichts) << f.meldung;
    ASSERT_EQ(t.ui.Meldungen().size(), 1u) << f.meldung;
    EXPECT_EQ(t.Meldung().substr(0, f.meldung.size()), f.meldung);
    EXPECT_EQ(t.ui.Meldungen()[0].titel, "Ausführung nicht möglich");
    EXPECT_TRUE(t.s.Diagramm.Prozess.Zustaende.empty());
  }

  Dialog gerade(Gerade);
  gerade.d.txtX1 = gerade.d.txtX2 = "1";
  gerade.d.txtY1 = gerade.d.txtY2 = "2,5";
  EXPECT_EQ(gerade.d.cmdDrawPL(), ProzessFolge::Nichts);
  EXPECT_EQ(gerade.Meldung(), "unzulässige Eingabe");

  // The polytrope asks for kappa before anything else, then refuses n = 1 over a T range.
  Dialog poly(Polytrope);
  poly.d.txtT1 = "0";
  EXPECT_EQ(poly.d.cmdDrawPL(), ProzessFolge::Nichts);
  EXPECT_PRED2(Beginnt, poly.Meldung(), "noch kein gültiges kappa vorhanden");
  poly.d.cmbKappa = "1,3";
  poly.d.txtN = "1";
  poly.d.txtT1 = "300", poly.d.txtP1 = "100", poly.d.txtEnde = "400";
  poly.d.optTp_Click(BereichT);
  EXPECT_EQ(poly.d.cmdDrawPL(), ProzessFolge::Nichts);
  EXPECT_EQ(poly.Meldung(), "Bedingung Polytropen-Exp. n = 1 (=> isotherm) ist im\r\n"
                            "Widerspruch zur Angabe eines T-Bereichs.");
}

TEST(ProzessDialog, StartStateShowsRegionAndTheKindsQuantity) {
  Dialog t(Isentrope);
  frmInputProzessLinien& d = t.d;
  const auto zeige = [&](const std::string& T, const std::string& p) {
    d.txtT1 = T, d.txtP1 = p;
    d.cmdVScalc();
    return d.txtVSCalc;
  };
  EXPECT_PRED2(Beginnt, zeige("150", "100"), "    V-Phase\r\n s = ");
  EXPECT_NE(zeige("150", "100").find(" kJ/(kmol K)"), std::string::npos);
  EXPECT_PRED2(Beginnt, zeige("120", "3000"), "    L-Phase\r\n ");
  EXPECT_PRED2(Beginnt, zeige("300", "1000"), "    überkritisch (V)");
  EXPECT_PRED2(Beginnt, zeige("150", "6000"), "    überkritisch (L)");
  EXPECT_PRED2(Beginnt, zeige("300", "8000"), "    überkritisch (L = V)");
  EXPECT_FALSE(d.txtVSCalcRot);
  EXPECT_EQ(zeige("-5", "100"), "ERROR");
  EXPECT_TRUE(d.txtVSCalcRot);
  // Per kg with the energy unit kJ/kg: the same state, the value divided by the molar mass.
  t.s.Einheiten.EnergieMode = 3;
  EXPECT_NE(zeige("150", "100").find(" kJ/(kg K)"), std::string::npos);

  // The heterogeneous start is a tie line: both saturated values of the kind's quantity.
  t.s.Einheiten.EnergieMode = 0;
  d.optHomoHetero_Click(true);
  const std::string het = zeige("150", "");
  EXPECT_PRED2(Beginnt, het, " heterogen L + V\r\n");
  EXPECT_NE(het.find(" s(L) = "), std::string::npos);
  EXPECT_NE(het.find(" s(V) = "), std::string::npos);
  EXPECT_EQ(zeige("400", ""), " überkritisch (L = V)");
}

TEST(ProzessDialog, KappaIsOfferedFromT1AndTheReferenceTemperature) {
  Dialog t(Polytrope);
  t.d.txtT1 = "300";
  t.d.cmbKappa_DropDown();
  ASSERT_EQ(t.d.KappaWerte.size(), 2u);
  double h = 0, s = 0, cp = 0;
  int16_t err = 0;
  IdealgasFunktionen(t.s, 300, 101.325, h, s, cp, err);
  EXPECT_REL(t.d.KappaWerte[0], cp / (cp - RGas), 1e-12);
  EXPECT_NE(t.d.KappaListe[0].find("aus T1 = 300"), std::string::npos);
  EXPECT_NE(t.d.KappaListe[1].find("aus T(ref) = 298.15"), std::string::npos);
  t.d.cmbKappa_Click(1);
  EXPECT_REL(std::stod(t.d.cmbKappa), t.d.KappaWerte[1], 1e-5);

  t.d.txtT1 = "";
  t.d.cmbKappa_DropDown();
  EXPECT_EQ(t.Meldung(), "noch keine gültige Temperatur T1 angegeben");
  EXPECT_EQ(t.d.KappaWerte.size(), 1u);
}

TEST(ProzessDialog, ADrawnLineWaitsForTheDiagramAndTheNextOneStartsAtItsEnd) {
  Dialog t(Isobare);
  frmInputProzessLinien& d = t.d;
  d.txtT1 = "300", d.txtP1 = "1000", d.txtEnde = "200";
  ASSERT_EQ(d.cmdDrawPL(), ProzessFolge::Kurve);
  EXPECT_TRUE(t.ui.Meldungen().empty());
  EXPECT_EQ(d.Auftrag().Code, code::ProzessIsobare);
  EXPECT_EQ(d.Auftrag().Achsentag, "Ts");
  EXPECT_EQ(d.Auftrag().Titel, "Isobare p = 1000.0 kPa");
  const ProzessUebergabe& u = t.s.Diagramm.Prozess;
  EXPECT_EQ(u.DiagrammCode, 16);
  ASSERT_EQ(u.Zustaende.size(), 51u);
  EXPECT_REL(u.Zustaende.back().T, 200, 1e-12);

  // The isentrope that follows starts where the isobar ended.
  d.Form_Load(Isentrope, t.ts);
  d.chkEndToBegin_Click(true);
  EXPECT_REL(std::stod(d.txtT1), 200, 1e-9);
  EXPECT_REL(std::stod(d.txtP1), 1000, 1e-9);
  d.optTp_Click(BereichP);
  d.txtEnde = "100";
  ASSERT_EQ(d.cmdDrawPL(), ProzessFolge::Kurve);
  EXPECT_EQ(d.Auftrag().Code, code::ProzessIsentrope);
  EXPECT_PRED2(Beginnt, d.Auftrag().Titel, "Isentrope s = ");
  EXPECT_REL(t.s.Diagramm.Prozess.Zustaende.front().T, 200, 1e-9);

  // A point picked in the diagram replaces the start.
  d.StartpunktSetzen(180, 2000);
  EXPECT_EQ(d.txtT1, "180.0");
  EXPECT_EQ(d.txtP1, "2000.0");
}

TEST(ProzessDialog, TheCurveParameterAndTheDegreeOfVaporizationAreTakenOver) {
  Dialog p(Parameter);
  p.d.txtParameter = "500";
  ASSERT_EQ(p.d.cmdDrawPL(), ProzessFolge::Parameter);
  EXPECT_FLOAT_EQ(p.s.Einheiten.pVorgabe, 500);
  EXPECT_EQ(p.d.Auftrag().Titel, "p = 500.0 kPa");

  Dialog eta(KonstantesEta);
  eta.d.txtT1 = "120", eta.d.txtEnde = "180", eta.d.txtEta = "0";
  ASSERT_EQ(eta.d.cmdDrawPL(), ProzessFolge::Kurve);
  EXPECT_EQ(eta.d.txtEta, "1E-35");
  EXPECT_EQ(eta.d.Auftrag().Code, code::ProzessHeterogen);
  EXPECT_TRUE(eta.s.Diagramm.Prozess.ProzessHetero);
}

TEST(ProzessDialog, ThePolytropeGoesToTheCalculatorAndTheNextLineStartsAtItsEnd) {
  TempOrdner ordner("quor_prozess_dialog_");
  Dialog t(Polytrope);
  t.s.Datenbank.ProgrammVerzeichnis = ordner.Pfad();
  t.ui.prozessAusfuehren = ui::StarteKindProzess;
  frmInputProzessLinien& d = t.d;
  d.cmbKappa = "1.3";
  d.txtN = "1.2";
  d.txtT1 = "300", d.txtP1 = "500", d.txtEnde = "2000";
  d.optTp_Click(BereichP);
  // Without the calculator in the program directory: its message, then the dialog's.
  EXPECT_EQ(d.cmdDrawPL(), ProzessFolge::Nichts);
  ASSERT_EQ(t.ui.Meldungen().size(), 2u);
  EXPECT_EQ(t.ui.Meldungen()[0].text, "File Merlon_1.EXE im QUOR-Verzeichnis nicht gefunden");
  EXPECT_EQ(t.Meldung(), "Fehler bei der Polytropenberechnung");

  std::filesystem::create_symlink(std::string(QUOR_PROGRAMM_VERZEICHNIS) + "/" + PexProgramm,
                                  ordner.Datei(PexProgramm));
  d.Form_Load(Polytrope, DiagrammAuftrag{}, true);
  ASSERT_EQ(d.cmdDrawPL(), ProzessFolge::Ergebnisseite);
  EXPECT_NE(d.Bericht.find("Polytrop"), std::string::npos);
  // The result page's start point is row 0 of the measured data.
  EXPECT_EQ(t.s.Mess.ExpDaten[0].T, 300);
  EXPECT_EQ(t.s.Mess.ExpDaten[0].p, 500);
  // The ideal gas is the first choice of the model: T2 = T1 (p2/p1)^((n-1)/n).
  d.Form_Load(Isentrope, t.ts);
  d.chkEndToBegin_Click(true);
  EXPECT_REL(std::stod(d.txtT1), 300 * std::pow(4.0, 0.2 / 1.2), 1e-5);
  EXPECT_REL(std::stod(d.txtP1), 2000, 1e-6);
}

} // namespace
} // namespace quor::test
