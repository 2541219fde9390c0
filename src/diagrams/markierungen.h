// The insert menu of the 2D diagram: curves that explain the ones on show (the coexistence curve,
// lines of constant vapour fraction, the inversion curve, the S-loop, the tie line, the straight
// diameter), lines at characteristic values of T, p and v, the covolume, and the critical points.
// Each entry refuses with its message when the model or the axes don't allow it and then changes
// nothing.
#pragma once

#include "core/project_state.h"
#include "diagrams/graph2d.h"
#include "dienste/oberflaeche.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quor {

// The code of the coexistence family drawn on the same pair of axes as `code` (p-v -> 6,
// pv-p -> 106, rho-p -> 27, T-v -> 7, T-rho -> 12, rho-T -> 8, p-T -> 9, a caloric function over T
// or p -> its line along saturation); 0 when there is none.
int16_t KoexistenzZwilling(int16_t code);

// The inversion curve drawn on the axes of `code` (p-T -> 105, pv-p -> 190); 0 when there is none.
int16_t InversionsZwilling(int16_t code);

class Markierungen {
public:
  Markierungen(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& diagramm);

  // Curves drawn through the page's draw routine; true when one was drawn.
  bool mnuMarkKoex();
  bool mnuMarkIsohygre(); // asks the vapour fraction
  bool mnuMarkInversion();
  bool mnuMarkSKurve();
  bool mnuMarkKonnode();
  bool mnuMarkHalbierende();

  // Lines across the diagram at a value; true when the mark was set.
  // T: 0 the user's T, 1 T(cr), 2 the triple point, 3 T(LV) at the curve's p, 4 T(LV) at 101.325 kPa.
  bool mnuMarkT(int eintrag);
  // p: 0 the user's p, 1 p(cr), 2 p(LV) at the curve's T, 3 the triple-point pressure.
  bool mnuMarkP(int eintrag);
  // v: 0 the user's v, 1 the critical volume.
  bool mnuMarkV(int eintrag);
  bool mnuMarkB(); // the covolume b at the diagram's T

  // Point marks at the critical point of the data and at that of the EOS.
  bool mnuMarkCritPointEx();
  bool mnuMarkCritPointCalc();
  void mnuDelCritPointEx();
  void mnuDelCritPointCalc();

  void mnuDelMarkTP();     // the line marks with their labels
  void mnuDelMarkLabels(); // the marks' labels only

private:
  bool Refuse(const std::string& text);
  bool Kubisch() const;
  bool Zeichne(int16_t code, int16_t klasse);
  bool Linie(const std::string& art, Groesse g, double wert, const std::string& label);
  bool Punkt(const std::string& art, const std::string& text, double T, double p, double v);
  std::optional<double> Nutzerwert(const std::string& prompt, const std::string& titel);
  double SaettigungsTemperatur(double p);
  double SaettigungsDruck(double T);

  ProjectState& s_;
  ui::Oberflaeche& ui_;
  frmQGraph2D& d_;
};

} // namespace quor
