#include "gui/diagrams/graph3d_dialog.h"

#include "core/zahlformat.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quor::ui {

Bereich3DDialog::Bereich3DDialog(frmGraph3D& logik, const Texte3D& texte, QWidget* eltern)
    : QDialog(eltern), logik_(logik) {
  setObjectName("frmKoordinaten3D");
  setWindowTitle("Koordinatenbereich");
  const Bereich3D& b = logik.Bereich();
  const std::array<double, 6> werte{b.xMin, b.xMax, b.yMin, b.yMax, b.zMin, b.zMax};
  const std::array<std::string, 3> achsen{texte.X, texte.Y, texte.Z};
  auto* raster = new QGridLayout;
  raster->addWidget(new QLabel("von", this), 0, 1);
  raster->addWidget(new QLabel("bis", this), 0, 2);
  const char* namen[] = {"x:  ", "y:  ", "z:  "};
  for (int achse = 0; achse < 3; ++achse) {
    const QString text = namen[achse] + QString::fromStdString(achsen[static_cast<std::size_t>(achse)]);
    raster->addWidget(new QLabel(text, this), achse + 1, 0);
    for (int ende = 0; ende < 2; ++ende) {
      const std::size_t i = static_cast<std::size_t>(2 * achse + ende);
      felder_[i] = new QLineEdit(QString::fromStdString(SingleText(static_cast<float>(werte[i]))), this);
      felder_[i]->setObjectName(QString("txtBereich3D%1").arg(i));
      felder_[i]->setMinimumWidth(110);
      raster->addWidget(felder_[i], achse + 1, ende + 1);
    }
  }
  auto* hinweis = new QLabel("Die z-Vorgabe -0.01111 bis 0.01111 lässt die z-Achse den Werten folgen.", this);
  hinweis->setWordWrap(true);
  auto* knoepfe = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  knoepfe->button(QDialogButtonBox::Ok)->setText("OK");
  knoepfe->button(QDialogButtonBox::Cancel)->setText("Abbrechen");
  connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* lage = new QVBoxLayout(this);
  lage->addLayout(raster);
  lage->addWidget(hinweis);
  lage->addWidget(knoepfe);
}

void Bereich3DDialog::accept() {
  std::array<std::string, 6> texte;
  for (std::size_t i = 0; i < texte.size(); ++i)
    texte[i] = felder_[i]->text().toStdString();
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const bool ok = logik_.cmdCoord3(texte);
  QApplication::restoreOverrideCursor();
  if (ok) QDialog::accept();
}

} // namespace quor::ui
