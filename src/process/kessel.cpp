#include "process/kessel.h"

#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>

namespace quor::prozess {

namespace {

constexpr double ZweiPi = 6.283185307179586;

// a - sin a without the cancellation of the difference for small angles.
double SegmentFunktion(double a) {
  if (a < 1e-2) {
    const double a2 = a * a;
    return a * a2 / 6 * (1 - a2 / 20 * (1 - a2 / 42));
  }
  return a - std::sin(a);
}

std::string OhneKomma(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

} // namespace

RGBFarbe QBFarbe(int nummer) {
  static const RGBFarbe palette[16] = {{0, 0, 0},       {0, 0, 128},   {0, 128, 0},   {0, 128, 128},
                                       {128, 0, 0},     {128, 0, 128}, {128, 128, 0}, {192, 192, 192},
                                       {128, 128, 128}, {0, 0, 255},   {0, 255, 0},   {0, 255, 255},
                                       {255, 0, 0},     {255, 0, 255}, {255, 255, 0}, {255, 255, 255}};
  return palette[std::clamp(nummer, 0, 15)];
}

double SegmentWinkel(double anteil) {
  if (!(anteil > 0)) return 0;
  if (anteil >= 100) return ZweiPi;
  // a - sin a rises monotonically from 0 to 2 pi on [0, 2 pi]; halving the bracket keeps the root.
  const double ziel = ZweiPi * anteil / 100;
  double unten = 0, oben = ZweiPi;
  for (int i = 0; i < 200 && oben - unten > 1e-15; ++i) {
    const double mitte = 0.5 * (unten + oben);
    (SegmentFunktion(mitte) < ziel ? unten : oben) = mitte;
  }
  return 0.5 * (unten + oben);
}

double SegmentHoehe(double winkel, double durchmesser) {
  return 0.5 * durchmesser * (1 - std::cos(0.5 * winkel));
}

const char* const frmKessel::DesignCaption = "Behälter-Berechnung (Zylinder)";
const char* const frmKessel::GaugeText = "p";
const char* const frmKessel::UnterschriftText = "zylinderförmiger Behälter";

frmKessel::frmKessel(ProjectState& s, const BehaelterZustand& z) : s_(s), z_(z) {
  Caption = DesignCaption;
}

std::string frmKessel::DruckText(const std::string& status, double p) {
  if (status == "ERROR1") return " Error: v < b";
  if (status == "ERROR2") return "s. Hilfe 'Behälter'";
  if (!(p > 0)) return "Error";
  return OhneKomma(FormatVB(p, p < 100 ? "###0.0## kPa" : "######0.0# kPa"));
}

std::string frmKessel::FuellstandText(double prozent) {
  return "Füllstand " + OhneKomma(FormatVB(prozent, "##0.0#")) + " % (Vol.-anteil)";
}

double frmKessel::FuellstandVon(const BehaelterZustand& z) {
  if (z.Fehler) return 0;
  if (z.HatL && !z.HatV) return 100;
  if (!z.HatL) return 0;
  // Two phases: the liquid's share of the volume, (1 - y) v(L) of the mixture's v.
  const double vL = (1 - z.y) * z.vL, v = vL + z.y * z.vV;
  const double f = v > 0 ? 100 * vL / v : 0;
  return std::isfinite(f) ? std::clamp(f, 0.0, 100.0) : 0;
}

double frmKessel::HoeheVon(double fuellstand) {
  if (!(fuellstand > 0)) return 0;
  if (fuellstand >= 99.999) return Durchmesser;
  // Above half full the vapour's segment is the smaller one: solve for it and mirror the level.
  const double f = std::clamp(fuellstand, HalteAnteil, 100 - HalteAnteil);
  const bool gespiegelt = f >= 50;
  const double anteil = gespiegelt ? 100 - f : f;
  const double h = SegmentHoehe(SegmentWinkel(anteil), Durchmesser);
  return gespiegelt ? Durchmesser - h : h;
}

void frmKessel::Form_Load() {
  const ModelSelection& m = s_.Modell;
  const StoffGruppe& st = s_.Stoff;
  Caption =
      m.KonzeptGlobal ? "Behälter-Berechnung (GLOBAL-Methode)" : "Behälter-Berechnung (PARTIAL-Methode)";
  EinfarbigFarbe = m.RechnungGlobal ? LFarbe : PartialUeberkritischFarbe;
  FluessigFarbe = z_.Status == "ERROR3" ? FehlerFarbe : LFarbe;
  Legende = {KesselLegende{"  V-Phase", VFarbe}, KesselLegende{"  L-Phase", LFarbe},
             KesselLegende{"  überkritisch", EinfarbigFarbe}};

  const double p = z_.Fehler ? 0 : z_.p;
  txtDruck = DruckText(z_.Status, p);
  ZeigerAnteil = st.pKrit > 0 && p > 0 ? std::min(p / st.pKrit, 1.0) : 0;

  const bool fehler = z_.Fehler || z_.Status == "ERROR1" || z_.Status == "ERROR2";
  Fuellstand = FuellstandVon(z_);
  Hoehe = 0;
  lblFuellstand.clear();
  if (fehler) {
    Fuellung = KesselFuellung::Leer;
  } else if (z_.T >= st.TKrit) {
    Fuellung = KesselFuellung::Einfarbig;
  } else {
    Fuellung = KesselFuellung::Zweiphasig;
    Hoehe = HoeheVon(Fuellstand);
    if (p >= 0) lblFuellstand = FuellstandText(Fuellstand);
  }

  BehaelterDaten& b = s_.Rechnung.Behaelter;
  b.BehaelterP = static_cast<float>(p);
  b.BehaelterFuellstand = static_cast<float>(Fuellstand);
  b.BehaelterHoehe = static_cast<float>(Hoehe);
  b.BehaelterStatus = z_.Status;
}

} // namespace quor::prozess
