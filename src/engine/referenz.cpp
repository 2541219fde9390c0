#include "engine/referenz.h"

#include "core/festtext.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "engine/korrelationen.h"
#include "engine/virial.h"
#include "engine/zustand.h"

#include <cmath>
#include <vector>

namespace quor {

namespace {

// Pressure of the reference point in the proposals (the report shows 101.325).
constexpr double BezugDruck = 101.3;
// Index of the Pitzer/Curl virial equation.
constexpr int16_t PitzerCurlIndex = 16;

std::string Zeilen(const std::vector<std::string>& zeilen) {
  std::string text;
  for (const std::string& z : zeilen) {
    if (!text.empty()) text += "\r\n";
    text += z;
  }
  return text;
}

// A number behind "=": the default text of the single value, with a blank where the sign would be.
std::string Zahl(double x) {
  const float f = static_cast<float>(x);
  return (f < 0 ? "" : " ") + SingleText(f);
}

// A single value formatted by a pattern as its seven-digit decimal form, not its binary expansion.
std::string EinfachFormat(float x, const char* muster) {
  return FormatVB(LeseZahl(SingleText(x)).wert, muster);
}

std::string EOSName(const ProjectState& s) {
  const int i = s.Modell.EOSIndex;
  if (i < 0 || i >= static_cast<int>(s.Tab.EOSNamen.size())) return "";
  return Trim(s.Tab.EOSNamen[i]);
}

// Steps at the normal boiling point; false when none of them yields a liquid density.
bool AmSiedepunkt(ProjectState& s, double T, double& rhoL, std::vector<std::string>& zeilen) {
  const StoffGruppe& st = s.Stoff;
  const double A = st.RhoL[0], B = st.RhoL[1], C = st.RhoL[2];
  const double siede = RhoLSiede(st);
  std::string herkunft;
  if (siede > 1e-6) {
    rhoL = siede;
    herkunft = " (aus Datenbank)";
  } else if (st.RhoLGrenzen.TLo > 1e-6) {
    int16_t failed = 0;
    rhoL = RhoL(s, T, false, failed);
    herkunft = " (aus Datenbank-Polynom rho(T))";
  } else if (A > 1e-6 && std::fabs(B) > 1e-6 && C > 1e-6) {
    rhoL = (B * T + A) - C * B;
    herkunft = " (berechnet aus dRho/dT)";
  } else {
    return false;
  }
  zeilen.push_back(" rho(L)(ref)/kg/m^3 =" + Zahl(rhoL) + herkunft);
  return true;
}

// The vapour density at (T, p): from the EOS, else from the ideal gas or Pitzer/Curl.
double Dampfdichte(ProjectState& s, double T, double p, std::vector<std::string>& zeilen) {
  const double M = s.Stoff.MolMasse;
  if (p > 0) {
    bool istL = false, istV = false;
    double rhoV = 0, rhoL = 0, vV = 0, vL = 0, imbalance = 0, A = 0, B = 0;
    int16_t region = s.EOS.Gebiet, nRoots = 0, err = 0;
    std::string meldung;
    VzuTP(s, T, p, region, istL, istV, rhoV, rhoL, vV, vL, nRoots, imbalance, A, B, meldung, err);
    if (err == 0 && rhoV >= 1e-6) {
      zeilen.push_back(" rho(V)(ref)/kg/m^3 =" + Zahl(rhoV) + " (aus " + EOSName(s) + ")");
      return rhoV;
    }
  }
  double rhoV = 0;
  if (s.Stoff.omega == 0) {
    if (p > 0) rhoV = M * p / (RGas * T);
    zeilen.push_back(" rho(V)(ref)/kg/m^3 =" + Zahl(rhoV) + " (aus Idealgas-EOS)");
  } else {
    const double B = BvonT(s, PitzerCurlIndex, T);
    if (p > 0) rhoV = M / (RGas * T / p + B);
    if (!std::isfinite(rhoV)) rhoV = 0;
    zeilen.push_back(" rho(V)(ref)/kg/m^3 =" + Zahl(rhoV) + " (aus Virial-EOS, PITZER/CURL)");
  }
  return rhoV;
}

} // namespace

void ReferenzKonstanten(ProjectState& s, double p, double& h0, double& s0) {
  ReferenzGruppe& r = s.Referenz;
  const StoffGruppe& st = s.Stoff;
  h0 = 0;
  s0 = 0;
  if (r.RefArt == RefBildung) {
    h0 = st.hBildung;
    s0 = st.sBildung;
  } else if (r.RefArt == RefKonventionell) {
    h0 = st.hBildung;
    s0 = (static_cast<double>(st.hBildung) - st.gBildung) / TStandard;
  }
  if (r.RefArt == RefBildung || r.RefArt == RefKonventionell) {
    r.pRef = static_cast<float>(pNormal);
    r.TRef = static_cast<float>(TStandard);
  }
  if (r.pRef == 0) r.pRef = static_cast<float>(pNormal);
  if (p > 0) s0 -= RGas * std::log(p / r.pRef);
}

double BensonNaeherung(double p, double pKrit, double rhoKritExp) {
  if (p <= 1e-6) return 0;
  const double rho = (std::log(pKrit / p) * 0.18327 + 1.981) * rhoKritExp;
  return std::isfinite(rho) ? rho : 0;
}

double RhoLSiede(const StoffGruppe& st) {
  const float A = st.RhoL[0], C = st.RhoL[2];
  if (st.RhoLGrenzen.TLo == 0 && A > 1e-6 && C > 1e-6 && C == st.TSiede) return A;
  return 0;
}

void PartialBezugspunkt(ProjectState& s, double& T, double& p, double& rhoV, double& rhoL, std::string& Text,
                        int16_t& err) {
  err = 0;
  T = p = rhoV = rhoL = 0;
  Text.clear();
  const StoffGruppe& st = s.Stoff;
  std::vector<std::string> zeilen;
  bool gefunden = false;
  if (st.TSiede > 1e-6) {
    T = st.TSiede;
    p = BezugDruck;
    zeilen = {" T(ref)/K           =" + Zahl(T) + " (Normalsiede-T)",
              " p(LV)(ref)/kPa     = 101.325 (Normaldruck)"};
    gefunden = AmSiedepunkt(s, T, rhoL, zeilen);
  }
  if (!gefunden && st.RhoL[0] > 1e-6 && st.RhoL[2] > 1e-6) {
    // The single density point of the database, with the vapour pressure there.
    T = st.RhoL[2];
    rhoL = st.RhoL[0];
    int16_t failed = 0;
    p = pLV(s, T, s.Modell.DampfdruckIndex, false, failed);
    zeilen = {"T(ref)/K         =" + Zahl(T) + " (Datenbank-Einzelpunkt für Dichte)",
              " rho(L)(ref)/kg/m^3 =" + Zahl(rhoL) + " (Datenbank-Einzelpunkt bei T(ref))",
              " pLV(ref)/kPa     =" + Zahl(p) + " (bei T(ref) mit " + s.Modell.DampfdruckTag + "-Gleichung)"};
  }
  if (!(T > 0) || !(rhoL > 0)) {
    err = -1;
    T = p = rhoL = 0;
    return;
  }
  rhoV = Dampfdichte(s, T, p, zeilen);
  Text = Zeilen(zeilen);
}

void BezugspunktVorschlag(ProjectState& s, std::string& Text, int16_t& err) {
  double T = 0, p = 0, rhoV = 0, rhoL = 0;
  PartialBezugspunkt(s, T, p, rhoV, rhoL, Text, err);
  if (err != 0) return;
  ReferenzGruppe& r = s.Referenz;
  r.BezugT = static_cast<float>(T);
  r.BezugP = static_cast<float>(p);
  r.BezugRhoL = static_cast<float>(rhoL);
  r.BezugRhoV = static_cast<float>(rhoV);
}

void BezugspunktBenson(ProjectState& s, std::string& Text) {
  ReferenzGruppe& r = s.Referenz;
  r.BezugT = s.Stoff.TSiede;
  r.BezugP = 101.335f;
  r.BezugRhoL = static_cast<float>(BensonNaeherung(BezugDruck, s.Stoff.pKrit, s.Stoff.rhoKritExp));
  Text = Zeilen({" T(ref)/K           = " + EinfachFormat(r.BezugT, "####.#") + " (Normalsiedetemp.)",
                 " p(LV)(ref)/kPa     = 101.325  (Normaldruck)",
                 " rho(L)(ref)/kg/m^3 = " + EinfachFormat(r.BezugRhoL, "####.#") + " (BENSON-Näherung)",
                 " rho(V)(ref)/kg/m^3 = " + EinfachFormat(r.BezugRhoV, "##.###") + " (" + EOSName(s) + ")"});
}

void BezugGueltigSetzen(ProjectState& s) {
  ReferenzGruppe& r = s.Referenz;
  const float produkt = r.BezugT * r.BezugP * r.BezugRhoL * r.BezugRhoV;
  r.BezugGueltig = produkt > 1e-6f;
}

} // namespace quor
