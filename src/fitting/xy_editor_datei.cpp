// The X-Y editor's files, the question about unsaved changes, points from a curve, the clipboard
// and the printed list.
#include "core/datei_io.h"
#include "core/optionen.h"
#include "core/zahlformat.h"
#include "diagrams/xy_datei.h"
#include "fitting/xy_editor.h"

#include <algorithm>

namespace quor {

namespace {

constexpr const char* TitelLaden = "(Kurven)punkte vom File laden";
constexpr const char* FilterLaden = "x-y-Daten (*.XY)|*.XY|(*.LRG)|*LRG";
constexpr const char* TitelSpeichern = "(Kurven)punkte speichern unter ...";
constexpr const char* FilterSpeichern = "x-y-Daten (*.XY)|*.XY";
// An .XY file is text of a few megabytes at most; anything much larger is no file of ours.
constexpr std::size_t GroessteDatei = 256u << 20;

std::string Ordner(const std::string& pfad) {
  const std::size_t s = pfad.find_last_of('/');
  return s == std::string::npos ? std::string() : pfad.substr(0, s);
}

std::string Trim(const std::string& t) {
  const std::size_t a = t.find_first_not_of(" \t");
  if (a == std::string::npos) return "";
  return t.substr(a, t.find_last_not_of(" \t") - a + 1);
}

// The comment is one line of the file: line breaks typed into it become blanks.
std::string EineZeile(std::string t) {
  std::replace(t.begin(), t.end(), '\r', ' ');
  std::replace(t.begin(), t.end(), '\n', ' ');
  return t;
}

std::string Rechts(const std::string& t, std::size_t breite) {
  return t.size() >= breite ? t : std::string(breite - t.size(), ' ') + t;
}

} // namespace

std::string frmQXYEdit::Dateiname() const {
  const std::size_t s = DateiPfad.find_last_of('/');
  return s == std::string::npos ? DateiPfad : DateiPfad.substr(s + 1);
}

std::string frmQXYEdit::Legende() const {
  const std::string k = Trim(EineZeile(txtComment));
  return k.empty() ? Dateiname() : k;
}

ui::DateiDialog frmQXYEdit::Dialog(const char* titel, const char* filter) const {
  ui::DateiDialog d;
  d.titel = titel;
  d.filter = filter;
  d.standardEndung = ".XY";
  d.startVerzeichnis = verzeichnis_;
  return d;
}

// Unsaved rows are offered for saving; false when the user cancels or the save did not happen.
bool frmQXYEdit::Sichern() {
  if (!Geaendert || !HatDaten()) return true;
  switch (ui_.Frage("Die Daten wurden noch nicht gespeichert.\r\nJetzt speichern?", "WARNUNG",
                    ui::Knoepfe::JaNeinAbbrechen, ui::Antwort::Ja)) {
  case ui::Antwort::Ja:
    return cmdSave();
  case ui::Antwort::Nein:
    return true;
  default:
    return false;
  }
}

bool frmQXYEdit::Form_QueryUnload() {
  return Sichern();
}

bool frmQXYEdit::cmdLoad() {
  if (!Sichern()) return false;
  const auto pfad = ui_.DateiOeffnen(Dialog(TitelLaden, FilterLaden));
  if (!pfad) return false;
  verzeichnis_ = Ordner(*pfad);
  std::string bytes;
  if (!LeseDateiBytes(*pfad, bytes) || bytes.size() > GroessteDatei) {
    ui_.Meldung("Die Datei " + *pfad + "\r\nkann nicht gelesen werden.", TitelLaden, ui::Symbol::Ausruf);
    return false;
  }
  const XYDatei d = LeseXYText(bytes, s_.Optionen.XYTrenner);
  std::vector<DatenZeile> zeilen;
  for (std::size_t i = 0; i < d.X.size(); ++i)
    zeilen.push_back(DatenZeile{{d.X[i], d.Y[i]}, false});
  Tabelle.Setzen(std::move(zeilen));
  txtComment = d.Kommentar;
  DateiPfad = *pfad;
  Caption = std::string(Titel) + "  geladen: " + Dateiname() + " (" + std::to_string(Tabelle.Anzahl()) +
            " Datenzeilen)";
  Geaendert = false;
  optInputMode = Tabelle.Leer() ? 0 : 1;
  Freigaben();
  return true;
}

bool frmQXYEdit::DateiSchreiben(const std::string& pfad) {
  XYDatei d;
  d.Kommentar = EineZeile(txtComment);
  for (const XYDatenSatz& z : XYDaten()) {
    if (z.Inaktiv) continue;
    d.X.push_back(z.x);
    d.Y.push_back(z.y);
  }
  if (SchreibeDateiBytes(pfad, SchreibeXYText(d, s_.Optionen.XYTrenner))) return true;
  ui_.Meldung("Die Datei " + pfad + "\r\nkann nicht geschrieben werden.\r\nDie Daten sind nicht gespeichert.",
              "Fehler beim Speichern", ui::Symbol::Kritisch);
  return false;
}

bool frmQXYEdit::HatDaten() const {
  return !Tabelle.Leer() || !Trim(txtComment).empty();
}

bool frmQXYEdit::cmdSave() {
  if (!HatDaten()) {
    ui_.Meldung("keine Daten zum Abspeichern verfügbar", "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return false;
  }
  ui::DateiDialog dialog = Dialog(TitelSpeichern, FilterSpeichern);
  dialog.dateiName = Dateiname();
  const auto pfad = ui_.DateiSpeichern(dialog);
  if (!pfad) return false;
  verzeichnis_ = Ordner(*pfad);
  if (DateiExistiert(*pfad) &&
      ui_.Frage("Eine solche Datei ist bereits vorhanden.\r\nÜberschreiben?", "WARNUNG", ui::Knoepfe::JaNein,
                ui::Antwort::Nein) != ui::Antwort::Ja)
    return false;
  if (!DateiSchreiben(*pfad)) return false;
  DateiPfad = *pfad;
  Geaendert = false;
  return true;
}

bool frmQXYEdit::KurveUebernehmen(const frmQGraph2D& seite, int slot) {
  if (slot < 0 || slot >= MaxKurven || !seite.KurveBelegt()[static_cast<std::size_t>(slot)]) {
    ++Piepser;
    return false;
  }
  if (!Sichern()) return false;
  const Graph2DKurve& k = seite.Kurve(slot);
  std::vector<DatenZeile> zeilen;
  for (std::size_t i = 1; i < k.Punkte.size(); ++i) // element 0 is the head
    zeilen.push_back(DatenZeile{{k.Punkte[i].X, k.Punkte[i].Y}, false});
  Tabelle.Setzen(std::move(zeilen));
  txtComment = Trim(k.Legende);
  DateiPfad.clear();
  Caption = Titel;
  Aenderung();
  return true;
}

void frmQXYEdit::cmdClipboard() {
  if (Tabelle.Leer()) {
    ++Piepser;
    return;
  }
  const TabellenAuswahl alles{0, Tabelle.Anzahl() - 1, 0, 1};
  ui_.ZwischenablageSetzen(Tabelle.AuswahlText(Tabelle.Auswahl.Leer() ? alles : Tabelle.Auswahl));
}

void frmQXYEdit::cmdClipEinfuegen() {
  std::string text = ui_.ZwischenablageText();
  if (text.empty()) return;
  // Lines without a tab, such as the lines of an .XY file, are split at the file separator; a comma
  // cannot be one, since it is read as the decimal mark.
  const char trenner = s_.Optionen.XYTrenner;
  const bool ohneTab = text.find('\t') == std::string::npos;
  if (ohneTab && trenner != ',' && trenner != '\t') std::replace(text.begin(), text.end(), trenner, '\t');
  if (ohneTab && trenner == ',' && s_.Optionen.DezimalKomma)
    ui_.Meldung(OptionenTexte::KommaXY, "Warnung für XY-File", ui::Symbol::Ausruf);
  const int zeile = std::max(Tabelle.CursorZeile, 0);
  const int spalte = std::clamp(Tabelle.CursorSpalte, 0, 1);
  if (!Tabelle.Einfuegen(text, zeile, spalte)) return;
  optInputMode = 1;
  Aenderung();
}

bool frmQXYEdit::cmdPrint() {
  if (Tabelle.Leer()) {
    ++Piepser;
    return false;
  }
  ui::Drucker& d = ui_.Druck();
  if (!d.StartDokument("QUOR: X-Y-Daten")) return false;
  d.Schrift("COURIER", 10);
  const double h = d.ZeilenHoehe(), breite = 50 * d.TextBreite("X");
  double y = 0;
  const auto zeile = [&](const std::string& text) {
    if (y + h > d.SeitenHoehe() && y > 0) {
      d.NeueSeite();
      y = 0;
    }
    d.Position(0, y);
    d.DruckeText(text);
    y += h;
  };
  const auto linie = [&] {
    d.Linie(0, y + h / 2, breite, y + h / 2);
    y += h;
  };
  zeile(!DateiPfad.empty() && !Geaendert ? "Liste von XY-Datenfile " + Dateiname()
                                         : "Liste XY-Daten vom " + DatumZeit() + " Uhr");
  if (!Trim(txtComment).empty()) zeile(EineZeile(txtComment));
  zeile("");
  zeile(Rechts("Nr.", 6) + Rechts("x", 18) + Rechts("y", 18));
  linie();
  int nr = 0;
  for (const XYDatenSatz& z : XYDaten())
    zeile(Rechts(std::to_string(++nr), 6) + Rechts(SingleText(z.x), 18) + Rechts(SingleText(z.y), 18) +
          (z.Inaktiv ? "   inaktiv" : ""));
  linie();
  zeile(std::to_string(nr) + " Datenzeilen");
  d.EndeDokument();
  return true;
}

} // namespace quor
