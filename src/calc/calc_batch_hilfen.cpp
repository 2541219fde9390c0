// Pieces the kinds of the dispatcher share: number texts, the error report, the readers of the given
// values, the state solution, the snapshot and the density lines.
#include "calc/calc_batch_intern.h"

#include "core/festtext.h"
#include "core/zahlformat.h"
#include "engine/korrelationen.h"
#include "engine/numerik.h"
#include "engine/zustand.h"

#include <cfloat>
#include <cmath>

namespace quor::calcbatch {

namespace {

bool Zeigbar(Lauf& l, double x) {
  if (std::isfinite(x)) return true;
  l.nichtEndlich = true;
  return false;
}

bool Fehlt(Lauf& l, SeitenFeld& feld, const char* text) {
  feld.farbe = TextFarbe::Rot;
  feld.text = text;
  l.k.ErrorFlag = true;
  return false;
}

} // namespace

std::string Fmt(Lauf& l, double x, const char* muster) {
  return Zeigbar(l, x) ? FormatVB(x, muster) : "0";
}

std::string Einzel(Lauf& l, double x) {
  if (!Zeigbar(l, x)) return "0";
  if (std::fabs(x) > FLT_MAX) {
    l.nichtEndlich = true;
    return "0";
  }
  return SingleText(static_cast<float>(x));
}

std::string MitVorzeichenPlatz(Lauf& l, double x) {
  return (x >= 0 ? " " : "") + Einzel(l, x);
}

std::string Rechts(const std::string& text, std::size_t breite) {
  return RechtsBuendig(text, breite);
}

std::string Wiederhole(const std::string& zeichen, int anzahl) {
  std::string s;
  for (int i = 0; i < anzahl; ++i)
    s += zeichen;
  return s;
}

std::string Rahmen(int anzahl) {
  return Wiederhole("\u00AD", anzahl);
}

std::string ZeilenText(const std::string& zeile) {
  return Trim(zeile);
}

std::string EOSText(const ProjectState& s) {
  const int i = s.Modell.EOSIndex;
  if (i < 0 || i >= static_cast<int>(s.Tab.EOSNamen.size())) return "";
  return ZeilenText(s.Tab.EOSNamen[i]);
}

ExpDatenSatz Datenpunkt(const Lauf& l) {
  const auto& zeilen = l.s.Mess.ExpDaten;
  if (l.punkt < 0 || l.punkt >= static_cast<int>(zeilen.size())) return {};
  return zeilen[l.punkt];
}

void MeldeFehler(Lauf& l, const std::string& meldung) {
  l.k.ErrorFlag = true;
  l.k.HatL = false;
  l.k.HatV = false;
  l.seite.Liste.farbe = TextFarbe::Rot;
  l.seite.Liste.text = std::string("Meldung von Sub CalcBatch:") + CRLF + std::string(25, ' ') + meldung;
}

std::string FehlerCode(int code) {
  return " (E" + std::to_string(code) + ")";
}

bool HoleT(Lauf& l, SeitenFeld& feld, bool warnen) {
  const double T = Datenpunkt(l).T;
  if (!(T >= 1e-6)) return Fehlt(l, feld, "kein T in diesem Datenpunkt");
  const int16_t a = l.art;
  if (warnen && !l.k.TripelHinweisGezeigt && T < l.s.Stoff.TTripel && l.Kubisch() && a != art::DbCpIdG &&
      a != art::DbCpS && a != art::DbRhoS) {
    l.ui.Meldung("T ist kleiner als Tripelpunkt-Temperatur", "Hinweis", ui::Symbol::Information);
    l.k.TripelHinweisGezeigt = true;
  }
  l.T = T;
  l.Zelle(ZelleT) = T;
  return true;
}

bool Holep(Lauf& l, SeitenFeld& feld) {
  const double p = Datenpunkt(l).p;
  if (!(p >= 1e-6)) return Fehlt(l, feld, "kein p in diesem Datenpunkt");
  l.p = p;
  l.Zelle(ZelleP) = p;
  return true;
}

bool HoleRho(Lauf& l, SeitenFeld& feld, double& rho) {
  const ExpDatenSatz z = Datenpunkt(l);
  rho = l.art == art::TRhoL ? z.RhoL : z.RhoV;
  if (!(rho >= 1e-6)) return Fehlt(l, feld, "kein rho in diesem Datenpunkt");
  l.Zelle(ZelleRhoGlobal) = rho;
  l.Zelle(ZelleVGlobal) = l.s.Stoff.MolMasse * l.s.Einheiten.VolumenFaktor / rho;
  return true;
}

std::string TText(Lauf& l, double T) {
  return "T = " + Fmt(l, T, "###0.000 K");
}

int16_t LoeseZustand(Lauf& l, double T, double p, std::string& meldung, int16_t& nRoots) {
  bool istL = false, istV = false;
  double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
  int16_t err = 0;
  nRoots = 0;
  VzuTP(l.s, T, p, l.s.EOS.Gebiet, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
  if (err != 0) return err;
  l.k.HatL = istL;
  l.k.HatV = istV;
  l.vL = istL ? vL : 0;
  l.vV = istV ? vV : 0;
  l.rhoL = istL ? rhoL : 0;
  l.rhoV = istV ? rhoV : 0;
  return 0;
}

void SchreibeLetzten(Lauf& l, double v, double p, int16_t art, int16_t nRoots) {
  LetzterZustand& z = l.k.Letzter;
  z.T = Einfach(l.T);
  z.HatL = l.k.HatL;
  z.HatV = l.k.HatV;
  z.V = l.s.EOS.VRoots;
  z.Art = art;
  z.vLetzt = Einfach(v);
  z.pLetzt = Einfach(p);
  z.AnzahlWurzeln = nRoots;
}

double PartialRhoL(Lauf& l, double T, double rhoV) {
  const ProjectState& s = l.s;
  int16_t failed = 0;
  double rhoL = 0;
  if (s.Modell.BensonDichte) {
    // The straight diameter ends at the measured critical density, else at the equation's own.
    const double rhoKrit = s.Stoff.rhoKritExp > 1e-6 ? s.Stoff.rhoKritExp : s.EOS.rhoKritEOS;
    const ReferenzGruppe& r = s.Referenz;
    rhoL = BensonRhoL(T, s.Stoff.TKrit, rhoKrit, rhoV, r.BezugT, r.BezugP, r.BezugRhoV, r.BezugRhoL, failed);
  } else {
    rhoL = RhoL(l.s, T, false, failed);
  }
  return failed == 0 && std::isfinite(rhoL) ? rhoL : 0;
}

void DichteZeilen(Lauf& l) {
  const bool L = l.k.HatL && l.vL > 0, V = l.k.HatV && l.vV > 0;
  const double f = l.s.Einheiten.VolumenFaktor;
  auto feld = [&](bool da, double x) {
    return da && x > 0 ? Rechts(Einzel(l, x), 20) : std::string(20, ' ');
  };
  l.Zeile(FestText("Dichte", 17) + "rho/ (kg/m^3)  = " + feld(L, l.rhoL) + feld(V, l.rhoV));
  l.Zeile(FestText("Volumen", 17) + "v/ (" + l.s.Einheiten.vEinheit + ") = " + feld(L, l.vL * f) +
          feld(V, l.vV * f));
  if (V) l.Zelle(ZelleVV) = l.vV * f;
  if (L) l.Zelle(ZelleVL) = l.vL * f;
}

std::string PhasenMarke(const Lauf& l) {
  if (l.k.HatL && l.k.HatV) return "V+L";
  if (l.k.HatL) return " L ";
  if (l.k.HatV) return " V ";
  return "   ";
}

void BehaelterAnzeigen(Lauf& l) {
  if (!l.k.BehaelterAnzeige) return;
  l.behaelterGezeigt = true;
  BehaelterZustand z;
  z.T = l.T;
  z.Fehler = l.k.ErrorFlag;
  // Any other error leaves no state for the picture: "ERROR2".
  z.Status = z.Fehler && l.behaelterStatus.empty() ? "ERROR2" : l.behaelterStatus;
  z.p = z.Fehler ? 0 : l.p;
  z.v = l.v;
  z.vL = l.k.HatL ? l.vL : 0;
  z.vV = l.k.HatV ? l.vV : 0;
  z.y = l.zweiPhasig ? l.y : (l.k.HatV ? 1 : 0);
  z.HatL = l.k.HatL;
  z.HatV = l.k.HatV;
  l.k.BehaelterAnzeige(z);
}

} // namespace quor::calcbatch
