#include "engine/eos_parameter.h"

#include "core/zahlformat.h"
#include "engine/eos_auswertung.h"
#include "engine/eos_zeilen.h"
#include "engine/numerik.h"
#include "engine/varnik_ji.h"

#include <cmath>
#include <vector>

namespace quor {

const char* const ParameterEOSTitel = " Parameter der generalisierten Zustandsgleichung ";

namespace {

const char* const TitelNichtMoeglich = "Ausführung nicht möglich";
const char* const CRLF = "\r\n";

// Redlich/Kwong constants: W = Omega_a, S = Omega_b of the denominator v*(v+b).
double RKOmegaA() {
  return 1 / (9 * (std::cbrt(2.0) - 1));
}
double RKOmegaB() {
  return (std::cbrt(2.0) - 1) / 3;
}

// Peng/Robinson constants from the exact solution of the critical conditions.
double PROmegaB() {
  const double Y = std::cbrt(std::pow(2.0, 4.5) + 13);
  return -1.0 / 32 - 21 / (32 * Y) + 3 * Y / 32;
}
double PROmegaA() {
  const double Ob = PROmegaB();
  return 10.0 / 3 * Ob * Ob + 4.0 / 3 * Ob + 1.0 / 3;
}

// Soave slopes from the acentric factor.
double SoaveSteigungSRK(double omega) {
  return (-0.176 * omega + 1.574) * omega + 0.48;
}
double SoaveSteigungPR(double omega) {
  return (-0.26992 * omega + 1.54226) * omega + 0.37464;
}

bool KonstantenEndlich(const EOSGruppe& e) {
  return AlleEndlich(e.a0, e.b0, e.c0, e.d0, e.aExp, e.bExp, e.cExp, e.dExp, e.vKritEOS, e.rhoKritEOS);
}

bool JiParameterEndlich(const EOSGruppe& e) {
  for (double w : e.JiParameter)
    if (!std::isfinite(w)) return false;
  return true;
}

void MeldeRechenfehler(const ProjectState& s, ui::Oberflaeche& ui) {
  std::string text = "Fehler bei der EOS-Parameterberechnung";
  if (s.Stoff.TKrit == 0) text += std::string(CRLF) + "(keine kritische Temperatur verfügbar)";
  if (s.Stoff.pKrit == 0) text += std::string(CRLF) + "(kein kritischer Druck verfügbar)";
  ui.Meldung(text, TitelNichtMoeglich, ui::Symbol::Ausruf);
}

// Constants of the power-law and Soave rows, the virial rows 11 to 15 with those of their cubic row;
// rows without a branch keep the cleared constants.
void SetzeKubischeKonstanten(ProjectState& s, uint16_t index) {
  EOSGruppe& e = s.EOS;
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  const double Q = RGas * Tc / pc;
  const double R2 = RGas * RGas;
  switch (eos::KonstantenZeile(index)) {
  case eos::Idealgas:
    e.vKritEOS = Q;
    break;
  case eos::VanDerWaals:
    e.a0 = 27.0 / 64 * R2 * Tc * Tc / pc;
    e.b0 = Q / 8;
    e.vKritEOS = 3.0 / 8 * Q;
    break;
  case eos::Berthelot:
    e.a0 = 27.0 / 64 * R2 * Tc * Tc * Tc / pc;
    e.aExp = -1;
    e.b0 = Q / 8;
    e.vKritEOS = 3.0 / 8 * Q;
    break;
  case eos::RedlichKwong:
    e.a0 = RKOmegaA() * R2 * std::pow(Tc, 2.5) / pc;
    e.aExp = -0.5;
    e.b0 = RKOmegaB() * Q;
    e.d0 = e.b0;
    e.vKritEOS = Q / 3;
    break;
  case eos::SoaveRedlichKwong:
    e.aForm = 2;
    e.a0 = RKOmegaA() * R2 * Tc * Tc / pc;
    e.aExp = SoaveSteigungSRK(s.Stoff.omega);
    e.b0 = RKOmegaB() * Q;
    e.d0 = e.b0;
    e.vKritEOS = Q / 3;
    break;
  case eos::PengRobinson:
    e.aForm = 2;
    e.a0 = PROmegaA() * R2 * Tc * Tc / pc;
    e.aExp = SoaveSteigungPR(s.Stoff.omega);
    e.b0 = PROmegaB() * Q;
    e.c0 = (1 - std::sqrt(2.0)) * e.b0;
    e.d0 = (1 + std::sqrt(2.0)) * e.b0;
    e.vKritEOS = 0.3074 * Q;
    break;
  default: // the empty rows 1, 9 and the hand input (10): constants stay cleared
    break;
  }
}

std::string OhneFuehrendeLeerzeichen(const std::string& text) {
  const auto erstes = text.find_first_not_of(' ');
  return erstes == std::string::npos ? std::string() : text.substr(erstes);
}

std::string Wert(double x) {
  return SingleText(Einfach(x));
}

std::string Verbinde(const std::vector<std::string>& zeilen) {
  std::string text;
  for (std::size_t i = 0; i < zeilen.size(); ++i) {
    if (i > 0) text += CRLF;
    text += zeilen[i];
  }
  return text;
}

} // namespace

void LoescheEOSKonstanten(ProjectState& s) {
  EOSGruppe& e = s.EOS;
  e.a0 = e.b0 = e.c0 = e.d0 = 0;
  e.aExp = e.bExp = e.cExp = e.dExp = 0;
  e.BExpHand = 0;
  e.aT = e.bT = e.cT = e.dT = 0;
  e.VRoots = {0, 0, 0};
}

double vAusZ(const ProjectState& s, double z) {
  return z * RGas * s.Stoff.TKrit / s.Stoff.pKrit;
}

void JiKritischeKonstanten(ProjectState& s, int16_t& err) {
  auto& J = s.EOS.JiParameter;
  const double z = J[JiZc];
  const double A = 1 - 3 * z;
  const double B = 6 * z - 1;
  const double X = 27 * A * z * z - 2 * A * A * A + 27 * z * z * z;
  const double D = X * X + 4 * B * B * B;
  // A negative D or a negative X + sqrt(D) has no real solution in this form.
  const double G = std::pow(X + std::sqrt(D), 1.0 / 3);
  const double kubikWurzel2 = std::cbrt(2.0);
  const double OmegaB = -A / 3 - kubikWurzel2 * B / (3 * G) + G / (3 * kubikWurzel2);
  const double u = (1 - 3 * z + OmegaB) / OmegaB;
  const double OmegaA = 3 * z * z + u * OmegaB + 2 * u * OmegaB * OmegaB;
  const double Tc = s.Stoff.TKrit, pc = s.Stoff.pKrit;
  const double JiAWert = RGas * RGas * OmegaA * Tc * Tc / pc;
  const double vKrit = vAusZ(s, z);
  if (!AlleEndlich(OmegaB, u, OmegaA, JiAWert, vKrit)) {
    err = -1;
    return;
  }
  err = 0;
  J[JiOmegaB] = OmegaB;
  J[JiU] = u;
  J[JiOmegaA] = OmegaA;
  J[JiA] = JiAWert;
  s.EOS.vKritEOS = vKrit;
}

void EOSParameterSetup(ProjectState& s, ui::Oberflaeche& ui, int16_t EOSIndex, int16_t& err) {
  if (s.Stoff.TKrit * s.Stoff.pKrit < 1e-6) return;
  EOSGruppe& e = s.EOS;
  const auto index = static_cast<uint16_t>(EOSIndex);
  err = 0;
  e.aForm = 1;
  e.vKritEOS = 0;
  if (index != eos::LeereZeile1) LoescheEOSKonstanten(s);
  bool gerechnet = true;
  if (eos::IstVarnikJi(index)) {
    int16_t jiFehler = 0;
    JiParameterBerechnen(s, ui, jiFehler);
    if (jiFehler != 0) {
      ui.Meldung("Fehler bei der EOS-Parameterberechnung (Varnik-Ji-Modell)", TitelNichtMoeglich,
                 ui::Symbol::Ausruf);
      err = 1;
      return;
    }
    int16_t kritFehler = 0;
    JiKritischeKonstanten(s, kritFehler);
    gerechnet = kritFehler == 0 && JiParameterEndlich(e);
  } else if (index < eos::VirialPitzerCurl) {
    SetzeKubischeKonstanten(s, index);
  }
  e.rhoKritEOS = 0;
  if (s.Modell.VirialFlag) e.vKritEOS = 0;
  if (e.vKritEOS >= 1e-6) e.rhoKritEOS = s.Stoff.MolMasse / e.vKritEOS;
  if (!gerechnet || !KonstantenEndlich(e)) {
    // Overflow or an impossible root: no constant of this attempt may be used.
    LoescheEOSKonstanten(s);
    e.vKritEOS = 0;
    e.rhoKritEOS = 0;
    err = 1;
    MeldeRechenfehler(s, ui);
  }
}

std::string ParameterEOSText(ProjectState& s) {
  const int16_t index = s.Modell.EOSIndex;
  const EOSGruppe& e = s.EOS;
  std::vector<std::string> z;
  if (index <= eos::Idealgas) {
    z.push_back("Idealgasgleichung eingestellt");
  } else if (index == eos::VirialPitzerCurl) {
    z.push_back("Parameter der PITZER/CURL-Gleichung");
    z.push_back("(Erläuterung in der Hilfe zum Fenster \"Berechnungs-Modelle\")");
  } else {
    const std::string name =
        index < static_cast<int16_t>(s.Tab.EOSNamen.size()) ? s.Tab.EOSNamen[index] : std::string();
    z.push_back("Parameter " + OhneFuehrendeLeerzeichen(name));
    z.push_back("für " + s.Stoff.StoffName);
    if (eos::IstVarnikJi(index)) {
      JiEOSbeiT(s, TStandard);
      z.push_back("für T/K = " + Wert(TStandard));
      z.push_back(index == eos::VarnikJi1 ? "  (die Parameter b, c und d sind T-unabhängig)"
                                          : "  (alle Parameter sind T-abhängig)");
      z.push_back("a = " + Wert(e.aT));
      z.push_back("b = " + Wert(e.bT));
      z.push_back("c = " + Wert(e.cT));
      z.push_back("d = " + Wert(e.dT));
    } else {
      z.push_back("a0 = " + Wert(e.a0));
      z.push_back("a1 = " + Wert(e.aExp));
      z.push_back("b = b0 = " + Wert(e.b0));
      z.push_back("c = " + Wert(e.c0));
      z.push_back("d = " + Wert(e.d0));
    }
  }
  if (e.vKritEOS >= 1e-6) {
    z.push_back("krit. Volumen aus T(cr) und p(cr) berechnet:");
    z.push_back("    v(cr, molar)/m^3/kmol = " + Wert(e.vKritEOS));
    z.push_back("      v(cr, spezif.))/m^3/kg = " + Wert(e.vKritEOS / s.Stoff.MolMasse));
    z.push_back("  (entspr. rho(cr)/kg/m^3 = " + Wert(s.Stoff.MolMasse / e.vKritEOS) + ")");
  }
  return Verbinde(z);
}

} // namespace quor
