#include "core/projekt_datei_dialog.h"

#include "core/projekt_datei.h"

#include <algorithm>
#include <filesystem>

namespace quor {

const char* const frmQCmnDlg::KeineWahl = "FALSE";

namespace {

namespace fs = std::filesystem;

char Gross(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool Passt(const char* name, const char* muster) {
  for (; *muster; ++muster, ++name) {
    if (*muster == '*') {
      for (const char* rest = name;; ++rest) {
        if (Passt(rest, muster + 1)) return true;
        if (!*rest) return false;
      }
    }
    if (!*name || (*muster != '?' && Gross(*muster) != Gross(*name))) return false;
  }
  return !*name;
}

bool OhneGrossKleinVor(const std::string& a, const std::string& b) {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return Gross(x) < Gross(y); });
}

} // namespace

bool PasstZuMuster(const std::string& name, const std::string& muster) {
  // "*.*" stands for every file, with or without an extension.
  return muster == "*.*" || Passt(name.c_str(), muster.c_str());
}

frmQCmnDlg::frmQCmnDlg(VorschauFunktion vorschau) : vorschau_(std::move(vorschau)) {}

void frmQCmnDlg::Form_Load(const std::string& titel, const std::string& muster,
                           const std::string& verzeichnis, const std::string& datei) {
  Caption = titel;
  Muster = muster.empty() ? "*.*" : muster;
  std::string gross = Muster;
  std::transform(gross.begin(), gross.end(), gross.begin(), Gross);
  fraInfoCaption = gross == "*.BAQ" ? "Datei-Information" : "Projektinformation";
  std::error_code fehler;
  Verzeichnis = verzeichnis.empty() ? fs::current_path(fehler).u8string() : verzeichnis;
  Text1 = KeineWahl;
  ListenFuellen();
  const auto it = std::find(File1.begin(), File1.end(), datei);
  if (!datei.empty() && it != File1.end()) File1_Click(static_cast<int>(it - File1.begin()));
}

void frmQCmnDlg::ListenFuellen() {
  Dir1.clear();
  File1.clear();
  File1Index = -1;
  txtVorschau.clear();
  gueltig_ = false;
  std::error_code fehler;
  const fs::path ort = fs::u8path(Verzeichnis);
  if (ort.has_relative_path()) Dir1.push_back("..");
  std::vector<std::string> ordner;
  for (fs::directory_iterator it(ort, fehler), ende; !fehler && it != ende; it.increment(fehler)) {
    const std::string name = it->path().filename().u8string();
    std::error_code f2;
    if (it->is_directory(f2))
      ordner.push_back(name);
    else if (PasstZuMuster(name, Muster))
      File1.push_back(name);
  }
  std::sort(ordner.begin(), ordner.end(), OhneGrossKleinVor);
  std::sort(File1.begin(), File1.end(), OhneGrossKleinVor);
  Dir1.insert(Dir1.end(), ordner.begin(), ordner.end());
}

void frmQCmnDlg::Dir1_DblClick(int eintrag) {
  if (eintrag < 0 || eintrag >= static_cast<int>(Dir1.size())) return;
  const fs::path ort = fs::u8path(Verzeichnis);
  const std::string& name = Dir1[static_cast<std::size_t>(eintrag)];
  Verzeichnis = (name == ".." ? ort.parent_path() : ort / fs::u8path(name)).u8string();
  ListenFuellen();
}

void frmQCmnDlg::File1_Click(int eintrag) {
  if (eintrag < 0 || eintrag >= static_cast<int>(File1.size())) return;
  File1Index = eintrag;
  txtVorschau.clear();
  const std::string pfad = PfadIn(Verzeichnis, File1[static_cast<std::size_t>(eintrag)]);
  gueltig_ = !vorschau_ || vorschau_(pfad, txtVorschau);
  if (!gueltig_) txtVorschau.clear();
}

bool frmQCmnDlg::cmdOK_Click() {
  if (File1Index < 0 || !gueltig_) return false;
  Text1 = PfadIn(Verzeichnis, File1[static_cast<std::size_t>(File1Index)]);
  return true;
}

void frmQCmnDlg::cmdCancel_Click() {
  Text1 = KeineWahl;
}

DateiWahl frmQCmnDlg::Ergebnis() const {
  DateiWahl w;
  if (Text1 == KeineWahl) return w;
  w.Pfad = Text1;
  w.Verzeichnis = VerzeichnisTeil(Text1);
  w.Datei = DateiTeil(Text1);
  w.cancelled = false;
  return w;
}

} // namespace quor
