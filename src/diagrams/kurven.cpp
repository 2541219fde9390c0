#include "diagrams/kurven_intern.h"

#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_groessen.h"
#include "engine/eos_auswertung.h"
#include "engine/korrelationen.h"
#include "engine/virial.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace quor {

namespace kurven {

Lauf::Lauf(ProjectState& s_, ui::Oberflaeche& ui_, const DiagrammAuftrag& a_, double T_, double p_, double v_,
           Kurvenpunkte& punkte)
    : s(s_), ui(ui_), a(a_), T(T_), p(p_), v(v_), punkte_(punkte) {
  punkte_.assign(1, Kurvenpunkt{});
}

double Lauf::EFbeiT(double Tpunkt) const {
  return EnergieFaktorBeiT(s, Tpunkt);
}

void Lauf::Punkt(double x, double y, double z) {
  if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(z)) return;
  const auto X = static_cast<float>(x), Y = static_cast<float>(y);
  if (!std::isfinite(X) || !std::isfinite(Y)) return;
  punkte_.push_back({X, Y, static_cast<float>(z)});
  if (a.Ymin <= Y && Y <= a.Ymax && a.Xmin <= X && X <= a.Xmax) imBereich = true;
}

void Lauf::Kopf(float markierung) {
  punkte_[0].X = static_cast<float>(Anzahl());
  punkte_[0].Z = markierung;
}

} // namespace kurven

namespace {

using kurven::Lauf;

const char* const AnstiegNurPartial =
    "nur für Dampfdruckgleichungen entspr. \"Modelle\" möglich (PARTIAL-Konzept),\r\n"
    "nicht für die Dampfdruckberechnung mittels CEOS (GLOBAL-Konzept)\r\n"
    "Ändern Sie unter \"Modelle\" auf PARTIAL-Konzept";

// Saturation at the request's T and p by the vapour-pressure equation, the tag of that equation,
// the EOS at T, the display factors and the energy factor with the curve's own T.
void Prolog(Lauf& l) {
  ProjectState& s = l.s;
  DiagrammGruppe& d = s.Diagramm;
  const int index = s.Modell.DampfdruckIndex;
  if (l.a.Code < code::ErsteDatenbankfunktion && index > 0) {
    int16_t failed = 0;
    if (l.T > 0) d.pSattVorgabe = pLV(s, l.T, index, false, failed);
    if (l.p > 0) d.TSattVorgabe = TLV(s, l.p, index, false, failed);
  }
  s.Modell.DampfdruckTag = DampfdruckTagVon(index);
  if (l.T > 0) {
    if (s.Modell.VirialFlag) {
      s.EOS.BVirial = BvonT(s, s.Modell.EOSIndex, l.T);
      s.EOS.aT = 0;
    } else if (s.Modell.EOSIndex >= 0) {
      EOSbeiT(s, l.T);
    }
  }
  SetzeEinheiten(s, l.ui);
  s.Einheiten.EnergieFaktor = l.EFbeiT(l.T);
}

// The tie line of the state: 51 points from one end to the other.
void Konnode(Lauf& l) {
  double X1 = 0, X2 = 0, Y1 = 0, Y2 = 0;
  if (!Konnodenpunkte(l.s, l.a, l.T, l.p, l.v, X1, X2, Y1, Y2)) {
    l.ergebnis = kurve::KeineKonnode;
    return;
  }
  const int16_t k = l.a.Klasse;
  const double z = k == klasse::Isotherme ? l.T : k == klasse::Isobare ? l.p : l.v;
  for (int i = 0; i <= 50; ++i)
    l.Punkt(X1 + i * (X2 - X1) / 50, Y1 + i * (Y2 - Y1) / 50, z);
  l.Kopf(k == klasse::Isotherme ? kopf::MitParameter : kopf::ZweiZweige);
}

bool Zwischen(int16_t c, int16_t von, int16_t bis) {
  return c >= von && c <= bis;
}

// The branch of a code, in the order of the curve kinds.
void Verzweige(Lauf& l) {
  const int16_t c = l.a.Code;
  using namespace kurven;
  if (c == code::pv) return IsothermePV(l);
  if (c == code::pvProdukt || c == code::RhoP) return IsothermePvProdukt(l);
  if (c == code::InversionPv) return InversionPv(l);
  if (c == code::Tv || c == code::TRho) return IsobareTv(l);
  if (c == code::pT) return IsochorePT(l);
  if (c == code::InversionPT) return InversionPT(l);
  if (c == code::KoexPv) return KoexistenzPV(l);
  if (c == code::KoexRhoP || c == code::KoexPvProdukt) return KoexistenzUeberP(l);
  if (c == code::KoexTv || c == code::KoexTRho) return KoexistenzTv(l);
  if (c == code::KoexRhoT) return KoexistenzRhoT(l);
  if (c == code::Durchmesser) return Durchmesser(l);
  if (Zwischen(c, code::Dampfdruck, code::Anstieg)) return DampfdruckKurve(l);
  if (c == code::HLVvonT) return VerdampfungsEnthalpie(l);
  if (Zwischen(c, 14, 20) || c == 25 || Zwischen(c, 30, 34)) return FunktionUeberT(l);
  if (Zwischen(c, 180, 185)) return IsochorFunktion(l);
  if (Zwischen(c, 148, 155) || Zwischen(c, 40, 43)) return FunktionUeberP(l);
  if (Zwischen(c, 156, 160)) return FunktionUeberV(l);
  if (Zwischen(c, 68, 75) || c == 88 || Zwischen(c, 90, 95) || c == 98 || c == 99) return SaettigungsFunktion(l);
  if (c == 89 || c == 97 || Zwischen(c, 100, 102)) return SaettigungZweiFunktionen(l);
  if (Zwischen(c, 21, 24) || c == 107 || c == 109 || c == 96 || c == 120 || c == 121) return HSKurve(l);
  if (Zwischen(c, 201, 211)) return Prozesslinie(l);
  if (Zwischen(c, code::DbRhoL, 315)) return Datenbankfunktion(l);
}

} // namespace

