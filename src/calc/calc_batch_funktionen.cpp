// The thermodynamic functions of the phases at T, p (kind 8) and the further blocks of every kind:
// Joule-Thomson coefficient, fugacity and residual functions, mechanical coefficients, derivatives
// with the inflection points of the isotherm, the functions block and the EOS parameters.
#include "calc/calc_batch_intern.h"

#include "core/festtext.h"
#include "engine/ableitungen.h"
#include "engine/eos_auswertung.h"
#include "engine/korrelationen.h"
#include "engine/numerik.h"
#include "engine/virial.h"

#include <cmath>

namespace quor::calcbatch {

namespace {

constexpr const char* FormatVorzeichen = " 0.0000E+00;-0.0000E+00";

double PhasenVolumen(const Lauf& l, int row) {
  return row == PhaseL ? l.vL : l.vV;
}

std::array<bool, 2> PhasenDa(const Lauf& l) {
  return {PhaseDa(l, PhaseL), PhaseDa(l, PhaseV)};
}

float Einfach0(double x) {
  const float f = Einfach(x);
  return std::isfinite(f) ? f : 0.0f;
}

// The residual tables of the phases present, and the mechanical coefficients.
struct ResidualTabellen {
  KalorikTabellen tab;
  MechTabelle mech{};
};

void ResidualRechnen(Lauf& l, const std::array<bool, 2>& da, ResidualTabellen& r) {
  for (int row : {PhaseL, PhaseV}) {
    if (!da[row]) continue;
    const double v = PhasenVolumen(l, row);
    int16_t err = 0;
    PhiFunktionen(l.s, row, l.T, l.p, v, r.tab.Abl1, r.tab.Abl2, r.tab.ResFunk, err);
    MechKoeffizienten(row, l.p, v, r.tab.Abl1, r.mech, err);
    StapelErgebnis& z = l.satz;
    for (int c = 0; c < 7; ++c)
      z.Abl1[row][c] = Einfach0(r.tab.Abl1[row][c]);
    for (int c = 0; c < 6; ++c)
      z.Abl2[row][c] = Einfach0(r.tab.Abl2[row][c]);
    for (int c = 0; c < 11; ++c)
      z.Fuga[row][c] = Einfach0(r.tab.ResFunk[row][c]);
    for (int c = 0; c < 3; ++c)
      z.Mech[row][c] = Einfach0(r.mech[row][c + 1]);
    const int basis = row == PhaseL ? ZelleAlphaL : ZelleAlphaV;
    for (int c = 0; c < 3; ++c)
      l.Zelle(basis + c) = r.mech[row][c + 1];
    l.Zelle(row == PhaseL ? ZelleDeltaL : ZelleDeltaV) = r.tab.ResFunk[row][7];
  }
}

// A row "label : L value   V value"; a missing phase leaves 13 blanks.
void WertZeile(Lauf& l, const std::array<bool, 2>& da, const std::string& vorne, double xL, double xV,
               const char* muster) {
  auto wert = [&](int row, double x) { return da[row] ? Fmt(l, x, muster) : std::string(13, ' '); };
  l.Zeile(vorne + wert(PhaseL, xL) + std::string(18, ' ') + wert(PhaseV, xV));
}

void FugazitaetsBlock(Lauf& l, const std::array<bool, 2>& da, const ResidualTabellen& r) {
  const auto& lab = l.s.Tab.AbleitungsLabels;
  const auto& f = r.tab.ResFunk;
  l.Zeile(std::string(74, '*'));
  l.Zeile("diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.");
  l.Zeile(std::string(74, '*'));
  l.Zeile(lab[21] + " (Joule-Thomson-Koeff. [K/kPa]):");
  WertZeile(l, da, std::string(17, ' '), f[PhaseL][7], f[PhaseV][7], FormatVorzeichen);
  for (int zeile = 14; zeile <= 20; ++zeile) {
    if (zeile == 17) l.Zeile("Residualfunktionen:");
    WertZeile(l, da, lab[zeile] + " : ", f[PhaseL][zeile - 14], f[PhaseV][zeile - 14], FormatVorzeichen);
  }
  l.Zeile(std::string(68, '*'));
  l.Zeile("                     mechanische Koeffizienten");
  l.Zeile(std::string(68, '*'));
  for (int zeile = 6; zeile <= 8; ++zeile)
    WertZeile(l, da, lab[zeile] + " : ", r.mech[PhaseL][zeile - 5], r.mech[PhaseV][zeile - 5], "0.0000E+00");
}

// The inflection points of the isotherm at T.
void Wendepunkte(Lauf& l) {
  ProjectState& s = l.s;
  quor::Wendepunkte wp;
  int16_t err = 0;
  WendepunkteSuchen(s, l.T, wp, err);
  if (err != 0) {
    l.Zeile("Wendepunkt p-v-Isoth.: keine Lösung gefunden");
    return;
  }
  const bool spezifisch = s.Einheiten.VolumenMode == 1;
  const double M = s.Stoff.MolMasse;
  auto zeile = [&](const char* vorne, int i) {
    const double v = spezifisch ? wp.v[i] / M : wp.v[i];
    l.Zeile(vorne + Fmt(l, v, spezifisch ? "#0.0000# m^3/kg" : "#0.0000# m^3/kmol") + ", p = " +
            Fmt(l, wp.p[i], "#####0 kPa") + " (vgl. 2.Abl.= " + Fmt(l, wp.d2p[i], "0.0E+00") + ")");
  };
  zeile("1.Wendepunkt p-v-Isoth.: v = ", 0);
  if (wp.v[1] > 0) zeile("2.Wendepunkt p-v-Isoth.: v = ", 1);
}

void AbleitungsBlock(Lauf& l, const std::array<bool, 2>& da, const ResidualTabellen& r) {
  const ProjectState& s = l.s;
  const auto& lab = s.Tab.AbleitungsLabels;
  const bool spezifisch = s.Einheiten.VolumenMode == 1;
  const double M = spezifisch ? s.Stoff.MolMasse : 1.0;
  l.Zeile(std::string(68, '*'));
  l.Zeile(std::string("                    Ableitungen nach T, p, V") +
          (spezifisch ? "(spezif.)" : "(molar)"));
  l.Zeile(std::string(68, '*'));
  // Volume in m^3/kg: each derivative by V once or twice takes the molar mass accordingly.
  const std::array<double, 7> faktor1{1, M, 1, 1 / M, 1 / M, M, 1};
  for (int c = 1; c <= 6; ++c) {
    const double f = faktor1[c];
    WertZeile(l, da, lab[c - 1] + " : ", r.tab.Abl1[PhaseL][c] * f, r.tab.Abl1[PhaseV][c] * f,
              FormatVorzeichen);
  }
  const std::array<std::pair<int, double>, 3> zweite{{{1, M * M}, {4, 1 / M}, {5, M * M}}};
  for (const auto& [c, f] : zweite)
    WertZeile(l, da, lab[c + 8] + " : ", r.tab.Abl2[PhaseL][c] * f, r.tab.Abl2[PhaseV][c] * f,
              FormatVorzeichen);
  if (!s.Modell.VirialFlag) Wendepunkte(l);
}

} // namespace

const FunktionsEinheiten& EinheitenVon(int16_t EnergieMode) {
  static const FunktionsEinheiten tabelle[4] = {
      {"h/ (kJ/kmol) ", "s/ (kJ/kmol/K) ", "g/ (kJ/kmol) ", "u/ (kJ/kmol) ", "a/ (kJ/kmol) ", "e/ (kJ/kmol)",
       "cp/(kJ/kmol/K)", "cV/(kJ/kmol/K)"},
      {"h/ K", "s/ R ", "g/ K", "u/ K", "a/ K", "e/ K", "cp/ R ", "cV/R "},
      {"h/ (R T)", "s / (1/K) ", "g/ (R T)", "u/ (R T)", "a/ (R T)", "e/ (R T)", "cp /(1/K) ", "cV /(1/K) "},
      {"h/ (kJ/kg) ", "s / (kJ/(kg K)) ", "g/ (kJ/kg) ", "u/ (kJ/kg) ", "a/ (kJ/kg)", "e/ (kJ/kg) ",
       "cp /(kJ/(kg K)) ", "cV /(kJ/(kg K)) "}};
  return tabelle[EnergieMode >= 0 && EnergieMode <= 3 ? EnergieMode : 0];
}

bool PhaseDa(const Lauf& l, int row) {
  return row == PhaseL ? l.k.HatL && l.vL > 0 : l.k.HatV && l.vV > 0;
}

KalorischeWerte PhasenFunktionen(Lauf& l, int row) {
  KalorischeWerte w;
  int16_t err = 0;
  ThermoFunktionen(l.s, l.T, l.p, PhasenVolumen(l, row), row, w, err);
  return w;
}

void FunktionsZellen(Lauf& l, int row, const KalorischeWerte& w) {
  const double E = l.s.Einheiten.EnergieFaktor;
  const int b = row == PhaseL ? ZelleVL : ZelleVV;
  l.Zelle(b) = PhasenVolumen(l, row) * l.s.Einheiten.VolumenFaktor;
  l.Zelle(b + 1) = w.h * E;
  l.Zelle(b + 2) = w.s * E;
  l.Zelle(b + 3) = l.Zelle(b + 1) - l.T * l.Zelle(b + 2);
  l.Zelle(b + 4) = w.u * E;
  l.Zelle(b + 5) = w.a * E;
  l.Zelle(b + 6) = w.eh * E;
  l.Zelle(b + 7) = w.eu * E;
  l.Zelle(b + 8) = w.cp * E;
  l.Zelle(b + 9) = w.cv * E;
  l.Zelle(row == PhaseL ? ZelleSchallL : ZelleSchallV) = w.w;
}

void FunktionsZeilen(Lauf& l, const std::array<KalorischeWerte, 2>& w, const std::array<bool, 2>& da,
                     const char* trenner, const char* schallLabel) {
  const EinheitenGruppe& e = l.s.Einheiten;
  const FunktionsEinheiten& u = EinheitenVon(e.EnergieMode);
  const double E = e.EnergieFaktor;
  auto feld = [&](int row, double x) { return da[row] ? Rechts(Einzel(l, x), 20) : std::string(20, ' '); };
  auto zeile = [&](const char* label, const char* einheit, double xL, double xV) {
    l.Zeile(FestText(label, 17) + FestText(einheit, 14) + trenner + feld(PhaseL, xL) + feld(PhaseV, xV));
  };
  l.Zeile(FestText("Volumen", 17) + "v/ (" + e.vEinheit + ") " + trenner +
          feld(PhaseL, l.vL * e.VolumenFaktor) + feld(PhaseV, l.vV * e.VolumenFaktor));
  const KalorischeWerte &L = w[PhaseL], &V = w[PhaseV];
  zeile("Enthalpie        ", u.h, L.h * E, V.h * E);
  zeile("Entropie         ", u.s, L.s * E, V.s * E);
  zeile("Freie Enthalpie  ", u.g, (L.h - l.T * L.s) * E, (V.h - l.T * V.s) * E);
  zeile("Innere Energie   ", u.u, L.u * E, V.u * E);
  zeile("Freie Energie    ", u.a, L.a * E, V.a * E);
  zeile("Exergie von H    ", u.e, L.eh * E, V.eh * E);
  zeile("Exergie von U    ", u.e, L.eu * E, V.eu * E);
  zeile("Wärmekapazität   ", u.cp, L.cp * E, V.cp * E);
  zeile("Wärmekapazität   ", u.cv, L.cv * E, V.cv * E);
  zeile(schallLabel, "as/ (m/s)", L.w, V.w);
}

void Art8(Lauf& l) {
  ErgebnisSeite& seite = l.seite;
  if (!HoleT(l, seite.par1) || !Holep(l, seite.par2)) return;
  seite.par1.text = TText(l, l.T);
  seite.par2.text = "p = " + Fmt(l, l.p, "####0.000 kPa");
  std::string meldung;
  int16_t nRoots = 0;
  const int16_t err = LoeseZustand(l, l.T, l.p, meldung, nRoots);
  if (err != 0) {
    MeldeFehler(l, FehlerCode(err));
    return;
  }
  SchreibeLetzten(l, l.k.HatV ? l.vV : l.vL, l.p, l.k.HatL && l.k.HatV ? 3 : 1, nRoots);
  const std::array<bool, 2> da = PhasenDa(l);
  std::array<KalorischeWerte, 2> w{};
  for (int row : {PhaseL, PhaseV}) {
    if (!da[row]) continue;
    w[row] = PhasenFunktionen(l, row);
    FunktionsZellen(l, row, w[row]);
  }
  FunktionsZeilen(l, w, da, " = ", "Schallgeschwind.");
  const int row = da[PhaseL] ? PhaseL : PhaseV;
  StapelErgebnis& z = l.satz;
  z.Phase = da[PhaseL] ? " L " : " V ";
  z.hFu = Einfach0(w[row].h);
  z.sFu = Einfach0(w[row].s);
  z.gFu = Einfach0(w[row].h - l.T * w[row].s);
  z.eHFu = Einfach0(w[row].eh);
  z.eUFu = Einfach0(w[row].eu);
}

void ResidualBlock(Lauf& l) {
  if (l.k.Abschnitte <= 1 || art::IstVerdampfung(l.art)) return;
  const std::array<bool, 2> da = PhasenDa(l);
  if (!da[PhaseL] && !da[PhaseV]) return;
  ResidualTabellen r;
  ResidualRechnen(l, da, r);
  const int16_t a = l.k.Abschnitte;
  if (a == 2 || a == 4) FugazitaetsBlock(l, da, r);
  if (a > 2) AbleitungsBlock(l, da, r);
  StapelErgebnis& z = l.satz;
  z.TFu = Einfach0(l.T);
  z.pFu = Einfach0(l.p);
  z.vFu = Einfach0(l.v > 0 ? l.v : (da[PhaseV] ? l.vV : l.vL));
}

void FunktionenBlock(Lauf& l) {
  if (!l.k.MitFunktionen) return;
  const std::array<bool, 2> da = PhasenDa(l);
  if (!da[PhaseL] && !da[PhaseV]) return;
  l.Zeile(std::string(68, '*'));
  l.Zeile("                    thermodynamische Funktionen");
  l.Zeile(std::string(68, '*'));
  std::array<KalorischeWerte, 2> w{};
  for (int row : {PhaseL, PhaseV}) {
    if (!da[row]) continue;
    w[row] = PhasenFunktionen(l, row);
    FunktionsZellen(l, row, w[row]);
  }
  FunktionsZeilen(l, w, da, " =", "Schallgeschw.");
}

void ParameterBlock(Lauf& l) {
  ProjectState& s = l.s;
  const int16_t a = l.art;
  const bool datenbank = art::IstDatenbank(a);
  const bool hlvOhneEOS = art::IstVerdampfung(a) && s.Modell.HLVIndex != HLVAusKubischerEOS;
  if (l.Kubisch() && l.T > 1e-6 && a != art::Polytrope && !datenbank && !hlvOhneEOS) {
    EOSbeiT(s, l.T);
    const std::string kopf = "Parameter der generalisierten kub. EOS (" + EOSText(s) + "):";
    l.Zeile(kopf);
    l.Zeile(std::string(Utf8Laenge(kopf), '='));
    l.Zeile("  A =" + MitVorzeichenPlatz(l, s.EOS.aT));
    l.Zeile("  B =" + MitVorzeichenPlatz(l, s.EOS.bT));
    l.Zeile("  C =" + MitVorzeichenPlatz(l, s.EOS.cT));
    l.Zeile("  D =" + MitVorzeichenPlatz(l, s.EOS.dT));
  } else if (s.Modell.VirialFlag && eos::IstGewaehlt(s.Modell.EOSIndex) && (l.k.HatV || l.k.HatL) &&
             a != art::Virial && a != art::Polytrope && !datenbank) {
    l.Zeile("Virialkoeffizient (" + EOSText(s) + "):");
    l.Zeile("  B =" + MitVorzeichenPlatz(l, BvonT(s, s.Modell.EOSIndex, l.T)) + " m^3/kmol");
  }
}

} // namespace quor::calcbatch
