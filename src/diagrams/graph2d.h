// Logic of the 2D diagram page frmQGraph2D: the request of the diagram with its axes, up to 24
// curves and 12 point sets, the one routine through which every new curve passes (cmdDraw), zoom and
// its reset, swapped axes, the delete commands, the legend, curves and points from other dialogs,
// and what the status line says under the mouse. The page's picture is a Diagramm2D that the view
// hands to the chart adapter; the view forwards the user's actions and shows the picture anew after
// each (`Stand` counts the changes).
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_auftrag.h"
#include "diagrams/diagramm_bild.h"
#include "diagrams/katalog.h"
#include "dienste/oberflaeche.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quor {

constexpr int MaxKurven = 24;
constexpr int MaxPunktSaetze = 12;

// One curve of the page: its points as the curve engine gave them (element 0 the head), the
// request and parameters it was computed with, and its look.
struct Graph2DKurve {
  Kurvenpunkte Punkte;
  DiagrammAuftrag Auftrag;
  double T = 0, p = 0, v = 0; // parameters, engine units
  std::string Legende;
  RGBFarbe Farbe{0, 0, 255};
  LinienArt Linie = LinienArt::Durchgezogen;
  double Breite = 1.5;
  PunktSymbol Symbol = PunktSymbol::Keines;
  bool ParameterBeschriften = false; // the parameter's value written at the curve's end
  bool Konnode = false;              // a tie line: every point of it is a two-phase state
};

// The message when a page holds its 12 point sets.
std::string PunktSaetzeVoll();

// Where a point set comes from.
enum class PunktQuelle { XYEditor, ExpDaten, Fitting };

// "   vom X-Y-Editor", "   vom Editor für exp. Daten ", "   vom Fitting"
const char* QuellenText(PunktQuelle q);

struct Graph2DPunktSatz {
  std::vector<double> X, Y; // displayed units
  std::string Legende;
  PunktQuelle Quelle = PunktQuelle::XYEditor;
  RGBFarbe Farbe{255, 0, 0};
  PunktSymbol Symbol = PunktSymbol::Kreis;
};

// A mark of the insert menu: a line across the diagram at a value (or a segment of two points)
// with its label, held beyond the curve slots; or a point mark such as a critical point.
struct Graph2DMarke {
  std::string Art; // what it marks: "T", "T(cr)", "v = b", "KritEx", "KritCalc", ...
  Reihe2D Linie;   // empty X for a point mark
  std::optional<Beschriftung2D> Text;
  std::optional<Marke2D> Punkt;
};

// The outcome of cmdDraw.
enum class ZeichenErgebnis {
  Gezeichnet, // the curve stands in its slot
  KeinPlatz,  // all 24 slots in use
  Ausserhalb, // no point inside the axes: the diagram is unchanged
  Fehler,     // a result code of the curve engine or a fault: nothing drawn
  KeinePunkte // the curve has no point
};

// Everything the page shows and keeps, as a diagram file holds it: curves with their slots, point
// sets, marks, labels, legend, swap state, page colour, the colour of the next curve, and the current
// and last-set axis ranges (displayed units, as shown: exchanged when swapped).
struct Graph2DZustand {
  DiagrammAuftrag Auftrag;
  std::vector<std::pair<int, Graph2DKurve>> Kurven; // slot (0 to MaxKurven - 1) and curve
  std::vector<Graph2DPunktSatz> PunktSaetze;
  std::vector<Graph2DMarke> Marken;
  std::vector<Beschriftung2D> Texte;
  RGBFarbe FarbVorwahl{0, 0, 255};
  RGBFarbe Seitenfarbe{255, 255, 255};
  // Tick label patterns ("0.000", "0.0E+00"; empty: default text) and grids of the X and Y axis as shown.
  std::array<std::string, 2> Format;
  std::array<bool, 2> Gitter{false, false};
  bool Legende = true;
  bool Gekippt = false;
  std::array<double, 4> Bereich{0, 1, 0, 1};
  std::array<double, 4> Einstellung{0, 1, 0, 1};
};

