// Shared by the tests of the calculation dispatcher and its page: a substance of the default database
// with a model chosen as the model dialog does it, a call of the dispatcher with its page and context,
// the page as a readable text, and the comparison with a stored text (golden file).
#pragma once

#include "calc/calc_batch.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/eos_parameter.h"
#include "engine/korrelationen.h"
#include "engine/saettigung.h"
#include "engine/zustand.h"
#include "support/golden.h"
#include "support/stoff_fixture.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace quor::test {

// The substance of CAS number `cas` with EOS row `eos`, the vapour-pressure equation of its default
// tag, the polynomial ideal-gas cp and the enthalpy method `hlv`; GLOBAL for cubic models.
inline ProjectState StoffMitModell(const std::string& cas, int16_t eos, int16_t hlv = 7) {
  ProjectState s = StoffAusStandardDatenbank(cas);
  ModelSelection& m = s.Modell;
  m.EOSIndex = eos;
  m.VirialFlag = eos == 0 || eos > 9;
  m.KonzeptGlobal = m.RechnungGlobal = !m.VirialFlag;
  m.CpIndex = 1;
  m.HLVIndex = hlv;
  ui::SkriptOberflaeche ui;
  int16_t err = 0;
  EOSParameterSetup(s, ui, eos, err);
  EXPECT_EQ(err, 0);
  SetzeEinheiten(s, ui);
  return s;
}

// v(T, p) of the solver on a copy of the state, the way the dispatcher asks it.
struct Zustand {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0;
  std::string meldung;
};
inline Zustand Loese(ProjectState s, double T, double p) {
  Zustand d;
  int16_t nRoots = 0, err = 0;
  double imbalance = 0, A = 0, B = 0;
  VzuTP(s, T, p, s.EOS.Gebiet, d.istL, d.istV, d.rhoV, d.rhoL, d.vV, d.vL, nRoots, imbalance, A, B, d.meldung,
        err);
  EXPECT_EQ(err, 0);
  return d;
}

// The EOS's saturation pressure at T; the saturated roots stay in VRoots.
inline double DruckLV(ProjectState& s, double T) {
  double imbalance, A, B;
  int16_t err = 0;
  const double p = pLVbeiT(s, T, imbalance, A, B, err);
  EXPECT_EQ(err, 0);
  return p;
}
// A PARTIAL reference point of methane at its normal boiling point (saturated densities from the
// usual tables), and Benson's liquid density through it.
inline void ReferenzpunktMethan(ProjectState& s) {
  ReferenzGruppe& b = s.Referenz;
  b.BezugT = 111.66f, b.BezugP = 101.325f, b.BezugRhoL = 422.6f, b.BezugRhoV = 1.82f;
  b.BezugGueltig = true;
}
inline double BensonMethan(const ProjectState& s, double T, double rhoV) {
  const ReferenzGruppe& b = s.Referenz;
  int16_t f = 0;
  return BensonRhoL(T, s.Stoff.TKrit, s.Stoff.rhoKritExp, rhoV, b.BezugT, b.BezugP, b.BezugRhoV, b.BezugRhoL,
                    f);
}

// One page with its context; `Rechne` runs the dispatcher for a point.
struct Rechnung {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  ErgebnisSeite seite;
  RechenKontext k;
  double p = 0;
  float eta = -1;
  std::string ausgang;

  explicit Rechnung(ProjectState zustand) : s(std::move(zustand)) {}

  // Direct input in row 0 of the measured data.
  Rechnung& Vorgabe(double T, double p, float rhoV = 0, float rhoL = 0) {
    ExpDatenSatz& z = s.Mess.ExpDaten[0];
    z.T = T;
    z.p = p;
    z.RhoV = rhoV;
    z.RhoL = rhoL;
    return *this;
  }

  Rechnung& Rechne(int16_t art, int16_t punkt = 0) {
    s.RechenArt = art;
    CalcBatch(s, ui, seite, k, art, punkt, p, eta, ausgang);
    return *this;
  }

  double Zelle(int i) const { return k.Ergebnis[i]; }
  const StapelErgebnis& Satz(int punkt = 0) const { return k.StapelErgebnisse.at(punkt); }
};

// The page as text: every field with its colour, visibility and tool tip, then its text; the line
// ends of the text block (CR LF) become LF so that the file reads as plain lines.
inline std::string SeitenText(const ErgebnisSeite& seite) {
  std::ostringstream aus;
  auto feld = [&](const char* name, const SeitenFeld& f) {
    std::string text = f.text;
    for (std::size_t i = text.find("\r\n"); i != std::string::npos; i = text.find("\r\n", i))
      text.erase(i, 1);
    aus << "[" << name << (f.farbe == TextFarbe::Rot ? " rot" : "") << (f.sichtbar ? "" : " unsichtbar");
    if (!f.tooltip.empty()) aus << " tip=\"" << f.tooltip << "\"";
    aus << "]\n" << text << "\n";
  };
  feld("par1", seite.par1);
  feld("par2", seite.par2);
  feld("co1", seite.co1);
  feld("txtco2", seite.txtco2);
  feld("lblGleich", seite.lblGleich);
  feld("lblIdentisch", seite.lblIdentisch);
  feld("lblLphase", seite.lblLphase);
  feld("lblVphase", seite.lblVphase);
  feld("Liste", seite.Liste);
  aus << "[cmdCEOSDiagnose " << (seite.cmdCEOSDiagnoseVerfuegbar ? "an" : "aus") << "]\n";
  return aus.str();
}

// Compares the page with tests/data/calc/<name>.txt byte for byte.
inline void WieGespeichert(const ErgebnisSeite& seite, const std::string& name) {
  PruefeGolden("calc/" + name + ".txt", SeitenText(seite));
}

} // namespace quor::test
