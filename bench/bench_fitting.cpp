// The fitting engine: a Frost-Kalkwarf fit of 50 vapour pressures from the model's proposed start,
// and the Akima spline through the most points its arrays take.
#include "core/project_state.h"
#include "fitting/akima_spline.h"
#include "fitting/fit_lauf.h"
#include "fitting/fit_modelle.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

using namespace quor;

// 50 water-like vapour pressures from 290 to 440 K (ln form: A 54.6, B -6500, C 260, D -5.5, E 4),
// with relative noise of a fixed seed.
std::vector<FitPunkt> FrostKalkwarfDaten(double rauschen) {
  std::mt19937 gen(4711);
  std::vector<FitPunkt> p;
  for (int i = 0; i < 50; ++i) {
    const double T = 290 + 150.0 * i / 49;
    double druck = 0;
    FrostKalkwarfDruck(54.6, -6500, 260, -5.5, 4, 1, T, druck);
    const double u = gen() / 2147483648.0 - 1.0;
    p.push_back({static_cast<float>(T), static_cast<float>(druck * (1 + rauschen * u)), FlagAktiv});
  }
  return p;
}

// The ln form fitted on ln p, as the measured-data editor sends vapour pressures, with Tcr given (it
// enters the start value of D). Argument: the noise in units of 0.05 %. At 0.05 % the fit converges;
// at 0.5 % the five parameters are barely determined and the run ends at the limit of 250 gradients.
void BM_FrostKalkwarfFit50(benchmark::State& state) {
  FitZustand vorlage;
  FitDatenSetzen(vorlage, FrostKalkwarfDaten(0.0005 * state.range(0)), QuelleTpRhoEditor);
  ModellWaehlen(vorlage, fitmodell::FrostKalkwarf, false, 647.1, 22064);
  vorlage.FitLog = true;
  ProjectState s;
  int16_t fehler = 0;
  for (auto _ : state) {
    FitZustand z = vorlage;
    if (!FitStarten(s, z)) {
      state.SkipWithError("fit refused");
      break;
    }
    fehler = z.fehler;
    benchmark::DoNotOptimize(z.FitPar);
  }
  state.counters["Grenze"] = fehler != 0;
}
BENCHMARK(BM_FrostKalkwarfFit50)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);

std::vector<double> SplineX() {
  std::vector<double> x;
  for (int i = 0; i < SplineMaxPunkte; ++i)
    x.push_back(i + 0.3 * std::sin(i));
  return x;
}

// Sorting, the test of the abscissae and the coefficients, with smoothing (Sm 2) or without.
void BM_AkimaSpline398(benchmark::State& state) {
  const std::vector<double> x0 = SplineX();
  std::vector<double> y0;
  for (double x : x0)
    y0.push_back(std::sin(x / 20) + 0.01 * std::cos(7 * x));
  AkimaSpline sp;
  for (auto _ : state) {
    std::vector<double> x = x0, y = y0;
    SplinePruefen(x, y, SplineMaxPunkte);
    SplineBerechnen(static_cast<double>(state.range(0)), SplineMaxPunkte, x, y, sp);
    benchmark::DoNotOptimize(sp.SplineD.data());
  }
}
BENCHMARK(BM_AkimaSpline398)->Arg(0)->Arg(2)->Unit(benchmark::kMicrosecond);

// The whole run of model 19 through the fitting's start: the active points copied, the spline built
// and its sum of squares formed.
void BM_AkimaSplineFit398(benchmark::State& state) {
  std::vector<FitPunkt> p;
  for (double x : SplineX())
    p.push_back({static_cast<float>(x), static_cast<float>(std::sin(x / 20)), FlagAktiv});
  FitZustand vorlage;
  FitDatenSetzen(vorlage, p, QuelleXYEditor);
  ModellWaehlen(vorlage, fitmodell::AkimaSpline, false, 0, 0);
  ProjectState s;
  for (auto _ : state) {
    FitZustand z = vorlage;
    if (!FitStarten(s, z)) {
      state.SkipWithError("spline refused");
      break;
    }
    benchmark::DoNotOptimize(z.FQS);
  }
}
BENCHMARK(BM_AkimaSplineFit398)->Unit(benchmark::kMicrosecond);

// A sweep of 1000 values along the spline, the piece index kept from one call to the next.
void BM_AkimaSplineKurve(benchmark::State& state) {
  std::vector<double> x = SplineX(), y;
  for (double v : x)
    y.push_back(std::sin(v / 20));
  AkimaSpline sp;
  SplineBerechnen(0, SplineMaxPunkte, x, y, sp);
  for (auto _ : state) {
    int k = 0;
    double summe = 0;
    for (int i = 0; i < 1000; ++i)
      summe += SplineWert(0, k, -5 + 0.41 * i, sp);
    benchmark::DoNotOptimize(summe);
  }
}
BENCHMARK(BM_AkimaSplineKurve)->Unit(benchmark::kMicrosecond);

} // namespace
