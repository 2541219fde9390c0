#include "saettigungsdaten.h"

#include "engine/korrelationen.h"

#include <algorithm>
#include <cmath>

namespace cubpar {

using namespace quor;

namespace {

constexpr int MindestPunkte = 3;

// A vapour-pressure block in the substance group: the row of the table that evaluates it and the
// validity limits written with it (0: none).
struct Block {
  int index = 0;
  double TLo = 0, THi = 0;
};

bool Leer(const std::vector<double>& w) {
  return std::all_of(w.begin(), w.end(), [](double x) { return std::fabs(x) <= 1e-30; });
}

template <std::size_t N> void Kopiere(const std::vector<double>& w, std::array<float, N>& ziel) {
  for (std::size_t i = 0; i < N; ++i)
    ziel[i] = static_cast<float>(w[i]);
}

// The block of line 6 by its type codes. A Frost/Kalkwarf block is either a database set (C with
// 273.15, F the exponent less 2) or a correlated set with the exponent itself (2 or 2.5); since the
// database never gives an exponent offset of 1 or more, F decides which.
Block DampfdruckBlock(const JiParEingabe& e, StoffGruppe& st) {
  const std::vector<double>& w = e.dampfdruck;
  Block b;
  if (Leer(w)) return b;
  if (e.code1 == 0 && e.code2 == 0) { // Antoine (also Thompson's)
    Kopiere(w, st.THO);
    b = {AntoineThompson, w[3], w[4]};
  } else if (e.code1 == 0 && e.code2 == 1) { // Antoine above the normal boiling point
    Kopiere(w, st.AntoineHd);
    b = {AntoineHochdruck, w[3], w[4]};
  } else if (e.code1 == 0 && e.code2 == 2) { // Frost/Kalkwarf
    if (w[5] >= 1) {
      Kopiere(w, st.KFR);
      st.KFR[2] = static_cast<float>(w[2] - 273.15);
      b = {FrostKalkwarfRK, w[9], w[10]};
    } else {
      Kopiere(w, st.FrostKalkwarf);
      b = {FrostKalkwarfDB, w[9], w[10]};
    }
  } else if (e.code1 == 1 && e.code2 == 1) { // August: ln p = A - B/T
    st.AugustA = static_cast<float>(w[0]);
    st.AugustB = static_cast<float>(-w[1]);
    b = {AugustKorreliert, w[2], w[3]};
  } else if (e.code1 == 1 && e.code2 == 3) { // Wagner
    Kopiere(w, st.Wagner);
    b = {WagnerDB, w[10], w[11]};
  }
  return b;
}

Block AntoineBlock(const JiParEingabe& e, StoffGruppe& st) {
  if (Leer(e.antoine)) return {};
  Kopiere(e.antoine, st.AntoineNd);
  return {AntoineNiederdruck, e.antoine[3], e.antoine[4]};
}

// The reduced range cut to the limits of a block; empty (von > bis) when they don't meet.
void Bereich(double Tc, double TLo, double THi, double& von, double& bis) {
  von = TrMin * Tc;
  bis = TrMax * Tc;
  if (TLo > 1e-6) von = std::max(von, TLo);
  if (THi > 1e-6) bis = std::min(bis, THi);
}

double Stelle(double von, double bis, int i, int anzahl) {
  return anzahl > 1 ? von + (bis - von) * i / (anzahl - 1) : 0.5 * (von + bis);
}

std::vector<Stuetzpunkt> Druecke(ProjectState& s, const Block& b, int anzahl, double& von, double& bis) {
  std::vector<Stuetzpunkt> p;
  if (b.index == 0) return p;
  Bereich(s.Stoff.TKrit, b.TLo, b.THi, von, bis);
  if (!(bis > von)) return p;
  for (int i = 0; i < anzahl; ++i) {
    const double T = Stelle(von, bis, i, anzahl);
    int16_t fehler = 0;
    const double wert = pLV(s, T, b.index, false, fehler);
    if (fehler == 0 && wert >= pMin && wert < s.Stoff.pKrit) p.push_back({T, wert, Groesse::Dampfdruck});
  }
  return p;
}

// Densities where the vapour-pressure equation `index` gives at least pMin.
std::vector<Stuetzpunkt> Dichten(ProjectState& s, int index, int anzahl) {
  std::vector<Stuetzpunkt> d;
  const StoffGruppe& st = s.Stoff;
  if (std::all_of(st.RhoL.begin(), st.RhoL.end(), [](float x) { return std::fabs(x) <= 1e-30f; })) return d;
  double von = 0, bis = 0;
  Bereich(st.TKrit, st.RhoLGrenzen.TLo, st.RhoLGrenzen.THi, von, bis);
  if (!(bis > von)) return d;
  for (int i = 0; i < anzahl; ++i) {
    const double T = Stelle(von, bis, i, anzahl);
    int16_t fehler = 0;
    const double wert = RhoL(s, T, false, fehler);
    int16_t ohneDruck = 0;
    const double p = pLV(s, T, index, false, ohneDruck);
    if (fehler == 0 && wert > 1e-6 && ohneDruck == 0 && p >= pMin) d.push_back({T, wert, Groesse::Dichte});
  }
  return d;
}

} // namespace

bool StoffAusEingabe(const JiParEingabe& e, ProjectState& s, std::string& fehler) {
  StoffGruppe& st = s.Stoff;
  const std::vector<double>& k = e.kritisch;
  st.CASRN = e.cas;
  st.MolMasse = static_cast<float>(k[0]);
  st.RhoLTcr = static_cast<float>(k[1]);
  st.TKrit = k[2];
  st.pKrit = k[3];
  st.rhoKritExp = k[4];
  st.omega = k[5];
  for (std::size_t i = 0; i < st.RhoL.size(); ++i)
    st.RhoL[i] = static_cast<float>(e.dichte[i]);
  st.RhoLGrenzen.TLo = static_cast<int16_t>(std::lround(e.dichte[7]));
  st.RhoLGrenzen.THi = static_cast<int16_t>(std::lround(e.dichte[8]));
  s.Modell.EOSIndex = e.modellCode == 11 ? 8 : 7;
  s.Modell.VirialFlag = false;
  s.Modell.KonzeptGlobal = true;
  if (!(st.TKrit > 1e-6 && st.pKrit > 1e-6 && st.MolMasse > 1e-6)) {
    fehler = "kritischer Punkt oder Molmasse fehlt";
    return false;
  }
  return true;
}

Saettigungsdaten ErzeugeDaten(ProjectState& s, const JiParEingabe& e, int anzahl) {
  Saettigungsdaten d;
  Block b = DampfdruckBlock(e, s.Stoff);
  std::vector<Stuetzpunkt> p = Druecke(s, b, anzahl, d.TVon, d.TBis);
  if (static_cast<int>(p.size()) < MindestPunkte) {
    b = AntoineBlock(e, s.Stoff);
    p = Druecke(s, b, anzahl, d.TVon, d.TBis);
  }
  if (static_cast<int>(p.size()) < MindestPunkte) p.clear();
  d.dampfdruckIndex = p.empty() ? 0 : b.index;
  s.Modell.DampfdruckIndex = static_cast<int16_t>(d.dampfdruckIndex);
  std::vector<Stuetzpunkt> rho = Dichten(s, d.dampfdruckIndex, anzahl);
  if (static_cast<int>(rho.size()) < MindestPunkte) rho.clear();
  d.druckPunkte = static_cast<int>(p.size());
  d.dichtePunkte = static_cast<int>(rho.size());
  d.punkte = p;
  d.punkte.insert(d.punkte.end(), rho.begin(), rho.end());
  return d;
}

} // namespace cubpar
