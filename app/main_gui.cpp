// The QUOR-6 program with its main frame.
#include "core/programm_verzeichnis.h"
#include "core/project_state.h"
#include "gui/basis/deutsch.h"
#include "gui/basis/qt_oberflaeche.h"
#include "gui/frame/mdi_quor.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QStringList>

#include <cstdio>

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("QUOR");
  QApplication::setOrganizationName("QUOR");
  quor::ui::DeutscheStandardTexte(app); // file dialogs and standard buttons in German

  const std::string benutzer = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
                                   .filePath("QUOR")
                                   .toStdString();
  const std::string programmVerzeichnis =
      quor::ProgrammVerzeichnisEinrichten(QApplication::applicationDirPath().toStdString(), benutzer);
  QDir::setCurrent(QString::fromStdString(programmVerzeichnis));
  // What the installation holds, as the program finds it, without opening a window.
  if (QApplication::arguments().contains("--installation")) {
    bool vollstaendig = false;
    std::fputs(quor::InstallationsBericht(programmVerzeichnis, vollstaendig).c_str(), stdout);
    return vollstaendig ? 0 : 1;
  }

  quor::ui::QtOberflaeche oberflaeche(nullptr, programmVerzeichnis + "/help");
  quor::ProjectState state;
  state.Datenbank.ProgrammVerzeichnis = programmVerzeichnis;
  quor::ui::mdiQUOR fenster(state, oberflaeche);
  oberflaeche.SetzeEltern(&fenster);

  // The command line as one text: a path with blanks may come in several pieces.
  QStringList argumente = QApplication::arguments();
  argumente.removeFirst();
  fenster.Starten(argumente.join(' ').toStdString());
  fenster.show();
  return QApplication::exec();
}
