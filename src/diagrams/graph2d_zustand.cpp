// The 2D page's state as a whole: what a diagram file saves and puts back.
#include "diagrams/graph2d.h"

namespace quor {

Graph2DZustand frmQGraph2D::Zustand() const {
  Graph2DZustand z;
  z.Auftrag = auftrag_;
  for (int i = 0; i < MaxKurven; ++i)
    if (belegt_[static_cast<std::size_t>(i)]) z.Kurven.emplace_back(i, kurven_[static_cast<std::size_t>(i)]);
  z.PunktSaetze = punktSaetze_;
  z.Marken = marken_;
  z.Texte = texte_;
  z.FarbVorwahl = farbVorwahl_;
  z.Seitenfarbe = seitenfarbe_;
  z.Format = format_;
  z.Gitter = gitter_;
  z.Legende = legende_;
  z.Gekippt = gekippt_;
  z.Bereich = {xmin_, xmax_, ymin_, ymax_};
  z.Einstellung = einstellung_;
  return z;
}

void frmQGraph2D::ZustandSetzen(const Graph2DZustand& z) {
  auftrag_ = z.Auftrag;
  belegt_.fill(false);
  kurven_ = {};
  for (const auto& [slot, kurve] : z.Kurven) {
    if (slot < 0 || slot >= MaxKurven) continue;
    belegt_[static_cast<std::size_t>(slot)] = true;
    kurven_[static_cast<std::size_t>(slot)] = kurve;
  }
  punktSaetze_ = z.PunktSaetze;
  if (punktSaetze_.size() > static_cast<std::size_t>(MaxPunktSaetze)) punktSaetze_.resize(MaxPunktSaetze);
  marken_ = z.Marken;
  texte_ = z.Texte;
  farbVorwahl_ = z.FarbVorwahl;
  seitenfarbe_ = z.Seitenfarbe;
  format_ = z.Format;
  gitter_ = z.Gitter;
  legende_ = z.Legende;
  gekippt_ = z.Gekippt;
  xmin_ = z.Bereich[0], xmax_ = z.Bereich[1], ymin_ = z.Bereich[2], ymax_ = z.Bereich[3];
  einstellung_ = z.Einstellung;
  Geaendert();
}

void frmQGraph2D::SeitenfarbeSetzen(RGBFarbe f) {
  seitenfarbe_ = f;
  Geaendert();
}

void frmQGraph2D::AchsenStil(int achse, const std::string& format, bool gitter) {
  if (achse < 0 || achse > 1) return;
  format_[static_cast<std::size_t>(achse)] = format;
  gitter_[static_cast<std::size_t>(achse)] = gitter;
  Geaendert();
}

} // namespace quor
