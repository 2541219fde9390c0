#include "fitting/marquardt.h"

#include "fitting/fit_modelle.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr double Inc = 10, Dec = 4, Phi = 1, LambdaStart = 1e-4, Eps = 3e-16, RelTest = 10;
constexpr int IGradGrenze = 250;
constexpr double StDevUngueltig = -9999;

using Vek = std::array<double, FitMaxPar>;
using Dreieck = std::array<double, FitMaxPar*(FitMaxPar + 1) / 2>;
// 1 free, 0 fixed, -1 held at the upper bound, -2 held at the lower bound.
using Maske = std::array<int, FitMaxPar>;

// Position of element (i, j), j <= i, in the packed lower triangle (rows from 0).
constexpr int Pos(int i, int j) {
  return i * (i + 1) / 2 + j;
}

// Cholesky factor in place. A parameter whose mask is not positive takes no part: its column
// becomes 0. False when a free diagonal element is not positive.
bool Cholesky(Dreieck& a, int n, const Maske& maske) {
  for (int j = 0; j < n; ++j) {
    const int q = Pos(j, j);
    for (int i = j; i < n && j > 0; ++i) {
      const int m = Pos(i, j);
      double summe = a[m];
      for (int k = 1; k <= j; ++k)
        summe -= a[m - k] * a[q - k];
      a[m] = summe;
    }
    double s = 0;
    if (maske[j] <= 0) {
      a[q] = 0;
    } else {
      if (!(a[q] > 0)) return false;
      a[q] = std::sqrt(a[q]);
      s = 1 / a[q];
    }
    // The diagonal keeps its root; the elements below it are divided by it.
    for (int i = j + 1; i < n; ++i)
      a[Pos(i, j)] *= s;
  }
  return true;
}

// Forward and back substitution with the factor; a parameter out of the mask gets 0.
void Loesen(const Dreieck& a, int n, const Maske& maske, Vek& x) {
  for (int i = 0; i < n; ++i) {
    const double s = maske[i] > 0 ? 1 / a[Pos(i, i)] : 0;
    double summe = x[i];
    for (int k = 0; k < i; ++k)
      summe -= a[Pos(i, k)] * x[k];
    x[i] = summe * s;
  }
  for (int i = n - 1; i >= 0; --i) {
    const double s = maske[i] > 0 ? 1 / a[Pos(i, i)] : 0;
    double summe = x[i];
    for (int k = i + 1; k < n; ++k)
      summe -= a[Pos(k, i)] * x[k];
    x[i] = summe * s;
  }
}

// The model's value at x for the scaled parameters b. False where the formula is undefined.
bool Modellwert(ProjectState& s, const FitZustand& z, const FitParameter& b, double x, double& y) {
  if (z.FitModell == fitmodell::AkimaSpline) {
    y = SplineWert(0, z.Spline.Index, x, z.Spline);
    return true;
  }
  FitParameter P;
  for (int i = 0; i < FitMaxPar; ++i)
    P[i] = b[i] * z.FitSkala[i];
  const ModellKonstanten k{z.FitModell, LogFaktor(z.FitModell, z.Lg), z.FitTcr, z.FitPcr};
  return ModellWert(s.EOS, k, P, x, y) != ModellStatus::Laufzeitfehler;
}

bool Endlich(const double* v, int anzahl) {
  for (int i = 0; i < anzahl; ++i)
    if (!std::isfinite(v[i])) return false;
  return true;
}

// One run of the method; the steps follow the compact Marquardt algorithm with masks for bounds.
class Lauf {
public:
  Lauf(ProjectState& s, const FitZustand& z, int n, int m, FitParameter& b, FitParameter& stdev, double& S,
       int16_t& fehler)
      : s_(s), z_(z), n_(n), m_(m), b_(b), stdev_(stdev), S_(S), fehler_(fehler), ifnGrenze_(200 * n) {}

  void Ausfuehren();

private:
  enum class Ausgang { Besser, Konvergiert, Grenze };

  void Vorbereiten();
  bool NormalGleichungen();
  void MaskenLoesen();
  Ausgang InnereSchleife();
  double Schrittweite() const;
  void SchrankenPruefen();
  void Nachanalyse();
  void Abtasten();
  void F(const FitParameter& b) { FQSBerechnen(s_, z_, b, S_, ifn_); }

  ProjectState& s_;
  const FitZustand& z_;
  const int n_, m_;
  FitParameter& b_;
  FitParameter& stdev_;
  double& S_;
  int16_t& fehler_;
  const int ifnGrenze_;

  Vek unten_{}, oben_{}, bbest_{}, g_{}, delta_{};
  Maske maske_{};
  Dreieck A_{}, C_{};
  int nfix_ = 0, ifn_ = 0, igrad_ = 0;
  double lambda_ = LambdaStart, fbest_ = 0;
  double r_ = 0; // the residual, kept from point to point
};

