#include "fitting/lineare_regression.h"

#include <cmath>

namespace quor {

const char* const KombiXNichtPositiv =
    "Für dieses Fitting-Modell müssen alle aktiven x-Werte größer Null sein.";

namespace {

using Zeile = std::array<double, FitMaxPar + 1>;
using Matrix = std::array<Zeile, FitMaxPar>;

// The basis functions at x; a fixed term is 0 (and is not formed, so 1/x and ln x of a
// non-positive x do not arise for it).
void Basis(const FitZustand& z, int n, double x, FitParameter& phi) {
  phi.fill(0);
  if (z.FitModell == fitmodell::Polynom) {
    double potenz = 1;
    for (int i = 0; i < 6; ++i, potenz *= x)
      phi[i] = potenz;
  } else {
    phi[0] = 1;
    phi[1] = x;
    phi[2] = x * x;
    phi[3] = x * x * x;
    if (!z.FitFix[4]) phi[4] = 1 / x;
    if (!z.FitFix[5]) phi[5] = 1 / (x * x);
    if (!z.FitFix[6]) phi[6] = std::log(x);
  }
  for (int i = 0; i < n; ++i)
    if (z.FitFix[i]) phi[i] = 0;
}

// Gauss-Jordan on the n x (n+1) system. The search for a non-zero in column i finds a row, but the
// exchange of rows that would follow it has no effect, so the pivot is always the diagonal. A zero
// diagonal scales its row by the factor of the previous column (0 before any column had one).
void GaussJordan(Matrix& M, int n) {
  double faktor = 0;
  for (int i = 0; i < n; ++i) {
    bool gefunden = false;
    for (int k = i; k < n && !gefunden; ++k)
      gefunden = M[k][i] != 0;
    if (gefunden && M[i][i] != 0) faktor = 1 / M[i][i];
    for (int c = 0; c <= n; ++c)
      M[i][c] *= faktor;
    for (int j = 0; j < n; ++j) {
      if (j == i) continue;
      const double f = M[j][i];
      for (int c = 0; c <= n; ++c)
        M[j][c] -= f * M[i][c];
    }
  }
}

bool KombiXPruefen(const FitZustand& z, const std::vector<FitPunkt>& punkte) {
  if (z.FitModell != fitmodell::Kombi || (z.FitFix[4] && z.FitFix[5] && z.FitFix[6])) return true;
  for (const FitPunkt& p : punkte)
    if (p.x <= 0) return false;
  return true;
}

} // namespace

bool LineareRegression(const FitZustand& z, int n, FitParameter& par, double& S,
                       std::vector<FitMeldung>& meldungen) {
  if (n < 1 || n > FitMaxPar) return false;
  std::vector<FitPunkt> aktiv;
  for (int i = 0; i < z.FitAnzahl && i < static_cast<int>(z.FitDaten.size()); ++i)
    if (z.FitDaten[i].Flag != FlagInaktiv) aktiv.push_back(z.FitDaten[i]);
  if (!KombiXPruefen(z, aktiv)) {
    meldungen.push_back({KombiXNichtPositiv, "Ausführung nicht möglich", ui::Symbol::Ausruf});
    return false;
  }

  Matrix M{};
  FitParameter phi{};
  for (const FitPunkt& p : aktiv) {
    Basis(z, n, p.x, phi);
    for (int j = 0; j < n; ++j) {
      for (int k = 0; k < n; ++k)
        M[j][k] += phi[j] * phi[k];
      M[j][n] += phi[j] * p.y;
    }
  }
  GaussJordan(M, n);

  FitParameter loesung = par;
  for (int i = 0; i < n; ++i)
    loesung[i] = M[i][n];
  double summe = 0;
  for (const FitPunkt& p : aktiv) {
    Basis(z, n, p.x, phi);
    double yRechnung = 0;
    for (int j = 0; j < n; ++j)
      yRechnung += loesung[j] * phi[j];
    summe += (p.y - yRechnung) * (p.y - yRechnung);
  }
  if (static_cast<int>(aktiv.size()) <= n) summe = 0;
  for (int i = 0; i < n; ++i)
    if (!std::isfinite(loesung[i])) return false;
  if (!std::isfinite(summe)) return false;
  par = loesung;
  S = summe;
  return true;
}

} // namespace quor