// What the status line says for a mouse position in data coordinates.
struct MausInfo {
  std::string Koordinaten; // "X = ..., Y = ..." in displayed units with the axis texts' units
  // On a curve: its parameter and what its point's coordinates give of T, p, v ("T = 250 K, p = ... kPa,
  // v = ... m^3/kmol", with " (V-L)" on a tie line); else empty.
  std::string Zustand;
};

// The parameter of a curve of family `klasse` as it is written on the diagram: "T = 150.00 K",
// "p = 1000.000 kPa", "v = 0.100000 m^3/kmol" (engine units); empty for the other families.
std::string ParameterAngabe(int16_t klasse, double T, double p, double v);

// The legend text of a curve of request `a` with its parameters (engine units); `konnode` for the
// tie line of the state.
std::string KurvenLegende(const ProjectState& s, const DiagrammAuftrag& a, double T, double p, double v,
                          bool konnode);

class frmQGraph2D {
public:
  frmQGraph2D(ProjectState& s, ui::Oberflaeche& ui);

  // A new diagram for the request `a` (texts and ranges from the catalogue): clears everything,
  // sets the axes and the title. The ranges become the last setting that zoom reset returns to.
  void Neu(const DiagrammAuftrag& a);
  const DiagrammAuftrag& Auftrag() const { return auftrag_; }

  // The page's input of the curve parameter in displayed units (T, p or v by the family); false
  // with the program's message when the text is no number or not positive. Writes TVorgabe,
  // pVorgabe or vVorgabe in engine units.
  bool ParameterEingabe(const std::string& text);
  std::string ParameterText() const; // "T / K =", "p / kPa =", "v / (m^3/kmol) =" by family and units

  // The loop of a new curve with the parameters of TVorgabe, pVorgabe, vVorgabe: the isochor advice
  // once, a free slot, the curve engine, its outcome with the messages, the slot, the legend.
  ZeichenErgebnis cmdDraw();
  // The same for another code of the same axes (the insert menu's curves), with its own request.
  ZeichenErgebnis cmdDraw(const DiagrammAuftrag& a, double T, double p, double v);

  // Colour of the next curve.
  void cmdFarbVorwahl(RGBFarbe f) { farbVorwahl_ = f; }
  RGBFarbe FarbVorwahl() const { return farbVorwahl_; }

  // Zoom to a narrower range (displayed units); reset to the last setting. A range that is empty
  // or reversed is refused (false).
  bool cmdZoom(double xmin, double xmax, double ymin, double ymax);
  void cmdZoomReset();
  // The range input (mnuCoord): a new setting of the axes that zoom reset returns to from then on.
  bool mnuCoord(double xmin, double xmax, double ymin, double ymax);

  // Swaps X and Y of every series, mark and label and the axis texts; asks before (the "gekippt"
  // advice) and returns false when the user says No.
  bool cmdChangeXY();
  bool Gekippt() const { return gekippt_; }

  // Delete commands; a deleted slot becomes free.
  void mnuDelTotal();
  void mnuSubDelKurv(int slot);
  void mnuSubDelPointSet(int satz);
  void mnuDelLabels();
  void mnuDelLegend();
  void mnuAddLegend();

  // Curves and points from other dialogs (X-Y editor, data editor, fitting, process page), in
  // displayed units; false when no slot is free (with the message).
  bool cmdExternKurve(const std::vector<double>& X, const std::vector<double>& Y, const std::string& legende);
  bool cmdExternPoints(const std::vector<double>& X, const std::vector<double>& Y, PunktQuelle quelle,
                       const std::string& legende);

  // The page's complete state, and a state put in its place (a loaded diagram file; the reader has
  // checked slots, counts and ranges).
  Graph2DZustand Zustand() const;
  void ZustandSetzen(const Graph2DZustand& z);

  // The colour of the drawing sheet (white unless chosen).
  void SeitenfarbeSetzen(RGBFarbe f);
  RGBFarbe Seitenfarbe() const { return seitenfarbe_; }
  // The number format and grid of the shown X (0) or Y (1) axis; they follow the axes when swapped.
  void AchsenStil(int achse, const std::string& format, bool gitter);

  // The look of a curve (the styling dialog's part that is needed).
  void Gestalten(int slot, RGBFarbe farbe, LinienArt linie, double breite, PunktSymbol symbol);
  // Writes each curve's parameter at its end (isotherms, isobars, isochors).
  void ParameterBeschriften(bool an);

