// The dressing of a 3D surface: lines along the grid's rows and columns, lines of equal height traced
// through the cells, the critical point, and the picture handed to the chart.
#include "core/zahlformat.h"
#include "diagrams/diagramm3d_art.h"
#include "diagrams/graph3d_intern.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace quor {

namespace {

constexpr RGBFarbe ZeilenFarbe{200, 0, 0}, SpaltenFarbe{0, 0, 200}, HoehenFarbe{0, 0, 0};

// `anzahl` indices spread evenly over 0 .. letzter, both ends included.
std::vector<std::size_t> Verteilt(int anzahl, std::size_t letzter) {
  std::vector<std::size_t> k;
  const int n = std::min<int>(anzahl, static_cast<int>(letzter) + 1);
  if (n <= 0) return k;
  if (n == 1) return {letzter / 2};
  for (int m = 0; m < n; ++m)
    k.push_back(static_cast<std::size_t>(std::lround(static_cast<double>(m) * letzter / (n - 1))));
  return k;
}

int Halbiert(int anzahl, bool halbe) {
  return halbe ? (anzahl + 1) / 2 : anzahl;
}

// A line through the grid points `punkt(k)` for k = 0 .. n-1; an invalid point ends a piece.
template <typename Punkt>
void GitterLinie(std::vector<Linie3D>& linien, const std::string& name, RGBFarbe farbe, std::size_t n,
                 Punkt punkt) {
  Linie3D stueck{name, {}, farbe};
  for (std::size_t k = 0; k <= n; ++k) {
    Punkt3D p;
    if (k < n && punkt(k, p)) {
      stueck.Punkte.push_back(p);
      continue;
    }
    if (stueck.Punkte.size() >= 2) linien.push_back(stueck);
    stueck.Punkte.clear();
  }
}

// Lines of equal height by marching squares: each cell with four valid corners gives the pieces
// where the level crosses its edges; pieces that share an edge are joined into one line.
class Hoehenlinien {
public:
  explicit Hoehenlinien(const Gitter3D& g) : g_(g), nx_(g.X.size()), ny_(g.Y.size()) {}

  void Ebene(double z, const std::string& name, std::vector<Linie3D>& linien) {
    stuecke_.clear();
    for (std::size_t j = 0; j + 1 < ny_; ++j)
      for (std::size_t i = 0; i + 1 < nx_; ++i)
        Zelle(j, i, z);
    Verbinden(z, name, linien);
  }

private:
  // Edge ids: the edge from (j, i) to the right is 2 k, the one upwards 2 k + 1, k = j nx + i.
  std::size_t Rechts(std::size_t j, std::size_t i) const { return 2 * (j * nx_ + i); }
  std::size_t Hoch(std::size_t j, std::size_t i) const { return 2 * (j * nx_ + i) + 1; }

  void Zelle(std::size_t j, std::size_t i, double z) {
    const auto& G = g_.Gueltig;
    if (!G[j][i] || !G[j][i + 1] || !G[j + 1][i] || !G[j + 1][i + 1]) return;
    // The corners counter-clockwise from (j, i) and the edges after each corner.
    const double h[4] = {g_.Z[j][i], g_.Z[j][i + 1], g_.Z[j + 1][i + 1], g_.Z[j + 1][i]};
    const std::size_t kante[4] = {Rechts(j, i), Hoch(j, i + 1), Rechts(j + 1, i), Hoch(j, i)};
    std::vector<std::size_t> geschnitten;
    for (int k = 0; k < 4; ++k)
      if ((h[k] < z) != (h[(k + 1) % 4] < z)) geschnitten.push_back(kante[k]);
    if (geschnitten.size() == 2) {
      stuecke_.push_back({geschnitten[0], geschnitten[1]});
    } else if (geschnitten.size() == 4) {
      // A saddle: the mean height decides which corners the lines part.
      const bool mitteOben = (h[0] + h[1] + h[2] + h[3]) / 4 >= z;
      const bool ersteOben = h[0] >= z;
      if (mitteOben == ersteOben) {
        stuecke_.push_back({geschnitten[0], geschnitten[1]});
        stuecke_.push_back({geschnitten[2], geschnitten[3]});
      } else {
        stuecke_.push_back({geschnitten[0], geschnitten[3]});
        stuecke_.push_back({geschnitten[1], geschnitten[2]});
      }
    }
  }

  Punkt3D AufKante(std::size_t kante, double z) const {
    const std::size_t k = kante / 2, j = k / nx_, i = k % nx_;
    const std::size_t j2 = kante % 2 ? j + 1 : j, i2 = kante % 2 ? i : i + 1;
    const double za = g_.Z[j][i], zb = g_.Z[j2][i2];
    const double t = zb != za ? (z - za) / (zb - za) : 0.5;
    return {g_.X[i] + t * (g_.X[i2] - g_.X[i]), g_.Y[j] + t * (g_.Y[j2] - g_.Y[j]), z};
  }

