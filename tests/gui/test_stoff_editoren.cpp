// The substance data editor and the estimate in the frame: with a substance the editor opens from the
// data menu, its drawing button opens the 2D page of the function once and refuses beside an open
// diagram, its Joback button fills the editor's fields, while the estimate of the data menu writes
// into the substance.
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/frame/stoff_editor_steuerung.h"
#include "gui/substance/joback_fenster.h"
#include "programm_hilfe.h"

#include <QPushButton>
#include <QTimer>

namespace quor::ui {
namespace {

// Answers the modal estimate that `ausloesen` opens: `handlung` on it, then it closes.
void MitJoback(const std::function<void()>& ausloesen, const std::function<void(JobackFenster&)>& handlung) {
  bool gesehen = false;
  QTimer::singleShot(0, [&] {
    auto* j = qobject_cast<JobackFenster*>(QApplication::activeModalWidget());
    ASSERT_TRUE(j);
    gesehen = true;
    handlung(*j);
    j->reject();
  });
  ausloesen();
  EXPECT_TRUE(gesehen);
}

TEST(StoffEditoren, TheEditorDrawsOnceAndTakesTheEstimateIntoItsFields) {
  test::Programm a;
  // Without a substance there is nothing to edit or to fill.
  EXPECT_FALSE(a.fenster->Befehl("mnuData_EditDatenbank")->isEnabled());
  EXPECT_FALSE(a.fenster->Befehl("mnuData_JOBACK_cpIdG")->isEnabled());
  a.StoffWaehlen("Methan");
  EXPECT_TRUE(a.fenster->Befehl("mnuData_EditDatenbank")->isEnabled());
  a.fenster->Befehl("mnuData_EditDatenbank")->trigger();
  BankEditorFenster* editor = a.fenster->StoffEditoren()->BankEditor();
  ASSERT_TRUE(editor && editor->isVisible());

  editor->Knopf("cmdDrawpLV")->click();
  QApplication::processEvents();
  ASSERT_TRUE(a.fenster->Graf2D()->Seite());
  EXPECT_EQ(a.fenster->Graf2D()->Seite()->Logik().KurvenAnzahl(), 1);
  editor->Knopf("cmdDrawpLV")->click();
  EXPECT_EQ(a.ui.Letzte().text, "Löschen Sie das vorhandene 2D-Diagramm.");

  // The estimate opened from the editor writes into the editor, not into the substance.
  const double TKrit = a.s.Stoff.TKrit;
  MitJoback([&] { editor->Knopf("cmdJOBACKCrit")->click(); },
            [](JobackFenster& j) { EXPECT_TRUE(static_cast<bool>(j.Logik().Editor)); });
  EXPECT_EQ(a.s.Stoff.TKrit, TKrit);

  // From the data menu, without the editor, it writes into the substance.
  a.fenster->StoffFensterSchliessen();
  QApplication::processEvents();
  MitJoback([&] { a.fenster->Befehl("mnuData_JOBACK_cpIdG")->trigger(); },
            [](JobackFenster& j) { EXPECT_FALSE(static_cast<bool>(j.Logik().Editor)); });
}

} // namespace
} // namespace quor::ui
