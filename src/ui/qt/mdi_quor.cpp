#include "ui/qt/mdi_quor.h"

#include "core/project_state.h"

#include <QMdiArea>
#include <QStatusBar>

namespace quor::ui {

const char* const HauptfensterTitel =
    "QUOR-6     thermodynamische Zustands- und Prozessberechnungen an Reinstoffsystemen";

mdiQUOR::mdiQUOR(ProjectState& state, Oberflaeche& ui, QWidget* eltern)
    : QMainWindow(eltern), state_(state), ui_(ui), mdi_(new QMdiArea(this)) {
  setObjectName("mdiQUOR");
  setWindowTitle(QString::fromUtf8(HauptfensterTitel));
  mdi_->setObjectName("mdiArea");
  mdi_->setBackground(QBrush(QColor(128, 128, 128)));
  setCentralWidget(mdi_);
  statusBar();
  resize(1024, 720);
}

} // namespace quor::ui
