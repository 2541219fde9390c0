#include "gui/fitting/editor_hilfen.h"

#include "fitting/tprho_editor.h"
#include "gui/fitting/daten_tabellen_modell.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

namespace quor::ui {

QStringList MarkKoepfe() {
  return QString::fromUtf8(frmTpRhoEdit::GridKopf).split(' ', Qt::SkipEmptyParts);
}

QPushButton* BefehlsKnopf(const char* name, const QString& text, const QString& tipp, QWidget* eltern) {
  auto* k = new QPushButton(text, eltern);
  k->setObjectName(name);
  k->setToolTip(tipp);
  k->setAutoDefault(false);
  return k;
}

QPushButton* OKKnopf(QWidget* eltern) {
  auto* ok = BefehlsKnopf("OKinput", "OK  <+>",
                          "die Eingabezeile in die Tabelle übernehmen (Taste + oder Enter)", eltern);
  ok->setMinimumHeight(44);
  return ok;
}

QLineEdit* ZahlFeld(const char* name, QWidget* eltern) {
  auto* f = new QLineEdit(eltern);
  f->setObjectName(name);
  f->setAlignment(Qt::AlignRight);
  f->setMinimumWidth(80);
  f->setMaximumWidth(140);
  return f;
}

QString Zeilen(const char* text) {
  return QString::fromUtf8(text).replace("\r\n", "\n");
}

void TextSetzen(QLineEdit* feld, const std::string& text) {
  const QString neu = QString::fromStdString(text);
  if (feld->text() != neu) feld->setText(neu);
}

void SpaltenBreiten(QTableView* tabelle, int breite) {
  QHeaderView* kopf = tabelle->horizontalHeader();
  kopf->setSectionResizeMode(QHeaderView::Stretch);
  kopf->setSectionResizeMode(NummerSpalte, QHeaderView::Fixed);
  kopf->setSectionResizeMode(MarkSpalte, QHeaderView::Fixed);
  kopf->resizeSection(NummerSpalte, 44);
  kopf->resizeSection(MarkSpalte, 34);
  const int daten = tabelle->model()->columnCount() - ErsteDatenSpalte;
  tabelle->setMinimumWidth(44 + 34 + daten * breite + tabelle->verticalScrollBar()->sizeHint().width() + 4);
}

void FensterSchliessen(QWidget* editor) {
  if (auto* fenster = qobject_cast<QMdiSubWindow*>(editor->parentWidget()))
    fenster->close();
  else
    editor->close();
}

} // namespace quor::ui
