// The help buttons of the windows that have no menu of their own to reach the help: each window,
// opened as the user opens it, carries its button with the tooltip that names F1, and both the
// button and F1 on one of its controls open the window's own page. The windows stay open while the
// next ones come, so F1 must reach only the window that has the focus.
#include "core/rahmen.h"
#include "gui/basis/hilfe_knopf.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/diagrams/graph3d_steuerung.h"
#include "gui/fitting/daten_editor_steuerung.h"
#include "gui/frame/optionen_fenster.h"
#include "gui/frame/projekt_dialog.h"
#include "programm_hilfe.h"

#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>

#include <functional>
#include <memory>
#include <vector>

namespace quor::ui {
namespace {

using test::RechnungsRahmen;

// The topics the button and then F1 open; empty when the window has no help button.
std::vector<int> HilfeAufrufe(QWidget* fenster, SkriptOberflaeche& ui) {
  auto* knopf = fenster->findChild<QPushButton*>("cmdHilfe");
  if (!knopf) return {};
  EXPECT_EQ(knopf->toolTip().toStdString(), HilfeKnopfTip);
  EXPECT_TRUE(knopf->isVisibleTo(fenster));
  ui.hilfeThemen.clear();
  knopf->click();
  fenster->window()->activateWindow();
  knopf->setFocus();
  QApplication::processEvents();
  QTest::keyClick(knopf, Qt::Key_F1);
  return ui.hilfeThemen;
}

// A modal dialog that the menu entry opens: its help, then the dialog closed.
std::vector<int> ModalHilfeAufrufe(QAction* eintrag, SkriptOberflaeche& ui) {
  std::vector<int> themen{-1};
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    themen = HilfeAufrufe(dialog, ui);
    dialog->reject();
  });
  eintrag->trigger();
  return themen;
}

struct Fenster {
  const char* name;
  int thema;
  // Opens the window through the frame and returns the topics its help opened.
  std::function<std::vector<int>(RechnungsRahmen&)> hilfe;
};

QWidget* Zeige(QWidget* w) {
  QApplication::processEvents();
  return w;
}

TEST(HilfeKnoepfe, EveryWindowOpensItsOwnPageByButtonAndF1) {
  RechnungsRahmen a; // methane with its default models
  a.fenster->resize(1180, 740);
  auto ueber = [&a](QWidget* w) { return w ? HilfeAufrufe(w, a.ui) : std::vector<int>{-1}; };
  auto menue = [&a](const char* name, int index = -1) {
    QAction* e = a.fenster->Befehl(name, index);
    EXPECT_TRUE(e && e->isEnabled()) << name;
    if (e && e->isEnabled()) e->trigger();
    QApplication::processEvents();
  };
  DatenEditorSteuerung& editoren = *a.fenster->Editoren();
  const Fenster fenster[] = {
      {"value input", HilfeBerechnungen,
       [&](RechnungsRahmen& r) {
         EXPECT_TRUE(r.Menue("mnuCalc", 2));
         return ueber(r.R().Parinput());
       }},
      {"result page", HilfeBerechnungen,
       [&](RechnungsRahmen& r) {
         r.Eingeben({"150", "2000"});
         return ueber(r.Seite());
       }},
      {"EOS diagnosis", HilfeBerechnungen,
       [&](RechnungsRahmen& r) {
         r.Seite()->Knopf("cmdCEOSDiagnose")->click();
         return ueber(Zeige(r.R().Diagnose()));
       }},
      {"2D diagram", HilfeDiagramme2D,
       [&](RechnungsRahmen& r) {
         menue("mnuGraf_sub_cut", 1);
         return ueber(r.fenster->Graf2D()->Seite());
       }},
      {"3D diagram", HilfeDiagramme3D,
       [&](RechnungsRahmen& r) {
         menue("mnu3DSub", 6);
         return ueber(r.fenster->Graf3D()->Seite());
       }},
      {"measured data", HilfeMessdaten,
       [&](RechnungsRahmen&) {
         menue("mnuData_BatchEdit");
         return ueber(editoren.MessdatenEditor());
       }},
      {"X-Y editor", HilfeXYEditor,
       [&](RechnungsRahmen&) {
         menue("mnuData_EditXY");
         return ueber(editoren.XYEditor());
       }},
      {"fitting", HilfeFitting,
       [&](RechnungsRahmen&) {
         menue("mnuFitting");
         return ueber(editoren.Fitting());
       }},
      {"options", HilfeOptionen,
       [&](RechnungsRahmen& r) {
         menue("mnuOptions");
         return ueber(r.fenster->findChild<OptionenFenster*>("frmQOptions"));
       }},
      {"project dialog", HilfeProjekte,
       [&](RechnungsRahmen& r) { return ModalHilfeAufrufe(r.fenster->Befehl("mnuData_LoadProject"), r.ui); }},
      {"substance choice", HilfeErstnutzer, [&](RechnungsRahmen& r) { return ueber(r.DatenbankOeffnen()); }},
  };
  for (const Fenster& f : fenster) {
    const std::vector<int> themen = f.hilfe(a);
    EXPECT_EQ(themen, std::vector<int>(2, f.thema)) << f.name << ": button, then F1";
  }
}

// The page's insert menu ends with the help on marks and process lines.
TEST(HilfeKnoepfe, TheInsertMenuOfThe2DPageLeadsToItsPage) {
  RechnungsRahmen a;
  QAction* eintrag = a.fenster->Befehl("mnuGraf_sub_cut", 1);
  ASSERT_TRUE(eintrag);
  eintrag->trigger();
  Graph2DFenster* seite = a.fenster->Graf2D()->Seite();
  ASSERT_TRUE(seite);
  const std::unique_ptr<QMenu> menue = seite->HauptMenue(-1);
  auto* hilfe = menue->findChild<QAction*>("mnuInsertHilfe");
  ASSERT_TRUE(hilfe);
  a.ui.hilfeThemen.clear();
  hilfe->trigger();
  EXPECT_EQ(a.ui.hilfeThemen, std::vector<int>{HilfeEinfuegungen});
}

} // namespace
} // namespace quor::ui
