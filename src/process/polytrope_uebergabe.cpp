#include "process/polytrope_uebergabe.h"

#include <array>
#include <type_traits>

namespace quor::prozess {

const char* const PexAnhangEnde = "ENDE";

namespace {

// Every field of the model in the order of the tail, for writing (const state) and reading alike.
template <class St, class F> void StoffFelder(St& st, F& f) {
  f(st.StoffName), f(st.Formel), f(st.FormelOhneLeer), f(st.Struktur), f(st.CASRN), f(st.MDBNr);
  f(st.MolMasse), f(st.TSiede), f(st.TTripel), f(st.pTripel), f(st.hBildung), f(st.gBildung);
  f(st.sBildung), f(st.DeltaFs), f(st.TKrit), f(st.pKrit), f(st.rhoKritExp), f(st.vKritExp);
  f(st.omega), f(st.AugustA), f(st.AugustB), f(st.TUntereGrenze);
  f(st.RhoL), f(st.RhoLTcr), f(st.RhoLGrenzen), f(st.FrostKalkwarf), f(st.FrostKalkwarfGrenzen);
  f(st.AntoineNd), f(st.AntoineNdGrenzen), f(st.AntoineHd), f(st.AntoineHdGrenzen);
  f(st.Wagner), f(st.WagnerGrenzen), f(st.CpPoly), f(st.CpPolyGrenzen), f(st.CpSinh);
  f(st.CpSinhGrenzen), f(st.CpL), f(st.CpLGrenzen), f(st.CpS), f(st.CpSGrenzen);
  f(st.CpPolyOK), f(st.CpSinhOK), f(st.CpLOK), f(st.CpSOK);
  f(st.HLV), f(st.HLVTcr), f(st.HLVGrenzen), f(st.WatsonH), f(st.WatsonT);
  f(st.RhoS), f(st.RhoSGrenzen), f(st.KFW), f(st.KFR), f(st.THO);
}

template <class M, class F> void ModellFelder(M& m, F& f) {
  f(m.EOSIndex), f(m.VirialFlag), f(m.DampfdruckIndex), f(m.DampfdruckTag), f(m.HLVIndex);
  f(m.CpIndex), f(m.WatsonExp), f(m.KonzeptGlobal), f(m.RechnungGlobal), f(m.BensonDichte);
}

// The constants of the EOS set-up: the calculator does not run the set-up again (for the
// Varnik/Ji models that would start the parameter program).
template <class E, class F> void EOSFelder(E& e, F& f) {
  f(e.vKritEOS), f(e.rhoKritEOS), f(e.aForm), f(e.a0), f(e.b0), f(e.c0), f(e.d0);
  f(e.aExp), f(e.bExp), f(e.cExp), f(e.dExp), f(e.BExpHand), f(e.JiParameter);
}

template <class R, class F> void ReferenzFelder(R& r, F& f) {
  f(r.RefArt), f(r.hRef), f(r.sRef), f(r.TRef), f(r.pRef), f(r.TUmgebung), f(r.pUmgebung);
  f(r.BezugT), f(r.BezugP), f(r.BezugRhoL), f(r.BezugRhoV), f(r.BezugGueltig);
}

template <class E, class F> void EinheitenFelder(E& e, F& f) {
  f(e.VolumenMode), f(e.VolumenFaktor), f(e.EnergieMode), f(e.EnergieFaktor), f(e.TFaktor);
  f(e.pFaktor), f(e.TVorgabe), f(e.pVorgabe), f(e.vVorgabe);
}

template <class S, class F> void ModellZustand(S& s, F& f) {
  StoffFelder(s.Stoff, f);
  ModellFelder(s.Modell, f);
  EOSFelder(s.EOS, f);
  ReferenzFelder(s.Referenz, f);
  EinheitenFelder(s.Einheiten, f);
}

// One field a line; a block of numbers on one line, its values separated by commas.
struct Schreiber {
  ListenSchreiber& w;
  void operator()(const std::string& t) {
    Zeile([&] { w.Text(t); });
  }
  void operator()(double x) {
    Zeile([&] { w.Zahl(x); });
  }
  void operator()(float x) {
    Zeile([&] { w.Zahl(x); });
  }
  void operator()(int16_t x) {
    Zeile([&] { w.Ganz(x); });
  }
  void operator()(bool b) {
    Zeile([&] { w.Bool(b); });
  }
  void operator()(const TGrenzen& g) {
    Zeile([&] { w.Ganz(g.TLo), w.Ganz(g.THi); });
  }
  template <class T, std::size_t N> void operator()(const std::array<T, N>& a) {
    Zeile([&] {
      for (const T& x : a)
        w.Zahl(x);
    });
  }
  template <class G> void Zeile(G g) {
    g();
    w.ZeileEnde();
  }
};

// Reads in the same order; the first value that is missing or wrong stops it.
struct Leser {
  ListenLeser& r;
  bool ok = true;
  void operator()(std::string& t) { ok = ok && r.LeseText(t); }
  void operator()(double& x) { ok = ok && r.LeseDouble(x); }
  void operator()(float& x) { ok = ok && r.LeseFloat(x); }
  void operator()(int16_t& x) { ok = ok && r.LeseInt16(x); }
  void operator()(bool& b) { ok = ok && r.LeseBool(b); }
  void operator()(TGrenzen& g) { ok = ok && r.LeseInt16(g.TLo) && r.LeseInt16(g.THi); }
  template <class T, std::size_t N> void operator()(std::array<T, N>& a) {
    for (T& x : a)
      (*this)(x);
  }
};

bool LeseKopf(ListenLeser& r, PexAuftrag& a, std::string& grund) {
  int16_t eins = 0, null = 0, spezifisch = 0, punkte = 0;
  double v = 0, leer = 0;
  Leser l{r};
  l(null), l(a.Formel), l(eins), l(spezifisch), l(a.Modus), l(null), l(a.Start), l(a.Code), l(punkte);
  l(a.MolMasse), l(a.T1), l(a.p1), l(v), l(leer), l(leer);
  a.Spezifisch = spezifisch != 0;
  a.Punkte = punkte;
  // The phase blocks are for calculators that take the start state as given; this one solves it anew.
  for (int i = 0; i < (a.Spezifisch ? 0 : 2 * PexPhasenWerte); ++i)
    l(leer);
  if (!l.ok) grund = "Kopf unvollständig oder ungültig (Zeile " + std::to_string(r.Zeile()) + ")";
  return l.ok;
}

} // namespace

void PexAnhangSchreiben(const ProjectState& s, const PexAuftrag& a, ListenSchreiber& w) {
  Schreiber f{w};
  f(a.n), f(a.kappa), f(a.Bereich), f(a.Ende), f(std::string(1, a.Trenner)), f(a.DiagrammCode);
  f(a.T1), f(a.p1);
  ModellZustand(s, f);
  f(std::string(PexAnhangEnde));
}

bool PexAuftragLesen(const std::string& bytes, PexAuftrag& a, ProjectState& s, std::string& grund) {
  ListenLeser r(bytes);
  if (!LeseKopf(r, a, grund)) return false;
  Leser l{r};
  std::string trenner, ende;
  l(a.n), l(a.kappa), l(a.Bereich), l(a.Ende), l(trenner), l(a.DiagrammCode), l(a.T1), l(a.p1);
  ModellZustand(s, l);
  l(ende);
  if (!l.ok || ende != PexAnhangEnde || trenner.size() != 1) {
    grund = "Anhang unvollständig oder ungültig (Zeile " + std::to_string(r.Zeile()) + ")";
    return false;
  }
  a.Trenner = trenner[0];
  return true;
}

} // namespace quor::prozess