void Lauf::Ausfuehren() {
  fehler_ = 0;
  if (n_ < 1 || n_ > FitMaxPar || m_ > static_cast<int>(z_.FitDaten.size())) {
    fehler_ = -1;
    return;
  }
  Vorbereiten();
  F(b_);
  if (ifn_ > ifnGrenze_) {
    fehler_ = -1;
    return;
  }
  for (;;) {
    lambda_ = lambda_ * Dec / Inc;
    fbest_ = S_;
    // A sum beyond the number range ends the run like a limit, with the last accepted parameters.
    if (!NormalGleichungen() || ++igrad_ > IGradGrenze) {
      fehler_ = -1;
      return;
    }
    C_ = A_;
    for (int i = 0; i < n_; ++i)
      bbest_[i] = b_[i];
    MaskenLoesen();
    const Ausgang a = InnereSchleife();
    if (a == Ausgang::Grenze) return;
    if (a == Ausgang::Konvergiert) {
      Nachanalyse();
      return;
    }
    SchrankenPruefen();
  }
}

// Bounds and masks. A fixed parameter keeps its value whatever the bounds say.
void Lauf::Vorbereiten() {
  nfix_ = n_;
  for (int i = 0; i < n_; ++i) {
    const ParameterGrenzen gr = ParameterGrenzenVon(z_.FitModell, i);
    unten_[i] = gr.Unten;
    oben_[i] = gr.Oben;
    maske_[i] = z_.FitFix[i] ? 0 : 1;
    if (!z_.FitFix[i]) {
      --nfix_;
      if (b_[i] < unten_[i]) {
        b_[i] = unten_[i];
        maske_[i] = -2;
      }
      if (b_[i] > oben_[i]) {
        if (maske_[i] == -2) { // crossed bounds
          maske_[i] = 0;
          ++nfix_;
        } else {
          b_[i] = oben_[i];
          maske_[i] = -1;
        }
      }
    }
    bbest_[i] = b_[i];
  }
}

// Gradient and matrix over the array elements 0 .. m-1 that are active: with inactive points
// before them, the last elements of the array stay out, though the sum of squares has them.
bool Lauf::NormalGleichungen() {
  A_.fill(0);
  g_.fill(0);
  FitParameter x{};
  for (int k = 0; k < m_; ++k) {
    if (z_.FitDaten[k].Flag == FlagInaktiv) continue;
    JacobiZeile(s_, z_, n_, k, b_, r_, x);
    for (int j = 0; j < n_; ++j) {
      g_[j] += r_ * x[j];
      for (int i = 0; i <= j; ++i)
        A_[Pos(j, i)] += x[j] * x[i];
    }
  }
  return Endlich(g_.data(), n_) && Endlich(A_.data(), Pos(n_ - 1, n_ - 1) + 1);
}

// A parameter held at a bound is released when the gradient points into the free range.
void Lauf::MaskenLoesen() {
  for (int i = 0; i < n_; ++i)
    if (maske_[i] < 0) {
      if ((maske_[i] + 1.5) * g_[i] <= 0)
        g_[i] = 0;
      else
        maske_[i] = 1;
    }
}

Lauf::Ausgang Lauf::InnereSchleife() {
  for (;;) {
    for (int i = 0; i < n_; ++i) {
      for (int j = 0; j < i; ++j)
        A_[Pos(i, j)] = C_[Pos(i, j)];
      A_[Pos(i, i)] = (1 + lambda_) * C_[Pos(i, i)] + Phi * lambda_;
      delta_[i] = -g_[i];
    }
    if (Cholesky(A_, n_, maske_)) {
      Loesen(A_, n_, maske_, delta_);
      double gtp = 0;
      for (int i = 0; i < n_; ++i) {
        if (maske_[i] != 1) delta_[i] = 0;
        gtp += g_[i] * delta_[i];
      }
      if (!(gtp > 0)) {
        const double schritt = Schrittweite();
        int eqcount = 0;
        for (int i = 0; i < n_; ++i)
          if (maske_[i] != 0) {
            b_[i] = bbest_[i] + schritt * delta_[i];
            if (b_[i] + RelTest == bbest_[i] + RelTest) {
              b_[i] = bbest_[i];
              ++eqcount;
            }
          }
        if (eqcount == n_ - nfix_) return Ausgang::Konvergiert;
        F(b_);
        if (ifn_ > ifnGrenze_) {
          fehler_ = -1;
          return Ausgang::Grenze;
        }
        if (S_ < fbest_) return Ausgang::Besser;
      }
    }
    lambda_ *= Inc;
    if (!(lambda_ > 0)) lambda_ = Eps;
  }
}

