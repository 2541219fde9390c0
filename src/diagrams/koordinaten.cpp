#include "diagrams/koordinaten.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <utility>

namespace quor {

namespace {

// Fractions along an axis are held within a million axis lengths.
constexpr double GrenzeAnteil = 1e6;

double Begrenzt(double anteil) {
  if (std::isnan(anteil)) return 0;
  return std::clamp(anteil, -GrenzeAnteil, GrenzeAnteil);
}

double Endlich(double wert) {
  if (std::isnan(wert)) return 0;
  return std::clamp(wert, -DBL_MAX, DBL_MAX);
}

// Fraction of the way from the lower to the upper end of a shown range.
double Anteil(const AchsenBereich& a, double wert) {
  if (a.Logarithmisch) {
    if (!(wert > 0)) return 0;
    return Begrenzt((std::log(wert) - std::log(a.Min)) / (std::log(a.Max) - std::log(a.Min)));
  }
  return Begrenzt((wert - a.Min) / (a.Max - a.Min));
}

double WertBeiAnteil(const AchsenBereich& a, double anteil) {
  if (a.Logarithmisch) {
    const double lnMin = std::log(a.Min);
    return Endlich(std::exp(lnMin + anteil * (std::log(a.Max) - lnMin)));
  }
  return Endlich(a.Min + anteil * (a.Max - a.Min));
}

// Fraction of a pixel run from `anfang` over `laenge`; zero for a run without length.
double PixelAnteil(double pixel, double anfang, double laenge) {
  if (!(laenge > 0)) return 0;
  return Begrenzt((pixel - anfang) / laenge);
}

} // namespace

AchsenBereich Anzeigbar(const AchsenBereich& a) {
  AchsenBereich b = a;
  if (!std::isfinite(b.Min) || !std::isfinite(b.Max)) {
    b.Min = b.Logarithmisch ? 1 : 0;
    b.Max = b.Logarithmisch ? 10 : 1;
    return b;
  }
  if (b.Min > b.Max) std::swap(b.Min, b.Max);
  if (b.Logarithmisch) {
    if (!(b.Max > 0)) return {1, 10, true};
    if (!(b.Min > 0)) b.Min = b.Max / 1000;
    if (b.Min == b.Max) {
      b.Min /= 10;
      b.Max *= 10;
    }
    return b;
  }
  if (b.Min == b.Max) {
    const double rand = b.Min == 0 ? 1 : 0.01 * std::fabs(b.Min);
    b.Min -= rand;
    b.Max += rand;
  }
  return b;
}

Punkt2D PixelZuDaten(const Zeichenflaeche& f, Punkt2D pixel) {
  const PixelRechteck& r = f.Pixel;
  const double ax = PixelAnteil(pixel.X, r.Links, r.Breite);
  const double ay = PixelAnteil(r.Oben + r.Hoehe - pixel.Y, 0, r.Hoehe);
  return {WertBeiAnteil(Anzeigbar(f.X), ax), WertBeiAnteil(Anzeigbar(f.Y), ay)};
}

Punkt2D DatenZuPixel(const Zeichenflaeche& f, Punkt2D daten) {
  const PixelRechteck& r = f.Pixel;
  const double ax = Anteil(Anzeigbar(f.X), daten.X);
  const double ay = Anteil(Anzeigbar(f.Y), daten.Y);
  return {Endlich(r.Links + ax * r.Breite), Endlich(r.Oben + r.Hoehe - ay * r.Hoehe)};
}

std::optional<Zeichenflaeche> ZoomRechteck(const Zeichenflaeche& f, Punkt2D ecke1, Punkt2D ecke2,
                                           double mindestPixel) {
  const PixelRechteck& r = f.Pixel;
  for (const Punkt2D& e : {ecke1, ecke2})
    if (!std::isfinite(e.X) || !std::isfinite(e.Y)) return std::nullopt;
  const auto inX = [&](double x) { return std::clamp(x, r.Links, r.Links + std::max(r.Breite, 0.0)); };
  const auto inY = [&](double y) { return std::clamp(y, r.Oben, r.Oben + std::max(r.Hoehe, 0.0)); };
  const double links = inX(std::min(ecke1.X, ecke2.X));
  const double rechts = inX(std::max(ecke1.X, ecke2.X));
  const double oben = inY(std::min(ecke1.Y, ecke2.Y));
  const double unten = inY(std::max(ecke1.Y, ecke2.Y));
  if (rechts - links < mindestPixel || unten - oben < mindestPixel) return std::nullopt;

  const Punkt2D untenLinks = PixelZuDaten(f, {links, unten});
  const Punkt2D obenRechts = PixelZuDaten(f, {rechts, oben});
  Zeichenflaeche z = f;
  z.X.Min = untenLinks.X;
  z.X.Max = obenRechts.X;
  z.Y.Min = untenLinks.Y;
  z.Y.Max = obenRechts.Y;
  return z;
}

} // namespace quor
