#include "fitting/fit_lauf.h"

#include "fitting/fit_modelle.h"
#include "fitting/lineare_regression.h"
#include "fitting/marquardt.h"

#include <cmath>

namespace quor {

const char* const KeineDatenText =
    "Noch keine Daten vorhanden,\r\n"
    "manuelle Dateneingabe oder Laden per File über Dateneditor notwendig\r\n\r\n"
    "Die Daten können entweder aus dem T-p-rho-delta(LV)h-Editor oder\r\n"
    "aus dem X-Y-Editor bezogen werden (von dort \"Daten zum Fitting senden\").";
const char* const TcrKorrelationText = "Tcr wird für die Korrelation von Parameter D benötigt.";
const char* const TcrFehltText = "Tcr muss gegeben sein";
const char* const PcrFehltText = "pcr muss gegeben sein";
const char* const ZuWenigePunkteText =
    "Die Zahl der (aktiven) Messpunkte muss größer als die Gesamtzahl der Parameter sein!\r\n\r\n"
    "Ergänzen Sie die Daten im Dateneditor;\r\n"
    "auch Mehrfach-Eingabe von Punkten kann hilfreich sein.";
const char* const FitTitelNichtMoeglich = "Ausführung nicht möglich";
const char* const FitTitelSplineTest = "Test auf Spline-Anwendbarkeit der exper. Daten";

// The hint of this message sends the user to the editor the data did not come from.
std::string SplineZuWenigeText(int16_t editorCode) {
  std::string t = "für Spline mindestens 3 aktive Punkte!\r\n\r\n";
  if (editorCode == QuelleXYEditor)
    t += "Gehen Sie zum Editor für experimentelle Daten (Icon 8).";
  else if (editorCode == QuelleTpRhoEditor)
    t += "Gehen Sie zum XY-Editor (Icon 9).";
  return t;
}

std::string SplineMehrfachXText(int16_t editorCode) {
  std::string t = "Für diese Spline-Anwendung sind keine Mehrfach-x-Werte erlaubt.\r\n\r\nGehen Sie zum ";
  if (editorCode == QuelleTpRhoEditor)
    t += "Editor für experimentelle Daten (Icon 8)";
  else if (editorCode == QuelleXYEditor)
    t += "XY-Editor (Icon 9)";
  t += "\r\n\r\n und löschen Sie die mehrfachen x-Werte.\r\nLassen Sie jeweils nur EINEN x-Wert stehen.";
  return t;
}

namespace {

namespace fm = fitmodell;

bool Refuse(FitZustand& z, const std::string& text, const char* titel = FitTitelNichtMoeglich) {
  z.Meldungen.push_back({text, titel, ui::Symbol::Ausruf});
  return false;
}

bool Reserviert(int16_t modell) {
  return modell == fm::Reserviert2 || modell == fm::Reserviert12 || modell == fm::Reserviert13 ||
         modell < 0 || modell > fm::AkimaSpline;
}

// The checks before a run, in the dialog's order; the critical constants go to FitTcr and FitPcr.
bool DatenPruefen(FitZustand& z) {
  if (z.FitAnzahl == 0) return Refuse(z, KeineDatenText);
  const int tcr = TcrFeld(z.FitModell), pcr = PcrFeld(z.FitModell);
  if (tcr >= 0) {
    if (z.StartFeld[tcr] < 1e-6)
      return Refuse(z, z.FitModell == fm::FrostKalkwarfThodos ? TcrKorrelationText : TcrFehltText);
    z.FitTcr = z.StartFeld[tcr];
  }
  if (pcr >= 0) {
    if (z.StartFeld[pcr] < 1e-6) return Refuse(z, PcrFehltText);
    z.FitPcr = z.StartFeld[pcr];
  }
  if (z.FitModell != fm::AkimaSpline && AktivePunkte(z) <= z.FitNPar) return Refuse(z, ZuWenigePunkteText);
  if (z.FitModell == fm::AkimaSpline && AktivePunkte(z) < 3)
    return Refuse(z, SplineZuWenigeText(z.FitEditorCode));
  return true;
}

// Fix marks and start values from the fields. Model 6 shows its computed D in the fourth field, so
// its fourth parameter E comes unscaled from the fifth field, with that field's fix mark.
void ParameterAusFeldern(FitZustand& z) {
  for (int i = 0; i < FitMaxPar; ++i) {
    z.FitFix[i] = z.FixFeld[i];
    z.FitPar[i] = z.StartFeld[i] / z.FitSkala[i];
  }
  if (z.FitModell == fm::FrostKalkwarfThodos) {
    z.FitPar[3] = z.StartFeld[4];
    z.FitFix[3] = z.FixFeld[4];
  }
}

// The spline through the active points. More points than its working arrays hold stop the run as
// Basic's subscript check would, a coefficient beyond the number range as its overflow would.
bool SplineLauf(ProjectState& s, FitZustand& z) {
  const int n = AktivePunkte(z);
  z.FitNPar = static_cast<int16_t>(4 * (n - 1));
  std::vector<double> x, y;
  for (int i = 0; i < z.FitAnzahl; ++i)
    if (z.FitDaten[i].Flag != FlagInaktiv) {
      x.push_back(z.FitDaten[i].x);
      y.push_back(z.FitDaten[i].y);
    }
  if (!SplinePruefen(x, y, n)) return Refuse(z, SplineMehrfachXText(z.FitEditorCode), FitTitelSplineTest);
  if (!SplineBerechnen(z.SplineGlaettung, n, x, y, z.Spline))
    return Refuse(z, n > SplineMaxPunkte ? "Index außerhalb des gültigen Bereichs" : "Überlauf",
                  "Fehler bei SplineBerechnen");
  int ifn = 0;
  FQSBerechnen(s, z, z.FitPar, z.FQS, ifn);
  return true;
}

} // namespace

bool FitStarten(ProjectState& s, FitZustand& z) {
  z.Meldungen.clear();
  z.Ergebnis = false;
  z.FitAnzahl = static_cast<int16_t>(std::min<std::size_t>(z.FitAnzahl, z.FitDaten.size()));
  if (Reserviert(z.FitModell) || !DatenPruefen(z)) return false;
  ParameterAusFeldern(z);
  if (z.FitModell == fm::AkimaSpline) {
    if (!SplineLauf(s, z)) return false;
  } else if (z.FitModell == fm::Polynom || z.FitModell == fm::Kombi) {
    if (!LineareRegression(z, z.FitNPar, z.FitPar, z.FQS, z.Meldungen)) return false;
  } else {
    MarquardtFit(s, z, z.FitNPar, AktivePunkte(z), z.FitPar, z.FitStDev, z.FQS, z.fehler);
  }
  for (int i = 0; i < FitMaxPar; ++i) {
    z.FitPar[i] *= z.FitSkala[i];
    z.FitStDev[i] *= z.FitSkala[i];
  }
  const int frei = AktivePunkte(z) - z.FitNPar;
  z.sR = frei > 0 ? std::sqrt(z.FQS / frei) : 0;
  z.Ergebnis = true;
  return true;
}

double FitFunktionswert(ProjectState& s, const FitZustand& z, double x, int16_t& fehler) {
  fehler = 0;
  if (z.FitModell == fm::AkimaSpline) {
    if (z.Spline.SplineN < 3) fehler = -1;
    return SplineWert(0, z.Spline.Index, x, z.Spline);
  }
  const ModellKonstanten k{z.FitModell, LogFaktor(z.FitModell, z.Lg), z.FitTcr, z.FitPcr};
  double y = 0;
  if (ModellWert(s.EOS, k, z.FitPar, x, y) != ModellStatus::Gut) {
    fehler = -1;
    return 0;
  }
  return y;
}

double FitInvers(ProjectState& s, const FitZustand& z, double y0, int16_t& fehler) {
  fehler = 0;
  double xMin = 1e37, xMax = -1e37, yMin = 1e37, yMax = -1e37;
  for (int i = 0; i < z.FitAnzahl && i < static_cast<int>(z.FitDaten.size()); ++i) {
    const FitPunkt& p = z.FitDaten[i];
    if (p.Flag == FlagInaktiv) continue;
    xMin = std::min<double>(xMin, p.x);
    xMax = std::max<double>(xMax, p.x);
    yMin = std::min<double>(yMin, p.y);
    yMax = std::max<double>(yMax, p.y);
  }
  const double steigung = (yMax - yMin) / (xMax - xMin);
  double x = (y0 - (yMax - xMax * steigung)) / steigung;
  int16_t f = 0;
  for (int runde = 0; runde < 100 && std::isfinite(x); ++runde) {
    const double F = FitFunktionswert(s, z, x, f) - y0;
    double D = (FitFunktionswert(s, z, x + 2e-5, f) - y0 - F) / 2e-5;
    if (D == 0) D = 2;
    const double dx = -F / D;
    x += dx;
    if (std::isfinite(x) && static_cast<float>(std::fabs(dx / x)) < 1e-6f) return x;
  }
  fehler = -1;
  return std::isfinite(x) ? x : 0;
}

} // namespace quor