// The longest step up to 1 that keeps every parameter within its bounds.
double Lauf::Schrittweite() const {
  double schritt = 1;
  for (int i = 0; i < n_; ++i) {
    if (delta_[i] == 0) continue;
    const double t = delta_[i] < 0 ? (unten_[i] - bbest_[i]) / delta_[i] : (oben_[i] - bbest_[i]) / delta_[i];
    if (t < schritt) schritt = t;
  }
  return schritt;
}

void Lauf::SchrankenPruefen() {
  for (int i = 0; i < n_; ++i) {
    if (maske_[i] == 0) continue;
    if (b_[i] - unten_[i] <= (std::fabs(unten_[i]) + Eps) * Eps) maske_[i] = -2;
    if (oben_[i] - b_[i] <= (std::fabs(oben_[i]) + Eps) * Eps) maske_[i] = -1;
  }
}

// Standard deviations from the inverse of the matrix without lambda, then the sampling around the
// optimum.
void Lauf::Nachanalyse() {
  const int frei = n_ - nfix_;
  bool gueltig = m_ > frei;
  if (gueltig) {
    const double sigma2 = fbest_ / (m_ - n_ + nfix_);
    A_ = C_;
    gueltig = Cholesky(A_, n_, maske_);
    for (int i = 0; i < n_ && gueltig; ++i) {
      Vek e{};
      e[i] = 1;
      Loesen(A_, n_, maske_, e);
      const double v = std::fabs(sigma2) * e[i];
      stdev_[i] = (v >= 0 && std::isfinite(v)) ? std::sqrt(v) : StDevUngueltig;
    }
  }
  if (!gueltig)
    for (int i = 0; i < n_; ++i)
      stdev_[i] = StDevUngueltig;
  Abtasten();
}

// One step to each side of every parameter that is not fixed, inside its bounds. The slope and
// curvature they would give are of no further use; a lower sum found on the way moves the parameter,
// and S stays at the value of the last evaluation.
void Lauf::Abtasten() {
  const double e = 10 * std::sqrt(Eps);
  for (int i = 0; i < n_; ++i) {
    if (maske_[i] == 0) continue;
    const double h = (std::fabs(bbest_[i]) + e) * e;
    b_[i] = bbest_[i] - h;
    if (b_[i] >= unten_[i]) {
      F(b_);
      if (S_ < fbest_) bbest_[i] = b_[i];
    }
    b_[i] = bbest_[i] + h;
    if (b_[i] <= oben_[i]) {
      F(b_);
      if (S_ < fbest_) bbest_[i] = b_[i];
    }
    b_[i] = bbest_[i];
  }
}

} // namespace

ParameterGrenzen ParameterGrenzenVon(int16_t modell, int i) {
  if (modell == fitmodell::Reserviert2) return {-1e20, 1e20};
  if (i == 0) return {-5000, 5000};
  if (i == 3) return {-10000, 10000};
  return {-2000, 2000};
}

void ResiduumBerechnen(ProjectState& s, const FitZustand& z, int i, const FitParameter& b, double& r) {
  const FitPunkt& p = z.FitDaten[i];
  double yRechnung = 0;
  if (!Modellwert(s, z, b, p.x, yRechnung)) return;
  const double y = p.y;
  const double neu = z.FitLog ? std::log(yRechnung) - std::log(y) : yRechnung - y;
  if (std::isfinite(neu)) r = neu;
}

void FQSBerechnen(ProjectState& s, const FitZustand& z, const FitParameter& b, double& S, int& ifn) {
  S = 0;
  ++ifn;
  double r = 0;
  const int anzahl = std::min<int>(z.FitAnzahl, static_cast<int>(z.FitDaten.size()));
  for (int i = 0; i < anzahl; ++i) {
    if (z.FitDaten[i].Flag == FlagInaktiv) continue;
    ResiduumBerechnen(s, z, i, b, r);
    const double summe = S + r * r;
    if (std::isfinite(summe)) S = summe;
  }
}

// r2 starts at 0 on every call and is kept from one parameter to the next, as r is by the caller.
void JacobiZeile(ProjectState& s, const FitZustand& z, int n, int i, FitParameter& b, double& r,
                 FitParameter& x) {
  double r2 = 0;
  for (int j = 0; j < n; ++j) {
    const double t = b[j];
    const double h = (std::fabs(t) + 1.7e-7) * 1.7e-7;
    ResiduumBerechnen(s, z, i, b, r);
    b[j] = t + h;
    ResiduumBerechnen(s, z, i, b, r2);
    x[j] = (r2 - r) / h;
    b[j] = t;
  }
}

void MarquardtFit(ProjectState& s, const FitZustand& z, int n, int m, FitParameter& b, FitParameter& stdev,
                  double& S, int16_t& fehler) {
  Lauf(s, z, n, m, b, stdev, S, fehler).Ausfuehren();
}

} // namespace quor