  void Verbinden(double z, const std::string& name, std::vector<Linie3D>& linien) {
    std::multimap<std::size_t, std::size_t> anKante; // edge -> pieces touching it
    for (std::size_t s = 0; s < stuecke_.size(); ++s) {
      anKante.insert({stuecke_[s][0], s});
      anKante.insert({stuecke_[s][1], s});
    }
    std::vector<bool> benutzt(stuecke_.size(), false);
    auto naechstes = [&](std::size_t kante) -> long {
      auto [von, bis] = anKante.equal_range(kante);
      for (auto it = von; it != bis; ++it)
        if (!benutzt[it->second]) return static_cast<long>(it->second);
      return -1;
    };
    // Open lines start at an edge that only one piece touches; closed ones anywhere.
    std::vector<std::size_t> reihenfolge;
    for (const auto& [kante, s] : anKante)
      if (anKante.count(kante) == 1) reihenfolge.push_back(s);
    for (std::size_t s = 0; s < stuecke_.size(); ++s)
      reihenfolge.push_back(s);
    for (const std::size_t start : reihenfolge) {
      if (benutzt[start]) continue;
      // Begin at the end of the piece whose edge no other piece shares.
      std::size_t kante = anKante.count(stuecke_[start][0]) == 1 ? stuecke_[start][0] : stuecke_[start][1];
      Linie3D linie{name, {AufKante(kante, z)}, HoehenFarbe};
      for (long s = static_cast<long>(start); s >= 0; s = naechstes(kante)) {
        const auto& st = stuecke_[static_cast<std::size_t>(s)];
        benutzt[static_cast<std::size_t>(s)] = true;
        kante = st[0] == kante ? st[1] : st[0];
        linie.Punkte.push_back(AufKante(kante, z));
      }
      linien.push_back(std::move(linie));
    }
  }

  const Gitter3D& g_;
  std::size_t nx_, ny_;
  std::vector<std::array<std::size_t, 2>> stuecke_;
};

// The lowest and highest valid height of the grid; false without a valid cell.
bool HoehenBereich(const Gitter3D& g, double& lo, double& hi) {
  bool da = false;
  for (std::size_t j = 0; j < g.Z.size(); ++j)
    for (std::size_t i = 0; i < g.Z[j].size(); ++i) {
      if (!g.Gueltig[j][i]) continue;
      const double z = g.Z[j][i];
      lo = da ? std::min(lo, z) : z;
      hi = da ? std::max(hi, z) : z;
      da = true;
    }
  return da;
}

std::string Beschriftet(const std::string& achse, double wert) {
  const std::size_t schraeg = achse.find(" /");
  return achse.substr(0, schraeg) + " = " + SingleText(static_cast<float>(wert));
}

bool Innen(double x, double von, double bis) {
  return x >= std::min(von, bis) && x <= std::max(von, bis);
}

// The cell of the grid that holds `x` on an axis of rising positions: its lower index.
std::size_t ZellVon(const std::vector<double>& achse, double x) {
  const auto oben = std::upper_bound(achse.begin(), achse.end(), x);
  const auto k = static_cast<std::size_t>(std::max<std::ptrdiff_t>(oben - achse.begin() - 1, 0));
  return std::min(k, achse.size() - 2);
}

// The height of the surface at (x, y) between the four corners of its cell; NaN when a corner has no
// value or the grid doesn't hold the point.
double HoeheBei(const Gitter3D& g, double x, double y) {
  if (g.X.size() < 2 || g.Y.size() < 2 || !Innen(x, g.X.front(), g.X.back()) ||
      !Innen(y, g.Y.front(), g.Y.back()))
    return std::nan("");
  const std::size_t i = ZellVon(g.X, x), j = ZellVon(g.Y, y);
  if (!g.Gueltig[j][i] || !g.Gueltig[j][i + 1] || !g.Gueltig[j + 1][i] || !g.Gueltig[j + 1][i + 1])
    return std::nan("");
  const double u = (x - g.X[i]) / (g.X[i + 1] - g.X[i]), w = (y - g.Y[j]) / (g.Y[j + 1] - g.Y[j]);
  return (1 - w) * ((1 - u) * g.Z[j][i] + u * g.Z[j][i + 1]) +
         w * ((1 - u) * g.Z[j + 1][i] + u * g.Z[j + 1][i + 1]);
}

// The Z axis of the picture: a preset limit follows the data; a flat surface gets some height.
Achse3D ZAchse(const Gitter3D& g, const Bereich3D& b, const std::string& titel) {
  Achse3D a{b.zMin, b.zMax, titel};
  double lo = 0, hi = 0;
  if (HoehenBereich(g, lo, hi)) {
    if (graph3d::IstVorgabe(b.zMin, -Z3DVorgabe)) a.Min = lo;
    if (graph3d::IstVorgabe(b.zMax, Z3DVorgabe)) a.Max = hi;
  }
  if (!(a.Max > a.Min)) {
    const double rand = a.Min != 0 ? std::fabs(a.Min) * 0.01 : 1;
    a.Min -= rand, a.Max += rand;
  }
  return a;
}

} // namespace

void frmGraph3D::KritischerPunkt(bool an) {
  kritischerPunkt_ = an;
  Ausstatten();
  ++stand_;
}

