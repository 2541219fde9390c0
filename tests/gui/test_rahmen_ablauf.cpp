// The frame from start to tested models: open the default database through the menu, find a
// substance by typing its German name, hide the model window with Esc and bring it back, read the
// reports. At each step the frame and its windows show what their logic says.
#include "engine/eos_parameter.h"
#include "gui/substance/text_fenster.h"
#include "programm_hilfe.h"

#include <QScrollBar>

namespace quor::ui {
namespace {

using test::Taste;
using test::ZeigtLogik;

TEST(RahmenAblauf, GermanNameLeadsThroughSubstanceChoiceToTheModels) {
  test::Programm a;
  mdiQUOR& f = *a.fenster;
  ZeigtLogik(f, a.s);
  StoffWahlFenster* wahl = a.DatenbankOeffnen();
  ASSERT_TRUE(wahl && wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->count(), static_cast<int>(wahl->Logik().List1.size()));
  ZeigtLogik(f, a.s);

  QLineEdit* name = wahl->NamensFeld()->lineEdit();
  name->clear();
  test::Tippen(name, "kohlendioxid");
  Taste(name, Qt::Key_Return); // the first Enter shows the hit
  EXPECT_TRUE(wahl->isVisible());
  EXPECT_EQ(wahl->Liste()->currentRow(), wahl->Logik().ListIndex);
  EXPECT_EQ(wahl->NummernFeld()->text().toStdString(), wahl->Logik().Text1);
  Taste(name, Qt::Key_Return); // the second one goes on to the models
  EXPECT_FALSE(wahl->isVisible());
  EXPECT_EQ(a.s.Stoff.StoffName, "Kohlendioxid");
  ZeigtLogik(f, a.s);
  EXPECT_TRUE(f.Ampel()->isEnabled()); // the substance's data graded in colour
  ModellFenster* modelle = f.Modelle();
  ASSERT_TRUE(modelle && modelle->isVisible());
  ZeigtLogik(modelle);
  EXPECT_TRUE(a.ui.Meldungen().empty());

  // Esc hides the model window; its menu entry shows it again as it was, not built anew.
  modelle->Konzept(1)->click();
  Taste(modelle->EOSListe(), Qt::Key_Escape);
  EXPECT_FALSE(modelle->parentWidget()->isVisible());
  f.Befehl("mnuModel")->trigger();
  EXPECT_TRUE(modelle->parentWidget()->isVisible());
  EXPECT_FALSE(a.s.Modell.KonzeptGlobal);
  ZeigtLogik(modelle);

  // The reports of the frame's services: the EOS parameters, and the project status in the text
  // window, wide enough for its longest line.
  f.Befehl("mnuData_ParameterEOS")->trigger();
  ASSERT_EQ(a.ui.Meldungen().size(), 1u);
  EXPECT_EQ(a.ui.Letzte().titel, ParameterEOSTitel);
  EXPECT_EQ(a.ui.Letzte().text, ParameterEOSText(a.s));
  f.Knopf(32)->trigger();
  TextFenster* status = f.findChild<TextFenster*>("frmQTextEdit");
  ASSERT_NE(status, nullptr);
  EXPECT_TRUE(status->Text().contains("Kohlendioxid"));
  QApplication::processEvents();
  EXPECT_TRUE(test::Bild(status, "projektstatus.png"));
  QPlainTextEdit* text = status->findChild<QPlainTextEdit*>("Text1");
  ASSERT_NE(text, nullptr);
  EXPECT_FALSE(text->horizontalScrollBar()->isVisible()) << status->width();
}

} // namespace
} // namespace quor::ui
