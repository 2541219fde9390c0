// cmdApply: a fit's parameters into the parameter set of the loaded substance that the database
// correlations use, vapour pressures converted to the decimal form of the database. Only the
// substance data in memory change; the substance editor saves them.
#include "fitting/fit_modell.h"
#include "fitting/fit_modelle.h"
#include "fitting/fitting_dialog.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quor {

namespace {

namespace fm = fitmodell;

const char* const AugustText = "AUGUST/DUPRÉ-RANKINE sind keine von QUOR verwendeten Gleichungen.\r\n"
                               "Wenn Sie AUGUST verwenden wollen, wählen Sie ANTOINE mit C-fixiert = 273.15.";
const char* const ErfolgText =
    "Diese Parameter sind nun in der jeweiligen Datenbankfunktion von QUOR aktiv\r\n"
    "und können unter \"Daten/Stoffdaten-Editor\" eingesehen werden.\r\n\r\n"
    "Einzelwertberechnungen y = f(T) können unter\r\n"
    "Berechnung/Datenbankfunktionen durchgeführt werden.";
const char* const ErfolgTitel = "Parameterübernahme OK";
const char* const LgHinweis = " (nach Umrechnung auf lg) ";

// A parameter as the database keeps it, in single precision.
float F(double x) {
  const double grenze = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(x, -grenze, grenze));
}

template <std::size_t N> void Setze(std::array<float, N>& ziel, std::initializer_list<double> werte) {
  std::size_t i = 0;
  for (const double w : werte)
    ziel[i++] = F(w);
}

// Basic's conversion to a 16-bit integer: rounded half to even.
int16_t Ganz(double x) {
  return static_cast<int16_t>(std::clamp(std::nearbyint(x), -32768.0, 32767.0));
}

struct Umrechnung {
  double k = 1; // ln 10 for a fit in natural logarithms
  double Tcr = 0, pcr = 0;
  TGrenzen Bereich;
};

// Vapour pressures: Antoine into its low-pressure set; Frost-Kalkwarf, its Thodos form and the DIPPR
// equation into the one Frost-Kalkwarf set (C with 273.15, the DIPPR term in H and I); Wagner with
// its fixed exponents 3 and 6.
void Dampfdruck(StoffGruppe& st, int16_t modell, const FitParameter& P, const Umrechnung& u) {
  const double k = u.k;
  switch (modell) {
  case fm::Antoine:
    Setze(st.AntoineNd, {P[0] / k, P[1] / k, P[2]});
    st.AntoineNdGrenzen = u.Bereich;
    return;
  case fm::FrostKalkwarf:
    Setze(st.FrostKalkwarf, {P[0] / k, P[1] / k, P[2], P[3], P[4] / k, 0, 0, 0, 0});
    break;
  case fm::FrostKalkwarfThodos:
    Setze(st.FrostKalkwarf,
          {P[0] / k, P[1] / k, P[2], 1.8 * P[1] / (k * u.Tcr) + 2.67, P[3] / k, 0, 0, 0, 0});
    break;
  case fm::DipprDampfdruck:
    Setze(st.FrostKalkwarf, {P[0] / k, P[1] / k, 273.15, P[2], 0, 0, 0, P[3] / k, P[4]});
    break;
  default: // Wagner
    Setze(st.Wagner, {P[0], P[1], P[2], 3, P[3], 6, 0, 0, u.Tcr, u.pcr});
    st.WagnerGrenzen = u.Bereich;
    return;
  }
  st.FrostKalkwarfGrenzen = u.Bereich;
}

void Dichte(StoffGruppe& st, int16_t modell, const FitParameter& P, const Umrechnung& u) {
  if (modell == fm::Rackett) {
    Setze(st.RhoL, {0, P[0], P[1], P[2], 0, 0, 0});
    st.RhoLTcr = F(u.Tcr);
  } else if (modell == fm::Leuna) {
    Setze(st.RhoL, {P[0], P[1], P[2], P[3], 0, 0, P[4]});
    st.RhoLTcr = F(u.Tcr);
  } else {
    Setze(st.RhoL, {P[0], P[1], P[2], P[3], 0, 0, 0});
    st.RhoLTcr = 0;
  }
  st.RhoLGrenzen = u.Bereich;
}

