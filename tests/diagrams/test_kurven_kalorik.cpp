// Caloric curves, tie lines, the inversion curve and the database functions of the curve engine,
// point by point against direct calls of the engine and the correlations (methane, Peng/Robinson).
#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven.h"
#include "engine/kalorik.h"
#include "support/relativ.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace quor::test {
namespace {

constexpr int16_t PengRobinson = 6;

struct Kurve {
  Kurvenpunkte punkte;
  int16_t ergebnis = -1;
  bool imBereich = false;
  std::string meldung;

  std::size_t n() const { return Anzahl(punkte); }
  const Kurvenpunkt& operator[](std::size_t i) const { return punkte.at(i); }
};

Kurve Zeichne(ProjectState& s, int16_t c, int16_t klasse, float xmin, float xmax, float ymin, float ymax,
              double T, double p, double v = 0) {
  DiagrammAuftrag a;
  a.Code = c;
  a.Klasse = klasse;
  a.Xmin = xmin;
  a.Xmax = xmax;
  a.Ymin = ymin;
  a.Ymax = ymax;
  ui::SkriptOberflaeche ui;
  Kurve k;
  CalcCurve(s, ui, a, k.ergebnis, T, p, v, k.punkte, k.imBereich, k.meldung);
  return k;
}

ProjectState Methan(int16_t punktDichte) {
  ProjectState s = StoffMitModell(CasMethan, PengRobinson);
  s.Optionen.PunktDichte = punktDichte;
  return s;
}

// The caloric block of the stable phase at (T, p), as a state calculation finds it.
KalorischeWerte StabilerZustand(ProjectState s, double T, double p, int& row, double& v) {
  const Zustand z = Loese(s, T, p);
  row = z.istV ? PhaseV : PhaseL;
  v = z.istV ? z.vV : z.vL;
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(s, T, p, v, row, w, err);
  return w;
}

SaettigungsWerte SaettigungBei(ProjectState s, double T) {
  SaettigungsWerte w;
  int16_t err = 0;
  SaettigungsFunktionen(s, T, w, err);
  EXPECT_EQ(err, 0);
  return w;
}

double SaettigungsTemperaturBei(ProjectState s, double p) {
  double imbalance = 0, A = 0, B = 0, start = 0;
  int16_t err = 0;
  const double T = TLVbeiP(s, p, imbalance, A, B, start, err);
  EXPECT_EQ(err, 0);
  return T;
}

TEST(KalorischeKurven, EnthalpieIsobareUeberDasZweiphasengebietTraegtDieKonnodeBeiTLV) {
  ProjectState s = Methan(100);
  const double p = 2000;
  const Kurve k = Zeichne(s, code::HvonT, klasse::Isobare, 100, 300, -20000, 20000, 0, p);
  ASSERT_GT(k.n(), 95u);
  EXPECT_EQ(k[0].Z, kopf::ZweiZweige);
  EXPECT_TRUE(k.imBereich);

  // The tie points: at T(LV) of the EOS, the vapour's end first since T falls along the curve.
  const double TLV = SaettigungsTemperaturBei(s, p);
  const SaettigungsWerte sat = SaettigungBei(s, TLV);
  std::vector<std::size_t> amTLV;
  for (std::size_t i = 1; i <= k.n(); ++i)
    if (std::fabs(k[i].X / TLV - 1) < 1e-6) amTLV.push_back(i);
  ASSERT_EQ(amTLV.size(), 2u);
  EXPECT_EQ(amTLV[1], amTLV[0] + 1);
  EXPECT_GT(k[amTLV[0] - 1].X, k[amTLV[0]].X);
  EXPECT_REL(k[amTLV[0]].Y, sat.phase[PhaseV].h, 1e-6);
  EXPECT_REL(k[amTLV[1]].Y, sat.phase[PhaseL].h, 1e-6);

  // Every other point is h of the stable phase at (T, p).
  int dampf = 0, fluessig = 0;
  for (std::size_t i = 1; i <= k.n(); ++i) {
    if (i == amTLV[0] || i == amTLV[1]) continue;
    int row = 0;
    double v = 0;
    const KalorischeWerte w = StabilerZustand(s, k[i].X, p, row, v);
    EXPECT_REL(k[i].Y, w.h, 1e-5) << "T = " << k[i].X;
    EXPECT_EQ(k[i].Z, static_cast<float>(p));
    (row == PhaseV ? dampf : fluessig)++;
  }
  EXPECT_GT(dampf, 30);
  EXPECT_GT(fluessig, 30);

  // Per R*T the factor follows each point's own T, not the curve's.
  s.Einheiten.EnergieMode = 2;
  const Kurve proRT = Zeichne(s, code::HvonT, klasse::Isobare, 100, 300, -100, 100, 0, p);
  ASSERT_EQ(proRT.n(), k.n());
  for (std::size_t i = 1; i <= k.n(); i += 9)
    EXPECT_REL(proRT[i].Y * RGas * proRT[i].X, k[i].Y, 1e-5) << "T = " << k[i].X;
}

TEST(KalorischeKurven, SiedeUndTaulinieKommenAusDemselbenZweigNachIsohygre) {
  for (const double x : {0.0, 1.0, 0.5}) {
    ProjectState s = Methan(50);
    s.Diagramm.Isohygre = x;
    const Kurve k = Zeichne(s, code::KoexH, klasse::Koexistenz, 100, 200, -20000, 20000, 0, 0);
    ASSERT_GT(k.n(), 40u) << x;
    EXPECT_EQ(k[0].Z, kopf::MitParameter);
    // the first point is the critical point, the others lie on the saturation line at their T
    EXPECT_FLOAT_EQ(k[1].X, static_cast<float>(s.Stoff.TKrit));
    for (std::size_t i = 2; i <= k.n(); i += 7) {
      const SaettigungsWerte sat = SaettigungBei(s, k[i].X);
      const double hL = sat.phase[PhaseL].h, hV = sat.phase[PhaseV].h;
      EXPECT_REL(k[i].Y, hL + (hV - hL) * x, 1e-5) << "x = " << x << ", T = " << k[i].X;
    }
  }
}

TEST(KalorischeKurven, ZweiphasengebietAufIsothermeUeberVUndIsochoreUeberT) {
  ProjectState s = Methan(100);
  const double T = 150;
  const SaettigungsWerte sat = SaettigungBei(s, T);

  // u over v at T: no volume strictly between the saturated ones, both of those on the curve, sorted
  const Kurve k = Zeichne(s, code::UvonV, klasse::Isotherme, 0.03f, 2, -20000, 20000, T, 0);
  ASSERT_GT(k.n(), 100u);
  int enden = 0;
  for (std::size_t i = 1; i <= k.n(); ++i) {
    const double v = k[i].X;
    EXPECT_FALSE(v > 1.000001 * sat.vL && v < 0.999999 * sat.vV) << "v = " << v;
    if (i > 1) {
      EXPECT_GE(k[i].X, k[i - 1].X);
    }
    for (int row : {PhaseL, PhaseV}) {
      const double vSatt = row == PhaseL ? sat.vL : sat.vV;
      if (std::fabs(v / vSatt - 1) > 1e-6) continue;
      EXPECT_REL(k[i].Y, sat.phase[row].u, 1e-6);
      ++enden;
    }
  }
  EXPECT_EQ(enden, 2);

  // u over T at v inside the region with the real behaviour: the saturated phases weighted by the
  // vapour fraction of v
  const double v = 0.2;
  s.Diagramm.MitRealverhalten = true;
  const Kurve k2 = Zeichne(s, code::UvonTIsochor, klasse::Isochore, 100, 200, -20000, 20000, 0, 0, v);
  std::size_t geprueft = 0;
  for (std::size_t i = 1; i <= k2.n(); ++i) {
    if (!(k2[i].X < 140)) continue;
    const SaettigungsWerte w = SaettigungBei(s, k2[i].X);
    const double x = (v - w.vL) / (w.vV - w.vL);
    ASSERT_TRUE(x > 0 && x < 1);
    EXPECT_REL(k2[i].Y, w.phase[PhaseL].u + x * (w.phase[PhaseV].u - w.phase[PhaseL].u), 1e-5);
    ++geprueft;
  }
  EXPECT_GT(geprueft, 30u);
}

TEST(Konnodenpunkte, IsothermePVGibtDieSaettigtenVoluminaBeimSaettigungsdruck) {
  ProjectState s = Methan(500);
  DiagrammAuftrag a;
  a.Code = code::pv;
  a.Klasse = klasse::Isotherme;
  const double T = 150;
  double X1 = 0, X2 = 0, Y1 = 0, Y2 = 0;
  ASSERT_TRUE(Konnodenpunkte(s, a, T, 0, 0, X1, X2, Y1, Y2));

  ProjectState r = s;
  const double pLV = DruckLV(r, T);
  const Zustand z = Loese(r, T, pLV);
  EXPECT_REL(X1, z.vL, 1e-6);
  EXPECT_REL(X2, z.vV, 1e-6);
  EXPECT_REL(Y1, pLV, 1e-9);
  EXPECT_REL(Y2, pLV, 1e-9);

  // no tie line above the critical temperature, nor for a virial model
  EXPECT_FALSE(Konnodenpunkte(s, a, 1.01 * s.Stoff.TKrit, 0, 0, X1, X2, Y1, Y2));
  s.Modell.VirialFlag = true;
  EXPECT_FALSE(Konnodenpunkte(s, a, T, 0, 0, X1, X2, Y1, Y2));
}

TEST(Inversionskurve, JouleThomsonKoeffizientVerschwindetAufDerKurve) {
  ProjectState s = Methan(100);
  const Kurve k = Zeichne(s, code::InversionPT, klasse::Inversion, 100, 1000, 0, 60000, 0, 0);
  ASSERT_GT(k.n(), 150u);
  EXPECT_EQ(k[0].Z, kopf::ZweiZweige);
  for (std::size_t i = 1; i <= k.n(); i += 5) {
    // code 34's quantity, the Joule-Thomson coefficient, at the point's state
    ProjectState r = s;
    const double T = k[i].X, p = k[i].Y;
    int row = 0;
    double v = 0;
    StabilerZustand(r, T, p, row, v);
    KalorikTabellen tab;
    int16_t err = 0;
    PhiFunktionen(r, row, T, p, v, tab.Abl1, tab.Abl2, tab.ResFunk, err);
    // a tenth of p off the curve delta is of the order of 1e-4 K/kPa
    EXPECT_NEAR(tab.ResFunk[row][7], 0, 1e-8) << "T = " << T << ", p = " << p;
  }
  // Below the critical temperature the curve runs in the liquid and ends at the boiling line.
  const Kurvenpunkt& letzter = k[k.n()];
  ASSERT_LT(letzter.X, s.Stoff.TKrit);
  EXPECT_GT(letzter.X, 100);
  ProjectState r = s;
  EXPECT_GT(letzter.Y, DruckLV(r, letzter.X));
}

TEST(Datenbankfunktionen, FolgenDerKorrelationUeberIhrenGueltigkeitsbereich) {
  ProjectState s = Methan(50);
  struct Fall {
    int16_t code;
    TGrenzen grenzen;
  };
  for (const Fall& f :
       {Fall{code::DbRhoL, s.Stoff.RhoLGrenzen}, Fall{code::DbDampfdruck, s.Stoff.AntoineNdGrenzen}}) {
    ASSERT_TRUE(f.grenzen.TLo > 0 && f.grenzen.THi > f.grenzen.TLo) << f.code;
    const Kurve k = Zeichne(s, f.code, klasse::Datenbank, 50, 250, 0, 5000, 0, 0);
    ASSERT_EQ(k.n(), 51u) << f.code;
    EXPECT_EQ(k[0].Z, kopf::OhneParameter);
    EXPECT_EQ(k[1].X, f.grenzen.TLo);
    EXPECT_EQ(k[k.n()].X, f.grenzen.THi);
    for (std::size_t i = 1; i <= k.n(); ++i) {
      int16_t failed = 0;
      const double soll = f.code == code::DbRhoL ? RhoL(s, k[i].X, false, failed)
                                                 : pLV(s, k[i].X, AntoineNiederdruck, false, failed);
      EXPECT_REL(k[i].Y, soll, 1e-6) << f.code << " at T = " << k[i].X;
    }
  }
}

} // namespace
} // namespace quor::test
