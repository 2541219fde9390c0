#include "process/prozess_linie.h"

#include "core/zahlformat.h"
#include "engine/kalorik.h"
#include "engine/numerik.h"
#include "engine/zustand.h"

#include <cmath>
#include <exception>

namespace quor::prozess {

namespace {

const char* const Unzulaessig = "unzulässige Eingabe";
const char* const NichtGroesserNull = "T- und p-Vorgabe müssen größer Null sein";
const char* const BereichUngueltig = "Bereichsangabe ungültig";
const char* const NichtImBereich = "Eingabewert nicht im gültigen Bereich";
const char* const KeinKappa = "noch kein gültiges kappa vorhanden\r\n\r\n"
                              "Geben Sie Ihren Wert ein oder klicken Sie auf die\r\n"
                              "Combo-Box, um einen angebotenen Wert zu übernehmen.";
const char* const IsothermMitTBereich = "Bedingung Polytropen-Exp. n = 1 (=> isotherm) ist im\r\n"
                                        "Widerspruch zur Angabe eines T-Bereichs.";

bool ImZweiphasengebiet(const ProzessVorgabe& v) {
  return v.ProzessArt == KonstantesEta ||
         (v.ProzessHetero &&
          (v.ProzessArt == Isochore || v.ProzessArt == Isentrope || v.ProzessArt == Isenthalpe));
}

// The tie lines of a heterogeneous line must lie at or below the critical point, the last one
// first.
std::string PruefeKonnoden(const ProjectState& s, const ProzessVorgabe& v) {
  const double start = v.ProzessBereich == BereichT ? v.T1 : v.P1;
  if (v.ProzessBereich == BereichT) {
    const std::string grenze = DoubleText(s.Stoff.TKrit) + " K" + " sein";
    if (v.Ende > s.Stoff.TKrit) return "Temperatur für Endkonnode muss kleiner/gleich T(cr) = " + grenze;
    if (start > s.Stoff.TKrit) return "Temperatur für Anfangskonnode muss kleiner/gleich T(cr) = " + grenze;
  } else {
    const std::string grenze = DoubleText(s.Stoff.pKrit) + " kPa" + " sein";
    if (v.Ende > s.Stoff.pKrit) return "Druck für Endkonnode muss kleiner/gleich p(cr) = " + grenze;
    if (start > s.Stoff.pKrit) return "Druck für Anfangskonnode muss kleiner/gleich p(cr) = " + grenze;
  }
  return {};
}

// The phase's state at (T, p) in engine units; false when the phase is not present there.
bool ZustandBei(ProjectState& s, double T, double p, int16_t phase, ProzessPunkt& z) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t nRoots = 0, err = 0;
  std::string meldung;
  VzuTP(s, T, p, s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0 || !(phase == PhaseL ? istL : istV)) return false;
  const double v = phase == PhaseL ? vL : vV;
  KalorischeWerte w;
  ThermoFunktionen(s, T, p, v, phase, w, err);
  z = {T, p, v, w.h, w.s, phase == PhaseV ? 1.0 : 0.0};
  return std::isfinite(v) && std::isfinite(w.h) && std::isfinite(w.s);
}

// The stable phase at (T, p): the chosen one where it is present, else the other.
bool ZustandInPhase(ProjectState& s, double T, double p, int16_t phase, ProzessPunkt& z) {
  return ZustandBei(s, T, p, phase, z) || ZustandBei(s, T, p, phase == PhaseL ? PhaseV : PhaseL, z);
}

} // namespace

std::vector<double> Laufwerte(double von, double bis, int schritte) {
  if (schritte < 1) schritte = 1;
  std::vector<double> x;
  x.reserve(schritte + 1);
  const double dx = (bis - von) / schritte;
  for (int i = 0; i < schritte; ++i)
    x.push_back(von + i * dx);
  x.push_back(bis);
  return x;
}

std::string PruefeVorgabe(const ProjectState& s, const ProzessVorgabe& v) {
  const int16_t art = v.ProzessArt;
  if (art == Polytrope) {
    if (!(v.Kappa > 1)) return KeinKappa;
    if (v.PolytropenExponent == 1 && v.ProzessBereich == BereichT) return IsothermMitTBereich;
  }
  if (art == KonstantesEta && !(v.Eta >= 0 && v.Eta <= 1)) return Unzulaessig;
  const bool hetero = ImZweiphasengebiet(v);
  if (hetero) {
    std::string m = PruefeKonnoden(s, v);
    if (!m.empty()) return m;
  }
  const double start = v.ProzessBereich == BereichT ? v.T1 : v.P1;
  if (hetero ? !(start > 0 && v.Ende > 0) : !(v.T1 > 0 && v.P1 > 0 && v.Ende > 0)) return NichtGroesserNull;
  if (start == v.Ende) return BereichUngueltig;
  if ((art == Isotherme && v.ProzessBereich != BereichP) || (art == Isobare && v.ProzessBereich != BereichT))
    return BereichUngueltig;
  if (art == Polytrope && v.PolytropenExponent == 0 && v.ProzessBereich == BereichP) return NichtImBereich;
  if (art == Gerade || art == Parameter || art > KonstantesEta || art < Gerade) return NichtImBereich;
  return {};
}