void Verdampfung(StoffGruppe& st, int16_t modell, const FitParameter& P, const Umrechnung& u) {
  if (modell == fm::Majer)
    Setze(st.HLV, {P[0], P[1], P[2], 0, 0, 0});
  else
    Setze(st.HLV, {P[0], 0, P[1], P[2], P[3], P[4]});
  st.HLVTcr = F(u.Tcr);
}

// The heat capacity of the phase chosen; the DIPPR form of the ideal gas has a set of its own.
void Waermekapazitaet(StoffGruppe& st, int16_t modell, const FitParameter& P, int phase,
                      const Umrechnung& u) {
  if (modell == fm::DipprCp && phase == 0) {
    Setze(st.CpSinh, {P[0], P[1], P[2], P[3], P[4]});
    st.CpSinhGrenzen = u.Bereich;
    return;
  }
  std::array<float, 5>& ziel = phase == 0 ? st.CpPoly : (phase == 1 ? st.CpL : st.CpS);
  Setze(ziel, {P[0], P[1], P[2], P[3], P[4]});
}

bool IstDampfdruck(int16_t modell) {
  return modell >= fm::Antoine && modell <= fm::Wagner;
}

bool HatZiel(int16_t modell) {
  return IstDampfdruck(modell) || (modell >= fm::Rackett && modell <= fm::PolynomDichte) ||
         (modell >= fm::Majer && modell <= fm::DipprCp);
}

} // namespace

// The first and the last point: of the measured rows when they came from that editor, which sorts
// them by T, else of the fit's data as they stand.
void frmQFitting::TemperaturBereich(int16_t& Tmin, int16_t& Tmax) const {
  double von = 0, bis = 0;
  const MessdatenGruppe& m = s_.Mess;
  if (Fit.FitEditorCode == QuelleTpRhoEditor && m.ExpAnzahl >= 1 &&
      static_cast<std::size_t>(m.ExpAnzahl) < m.ExpDaten.size()) {
    von = m.ExpDaten[1].T;
    bis = m.ExpDaten[static_cast<std::size_t>(m.ExpAnzahl)].T;
  } else if (Fit.FitAnzahl >= 1) {
    von = Fit.FitDaten.front().x;
    bis = Fit.FitDaten[static_cast<std::size_t>(Fit.FitAnzahl - 1)].x;
  }
  Tmin = Ganz(von);
  Tmax = Ganz(bis);
}

bool frmQFitting::cmdApply() {
  const int16_t modell = Fit.FitModell;
  if (!cmdApplyEnabled) return false;
  if (modell == fm::August) {
    ui_.Meldung(AugustText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return false;
  }
  if (!HatZiel(modell)) return false;
  Umrechnung u;
  TemperaturBereich(u.Bereich.TLo, u.Bereich.THi);
  u.Tcr = Fit.FitTcr;
  u.pcr = Fit.FitPcr;
  const bool ln = HatLg(modell) && !Fit.Lg;
  u.k = ln ? LnTen : 1;
  StoffGruppe& st = s_.Stoff;
  if (IstDampfdruck(modell))
    Dampfdruck(st, modell, Fit.FitPar, u);
  else if (modell <= fm::PolynomDichte)
    Dichte(st, modell, Fit.FitPar, u);
  else if (modell <= fm::DipprHLV)
    Verdampfung(st, modell, Fit.FitPar, u);
  else
    Waermekapazitaet(st, modell, Fit.FitPar, optcpPhase, u);

  if (modell >= fm::Antoine && modell <= fm::DipprDampfdruck) {
    const std::string name = modell == fm::Antoine ? "ANTOINE (Lo-p)-Gleichung von QUOR eingefügt."
                                                   : "FROST-KALKWARF-MILLER-Gleichung von QUOR eingefügt.";
    ui_.Meldung("Diese Parameter werden" + std::string(ln ? LgHinweis : "") + "in die\r\n" + name, "Hinweis",
                ui::Symbol::Information);
  }
  ui_.Meldung(ErfolgText, ErfolgTitel, ui::Symbol::Information);
  return true;
}

} // namespace quor
