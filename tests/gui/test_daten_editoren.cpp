// The two data editors in the frame: the X-Y editor from its menu entry (typed rows, pasting, a cell
// edited in the grid, the points into the 2D page and a curve taken back, the closing question) and
// the measured-data editor (a .BAQ file through the open dialog with preview, the units rewriting the
// fields, the control diagrams, the toolbar's data button, new input, another substance).
#include "diagrams/graph2d.h"
#include "fitting/tprho_editor.h"
#include "gui/diagrams/graph2d_steuerung.h"
#include "gui/fitting/daten_editor_steuerung.h"
#include "gui/fitting/daten_tabellen_modell.h"
#include "gui/frame/projekt_dialog.h"
#include "programm_hilfe.h"
#include "support/relativ.h"

#include <QFile>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QTimer>

namespace quor::ui {
namespace {

// The frame at its first size on a screen of 1280 x 800.
struct Editoren : test::Programm {
  Editoren() { fenster->resize(1180, 740); }

  DatenEditorSteuerung& E() { return *fenster->Editoren(); }
  Graph2DFenster* Seite() { return fenster->Graf2D()->Seite(); }

  void Menue(const char* name) {
    QAction* a = fenster->Befehl(name);
    ASSERT_TRUE(a && a->isEnabled()) << name;
    a->trigger();
    QApplication::processEvents();
  }

