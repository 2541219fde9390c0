#include "gui/basis/deutsch.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace quor::ui {

bool DeutscheStandardTexte(QCoreApplication& app) {
  auto* uebersetzung = new QTranslator(&app);
  if (!uebersetzung->load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    delete uebersetzung;
    return false;
  }
  QCoreApplication::installTranslator(uebersetzung);
  return true;
}

} // namespace quor::ui
