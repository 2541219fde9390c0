// The open dialog with preview: which files and folders it lists, the heading of its text area,
// the preview of a chosen file, a refused file, and what it gives back.
#include "core/projekt_datei_dialog.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace quor {
namespace {

namespace fs = std::filesystem;

TEST(DateiMuster, StarsAndQuestionMarksInAnyCase) {
  EXPECT_FALSE(PasstZuMuster("methan.QC6.bak", "*.QC6"));
  EXPECT_TRUE(PasstZuMuster("a1.BAQ", "a?.baq"));
}

class DateiDialogTest : public ::testing::Test {
protected:
  void SetUp() override {
    fs::create_directories(ordner / "Unterordner");
    for (const char* name : {"b.QC6", "A.qc6", "notiz.txt", "daten.BAQ", "Unterordner/c.QC6"})
      tmp.Schreibe(name, "x");
  }

  // A preview that names the file and refuses "b.QC6".
  frmQCmnDlg Dialog() {
    return frmQCmnDlg([this](const std::string& pfad, std::string& text) {
      gesehen.push_back(pfad);
      text = "Vorschau " + fs::path(pfad).filename().string();
      return fs::path(pfad).filename() != "b.QC6";
    });
  }

  test::TempOrdner tmp;
  fs::path ordner = tmp.Pfad();
  std::vector<std::string> gesehen;
};

TEST_F(DateiDialogTest, ListsTheFittingFilesAndTheFolders) {
  frmQCmnDlg d = Dialog();
  d.Form_Load("Projekt laden (*.QC6)", "*.QC6", ordner.string(), "");
  EXPECT_EQ(d.fraInfoCaption, "Projektinformation");
  EXPECT_EQ(d.File1, (std::vector<std::string>{"A.qc6", "b.QC6"}));
  EXPECT_EQ(d.Dir1, (std::vector<std::string>{"..", "Unterordner"}));
  EXPECT_EQ(d.Text1, "FALSE");
  EXPECT_TRUE(gesehen.empty());

  d.Dir1_DblClick(1);
  EXPECT_EQ(d.File1, (std::vector<std::string>{"c.QC6"}));
  d.Dir1_DblClick(0);
  EXPECT_EQ(fs::path(d.Verzeichnis), ordner);

  d.Form_Load("Daten laden", "*.BAQ", ordner.string(), "");
  EXPECT_EQ(d.fraInfoCaption, "Datei-Information");
  EXPECT_EQ(d.File1, (std::vector<std::string>{"daten.BAQ"}));
  d.Form_Load("alles", "", ordner.string(), ""); // no pattern: every file
  EXPECT_EQ(d.File1.size(), 4u);
}

TEST_F(DateiDialogTest, ChosenFileIsPreviewedAndGivenBack) {
  frmQCmnDlg d = Dialog();
  d.Form_Load("Projekt laden (*.QC6)", "*.QC6", ordner.string(), "A.qc6"); // preselected
  EXPECT_EQ(d.File1Index, 0);
  EXPECT_EQ(d.txtVorschau, "Vorschau A.qc6");
  ASSERT_TRUE(d.cmdOK_Click());
  const DateiWahl w = d.Ergebnis();
  EXPECT_FALSE(w.cancelled);
  EXPECT_EQ(fs::path(w.Pfad), ordner / "A.qc6");
  EXPECT_EQ(fs::path(w.Verzeichnis), ordner);
  EXPECT_EQ(w.Datei, "A.qc6");
}

TEST_F(DateiDialogTest, ARefusedFileCannotBeTakenAndCancelGivesNothing) {
  frmQCmnDlg d = Dialog();
  d.Form_Load("Projekt laden (*.QC6)", "*.QC6", ordner.string(), "");
  EXPECT_FALSE(d.cmdOK_Click()); // nothing chosen yet
  d.File1_Click(1);
  EXPECT_EQ(d.txtVorschau, "");
  EXPECT_FALSE(d.cmdOK_Click());
  EXPECT_TRUE(d.Ergebnis().cancelled);

  d.File1_Click(0);
  ASSERT_TRUE(d.cmdOK_Click());
  d.cmdCancel_Click();
  EXPECT_TRUE(d.Ergebnis().cancelled);
  EXPECT_EQ(d.Ergebnis().Pfad, "");
}

} // namespace
} // namespace quor
