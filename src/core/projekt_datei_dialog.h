// Logic of the open dialog with preview, frmQCmnDlg: a list of folders and a list of the files that
// fit the pattern, and a text area that shows what a chosen file holds. The preview of a file comes
// from the caller, which may also refuse the file.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quor {

// What the dialog gives back; `cancelled` when nothing was chosen.
struct DateiWahl {
  std::string Pfad;
  std::string Verzeichnis;
  std::string Datei;
  bool cancelled = true;
};

// True when `name` fits the pattern ("*" any run, "?" one character; letters in any case).
bool PasstZuMuster(const std::string& name, const std::string& muster);

class frmQCmnDlg {
public:
  // The preview text of a file; false (after its message) when the file is refused.
  using VorschauFunktion = std::function<bool(const std::string& pfad, std::string& text)>;

  static const char* const KeineWahl; // "FALSE", the result text while nothing is chosen

  explicit frmQCmnDlg(VorschauFunktion vorschau);

  // Title, pattern, folder and the file to select first. A pattern "*.BAQ" heads the text area
  // "Datei-Information", any other "Projektinformation"; an empty one lists "*.*".
  void Form_Load(const std::string& titel, const std::string& muster, const std::string& verzeichnis,
                 const std::string& datei);
  // Into the folder of entry `eintrag` of the folder list ("..": the parent).
  void Dir1_DblClick(int eintrag);
  // A file chosen in the list: its preview.
  void File1_Click(int eintrag);
  // Takes the chosen file; false while none is chosen or the chosen one was refused.
  bool cmdOK_Click();
  void cmdCancel_Click();

  DateiWahl Ergebnis() const;

  std::string Caption;
  std::string fraInfoCaption;
  std::string Muster;
  std::string Verzeichnis;
  std::vector<std::string> Dir1;  // ".." (unless at the root), then the folders
  std::vector<std::string> File1; // the files that fit the pattern, sorted
  int File1Index = -1;
  std::string txtVorschau;
  std::string Text1 = KeineWahl; // the chosen path

private:
  void ListenFuellen();

  VorschauFunktion vorschau_;
  bool gueltig_ = false; // the chosen file passed its preview
};

} // namespace quor
