#include "gui/calc/ceos_diagnose_fenster.h"

#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/calc/isotherm_bilder.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quor::ui {

namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QLabel* NeuesLabel(const char* name, const QString& text, QWidget* eltern) {
  auto* l = new QLabel(text, eltern);
  l->setObjectName(name);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}

} // namespace

CEOSDiagnoseFenster::CEOSDiagnoseFenster(const ProjectState& s, Oberflaeche& ui,
                                         const LetzterZustand& letzter, QWidget* eltern)
    : QDialog(eltern), zustand_(letzter), logik_(s, zustand_), bild_(new IsothermBild(this)) {
  setObjectName("frmCEOSDiagnose");
  setWindowTitle(QString::fromUtf8(frmCEOSDiagnose::Caption));
  logik_.Form_Load();

  auto* zustand = new QGroupBox("letzter berechneter Zustand", this);
  auto* eos = NeuesLabel("lblEOS", Q(logik_.lblEOS), zustand);
  QFont fett = eos->font();
  fett.setBold(true);
  eos->setFont(fett);
  QStringList zeilen;
  for (const std::string& w : logik_.Wurzeln)
    zeilen << Q(w);
  wurzeln_ = NeuesLabel("lblWurzeln", zeilen.join('\n'), zustand);
  wurzeln_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* z = new QVBoxLayout(zustand);
  z->addWidget(eos);
  z->addWidget(NeuesLabel("lblT", Q(logik_.lblT), zustand));
  z->addWidget(NeuesLabel("lblp", Q(logik_.lblp), zustand));
  z->addSpacing(8);
  z->addWidget(NeuesLabel("lblWurzelnTitel", "Lösungen der kubischen Gleichung für v:", zustand));
  z->addWidget(wurzeln_);
  z->addStretch(1);

  bild_->SetzeFall(logik_.pctEOS);
  auto* schliessen = new QPushButton("Schließen", this);
  schliessen->setObjectName("cmdClose");
  connect(schliessen, &QPushButton::clicked, this, [this] {
    logik_.cmdClose_Click();
    close();
  });
  auto* oben = new QHBoxLayout;
  oben->addWidget(zustand);
  oben->addWidget(bild_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(oben, 1);
  auto* knoepfe = new QHBoxLayout;
  knoepfe->addStretch(1);
  knoepfe->addWidget(schliessen);
  knoepfe->addWidget(HilfeKnopf(this, ui, HilfeBerechnungen, "Hilfe"));
  layout->addLayout(knoepfe);
}

} // namespace quor::ui
