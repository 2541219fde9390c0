// FROM_PEX.DAT: the error flag, the code, the points in the diagram's coordinates, the head and the
// German report.
#include "core/listen_datei.h"
#include "core/zahlformat.h"
#include "diagrams/katalog.h"
#include "polytrope_rechner.h"
#include "process/prozess_linie.h"

#include <charconv>
#include <cmath>
#include <exception>

namespace quor::merlon {

namespace {

using prozess::PexAuftrag;

constexpr double Keiner = 1e37; // a value the diagram's quantity doesn't have at this point

// The shortest text that reads back to the same double, always with a decimal point.
std::string Text(double x) {
  if (!std::isfinite(x)) x = Keiner;
  char t[32];
  return std::string(t, std::to_chars(t, t + sizeof t, x).ptr);
}

// The value of a quantity of the diagram; the vapour-pressure axes from T and p themselves.
double AchsenWert(const ProjectState& s, Groesse g, const kurven::Phasenzustand& z) {
  double x = Keiner;
  if (g == Groesse::InvT)
    x = 1 / z.T;
  else if (g == Groesse::LnP)
    x = std::log(z.p);
  else
    x = kurven::Wert(s, g, z);
  return std::isfinite(x) && std::fabs(x) < Keiner ? x : Keiner;
}

// The display units of the points; in the reduced display the first column stays in K, kPa and
// m^3/kmol, the program reduces it.
ProjectState AnzeigeFuerX(const ProjectState& s) {
  ProjectState x = s;
  if (x.Einheiten.VolumenMode == 2) {
    x.Einheiten.TFaktor = x.Einheiten.pFaktor = 1;
    x.Einheiten.VolumenFaktor = 1;
  }
  return x;
}

void Punkte(ListenSchreiber& w, const ProjectState& s, const PexAuftrag& a, const PolytropenLinie& l) {
  const KatalogZeile* d = KatalogZeileVon(a.DiagrammCode);
  const std::size_t n = d && a.Punkte > 0 ? std::min<std::size_t>(a.Punkte, l.zustaende.size()) : 0;
  w.Ganz(static_cast<long>(n));
  w.ZeileEnde();
  for (double k : l.kopf) {
    w.Roh(Text(k));
    w.ZeileEnde();
  }
  const ProjectState sx = AnzeigeFuerX(s);
  for (std::size_t i = 0; i < n; ++i) {
    const kurven::Phasenzustand& z = l.zustaende[i];
    w.Roh(Text(AchsenWert(sx, d->X, z)) + a.Trenner + Text(AchsenWert(s, d->Y, z)));
    w.ZeileEnde();
  }
}

std::string Fest(double x, const char* muster = "0.00000E+00") {
  return FormatVB(x, muster);
}

} // namespace

std::string Bericht(const ProjectState& s, const PexAuftrag& a, const PolytropenLinie& l) {
  using namespace prozess;
  const auto& k = l.kopf;
  const double M = s.Stoff.MolMasse > 0 ? s.Stoff.MolMasse : 1;
  const double e = a.Spezifisch ? 1 / M : 1;
  const std::string je = a.Spezifisch ? "kg" : "kmol";
  const std::string E = " kJ/" + je, S = " kJ/(" + je + " K)", V = " m^3/" + je;
  std::vector<std::string> z = {
      "Polytrope p * v^n = const:  n = " + Fest(a.n, "0.0000") + ",  kappa = " + Fest(a.kappa, "0.0000"),
      a.Modus == PolytropeIdealgas ? "Berechnung mit idealem Gas (kappa konstant)"
                                   : "Berechnung mit der aktuellen Zustandsgleichung",
      "",
      "Anfangszustand:  T1 = " + Fest(k[KopfT1], "###0.000") + " K   p1 = " + Fest(k[KopfP1], "#####0.000") +
          " kPa   v1 = " + Fest(k[KopfV1] * e) + V,
      "Endzustand:      T2 = " + Fest(k[KopfT2], "###0.000") + " K   p2 = " + Fest(k[KopfP2], "#####0.000") +
          " kPa   v2 = " + Fest(k[KopfV2] * e) + V,
      "",
      "Volumenänderungsarbeit  w12 = " + Fest(k[KopfArbeit] * e) + E,
      "technische Arbeit      wt12 = " + Fest(k[KopfTechArbeit] * e) + E,
      "Wärme                   q12 = " + Fest(k[KopfWaerme] * e) + E,
      "Änderung der Inneren Energie  u2 - u1 = " + Fest(k[KopfDeltaU] * e) + E,
      "Änderung der Enthalpie        h2 - h1 = " + Fest(k[KopfDeltaH] * e) + E,
      "Änderung der Entropie         s2 - s1 = " + Fest(k[KopfDeltaS] * e) + S,
      "",
      "kalorische Größen am Anfang:  h1 = " + Fest(k[KopfH1] * e) + E + "   s1 = " + Fest(k[KopfS1] * e) + S +
          "   u1 = " + Fest(k[KopfU1] * e) + E,
      "kalorische Größen am Ende:    h2 = " + Fest(k[KopfH2] * e) + E + "   s2 = " + Fest(k[KopfS2] * e) + S +
          "   u2 = " + Fest(k[KopfU2] * e) + E,
  };
  std::string t;
  for (const std::string& zeile : z)
    t += zeile + "\r\n";
  return t;
}

std::string FromPexBytes(ProjectState& s, const PexAuftrag& a, const PolytropenLinie& l) {
  ListenSchreiber w;
  w.Ganz(0);
  w.ZeileEnde();
  w.Ganz(a.Code);
  w.ZeileEnde();
  Punkte(w, s, a, l);
  w.Roh(Bericht(s, a, l));
  return w.Bytes();
}

std::string FehlerBytes(const std::string& grund) {
  ListenSchreiber w;
  w.Ganz(1);
  w.ZeileEnde();
  w.Roh("Fehler bei der Polytropenberechnung: " + grund);
  w.ZeileEnde();
  return w.Bytes();
}

std::string MerlonLauf(const std::string& toPex) {
  try {
    ProjectState s;
    InitProjectState(s);
    PexAuftrag a;
    std::string grund;
    PolytropenLinie l;
    if (!PexAuftragLesen(toPex, a, s, grund) || !PolytropeBerechnen(s, a, l, grund))
      return FehlerBytes(grund);
    return FromPexBytes(s, a, l);
  } catch (const std::exception& e) {
    return FehlerBytes(e.what());
  } catch (...) {
    return FehlerBytes("unerwarteter Fehler");
  }
}

} // namespace quor::merlon