  // Marks of the insert menu (the marks' logic fills them).
  void MarkeSetzen(const Graph2DMarke& m); // replaces a mark of the same Art
  bool MarkeLoeschen(const std::string& art);
  void MarkenLoeschen();      // every line mark and its label (mnuDelMarkTP)
  void MarkenTexteLoeschen(); // the labels of the marks only (mnuDelMarkLabels)

  // The quantities on the axes as they are shown (exchanged when gekippt); Groesse::Anzahl for a
  // diagram without a catalogue code.
  Groesse AchseX() const;
  Groesse AchseY() const;
  // The diagram's request with the current axis ranges, oriented as the curve engine computes it
  // (unswapped).
  DiagrammAuftrag RechenAuftrag() const;

  // What the status line shows at a data coordinate; `pixelToleranz` in data units of X and Y for
  // the nearest curve point.
  MausInfo Maus(double x, double y, double toleranzX, double toleranzY) const;
  // T (K) and p (kPa) of the curve point nearest to (x, y) within the tolerances, when the curve's
  // parameter and the axes give both.
  std::optional<std::pair<double, double>> TpBei(double x, double y, double toleranzX, double toleranzY) const;
  // A curve's points as tab-separated text with a head line of the axis texts.
  std::string KurveAlsText(int slot) const;
  // The slot of the curve nearest to (x, y) within the tolerances; -1 when none.
  int KurveBei(double x, double y, double toleranzX, double toleranzY) const;

  // The picture for the chart adapter: the curves in slot order, the point sets, the marks, the
  // labels, the axes with their texts and the current ranges, the title as header.
  Diagramm2D Bild() const;

  const std::array<bool, MaxKurven>& KurveBelegt() const { return belegt_; }
  int KurvenAnzahl() const;
  const Graph2DKurve& Kurve(int slot) const { return kurven_[static_cast<std::size_t>(slot)]; }
  const std::vector<Graph2DPunktSatz>& PunktSaetze() const { return punktSaetze_; }
  const std::vector<Graph2DMarke>& Marken() const { return marken_; }
  const std::vector<Beschriftung2D>& Texte() const { return texte_; }
  bool LegendeSichtbar() const { return legende_; }
  // Current and last-set axis ranges, displayed units.
  std::array<double, 4> Bereich() const { return {xmin_, xmax_, ymin_, ymax_}; }
  std::array<double, 4> LetzteEinstellung() const { return einstellung_; }
  int Stand() const { return stand_; }

  // The one-time flag of the isochor advice (kept for the session).
  bool IsochorHinweisFaellig = true;

private:
  int FreierPlatz() const;
  RGBFarbe NaechsteFarbe();
  ZeichenErgebnis Ausgang(int16_t ergebnis, bool imBereich, const std::string& meldung,
                          const Kurvenpunkte& k);
  void Hinweise(const DiagrammAuftrag& a, const std::string& meldung, const Kurvenpunkte& k);
  bool TeilsUnterTripelpunkt(const DiagrammAuftrag& a, const Kurvenpunkte& k) const;
  std::string Legende(const DiagrammAuftrag& a, double T, double p, double v, const Kurvenpunkte& k) const;
  bool NaechsterPunkt(double x, double y, double tx, double ty, int& slot, std::size_t& index) const;
  void Geaendert() { ++stand_; }

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  DiagrammAuftrag auftrag_;
  std::array<bool, MaxKurven> belegt_{};
  std::array<Graph2DKurve, MaxKurven> kurven_;
  std::vector<Graph2DPunktSatz> punktSaetze_;
  std::vector<Graph2DMarke> marken_;
  std::vector<Beschriftung2D> texte_;
  RGBFarbe farbVorwahl_{0, 0, 255};
  RGBFarbe seitenfarbe_{255, 255, 255};
  std::array<std::string, 2> format_;
  std::array<bool, 2> gitter_{false, false};
  bool legende_ = true;
  bool gekippt_ = false;
  double xmin_ = 0, xmax_ = 1, ymin_ = 0, ymax_ = 1;
  std::array<double, 4> einstellung_{0, 1, 0, 1};
  int stand_ = 0;
};

} // namespace quor
