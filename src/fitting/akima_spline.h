// Akima spline: an interpolating cubic through points after H. Akima's rule for the slopes,
// optionally after a local smoothing of the ordinates, continued by straight lines outside the
// data. Model 19 of the fitting dialog.
//
// Use: copy the active points into x and y, SplinePruefen(x, y, n) sorts them and refuses
// duplicate abscissae; SplineBerechnen(Sm, n, x, y, spline) builds the pieces; SplineWert(art, k,
// x, spline) evaluates, keeping the piece index k between calls; SplineListe(spline) is the text of
// the coefficient list. Piece k (from 0) holds for X[k] <= x < X[k+1]:
//   y = Y[k] + B[k] d + C[k] d^2 + D[k] d^3,  d = x - X[k].
#pragma once

#include <string>
#include <vector>

namespace quor {

// The working arrays take four added points, so this many data points at most.
constexpr int SplineMaxPunkte = 398;

struct AkimaSpline {
  int SplineN = 0;
  std::vector<double> SplineX; // abscissae, ascending
  std::vector<double> SplineY; // ordinates, smoothed if Sm != 0: the constant term of each piece
  std::vector<double> SplineB; // n values: the last is the slope of the straight continuation
  std::vector<double> SplineC; // n - 1 values
  std::vector<double> SplineD; // n - 1 values
  double SplineGlaettung = 0;  // Sm
  // The piece of the last evaluation through FitFunktionswert; a sweep along a curve starts there.
  mutable int Index = 0;
};

// Sorts the n points by x (bubble sort, y carried along). False if two neighbouring abscissae are
// closer than 1e-30.
bool SplinePruefen(std::vector<double>& x, std::vector<double>& y, int n);

// Smoothing (Sm != 0) and coefficients for the n sorted points. False for fewer than 3 or more
// than SplineMaxPunkte points, or when a coefficient is not a finite number; the spline is then
// left empty.
bool SplineBerechnen(double Sm, int n, const std::vector<double>& x, const std::vector<double>& y,
                     AkimaSpline& sp);

// y (art 0) or y' (art 1) at x; k is the piece to start the search from and is left at the piece
// found. Outside the data both arts give the value of the straight continuation. 0 for an empty
// spline, or where the value is beyond the number range.
double SplineWert(int art, int& k, double x, const AkimaSpline& sp);

// The list "Spline-Parameter anzeigen", lines joined by CR LF, and the viewer's title.
extern const char* const SplineListeTitel; // "  AKIMA-Spline-Parameter"
std::string SplineListe(const AkimaSpline& sp);

} // namespace quor