void CalcCurve(ProjectState& s, ui::Oberflaeche& ui, const DiagrammAuftrag& a, int16_t& ergebnis, double& T,
               double& p, double& v, Kurvenpunkte& punkte, bool& imBereich, std::string& meldung) {
  Lauf l(s, ui, a, T, p, v, punkte);
  meldung.clear();
  ergebnis = kurve::Fertig;
  imBereich = false;
  const double n = std::max<int16_t>(s.Optionen.PunktDichte, 1);
  l.dx = (static_cast<double>(a.Xmax) - a.Xmin) / n;
  l.dy = (static_cast<double>(a.Ymax) - a.Ymin) / n;
  if (l.dx == 0 || l.dy == 0 || !std::isfinite(l.dx) || !std::isfinite(l.dy)) return;
  s.Diagramm.KurveAbgebrochen = false;
  if (a.Code == code::Anstieg && s.Modell.KonzeptGlobal) {
    ui.Meldung(AnstiegNurPartial, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return;
  }
  try {
    Prolog(l);
    if (s.Diagramm.KonnodeModus)
      Konnode(l);
    else
      Verzweige(l);
  } catch (const std::exception& e) {
    ui.Meldung(e.what(), "Call from CalcCurve:", ui::Symbol::Kritisch);
  }
  punkte[0].X = static_cast<float>(l.Anzahl());
  if (l.Anzahl() == 0 && l.ergebnis == kurve::Fertig && l.meldung.empty())
    l.meldung = "mit diesen Eingabedaten kein Ergebnis erhalten";
  ergebnis = l.ergebnis;
  imBereich = l.imBereich;
  s.Diagramm.KurveAbgebrochen = l.koexistenzErreicht;
  meldung = l.meldung;
  T = l.T;
  p = l.p;
  v = l.v;
}

namespace {

template <typename Schluessel> void SortiereNach(Kurvenpunkte& punkte, Schluessel schluessel) {
  if (punkte.size() < 3) return;
  std::stable_sort(punkte.begin() + 1, punkte.end(),
                   [&](const Kurvenpunkt& a, const Kurvenpunkt& b) { return schluessel(a) < schluessel(b); });
}

} // namespace

void SortiereKurve(Kurvenpunkte& punkte) {
  SortiereNach(punkte, [](const Kurvenpunkt& k) { return k.X; });
}

void SortiereKurve2(Kurvenpunkte& punkte) {
  SortiereNach(punkte, [](const Kurvenpunkt& k) { return k.Y; });
}

} // namespace quor