void HomogeneLinie(ProjectState& s, ui::Oberflaeche& ui, const ProzessVorgabe& v, ProzessLinie& l) {
  const int16_t art = v.ProzessArt;
  const bool laufT = v.ProzessBereich == BereichT;
  ProzessPunkt start;
  if (!ZustandBei(s, v.T1, v.P1, v.ProzessPhase, start)) {
    l.fehler = -1;
    return;
  }
  const bool mitLoeser = art == Isochore || art == Isentrope || art == Isenthalpe;
  const FixGroesse g = art == Isochore ? FixGroesse::v : art == Isentrope ? FixGroesse::s : FixGroesse::h;
  l.FixWert = g == FixGroesse::v ? start.v : g == FixGroesse::s ? start.s : start.h;
  LoeserKontext lk;
  lk.art = v.auswertung;
  double ziel = 0;
  if (mitLoeser && !FixWertBei(s, ui, lk, v.T1, v.P1, g, v.ProzessPhase, ziel)) {
    l.fehler = -1;
    return;
  }
  ExpDatenSatz& zeile = s.Mess.ExpDaten.at(0);
  zeile.T = v.T1;
  zeile.p = v.P1;
  for (double x : Laufwerte(laufT ? v.T1 : v.P1, v.Ende, v.Schritte)) {
    (laufT ? zeile.T : zeile.p) = x;
    if (mitLoeser) {
      int16_t fehler = 0;
      ProzessLoeser(s, ui, lk, !laufT, g, v.ProzessPhase, ziel, fehler);
      if (fehler != 0) {
        l.fehler = -1;
        break;
      }
    }
    ProzessPunkt z;
    const double T = zeile.T, p = zeile.p;
    if (!(mitLoeser ? ZustandBei(s, T, p, v.ProzessPhase, z) : ZustandInPhase(s, T, p, v.ProzessPhase, z))) {
      l.fehler = -1;
      break;
    }
    l.punkte.push_back(z);
  }
  l.aufrufe = lk.aufrufe;
}

void IdealgasPolytrope(ProjectState& s, const ProzessVorgabe& v, ProzessLinie& l) {
  const double n = v.PolytropenExponent, kappa = v.Kappa;
  const double cp = kappa * RGas / (kappa - 1);
  double h1 = 0, s1 = 0, cp1 = 0;
  int16_t err = 0;
  IdealgasFunktionen(s, v.T1, v.P1, h1, s1, cp1, err);
  if (err != 0) h1 = s1 = 0;
  const bool laufT = v.ProzessBereich == BereichT;
  for (double x : Laufwerte(laufT ? v.T1 : v.P1, v.Ende, v.Schritte)) {
    // p v^n = const with v = R T / p: T2/T1 = (p2/p1)^((n-1)/n).
    const double T = laufT ? x : v.T1 * std::pow(x / v.P1, (n - 1) / n);
    const double p = laufT ? v.P1 * std::pow(x / v.T1, n / (n - 1)) : x;
    ProzessPunkt z{
        T,  p, RGas * T / p, h1 + cp * (T - v.T1), s1 + cp * std::log(T / v.T1) - RGas * std::log(p / v.P1),
        1.0};
    if (!std::isfinite(z.T) || !std::isfinite(z.p) || !std::isfinite(z.h) || !std::isfinite(z.s) ||
        !(z.p > 0)) {
      l.fehler = -1;
      break;
    }
    l.punkte.push_back(z);
  }
}

ProzessLinie BerechneProzessLinie(ProjectState& s, ui::Oberflaeche& ui, const ProzessVorgabe& v) {
  ProzessLinie l;
  const std::string m = PruefeVorgabe(s, v);
  if (!m.empty()) {
    l.meldungen.push_back(m);
    l.fehler = -1;
    return l;
  }
  try {
    if (ImZweiphasengebiet(v)) {
      HeterogeneLinie(s, v, l);
    } else if (v.ProzessArt == Polytrope) {
      if (v.PolytropenModus == PolytropeIdealgas)
        IdealgasPolytrope(s, v, l);
      else
        l.fehler = -1; // the polytrope of the current EOS is the process tool's
    } else {
      HomogeneLinie(s, ui, v, l);
    }
  } catch (const std::exception&) {
    l.fehler = -1;
  }
  return l;
}

} // namespace quor::prozess