void frmGraph3D::Isolinien(int anzahlZ, int anzahlT, int anzahlV, bool halbeT, bool halbeV) {
  isoAnzahl_ = {std::max(anzahlZ, 0), std::max(anzahlT, 0), std::max(anzahlV, 0)};
  halbeT_ = halbeT, halbeV_ = halbeV;
  Ausstatten();
  ++stand_;
}

void frmGraph3D::Ausstatten() {
  linien_.clear();
  marken_.clear();
  const Gitter3D& g = gitter_;
  if (g.X.empty() || g.Y.empty()) return;
  const Texte3D t = TexteVon(art_, s_.Einheiten);
  for (const std::size_t j : Verteilt(Halbiert(isoAnzahl_[1], halbeT_), g.Y.size() - 1))
    GitterLinie(linien_, Beschriftet(t.Y, g.Y[j]), ZeilenFarbe, g.X.size(), [&](std::size_t i, Punkt3D& p) {
      p = {g.X[i], g.Y[j], g.Z[j][i]};
      return bool(g.Gueltig[j][i]);
    });
  for (const std::size_t i : Verteilt(Halbiert(isoAnzahl_[2], halbeV_), g.X.size() - 1))
    GitterLinie(linien_, Beschriftet(t.X, g.X[i]), SpaltenFarbe, g.Y.size(), [&](std::size_t j, Punkt3D& p) {
      p = {g.X[i], g.Y[j], g.Z[j][i]};
      return bool(g.Gueltig[j][i]);
    });
  double lo = 0, hi = 0;
  if (isoAnzahl_[0] > 0 && HoehenBereich(g, lo, hi) && hi > lo) {
    Hoehenlinien h(g);
    for (int k = 1; k <= isoAnzahl_[0]; ++k) {
      const double z = lo + k * (hi - lo) / (isoAnzahl_[0] + 1);
      h.Ebene(z, Beschriftet(t.Z, z), linien_);
    }
  }
  if (kritischerPunkt_) KritischenPunktSetzen();
}

// The critical point in the surface's coordinates, when it lies inside the axes.
void frmGraph3D::KritischenPunktSetzen() {
  const StoffGruppe& st = s_.Stoff;
  const EinheitenGruppe& e = s_.Einheiten;
  if (!(st.TKrit > 1e-6) || !(st.pKrit > 1e-6)) return;
  const double Tc = st.TKrit * e.TFaktor, pc = st.pKrit * e.pFaktor;
  const double vKrit = s_.EOS.vKritEOS > 0    ? s_.EOS.vKritEOS
                       : st.rhoKritExp > 1e-6 ? st.MolMasse / st.rhoKritExp
                                              : 0;
  const double vc = vKrit * e.VolumenFaktor;
  const bool pvT = art_ <= art3d::Temperatur;
  if (pvT && !(vc > 0)) return;
  Punkt3D ort;
  if (art_ == art3d::Druck) {
    ort = {vc, Tc, pc};
  } else if (art_ == art3d::Volumen) {
    ort = {pc, Tc, vc};
  } else if (art_ == art3d::Temperatur) {
    ort = {vc, pc, Tc};
  } else {
    // A function's value diverges there (cp) or lies between grid points: the point sits on the
    // surface as drawn.
    ort = {pc, Tc, HoeheBei(gitter_, pc, Tc)};
  }
  const Bereich3D& b = bereich_;
  if (!std::isfinite(ort.Z) || !Innen(ort.X, b.xMin, b.xMax) || !Innen(ort.Y, b.yMin, b.yMax)) return;
  if (pvT && !Innen(ort.Z, b.zMin, b.zMax)) return;
  marken_.push_back({"CrP", ort, {255, 0, 0}});
}

Flaeche3D frmGraph3D::Bild() const {
  Flaeche3D f;
  const Texte3D t = TexteVon(art_, s_.Einheiten);
  const Gitter3D& g = gitter_;
  f.Titel = t.Titel;
  f.X = g.X;
  f.Y = g.Y;
  f.AchseX = {bereich_.xMin, bereich_.xMax, t.X};
  f.AchseY = {bereich_.yMin, bereich_.yMax, t.Y};
  f.AchseZ = ZAchse(g, bereich_, t.Z);
  // The p(v, T) surface is seen from the vapour side, where its two-phase plane and the loops lie open.
  if (art_ == art3d::Druck) f.Ansicht.Horizontal = -50;
  if (ansicht_) f.Ansicht = *ansicht_;
  // An invalid cell keeps a finite height; the mask tells the chart to leave it out.
  f.Z.reserve(g.X.size() * g.Y.size());
  f.Gueltig.reserve(g.X.size() * g.Y.size());
  for (std::size_t j = 0; j < g.Z.size(); ++j)
    for (std::size_t i = 0; i < g.Z[j].size(); ++i) {
      const bool gueltig = g.Gueltig[j][i];
      f.Z.push_back(gueltig ? g.Z[j][i] : f.AchseZ.Min);
      f.Gueltig.push_back(gueltig);
    }
  f.Anzeige = Anzeige;
  f.Linien = linien_;
  f.Punkte = marken_;
  return f;
}

} // namespace quor
