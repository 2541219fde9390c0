// The concept dialog: the situation it explains by model and kind, the choice of GLOBAL or PARTIAL
// with its refusal for models without a liquid, the source of the liquid density, the PARTIAL
// reference point by its three ways, and where OK goes on.
#include "calc/calc_eingabe.h"
#include "calc_testhilfe.h"
#include "dienste/skript_oberflaeche.h"
#include "eingabe_testhilfe.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;
using Schritte = std::vector<std::string>;

struct Dialog {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  FensterAufnahme fenster;
  frmCalcIn frm;
  Dialog(int16_t eos, int16_t art, int16_t hlv = 7)
      : s(StoffMitModell(CasMethan, eos, hlv)), frm(s, ui, fenster.Fenster()) {
    s.RechenArt = art;
  }
  std::string ErsteZeile() const { return frm.Situation.substr(0, frm.Situation.find("\r\n")); }
};

// The situation text and the preselected concept follow the model, the kind, the answer on T and p
// at equilibrium and the project's concept; PARTIAL is fixed where the case needs it.
TEST(frmCalcIn, SituationAndConceptByCase) {
  struct Fall {
    int16_t eos, art;
    bool tp, konzeptGlobal;
    const char* ersteZeile;
    int opt_glob;
    bool globalWaehlbar;
    int16_t hlv = 7;
  };
  const std::vector<Fall> faelle{
      {13, 4, false, false, "Die gewählte EOS ist nur für die V-Phasen-Berechnung anwendbar.", 1, true},
      {13, 3, true, false, "Annahme, dass die Vorgabewerte das Phasengleichgewicht beschreiben.", 1, false},
      {6, 3, true, true, "Annahme, dass die Vorgabewerte exakt das Phasengleichgewicht beschreiben.", 1,
       false},
      {6, 4, false, true, "Die gewählte EOS ermöglicht die Berechnung beider Gleichgewichtsphasen", 0, true},
      {6, 5, false, false, "Gleichgewichtsberechnung V-L erfolgt mit der aktuellen Dampfdruckgleichung.", 1,
       true},
      {6, 10, false, true, "Die Berechnung der Dichte (bzw. des Molvolumens) der L-Phase erfolgt", 1, false},
      // Benson's enthalpy of vaporization: the equilibria by T keep GLOBAL, its own kinds are PARTIAL.
      {6, 4, false, true, "Die Berechnung der Dichte (bzw. des Molvolumens) der L-Phase erfolgt", 0, true, 6},
      {6, 6, false, true, "Die Berechnung der Dichte (bzw. des Molvolumens) der L-Phase erfolgt", 1, false, 6},
  };
  for (const Fall& f : faelle) {
    Dialog d(f.eos, f.art, f.hlv);
    d.s.Rechnung.TpGleichgewicht = f.tp;
    d.s.Modell.KonzeptGlobal = f.konzeptGlobal;
    d.frm.Form_Load();
    const std::string fall = std::to_string(f.eos) + "/" + std::to_string(f.art);
    EXPECT_EQ(d.ErsteZeile(), f.ersteZeile) << fall;
    EXPECT_EQ(std::tie(d.frm.opt_glob, d.frm.opt_globEnabled[0]), std::tie(f.opt_glob, f.globalWaehlbar))
        << fall;
    EXPECT_EQ(d.s.Modell.RechnungGlobal, f.opt_glob == 0) << fall;
  }
  // The lines of a text are joined by CR LF, the leading blanks kept.
  Dialog virial(13, 4);
  virial.frm.Form_Load();
  EXPECT_EQ(virial.frm.Situation,
            "Die gewählte EOS ist nur für die V-Phasen-Berechnung anwendbar.\r\n"
            "Die L-Dichte wird mit der BENSON-Methode berechnet,\r\n"
            " p(LV) bzw. T(LV) mittels aktueller Dampfdruckgleichung (\"PARTIAL-Berechnung\").");
}

// GLOBAL with a virial model is refused and PARTIAL stays selected; with a cubic model the choice
// goes both ways and GLOBAL hides the reference point.
TEST(frmCalcIn, GlobalOnlyWithACubicModel) {
  Dialog virial(13, 4);
  virial.frm.Form_Load();
  virial.frm.opt_glob_Click(0);
  EXPECT_EQ(virial.ui.Letzte().text,
            "GLOBAL-Berechnung ist nur mit einer kubischen EOS möglich (=> Fenster \"Modelle\").");
  EXPECT_EQ(virial.ui.Letzte().titel, "Ausführung nicht möglich");
  EXPECT_TRUE(virial.frm.PartialSichtbar && !virial.s.Modell.RechnungGlobal);

  Dialog kubisch(6, 4);
  kubisch.frm.Form_Load();
  EXPECT_EQ(kubisch.frm.GlobalSit,
            "GLOBAL-Berechnung: L- und V-Dichte sowie Dampfdruck p(LV) bzw. Siedetemperatur "
            "p(LV) mittels kubischer Zustandsgleichung.");
  kubisch.frm.opt_glob_Click(1);
  kubisch.frm.opt_glob_Click(0);
  EXPECT_TRUE(kubisch.s.Modell.RechnungGlobal);
  EXPECT_FALSE(kubisch.frm.PartialSichtbar);
  EXPECT_TRUE(kubisch.ui.protokoll.empty());
}

