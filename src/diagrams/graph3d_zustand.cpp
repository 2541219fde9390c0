// The 3D page's state as a whole: what a diagram file saves and puts back.
#include "diagrams/graph3d.h"

namespace quor {

Graph3DZustand frmGraph3D::Zustand(const Ansicht3D& ansicht) const {
  Graph3DZustand z;
  z.Art = art_;
  z.Reales = reales_;
  z.Satz = satz_;
  z.Bereich = bereich_;
  z.NX = nx_, z.NY = ny_;
  z.Gitter = gitter_;
  z.Anzeige = Anzeige;
  z.KritischerPunkt = kritischerPunkt_;
  z.IsoAnzahl = isoAnzahl_;
  z.HalbeT = halbeT_, z.HalbeV = halbeV_;
  z.Ansicht = ansicht;
  return z;
}

void frmGraph3D::ZustandSetzen(const Graph3DZustand& z) {
  art_ = z.Art;
  reales_ = z.Reales;
  satz_ = z.Satz;
  bereich_ = z.Bereich;
  nx_ = z.NX, ny_ = z.NY;
  gitter_ = z.Gitter;
  Anzeige = z.Anzeige;
  kritischerPunkt_ = z.KritischerPunkt;
  isoAnzahl_ = z.IsoAnzahl;
  halbeT_ = z.HalbeT, halbeV_ = z.HalbeV;
  ansicht_ = z.Ansicht;
  // The limits of the grid are those of the file: a later range input starts from them.
  ersteZeichnung_ = false;
  Ausstatten();
  ++stand_;
}

} // namespace quor
