// The view of frmQCmnDlg, the open dialog with preview: the folder list, the file list that fits
// the pattern, and the text area with what the chosen file holds.
#pragma once

#include "core/project_state.h"
#include "core/projekt_datei_dialog.h"

#include <QDialog>

class QGroupBox;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace quor::ui {

class Oberflaeche;

class ProjektDialogFenster : public QDialog {
  Q_OBJECT

public:
  // The help button opens `hilfeThema`: the projects' page, or the measured data's for their files.
  ProjektDialogFenster(frmQCmnDlg::VorschauFunktion vorschau, Oberflaeche& ui, int hilfeThema,
                       QWidget* eltern);

  void Laden(const std::string& titel, const std::string& muster, const std::string& verzeichnis,
             const std::string& datei);

  frmQCmnDlg& Logik() { return logik_; }
  QListWidget* Ordner() const { return ordner_; }
  QListWidget* Dateien() const { return dateien_; }
  QPlainTextEdit* Vorschau() const { return vorschau_; }
  QGroupBox* Info() const { return info_; }
  QPushButton* OKKnopf() const { return ok_; }

private:
  void Zeige(bool listen);
  void Oeffnen();

  frmQCmnDlg logik_;
  QLabel* verzeichnis_ = nullptr;
  QListWidget* ordner_ = nullptr;
  QListWidget* dateien_ = nullptr;
  QGroupBox* info_ = nullptr;
  QPlainTextEdit* vorschau_ = nullptr;
  QPushButton* ok_ = nullptr;
  bool zeigt_ = false;
};

// The dialog for a project file over `eltern`, starting in the project directory (or the program's);
// the chosen path, empty when cancelled.
std::string ProjektDateiWaehlen(ProjectState& s, Oberflaeche& ui, QWidget* eltern, const std::string& titel,
                                const std::string& muster);

// The same dialog for a measured-data file, with the file's first lines as preview, starting in the
// folder of the last such file (else the project directory or the program's).
std::string BatchDateiWaehlen(ProjectState& s, Oberflaeche& ui, QWidget* eltern, const std::string& titel,
                              const std::string& muster);

} // namespace quor::ui
