// The Qt side of the services: the default button of a question, the extension a saved name gets,
// child processes with their exit code, time-out and kill, the printer that writes the reports, and
// the help window over the program directory's help pages.
#include "gui/basis/deutsch.h"
#include "gui/basis/hilfe_fenster.h"
#include "gui/basis/qt_oberflaeche.h"
#include "gui_hilfe.h"
#include "support/temp_ordner.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <gtest/gtest.h>

#include <cerrno>
#include <signal.h>

namespace quor::ui {
namespace {

using test::App;

// Runs `schritt` on the modal dialog as soon as it is open.
template <typename Dialog, typename Schritt> void BeimOeffnen(Schritt schritt) {
  QTimer::singleShot(0, [schritt] {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    schritt(dialog);
  });
}

// The toolkit's own dialogs speak German: a file dialog's labels and the standard buttons.
TEST(QtOberflaeche, StandardDialogsAndButtonsAreGerman) {
  App();
  ASSERT_TRUE(DeutscheStandardTexte(App()));
  QFileDialog dialog;
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  EXPECT_EQ(dialog.labelText(QFileDialog::LookIn), "Suchen in:");
  EXPECT_EQ(dialog.labelText(QFileDialog::Reject), "Abbrechen");
}

TEST(QtOberflaeche, EnterPressesTheQuestionsDefaultButton) {
  App();
  QtOberflaeche ui(nullptr, "");
  for (const Antwort vorgabe : {Antwort::Nein, Antwort::Ja}) {
    QString texte;
    BeimOeffnen<QMessageBox>([&texte](QMessageBox* box) {
      for (QAbstractButton* b : box->buttons())
        texte += b->text() + " ";
      test::Taste(box, Qt::Key_Return);
    });
    EXPECT_EQ(ui.Frage("Möchten Sie das?", "Warnung", Knoepfe::JaNein, vorgabe), vorgabe);
    EXPECT_TRUE(texte.contains("&Ja") && texte.contains("&Nein")) << texte.toStdString();
  }
}

TEST(QtOberflaeche, ASavedNameTypedWithoutExtensionGetsTheDefaultOne) {
  App();
  QTemporaryDir ordner;
  QtOberflaeche ui(nullptr, "");
  DateiDialog d;
  d.titel = "Projekt speichern unter";
  d.filter = "QUOR-Projektdatei (*.QC6)|*.QC6";
  d.standardEndung = ".QC6";
  d.startVerzeichnis = ordner.path().toStdString();
  for (const char* name : {"Versuch", "Versuch.QC6"}) {
    BeimOeffnen<QFileDialog>([name](QFileDialog* f) {
      f->selectFile(name);
      QMetaObject::invokeMethod(f, "accept");
    });
    const auto pfad = ui.DateiSpeichern(d);
    ASSERT_TRUE(pfad.has_value());
    EXPECT_EQ(*pfad, ordner.filePath("Versuch.QC6").toStdString());
  }
}

TEST(QtOberflaeche, ChildProcessesEndWithTheirCodeOrAreKilledWhenOutOfTime) {
  App();
  QTemporaryDir ordner;
  QtOberflaeche ui(nullptr, "");
  ProzessAuftrag a;
  a.programm = "/bin/sh";
  a.arbeitsVerzeichnis = ordner.path().toStdString();
  a.argumente = {"-c", "echo hallo; exit 3"};
  a.ausgabeDatei = ordner.filePath("aus.txt").toStdString();
  ProzessStatus st = ui.StarteProzess(a);
  EXPECT_EQ(st.ergebnis, ProzessErgebnis::Beendet);
  EXPECT_EQ(st.exitCode, 3);
  EXPECT_EQ(quor::test::LeseDatei(a.ausgabeDatei), "hallo\n");

  // The child notes its number in its working directory, then would wait far longer than allowed.
  a.argumente = {"-c", "echo $$ > pid; exec sleep 60"};
  a.ausgabeDatei.clear();
  a.wartenMs = 300;
  st = ui.StarteProzess(a);
  EXPECT_EQ(st.ergebnis, ProzessErgebnis::ZeitUeberschritten);
  const std::string pid = quor::test::LeseDatei(ordner.filePath("pid").toStdString());
  ASSERT_FALSE(pid.empty());
  EXPECT_EQ(kill(std::stoi(pid), 0), -1); // killed and reaped: no such process any more
  EXPECT_EQ(errno, ESRCH);

  a.programm = ordner.filePath("fehlt").toStdString();
  EXPECT_EQ(ui.StarteProzess(a).ergebnis, ProzessErgebnis::NichtGestartet);
}

const QString HilfeOrdner = QString(QUOR_PROGRAMM_VERZEICHNIS) + "/help";

TEST(Hilfe, TopicsOpenTheirPagesInTheProgramsOwnWindow) {
  App();
  QtOberflaeche ui(nullptr, HilfeOrdner.toStdString());
  EXPECT_EQ(ui.Hilfefenster(), nullptr);
  const std::pair<int, const char*> themen[] = {
      {11223, "Erste Schritte"}, {45333, "Rechenübung"}, {11124, "Tipps"}, {0, "Inhalt"}};
  for (const auto& [thema, titel] : themen) {
    ui.Hilfe(thema);
    HilfeFenster* fenster = ui.Hilfefenster();
    ASSERT_NE(fenster, nullptr);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_EQ(fenster->Browser()->documentTitle(), QString::fromUtf8(titel)) << thema;
    EXPECT_EQ(fenster->windowTitle(), "QUOR-6  Hilfe: " + QString::fromUtf8(titel));
  }
  EXPECT_TRUE(ui.Hilfefenster()->Browser()->isBackwardAvailable()); // one window, with its history
  ui.Hilfe(11223);
  EXPECT_TRUE(test::Bild(ui.Hilfefenster(), "hilfe.png"));
  delete ui.Hilfefenster();
}

} // namespace
} // namespace quor::ui
