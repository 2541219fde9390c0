// The view of frmCEOSDiagnose: the EOS with T and p of the last state, its roots of v with their
// stability beside the picture of the isotherm for the case.
#pragma once

#include "calc/ceos_diagnose.h"

#include <QDialog>

class QLabel;

namespace quor::ui {

class IsothermBild;
class Oberflaeche;

class CEOSDiagnoseFenster : public QDialog {
  Q_OBJECT

public:
  CEOSDiagnoseFenster(const ProjectState& s, Oberflaeche& ui, const LetzterZustand& letzter,
                      QWidget* eltern = nullptr);

  frmCEOSDiagnose& Logik() { return logik_; }
  QLabel* Wurzeln() const { return wurzeln_; }
  IsothermBild* Bild() const { return bild_; }

private:
  LetzterZustand zustand_; // a copy: the page may calculate anew while the dialog is open
  frmCEOSDiagnose logik_;
  QLabel* wurzeln_;
  IsothermBild* bild_;
};

} // namespace quor::ui
