// Tavik1W: the unit converter beside QUOR. Started as Tavik1W_E (or with --english) it speaks
// English.
#include "tavik_fenster.h"

#include <QApplication>
#include <QFileInfo>

#include <cstring>

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  bool englisch = QFileInfo(QString::fromLocal8Bit(argv[0])).baseName().endsWith("_E");
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--english") == 0) englisch = true;
    if (std::strcmp(argv[i], "--deutsch") == 0) englisch = false;
  }
  quor::tavik::TavikFenster fenster(englisch);
  fenster.show();
  return app.exec();
}
