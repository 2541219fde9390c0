// The curve engine: one diagram request becomes one list of plot points. Each code of the catalogue
// is a stepping loop over one axis with the engine called at each step; the two-phase region is
// treated in each branch's own way.
#pragma once

#include "core/project_state.h"
#include "diagrams/diagramm_auftrag.h"
#include "dienste/oberflaeche.h"

#include <string>

namespace quor {

// The curve of `a` with the parameters T, p, v (engine units; those a code doesn't take are 0).
// `ergebnis` is a code of `kurve::`; `imBereich` is true when a point lies inside the axes; `meldung`
// carries a note for the user (empty when there is none). Messages that need an answer or a stop go
// through `ui`.
void CalcCurve(ProjectState& s, ui::Oberflaeche& ui, const DiagrammAuftrag& a, int16_t& ergebnis, double& T,
               double& p, double& v, Kurvenpunkte& punkte, bool& imBereich, std::string& meldung);

// Orders the points ascending by X, the head kept.
void SortiereKurve(Kurvenpunkte& punkte);
// Orders a list of two branches over the same X (a dome over T, such as rho(L) and rho(V)) ascending
// by Y, so that the line runs along one branch, through the top, and along the other.
void SortiereKurve2(Kurvenpunkte& punkte);

// The end points of the tie line of the state (T, p, v) in the coordinates of code `a.Code`, in
// displayed units; false when the state has no tie line there.
bool Konnodenpunkte(ProjectState& s, const DiagrammAuftrag& a, double T, double p, double v, double& X1,
                    double& X2, double& Y1, double& Y2);

} // namespace quor