  // The window stands inside the work area at a size where nothing of the editor is squeezed.
  void PasstInDieFlaeche(QMdiSubWindow* w, const char* bild) {
    ASSERT_NE(w, nullptr);
    QApplication::processEvents();
    const QRect flaeche = fenster->Arbeitsflaeche()->viewport()->rect();
    EXPECT_TRUE(flaeche.contains(w->geometry())) << w->geometry().width() << " x " << w->geometry().height();
    const QSize mindest = w->widget()->minimumSizeHint(), ist = w->widget()->size();
    EXPECT_TRUE(mindest.width() <= ist.width() && mindest.height() <= ist.height())
        << mindest.width() << " x " << mindest.height();
    EXPECT_TRUE(test::Bild(w->widget(), bild));
  }
};

QString Zelle(DatenTabellenModell* m, int zeile, int spalte) {
  return m->data(m->index(zeile, spalte), Qt::DisplayRole).toString();
}

void Strg(QWidget* ziel, int taste) {
  QKeyEvent druck(QEvent::KeyPress, taste, Qt::ControlModifier);
  QApplication::sendEvent(ziel, &druck);
}

// Types into a cell of the grid as the user does: the cell's editor, the text, Enter.
void ZelleTippen(DatenTabellenAnsicht* t, int zeile, int spalte, const QString& text) {
  const QModelIndex i = t->model()->index(zeile, spalte);
  t->setCurrentIndex(i);
  t->edit(i);
  auto* editor = t->viewport()->findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  editor->clear();
  test::Tippen(editor, text);
  test::Taste(editor, Qt::Key_Return);
  QApplication::processEvents();
}

// Every control of the window carries the field of the logic it stands for.
void ZeigtLogik(XYEditorFenster* w) {
  const frmQXYEdit& l = w->Logik();
  test::Texte({{w->windowTitle(), l.Caption},
               {w->Feld("txtComment")->text(), l.txtComment},
               {w->Feld("txtX")->text(), l.txtX},
               {w->Feld("txtY")->text(), l.txtY},
               {w->Feld("txtW")->text(), l.txtW}});
  test::Frei({{w->Knopf("cmdSave"), l.cmdSaveEnabled},
              {w->Knopf("cmdPrint"), l.cmdPrintEnabled},
              {w->Knopf("cmdErase"), l.cmdEraseEnabled},
              {w->Knopf("cmdEraseSelected"), l.cmdEraseSelectedEnabled},
              {w->Knopf("cmdAus"), l.cmdAusEnabled},
              {w->Knopf("cmdChangeXY"), l.cmdChangeXYEnabled},
              {w->Knopf("cmdManip"), l.cmdManipEnabled},
              {w->Knopf("cmdClipboard"), l.cmdClipboardEnabled},
              {w->Knopf("cmdDrawXY"), l.cmdDrawXYEnabled},
              {w->Knopf("XSort"), l.XSortEnabled},
              {w->Knopf("YSort"), l.YSortEnabled},
              {w->Knopf("cmdFitting"), l.cmdFittingEnabled}});
  test::Sichtbar(
      {{w->Knopf("cmdFitting"), l.FittingAngeboten}, {w->Umrechnungsrahmen(), l.fraManipulationVisible}});
  test::An({{w->Modus(l.optInputMode), true}, {w->Umrechnung(l.optManip), true}});
  EXPECT_EQ(w->Modell()->rowCount(), std::max(l.XYAnzahl(), 1));
}

void ZeigtLogik(TpRhoEditorFenster* w) {
  const frmTpRhoEdit& l = w->Logik();
  test::Texte({{w->windowTitle(), l.Caption},
               {w->Kommentar()->text(), l.txtComment},
               {w->Mol()->text(), l.txtMol},
               {w->Label("lblZeile")->text(), l.lblZeile},
               {w->Label("lblRhoV")->text(), l.lblRhoV},
               {w->Label("lblRhoL")->text(), l.lblRhoL},
               {w->Label("lblPEinheit")->text(), l.lblPEinheit},
               {w->Label("lblRhoEinheit")->text(), l.lblRhoEinheit},
               {w->Option("opt_Rho_Unit", einheit::Volumen)->toolTip(), l.opt_Rho_UnitToolTip}});
  for (int i = 0; i < tprho::Spalten; ++i)
    test::Texte({{w->Feld(i)->text(), l.y[static_cast<std::size_t>(i)]}});
  test::Frei({{w->Knopf("cmdBatchAdd"), l.cmdBatchAddEnabled},
              {w->Knopf("cmdBatchSave"), l.cmdBatchSaveEnabled},
              {w->Knopf("cmdErase"), l.cmdEraseEnabled},
              {w->Knopf("cmdAus"), l.cmdAusEnabled},
              {w->Knopf("cmdPrintTpVListe"), l.cmdPrintTpVListeEnabled},
              {w->Knopf("cmdSaveXY"), l.cmdSaveXYEnabled},
              {w->Knopf("TSort"), l.TSortEnabled},
              {w->Knopf("pSort"), l.pSortEnabled},
              {w->Knopf("cmdGraphFunction"), l.cmdGraphFunctionEnabled},
              {w->Knopf("cmdlogGraf"), l.cmdlogGrafEnabled},
              {w->Knopf("cmdFitting"), l.cmdFittingEnabled},
              {w->Option("opt_Rho_Unit", einheit::Volumen), l.opt_Rho_UnitVolumenEnabled},
              {w->Option("optInputMode", ZeileEditieren), l.optInputModeEditierenEnabled}});
  test::Sichtbar({{w->Knopf("cmdFitting"), l.FittingAngeboten}});
  test::An({{w->Option("opt_T_unit", l.opt_T_unit), true},
            {w->Option("opt_p_Unit", l.opt_p_Unit), true},
            {w->Option("opt_Rho_Unit", l.opt_Rho_Unit), true},
            {w->Option("optInputMode", l.optInputMode), true}});
  for (int k = 1; k < tprho::Spalten; ++k) {
    test::Frei({{w->Option("optFitFunction", k), l.optFitFunctionEnabled[static_cast<std::size_t>(k)]}});
    test::An({{w->Option("optFitFunction", k), l.optFitFunction == k}});
  }
  EXPECT_EQ(w->Modell()->rowCount(), std::max(l.Grid.Anzahl(), 1));
}

TEST(XYEditorFenster, TypedPastedAndEditedRowsReachTheLogicAndTheGrid) {
  Editoren p;
  p.Menue("mnuData_EditXY");
  XYEditorFenster* xy = p.E().XYEditor();
  ASSERT_NE(xy, nullptr);
  p.PasstInDieFlaeche(p.E().XYFenster(), "xy_editor.png");
  DatenTabellenModell* m = xy->Modell();
  EXPECT_EQ(Zelle(m, 0, NummerSpalte), "leere Liste");
  EXPECT_FALSE(xy->Knopf("cmdSave")->isEnabled());
  ZeigtLogik(xy);

  // "+" in a field takes the row over, "," is the decimal mark, a letter is no key of a number.
  test::Tippen(xy->Feld("txtX"), "1,5");
  test::Tippen(xy->Feld("txtY"), "2a");
  test::Taste(xy->Feld("txtY"), Qt::Key_Plus, "+");
  xy->Feld("txtX")->clear();
  test::Tippen(xy->Feld("txtX"), "3");
  test::Taste(xy->Feld("txtX"), Qt::Key_Return);
  const DatenTabelle& t = xy->Logik().Tabelle;
  ASSERT_EQ(t.Anzahl(), 2);
  EXPECT_EQ(t.Zeile(0).Werte, (std::vector<double>{1.5, 2}));
  EXPECT_EQ(t.Zeile(1).Werte, (std::vector<double>{3, 2}));
  EXPECT_EQ(Zelle(m, 0, ErsteDatenSpalte), " 1.5");
  ZeigtLogik(xy);

  // Ctrl+V at the current cell: the second row is overwritten, a third one grows, the trailing line
  // break leaves no empty row.
  p.ui.zwischenablage = "5\t6\r\n7\t8\r\n";
  xy->Tabelle()->setCurrentIndex(m->index(1, ErsteDatenSpalte));
  Strg(xy->Tabelle(), Qt::Key_V);
  ASSERT_EQ(m->rowCount(), 3);
  EXPECT_EQ(t.Zeile(2).Werte, (std::vector<double>{7, 8}));
  EXPECT_EQ(Zelle(m, 2, ErsteDatenSpalte + 1), " 8");

  // A cell typed in the grid: the letter is kept out, Enter hands the text to the logic.
  ZelleTippen(xy->Tabelle(), 1, ErsteDatenSpalte + 1, "9x,25");
  EXPECT_EQ(t.Zeile(1).Werte[1], 9.25);
  EXPECT_EQ(Zelle(m, 1, ErsteDatenSpalte + 1), " 9.25");

  // The selection goes to the logic as the rectangle of data cells: Ctrl+C copies it, Del clears it.
  QItemSelectionModel* wahl = xy->Tabelle()->selectionModel();
  wahl->select(QItemSelection(m->index(1, ErsteDatenSpalte + 1), m->index(2, ErsteDatenSpalte + 1)),
               QItemSelectionModel::ClearAndSelect);
  Strg(xy->Tabelle(), Qt::Key_C);
  EXPECT_EQ(p.ui.zwischenablage, t.AuswahlText(TabellenAuswahl{1, 2, 1, 1}));
  test::Taste(xy->Tabelle(), Qt::Key_Delete);
  EXPECT_EQ(t.Zeile(1).Werte, (std::vector<double>{5, 0}));
  EXPECT_EQ(t.Zeile(2).Werte, (std::vector<double>{7, 0}));

  // The check box of a row marks it inactive through the logic.
  m->setData(m->index(0, MarkSpalte), Qt::Checked, Qt::CheckStateRole);
  EXPECT_TRUE(t.Zeile(0).Inaktiv);
  EXPECT_EQ(m->data(m->index(0, MarkSpalte), Qt::CheckStateRole).toInt(), Qt::Checked);

  // The conversion frame: W and the option reach the logic, the grid shows the result.
  xy->Knopf("cmdManip")->click();
  EXPECT_FALSE(xy->Umrechnungsrahmen()->isHidden());
  xy->Umrechnung(UmrechnungPlusW)->click();
  xy->Feld("txtW")->setText("0,5");
  xy->Knopf("cmdExecManip")->click();
  EXPECT_EQ(t.Zeile(0).Werte[1], 2);   // inactive: unchanged
  EXPECT_EQ(t.Zeile(1).Werte[1], 0.5); // 0 + 0.5
  EXPECT_EQ(Zelle(m, 2, ErsteDatenSpalte + 1), " 0.5");
  ZeigtLogik(xy);
}

TEST(XYEditorFenster, DrawingOpensAPageForThePointsAndACurveOfThePageComesBack) {
  Editoren p;
  p.Menue("mnuData_EditXY");
  XYEditorFenster* xy = p.E().XYEditor();
  EXPECT_FALSE(xy->Knopf("cmdKurve")->isEnabled()); // no page yet
  p.ui.zwischenablage = "1\t10\r\n2\t30\r\n";
  Strg(xy->Tabelle(), Qt::Key_V);
  test::Tippen(xy->Feld("txtComment"), "Messreihe A");

  xy->Knopf("cmdDrawXY")->click();
  EXPECT_TRUE(test::Bild(xy, "xy_editor_daten.png"));
  Graph2DFenster* seite = p.Seite();
  ASSERT_NE(seite, nullptr);
  const frmQGraph2D& g = seite->Logik();
  ASSERT_EQ(g.PunktSaetze().size(), 1u);
  EXPECT_EQ(g.PunktSaetze()[0].Y, (std::vector<double>{10, 30}));
  EXPECT_EQ(g.Auftrag().Titel, "Messreihe A");
  // The range of the points widened by 5 % of their span: 1 .. 2 and 10 .. 30.
  EXPECT_REL(g.Bereich()[0], 0.95, 1e-6);
  EXPECT_REL(g.Bereich()[3], 31, 1e-6);
  EXPECT_FALSE(seite->Knopf("cmdDraw")->isEnabled()); // the page has no catalogue curve to draw

  // The open page takes the next set on its axes.
  xy->Knopf("cmdDrawXY")->click();
  EXPECT_EQ(p.Seite(), seite);
  EXPECT_EQ(g.PunktSaetze().size(), 2u);

  // A curve of the page replaces the table, its legend becomes the comment.
  seite->Logik().cmdExternKurve({0.5, 1.5, 2.5}, {1, 2, 3}, "Kurve B");
  EXPECT_TRUE(xy->Knopf("cmdKurve")->isEnabled());
  p.ui.antworten = {Antwort::Nein}; // the rows typed are not saved
  xy->KurvenMenueFuellen();
  QMenu* kurven = xy->Knopf("cmdKurve")->menu();
  ASSERT_EQ(kurven->actions().size(), 1);
  EXPECT_EQ(kurven->actions()[0]->text(), "Kurve B");
  kurven->actions()[0]->trigger();
  EXPECT_EQ(xy->Logik().XYAnzahl(), 3);
  EXPECT_EQ(xy->Feld("txtComment")->text(), "Kurve B");
  EXPECT_EQ(Zelle(xy->Modell(), 2, ErsteDatenSpalte), " 2.5");
}

TEST(XYEditorFenster, ClosingWithUnsavedRowsAsksAndCancelKeepsTheWindow) {
  Editoren p;
  p.Menue("mnuData_EditXY");
  XYEditorFenster* xy = p.E().XYEditor();
  test::Tippen(xy->Feld("txtX"), "1");
  test::Taste(xy->Feld("txtX"), Qt::Key_Plus, "+");
  p.ui.antworten = {Antwort::Abbrechen};
  test::Taste(xy->Feld("txtX"), Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(p.ui.Letzte().text, "Die Daten wurden noch nicht gespeichert.\r\nJetzt speichern?");
  ASSERT_NE(p.E().XYEditor(), nullptr);
  EXPECT_TRUE(p.E().XYFenster()->isVisible());

  // Ending the program asks too; "Abbrechen" keeps it running.
  p.ui.antworten = {Antwort::Abbrechen};
  EXPECT_FALSE(p.fenster->close());
  EXPECT_FALSE(p.fenster->Logik().Beendet());
  EXPECT_EQ(p.ui.Letzte().text, "Die Daten wurden noch nicht gespeichert.\r\nJetzt speichern?");

  p.ui.antworten = {Antwort::Nein};
  xy->Knopf("Edit_OK")->click();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(p.E().XYEditor(), nullptr);
}

// ----- the measured data -----

// Methane with four measured rows (T, p, rho(V), rho(L), delta(LV)h, cp), the last without p.
const char* const MethanBAQ = "12.05.2024\r\nSättigung\r\n%1;%2\r\n4\r\n"
                              "120\r\n191.6\r\n3.26\r\n409.7\r\n8200\r\n0\r\n"
                              "140\r\n641.3\r\n9.95\r\n388.4\r\n7800\r\n0\r\n"
                              "160\r\n1593\r\n23.2\r\n362.4\r\n7200\r\n0\r\n"
                              "180\r\n0\r\n0\r\n0\r\n0\r\n0\r\n";

struct Messdaten : Editoren {
  QTemporaryDir ordner;

  Messdaten() {
    StoffWaehlen("Methan");
    QFile datei(ordner.filePath("methan.BAQ"));
    EXPECT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(QString(MethanBAQ).arg("Methan", -107).arg("74-82-8", -12).toLatin1());
    datei.close();
    s.Projekt.ProjektVerzeichnis = ordner.path().toStdString();
  }

  // cmdBatchLoad, the file chosen in the open dialog with preview.
  void Laden(TpRhoEditorFenster* w) {
    QTimer::singleShot(0, [] {
      auto* d = qobject_cast<ProjektDialogFenster*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      ASSERT_EQ(d->Dateien()->count(), 1);
      d->Dateien()->setCurrentRow(0);
      d->OKKnopf()->click();
    });
    w->Knopf("cmdBatchLoad")->click();
    QApplication::processEvents();
  }
};

TEST(TpRhoEditorFenster, ALoadedFileFillsTheGridTheUnitsRewriteTheFieldsAndThePointsReachThePage) {
  Messdaten p;
  EXPECT_FALSE(p.fenster->Knopf(22)->isEnabled());
  p.Menue("mnuData_BatchEdit");
  TpRhoEditorFenster* w = p.E().MessdatenEditor();
  ASSERT_NE(w, nullptr);
  EXPECT_EQ(w->windowTitle().toStdString(), frmTpRhoEdit::TitelNeu);
  ZeigtLogik(w);
  p.Laden(w);
  ASSERT_EQ(p.s.Mess.ExpAnzahl, 4);
  ZeigtLogik(w);
  EXPECT_TRUE(p.fenster->Knopf(22)->isEnabled());
  EXPECT_EQ(w->windowTitle().toStdString(), " experimentelle Daten, Methan (File methan.BAQ)");
  EXPECT_EQ(w->Kommentar()->text(), "Sättigung");
  DatenTabellenModell* m = w->Modell();
  ASSERT_EQ(m->rowCount(), 4);
  // Screen order rho(V) before rho(L).
  EXPECT_EQ(Zelle(m, 0, ErsteDatenSpalte + tprho::RhoV), " 3.26");
  EXPECT_EQ(Zelle(m, 0, ErsteDatenSpalte + tprho::RhoL), " 409.7");
  // The y column p (FitSpalte 1) and T stand out, the others are white.
  const auto farbe = [m](int spalte) {
    return m->data(m->index(0, ErsteDatenSpalte + spalte), Qt::BackgroundRole).value<QColor>();
  };
  EXPECT_EQ(farbe(tprho::T), farbe(tprho::p));
  EXPECT_NE(farbe(tprho::T), QColor(Qt::white));
  EXPECT_EQ(farbe(tprho::RhoV), QColor(Qt::white));
  p.PasstInDieFlaeche(p.E().MessdatenFenster(), "tprho_editor.png");

  // Edit mode after the load: the fields show the cursor row, the units rewrite them.
  EXPECT_TRUE(w->Option("optInputMode", ZeileEditieren)->isChecked());
  EXPECT_EQ(w->Feld(tprho::T)->text(), "120");
  w->Option("opt_T_unit", einheit::Celsius)->click();
  EXPECT_EQ(w->Feld(tprho::T)->text(), "-153.15");
  EXPECT_EQ(w->Label("lblTEinheit")->text(), "°C");
  w->Option("opt_p_Unit", einheit::Torr)->click();
  EXPECT_REL(w->Feld(tprho::p)->text().toDouble(), 191.6 / 101.325 * 760, 1e-6);
  EXPECT_EQ(w->Label("lblPEinheit")->text(), "Torr");
  w->Option("opt_Rho_Unit", einheit::Volumen)->click();
  // v = M n / rho with n = 1 kmol: 16.043 / 409.7 (the molar mass of methane).
  EXPECT_REL(w->Feld(tprho::RhoL)->text().toDouble(), p.s.Stoff.MolMasse / 409.7, 1e-5);
  EXPECT_EQ(w->Label("lblRhoL")->text(), "v_L");
  ZeigtLogik(w);

  // The control diagram y(T) opens a page with all four rows; ln p over 1/T refuses the row without p.
  w->Knopf("cmdGraphFunction")->click();
  ASSERT_NE(p.Seite(), nullptr);
  const frmQGraph2D& g = p.Seite()->Logik();
  ASSERT_EQ(g.PunktSaetze().size(), 1u);
  EXPECT_EQ(g.PunktSaetze()[0].Y, (std::vector<double>{191.6, 641.3, 1593, 0}));
  EXPECT_EQ(g.Auftrag().Titel, "experimentelle Punkte y(T)");
  EXPECT_TRUE(test::Bild(p.fenster.get(), "messpunkte_rahmen.png"));
  ASSERT_TRUE(w->Knopf("cmdlogGraf")->isEnabled());
  w->Knopf("cmdlogGraf")->click();
  EXPECT_EQ(p.ui.Letzte().text, "T- und p-Spalte dürfen keine Null-Werte enthalten.");
  m->setData(m->index(3, MarkSpalte), Qt::Checked, Qt::CheckStateRole); // the row out
  w->Knopf("cmdlogGraf")->click();
  ASSERT_EQ(g.PunktSaetze().size(), 2u);
  EXPECT_REL(g.PunktSaetze()[1].X[0], 1.0 / 120, 1e-12);
  EXPECT_REL(g.PunktSaetze()[1].Y[2], std::log(1593.0), 1e-12);
}

TEST(TpRhoEditorFenster, NewInputClearsTheDataAfterTheQuestionAndAnotherSubstanceClosesTheEditor) {
  Messdaten p;
  p.Menue("mnuData_BatchEdit");
  TpRhoEditorFenster* w = p.E().MessdatenEditor();
  p.Laden(w);
  ZelleTippen(w->Tabelle(), 0, ErsteDatenSpalte + tprho::Cp, "35,5");
  EXPECT_FLOAT_EQ(p.s.Mess.ExpDaten[1].Cp, 35.5f);
  EXPECT_TRUE(p.s.Mess.BatchGeaendert);

  // "Nein" to the frame's question keeps the data; "Ja" empties the editor and the data button.
  p.ui.antworten = {Antwort::Nein};
  p.fenster->Knopf(20)->trigger();
  EXPECT_EQ(p.ui.Letzte().titel, "Warnung");
  EXPECT_EQ(p.s.Mess.ExpAnzahl, 4);
  p.ui.antworten = {Antwort::Ja};
  p.Menue("mnuData_BatchInput");
  EXPECT_EQ(p.s.Mess.ExpAnzahl, 0);
  EXPECT_EQ(p.E().MessdatenEditor(), w);
  EXPECT_EQ(Zelle(w->Modell(), 0, NummerSpalte), "leere Liste");
  EXPECT_EQ(w->windowTitle().toStdString(), frmTpRhoEdit::TitelNeu);
  EXPECT_FALSE(p.fenster->Knopf(22)->isEnabled());
  ZeigtLogik(w);

  // A typed row with unsaved changes; another substance closes the editor without the save question.
  test::Tippen(w->Feld(tprho::T), "100");
  test::Taste(w->Feld(tprho::T), Qt::Key_Plus, "+");
  ASSERT_EQ(p.s.Mess.ExpAnzahl, 1);
  EXPECT_TRUE(p.fenster->Knopf(22)->isEnabled());
  p.Menue("mnuData_EditXY");
  p.ui.antworten = {Antwort::Nein}; // the data held are kept for the next substance
  p.fenster->StoffWahlZeigen();
  QListWidget* liste = p.fenster->StoffWahl()->Liste();
  liste->setCurrentRow(1); // Ethan
  test::Taste(liste, Qt::Key_Return);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_EQ(p.s.Stoff.StoffName, "Ethan");
  EXPECT_EQ(p.ui.Letzte().text, "Geladene exper. Daten jetzt löschen?");
  EXPECT_EQ(p.E().MessdatenEditor(), nullptr);
  EXPECT_NE(p.E().XYEditor(), nullptr); // it belongs to no substance
  for (const Aufzeichnung& a : p.ui.protokoll)
    EXPECT_EQ(a.text.find("jetzt in *.BAQ speichern?"), std::string::npos);
  EXPECT_EQ(p.s.Mess.ExpAnzahl, 1);
}

} // namespace
} // namespace quor::ui