// The liquid density of PARTIAL: Benson's method or the database function within its limits; a
// substance without that function offers Benson only.
TEST(frmCalcIn, SourceOfTheLiquidDensity) {
  Dialog d(6, 4);
  d.s.Modell.KonzeptGlobal = false;
  d.frm.Form_Load();
  const TGrenzen g = d.s.Stoff.RhoLGrenzen;
  ASSERT_GT(g.TLo, 0);
  EXPECT_EQ(d.frm.lblRhoLimits,
            "gültig im Bereich T/K = " + std::to_string(g.TLo) + " ... " + std::to_string(g.THi));
  EXPECT_EQ(d.frm.DichteHinweis, "Die L-Dichte wird mit der BENSON-Methode berechnet.");
  d.frm.optPartialBenson_Click(0);
  EXPECT_FALSE(d.s.Modell.BensonDichte);
  EXPECT_EQ(d.frm.DichteHinweis, "Die L-Dichte wird mit der Datenbankfunktion rho(L) = Fu(T) berechnet.");
  EXPECT_EQ(d.frm.GlobalSit,
            "PARTIAL-Berechnung: L-Dichte mittels  Datenbankgleichung rho(L) = Fu(T), V-Dichte "
            "mittels EOS berechnet. Die p(LV)- bzw. T(LV)-Berechnung erfolgt mit der aktuellen "
            "Dampfdruckgleichung.");
  d.frm.optPartialBenson_Click(1);
  EXPECT_EQ(d.frm.GlobalSit.substr(0, 73),
            "PARTIAL-Berechnung: L-Dichte mittels BENSON-Methode (Mathias-Cailletet), ");

  Dialog ohne(6, 4);
  ohne.s.Stoff.RhoLGrenzen = TGrenzen{};
  ohne.s.Modell.BensonDichte = false;
  ohne.s.Modell.KonzeptGlobal = false;
  ohne.frm.Form_Load();
  EXPECT_EQ(ohne.frm.lblRhoLimits, "(keine Datenbank-Funktion verfügbar.)");
  EXPECT_FALSE(ohne.frm.optPartialBensonEnabled[0]);
  EXPECT_TRUE(ohne.s.Modell.BensonDichte);
}

// PARTIAL without a reference point proposes one by the data at once; Benson's approximation is the
// second way; the third opens the value dialog; a point already held is shown and kept.
TEST(frmCalcIn, ReferencePointByProposalAndBenson) {
  Dialog d(6, 5);
  d.s.Modell.KonzeptGlobal = false;
  d.frm.Form_Load();
  EXPECT_EQ(d.frm.Ref_opt, 0);
  const ReferenzGruppe& r = d.s.Referenz;
  EXPECT_EQ(r.BezugT, d.s.Stoff.TSiede); // methane boils at normal pressure: the proposal takes TSiede
  EXPECT_EQ(r.BezugP, 101.3f);
  EXPECT_GT(r.BezugRhoL, 400.0f);
  EXPECT_EQ(d.frm.RefVorschlag.substr(0, d.frm.RefVorschlag.find("\r\n")),
            " T(ref)/K           = 111.66 (Normalsiede-T)");
  EXPECT_FALSE(d.frm.RefInputEnabled);

  const float rhoV = r.BezugRhoV;
  d.frm.Ref_opt_Click(1);
  EXPECT_EQ(r.BezugP, 101.335f);
  EXPECT_EQ(r.BezugRhoV, rhoV); // Benson's way leaves the vapour density as it was
  EXPECT_NE(d.frm.RefVorschlag.find("\r\n p(LV)(ref)/kPa     = 101.325  (Normaldruck)\r\n"),
            std::string::npos);
  d.frm.RefInput_Click(); // only the third way opens the value dialog
  EXPECT_EQ(d.fenster.schritte, Schritte{});
  d.frm.Ref_opt_Click(2);
  d.frm.RefInput_Click();
  EXPECT_EQ(d.fenster.schritte, Schritte{"frmParinput"});
  EXPECT_EQ(d.s.Rechnung.ParinputModus, 4);

  Dialog gehalten(6, 5);
  gehalten.s.Modell.KonzeptGlobal = false;
  ReferenzpunktMethan(gehalten.s);
  gehalten.frm.Form_Load();
  EXPECT_EQ(gehalten.frm.Ref_opt, -1);
  EXPECT_EQ(gehalten.frm.RefVorschlag, " T(ref)/K           = 111.66\r\n p(LV)(ref)/kPa     = 101.325\r\n"
                                       " rho(L)(ref)/kg/m^3 = 422.6\r\n rho(V)(ref)/kg/m^3 = 1.82");
}

// OK takes the reference point and goes on: the page and the value dialog of the kind, the vessel's
// value dialog without a page, or the diagram that opened the dialog.
TEST(frmCalcIn, OkGoesOnWithTheCalculation) {
  Dialog d(6, 4);
  d.frm.Form_Load();
  d.frm.OK_Click();
  EXPECT_EQ(d.fenster.schritte, (Schritte{"frmParinput zu", "frmQCalcOut", "frmParinput"}));
  EXPECT_EQ(d.s.Rechnung.ParinputModus, 104);
  EXPECT_FALSE(d.s.Referenz.BezugGueltig); // GLOBAL: no reference point was made
  EXPECT_TRUE(d.frm.Geschlossen);

  Dialog behaelter(6, 10);
  behaelter.frm.Form_Load();
  behaelter.frm.OK_Click();
  EXPECT_EQ(behaelter.fenster.schritte, (Schritte{"frmParinput zu", "frmParinput"}));
  EXPECT_EQ(behaelter.s.Rechnung.ParinputModus, 33);
  EXPECT_TRUE(behaelter.s.Referenz.BezugGueltig); // the proposal was made on opening

  Dialog diagramm(6, 4);
  diagramm.frm.AusDiagramm = true;
  diagramm.frm.Form_Load();
  diagramm.frm.OK_Click();
  EXPECT_EQ(diagramm.fenster.schritte, (Schritte{"frmParinput zu", "Diagramm"}));
}

} // namespace
} // namespace quor
