// The X-Y editor: enabling, editing of the table, the conversions and what goes to the 2D page and
// the fitting. Files, clipboard and printing are in xy_editor_datei.cpp.
#include "fitting/xy_editor.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <limits>

namespace quor {

const char* const frmQXYEdit::Titel = "  X-Y-Daten-Editor";
const std::array<const char*, 6> frmQXYEdit::ManipTexte = {"y = exp(y)", "y = ln(y)", "y = y * W",
                                                           "y = y + W",  "y = 1 / y", "x = 1 - x"};
const char* const frmQXYEdit::NichtAusfuehrbar =
    "Mit den vorliegenden Daten ist diese Aktion nicht ausführbar.\r\n"
    "(Die problematischen Punkte können \"inaktiv\" gesetzt (=> Häkchen in Checkbox)\r\n"
    "oder gelöscht werden.)";
const char* const frmQXYEdit::FittingText = "Daten zum\r\nFitting senden";

namespace {

constexpr const char* TitelNichtMoeglich = "Ausführung nicht möglich";
constexpr const char* KeinAktiverPunkt = "Mindestens 1 aktiver Punkt notwendig!";
constexpr double FloatGrenze = std::numeric_limits<float>::max();

std::string Uhr() {
  const std::time_t jetzt = std::time(nullptr);
  std::tm zeit{};
  localtime_r(&jetzt, &zeit);
  char text[32];
  std::strftime(text, sizeof text, "%d.%m.%Y, %H:%M", &zeit);
  return text;
}

// A number typed into a cell or an input field: "," is the decimal mark, read as Val() reads.
double Eingabewert(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return ValVB(text);
}

// The value as a single, or false when it lies beyond the single range (or is no number).
bool AlsSingle(double r, float& wert) {
  if (!std::isfinite(r) || std::fabs(r) > FloatGrenze) return false;
  wert = static_cast<float>(r);
  return true;
}

// One conversion of a point; false where the function is undefined or leaves the single range.
bool Umrechnen(int art, double w, float& x, float& y) {
  switch (art) {
  case UmrechnungExpY:
    return AlsSingle(std::exp(static_cast<double>(y)), y);
  case UmrechnungLnY:
    return y > 0 && AlsSingle(std::log(static_cast<double>(y)), y);
  case UmrechnungMalW:
    return AlsSingle(static_cast<double>(y) * w, y);
  case UmrechnungPlusW:
    return AlsSingle(static_cast<double>(y) + w, y);
  case UmrechnungKehrwertY:
    return y != 0 && AlsSingle(1.0 / static_cast<double>(y), y);
  case UmrechnungEinsMinusX:
    return AlsSingle(1.0 - static_cast<double>(x), x);
  default:
    return false;
  }
}

} // namespace

frmQXYEdit::frmQXYEdit(ProjectState& s, ui::Oberflaeche& ui)
    : DatumZeit(Uhr), s_(s), ui_(ui), verzeichnis_(s.Datenbank.ProgrammVerzeichnis) {
  Caption = Titel;
  Freigaben();
}

std::vector<XYDatenSatz> frmQXYEdit::XYDaten() const {
  std::vector<XYDatenSatz> d;
  for (const DatenZeile& z : Tabelle.Zeilen())
    d.push_back({static_cast<float>(z.Werte[0]), static_cast<float>(z.Werte[1]), z.Inaktiv});
  return d;
}

void frmQXYEdit::Freigaben() {
  const bool eine = Tabelle.Anzahl() >= 1, zwei = Tabelle.Anzahl() >= 2;
  cmdSaveEnabled = HatDaten();
  cmdPrintEnabled = cmdEraseEnabled = cmdEraseSelectedEnabled = eine;
  cmdAusEnabled = cmdChangeXYEnabled = cmdManipEnabled = cmdClipboardEnabled = cmdDrawXYEnabled = eine;
  XSortEnabled = YSortEnabled = zwei;
  cmdFittingEnabled = FittingAngeboten && eine;
  if (!eine) {
    optInputMode = 0;
    fraManipulationVisible = false;
  }
}

// Every value held at single precision, as the file model keeps it.
void frmQXYEdit::AufSingle() {
  for (int i = 0; i < Tabelle.Anzahl(); ++i)
    for (int j = 0; j < 2; ++j) {
      const double w = Tabelle.Zeile(i).Werte[static_cast<std::size_t>(j)];
      Tabelle.SetzeWert(i, j, static_cast<float>(std::clamp(w, -FloatGrenze, FloatGrenze)));
    }
}

void frmQXYEdit::Aenderung() {
  AufSingle();
  Geaendert = true;
  Freigaben();
}

void frmQXYEdit::ZelleEingabe(int zeile, int spalte, const std::string& text) {
  if (zeile < 0 || zeile >= Tabelle.Anzahl() || spalte < 0 || spalte > 1) return;
  Tabelle.SetzeWert(zeile, spalte, Eingabewert(text));
  Aenderung();
}

void frmQXYEdit::OKinput() {
  const double x = Eingabewert(txtX), y = Eingabewert(txtY);
  if (x == 0 && y == 0) return; // an empty input is no row
  if (Tabelle.Leer()) optInputMode = 0;
  if (optInputMode == 0) {
    Tabelle.Anhaengen(DatenZeile{{x, y}, false});
  } else {
    const int z = Tabelle.CursorZeile;
    if (z < 0 || z >= Tabelle.Anzahl()) return;
    Tabelle.Ersetzen(z, DatenZeile{{x, y}, Tabelle.Zeile(z).Inaktiv});
  }
  Aenderung();
}

void frmQXYEdit::txtComment_Change(const std::string& text) {
  if (text == txtComment) return;
  txtComment = text;
  Geaendert = true;
  Freigaben();
}

void frmQXYEdit::cmdAus() {
  if (!Tabelle.AktivUmschalten(Tabelle.CursorZeile)) {
    ++Piepser;
    return;
  }
  Aenderung();
}

void frmQXYEdit::cmdChangeXY() {
  if (Tabelle.Leer()) {
    ++Piepser;
    return;
  }
  for (int i = 0; i < Tabelle.Anzahl(); ++i) {
    const DatenZeile& z = Tabelle.Zeile(i);
    Tabelle.Ersetzen(i, DatenZeile{{z.Werte[1], z.Werte[0]}, z.Inaktiv});
  }
  Aenderung();
}

void frmQXYEdit::Sortieren(int spalte) {
  if (!Tabelle.Sortieren(spalte)) {
    ++Piepser;
    return;
  }
  Aenderung();
}

void frmQXYEdit::XSort() {
  Sortieren(0);
}

void frmQXYEdit::YSort() {
  Sortieren(1);
}

void frmQXYEdit::cmdErase() {
  if (Tabelle.Leer()) {
    ++Piepser;
    return;
  }
  const TabellenAuswahl& a = Tabelle.Auswahl;
  const int von = std::max(a.Zeile1, 0), bis = std::min(a.Zeile2, Tabelle.Anzahl() - 1);
  if (a.Leer() || von > bis) {
    ui_.Meldung("keine Markierung!", TitelNichtMoeglich, ui::Symbol::Ausruf);
    return;
  }
  const std::string frage = von == bis ? "Zeile " + std::to_string(von + 1) + " wirklich entfernen?"
                                       : "Zeilen " + std::to_string(von + 1) + " bis " +
                                             std::to_string(bis + 1) + " wirklich entfernen?";
  if (ui_.Frage(frage, "WARNUNG", ui::Knoepfe::JaNein, ui::Antwort::Nein) != ui::Antwort::Ja) return;
  Tabelle.ZeilenLoeschen(von, bis);
  Aenderung();
}

void frmQXYEdit::cmdEraseSelected() {
  if (Tabelle.Leer() || Tabelle.Auswahl.Leer()) {
    ++Piepser;
    return;
  }
  Tabelle.ZellenLeeren(Tabelle.Auswahl);
  Aenderung();
}

void frmQXYEdit::cmdManip() {
  if (Tabelle.Leer()) {
    ++Piepser;
    return;
  }
  fraManipulationVisible = true;
}

void frmQXYEdit::cmdCloseManip() {
  fraManipulationVisible = false;
}

bool frmQXYEdit::cmdExecManip() {
  if (optManip < UmrechnungExpY || optManip > UmrechnungEinsMinusX) return false;
  double w = 0;
  if (optManip == UmrechnungMalW || optManip == UmrechnungPlusW) {
    const ZahlErgebnis z = LeseZahl(txtW);
    if (!z.ok) {
      ui_.Meldung("Der Wert W = \"" + txtW + "\" ist keine Zahl.", TitelNichtMoeglich, ui::Symbol::Ausruf);
      return false;
    }
    w = z.wert;
  }
  // All rows are converted aside first, so that a point that fails leaves every row as it was.
  std::vector<XYDatenSatz> neu = XYDaten();
  bool aktive = false;
  for (std::size_t i = 0; i < neu.size(); ++i) {
    if (neu[i].Inaktiv) continue;
    aktive = true;
    const XYDatenSatz alt = neu[i];
    if (Umrechnen(optManip, w, neu[i].x, neu[i].y)) continue;
    ui_.Meldung(std::string(NichtAusfuehrbar) + "\r\n\r\nerster problematischer Punkt: Zeile " +
                    std::to_string(i + 1) + " (x = " + SingleText(alt.x) + ", y = " + SingleText(alt.y) +
                    ")\r\nDie Daten bleiben unverändert.",
                TitelNichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  if (!aktive) {
    ui_.Meldung(KeinAktiverPunkt, TitelNichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  for (std::size_t i = 0; i < neu.size(); ++i)
    Tabelle.Ersetzen(static_cast<int>(i), DatenZeile{{neu[i].x, neu[i].y}, neu[i].Inaktiv});
  Aenderung();
  return true;
}

std::optional<DiagrammPunkte> frmQXYEdit::cmdDrawXY() {
  DiagrammPunkte p;
  for (const XYDatenSatz& z : XYDaten()) {
    if (z.Inaktiv) continue;
    p.X.push_back(z.x);
    p.Y.push_back(z.y);
  }
  if (p.X.empty()) {
    ui_.Meldung(KeinAktiverPunkt, TitelNichtMoeglich, ui::Symbol::Ausruf);
    return std::nullopt;
  }
  p.Legende = Legende();
  p.Quelle = PunktQuelle::XYEditor;
  DiagrammAuftrag& a = p.NeuesDiagramm;
  a.Titel = p.Legende.empty() ? "X-Y-Daten" : p.Legende;
  a.XText = "x";
  a.YText = "y";
  DiagrammBereich(p.X, a.Xmin, a.Xmax);
  DiagrammBereich(p.Y, a.Ymin, a.Ymax);
  return p;
}

bool frmQXYEdit::cmdFitting() {
  FitDaten.clear();
  for (const XYDatenSatz& z : XYDaten())
    if (!z.Inaktiv) FitDaten.push_back({z.x, z.y, 0.0f});
  if (FitDaten.empty()) {
    ui_.Meldung(KeinAktiverPunkt, TitelNichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  return true;
}

} // namespace quor
