#include "gui/frame/stoff_editor_steuerung.h"

#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/substance/bank_editor_fenster.h"
#include "gui/substance/joback_fenster.h"

#include <QMdiArea>

namespace quor::ui {

StoffEditorSteuerung::StoffEditorSteuerung(ProjectState& s, Oberflaeche& ui, QMdiArea* flaeche,
                                           Graph2DSteuerung& graf2d, QWidget* rahmen)
    : QObject(rahmen), s_(s), ui_(ui), flaeche_(flaeche), graf2d_(graf2d), rahmen_(rahmen) {}

void StoffEditorSteuerung::BankEditorZeigen() {
  if (editor_) {
    editor_->Laden();
  } else {
    editor_ = new BankEditorFenster(s_, ui_);
    editor_->setWindowIcon(rahmen_->windowIcon());
    fenster_ = flaeche_->addSubWindow(editor_);
    fenster_->setObjectName("frmQBankEditFenster");
    fenster_->setAttribute(Qt::WA_DeleteOnClose);
    frmQBankEdit& l = editor_->Logik();
    l.DiagrammOffen2D = [this] { return graf2d_.Seite() != nullptr; };
    l.Zeichnen = [this](const std::string& name, int index) { graf2d_.Menue(name, index); };
    l.JobackOeffnen = [this](int modus) { JobackZeigen(static_cast<int16_t>(modus)); };
    l.ModellFensterNeu = [this] {
      if (ModellFensterNeu) ModellFensterNeu();
    };
    connect(editor_, &BankEditorFenster::uebernommen, this, [this] {
      if (Geaendert) Geaendert();
    });
  }
  fenster_->show();
  editor_->show();
  flaeche_->setActiveSubWindow(fenster_);
  editor_->setFocus();
}

void StoffEditorSteuerung::JobackZeigen(int16_t modus) {
  JobackFenster w(s_, ui_, modus, rahmen_);
  // A closed editor may wait for its deletion: only one on show takes the values.
  if (editor_ && fenster_ && fenster_->isVisible()) {
    // With the editor open the estimate fills its fields; the user takes them over there.
    w.Logik().Editor = [this](int dd, double wert) {
      if (editor_) editor_->JobackWert(dd, wert);
    };
  } else {
    w.Logik().NachUebernahme = [this] {
      if (ModellFensterNeu) ModellFensterNeu();
      if (Geaendert) Geaendert();
    };
  }
  w.exec();
}

void StoffEditorSteuerung::ModellGeaendert() {
  if (editor_) editor_->ModellGeaendert();
}

} // namespace quor::ui
