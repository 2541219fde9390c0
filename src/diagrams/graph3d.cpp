#include "diagrams/graph3d.h"

#include "core/zahl_lesen.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/diagramm_befehle.h"
#include "diagrams/katalog.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace quor {

namespace {

const char* const TitelEingabeFehler = "EINGABE-FEHLER";
const char* const UnzulaessigerWert = "Es wurde ein unzulässiger Wert eingegeben.";
const char* const GrenzenVertauscht = "Untere Grenzen müssen kleiner als obere Grenzen sein!";
const char* const LeereFlaeche = "Falls einmal im Koordinatenraum keine Funktionsfläche gezeichnet wird\r\n"
                                 "kann das zwei Ursachen haben:\r\n"
                                 "1.) Zu wenig Speicherplatz, starten Sie das Programm neu.\r\n"
                                 "2.) Untaugliche Vorgaben für die Achsenbereiche";
constexpr int GroessteAufloesung = 400;

bool IstArt(int16_t art) {
  return art >= art3d::Druck && art <= art3d::ExergieH;
}

// The texts of p, v, T on a 3D axis by VolumenMode (2: reduced values).
std::string DruckText(const EinheitenGruppe& e) {
  return e.VolumenMode == 2 ? "p(red)" : "p / kPa";
}
std::string TemperaturText(const EinheitenGruppe& e) {
  return e.VolumenMode == 2 ? "T(red)" : "T / K";
}
std::string VolumenText(const EinheitenGruppe& e) {
  switch (e.VolumenMode) {
  case 1:
    return "v / (m^3/kg)";
  case 2:
    return "v(red)";
  default:
    return "v / (m^3/kmol)";
  }
}

// The energy text of a function surface; u per R*T carries the text of h.
std::string FunktionsText(int16_t art, const EinheitenGruppe& e) {
  switch (art) {
  case art3d::Cp:
    return AchsenText(Groesse::Cp, e);
  case art3d::U:
    return e.EnergieMode == 2 ? AchsenText(Groesse::H, e) : AchsenText(Groesse::U, e);
  case art3d::H:
    return AchsenText(Groesse::H, e);
  case art3d::S:
    return AchsenText(Groesse::S, e);
  case art3d::G:
    return AchsenText(Groesse::G, e);
  case art3d::ExergieU:
    return AchsenText(Groesse::EU, e);
  default:
    return AchsenText(Groesse::EH, e);
  }
}

const char* FunktionsTitel(int16_t art) {
  static const char* const titel[] = {
      "Wärmekapazität Cp(p, T)", "Innere Energie U(p, T)", "Enthalpie H(p, T)",     "Entropie S(p, T)",
      "Freie Enthalpie G(p, T)", "Exergie von U EU(p, T)", "Exergie von H EH(p, T)"};
  return titel[art - art3d::Cp];
}

// The stored set of standard limits of an Art, in display units.
AchsenSatz3D StandardSatz(const ProjectState& s, int16_t art, bool reales) {
  const EinheitenGruppe& e = s.Einheiten;
  const double pc = s.Stoff.pKrit * e.pFaktor, Tc = s.Stoff.TKrit * e.TFaktor;
  const double rhoc = s.Stoff.rhoKritExp;
  // The volume axis reaches a multiple of the critical volume, or 3 without a critical density.
  auto vBis = [&](double vielfaches) {
    return rhoc > 1e-6 ? vielfaches * s.Stoff.MolMasse * e.VolumenFaktor / rhoc : 3.0;
  };
  AchsenSatz3D a;
  switch (art) {
  case art3d::Druck:
    a.pMin = reales ? 0.001 : 500 * e.pFaktor, a.pMax = 1.6 * pc;
    a.TMin = (reales ? 0.93 : 0.75) * Tc, a.TMax = 1.3 * Tc;
    a.vMin = 0, a.vMax = vBis(7);
    break;
  case art3d::Volumen:
  case art3d::Temperatur:
    a.pMin = 0.05 * pc, a.pMax = 1.6 * pc;
    a.TMin = (art == art3d::Temperatur ? 0.4 : 0.7) * Tc;
    a.TMax = (art == art3d::Temperatur ? 2.0 : 1.3) * Tc;
    a.vMin = 0, a.vMax = vBis(13);
    break;
  default:
    a.pMin = 0, a.pMax = 1.8 * pc;
    a.TMin = 0.75 * Tc, a.TMax = 1.4 * Tc;
    a.vMin = 0, a.vMax = vBis(13);
  }
  return a;
}

bool IrgendeineZelle(const Gitter3D& g) {
  for (const auto& zeile : g.Gueltig)
    if (std::find(zeile.begin(), zeile.end(), true) != zeile.end()) return true;
  return false;
}

} // namespace

int16_t ArtVon3DMenue(int eintrag) {
  if (eintrag >= 0 && eintrag <= 2) return static_cast<int16_t>(eintrag + 1);
  if (eintrag >= art3d::Cp && eintrag <= art3d::ExergieH) return static_cast<int16_t>(eintrag);
  return 0;
}

Texte3D TexteVon(int16_t art, const EinheitenGruppe& e) {
  const std::string p = DruckText(e), T = TemperaturText(e), v = VolumenText(e);
  switch (art) {
  case art3d::Druck:
    return {"Druck p(v, T)", v, T, p};
  case art3d::Volumen:
    return {"Volumen v(p, T)", p, T, v};
  case art3d::Temperatur:
    return {"Temperatur T(v, p)", v, p, T};
  default:
    if (!IstArt(art)) return {};
    return {FunktionsTitel(art), p, T, FunktionsText(art, e)};
  }
}

Bereich3D AchsenVon(int16_t art, const AchsenSatz3D& a) {
  switch (art) {
  case art3d::Druck:
    return {a.vMin, a.vMax, a.TMin, a.TMax, a.pMin, a.pMax};
  case art3d::Volumen:
    return {a.pMin, a.pMax, a.TMin, a.TMax, a.vMin, a.vMax};
  case art3d::Temperatur:
    return {a.vMin, a.vMax, a.pMin, a.pMax, a.TMin, a.TMax};
  default:
    return {a.pMin, a.pMax, a.TMin, a.TMax, a.fMin, a.fMax};
  }
}

void InSatz(int16_t art, const Bereich3D& b, AchsenSatz3D& a) {
  switch (art) {
  case art3d::Druck:
    a.vMin = b.xMin, a.vMax = b.xMax, a.TMin = b.yMin, a.TMax = b.yMax, a.pMin = b.zMin, a.pMax = b.zMax;
    break;
  case art3d::Volumen:
    a.pMin = b.xMin, a.pMax = b.xMax, a.TMin = b.yMin, a.TMax = b.yMax, a.vMin = b.zMin, a.vMax = b.zMax;
    break;
  case art3d::Temperatur:
    a.vMin = b.xMin, a.vMax = b.xMax, a.pMin = b.yMin, a.pMax = b.yMax, a.TMin = b.zMin, a.TMax = b.zMax;
    break;
  default:
    a.pMin = b.xMin, a.pMax = b.xMax, a.TMin = b.yMin, a.TMax = b.yMax, a.fMin = b.zMin, a.fMax = b.zMax;
  }
}

Bereich3D IniStandardBereich3D(const ProjectState& s, int16_t art, bool reales) {
  return AchsenVon(art, StandardSatz(s, art, reales));
}

frmGraph3D::frmGraph3D(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

bool frmGraph3D::Neu(int16_t art) {
  if (!IstArt(art)) return false;
  art_ = art;
  reales_ = Reales3D(s_, ui_, art);
  SetzeEinheiten(s_, ui_);
  satz_ = StandardSatz(s_, art, reales_);
  bereich_ = AchsenVon(art, satz_);
  ersteZeichnung_ = true;
  linien_.clear();
  isoAnzahl_ = {};
  ansicht_.reset();
  return Rechnen();
}

bool frmGraph3D::cmdCoord3(const std::array<std::string, 6>& felder) {
  std::array<double, 6> w{};
  for (std::size_t k = 0; k < felder.size(); ++k) {
    const ZahlErgebnis z = LeseZahl(felder[k]);
    if (!z.ok) {
      ui_.Meldung(UnzulaessigerWert, TitelEingabeFehler, ui::Symbol::Ausruf);
      return false;
    }
    w[k] = z.wert;
  }
  if (!(w[0] < w[1]) || !(w[2] < w[3]) || !(w[4] < w[5])) {
    ui_.Meldung(GrenzenVertauscht, TitelEingabeFehler, ui::Symbol::Ausruf);
    return false;
  }
  if (!IstArt(art_)) return false;
  InSatz(art_, {w[0], w[1], w[2], w[3], w[4], w[5]}, satz_);
  bereich_ = AchsenVon(art_, satz_);
  return Rechnen();
}

void frmGraph3D::Aufloesung(int nx, int ny) {
  nx_ = std::clamp(nx, 1, GroessteAufloesung);
  ny_ = std::clamp(ny, 1, GroessteAufloesung);
  if (IstArt(art_)) Rechnen();
}

bool frmGraph3D::Rechnen() {
  SetzeEinheiten(s_, ui_);
  bool gezeichnet = false;
  try {
    gitter_ = FlaecheBerechnen(s_, art_, nx_, ny_, bereich_, reales_);
    gezeichnet = IrgendeineZelle(gitter_);
  } catch (const std::bad_alloc&) {
    gitter_ = {};
  }
  ersteZeichnung_ = false;
  Ausstatten();
  ++stand_;
  if (!gezeichnet) ui_.Meldung(LeereFlaeche, "Hinweis", ui::Symbol::Information);
  return gezeichnet;
}

std::string frmGraph3D::Hinweis() const {
  return art_ == art3d::Cp ? "am kritischen Punkt cp => unendlich" : "";
}

} // namespace quor
