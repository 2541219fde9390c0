#include "diagrams/diagramm_datei_befehle.h"

#include "core/datei_io.h"
#include "diagrams/diagramm_datei.h"
#include "diagrams/xy_datei.h"

#include <algorithm>
#include <cctype>

namespace quor {

const char* const ZwischenablageRat =
    "Testen Sie, ob die Vektor- oder die Bitmap-Kopie für Ihren Fall das bessere Ergebnis liefert.";

namespace {

constexpr const char* FilterOC2 = "Diagramm-File (*.oc2)|*.oc2";
constexpr const char* FilterOC3 = "Diagramm-File (*.oc3)|*.oc3";
constexpr const char* TitelLaden = "Laden einer abgespeicherten Diagrammvorlage";
// A diagram file is text of a few megabytes at most; anything much larger is no file of ours.
constexpr std::size_t GroessteDiagrammDatei = 256u << 20;

std::string Ordner(const std::string& pfad) {
  const std::size_t s = pfad.find_last_of('/');
  return s == std::string::npos ? std::string() : pfad.substr(0, s);
}

std::string DateiName(const std::string& pfad) {
  const std::size_t s = pfad.find_last_of('/');
  return s == std::string::npos ? pfad : pfad.substr(s + 1);
}

ui::DateiDialog Dialog(const ProjectState& s, const char* titel, const char* filter, const char* endung) {
  ui::DateiDialog d;
  d.titel = titel;
  d.filter = filter;
  d.standardEndung = endung;
  d.startVerzeichnis =
      s.Diagramm.DateiVerzeichnis.empty() ? s.Datenbank.ProgrammVerzeichnis : s.Diagramm.DateiVerzeichnis;
  return d;
}

std::optional<std::string> Speichern(ProjectState& s, ui::Oberflaeche& ui, const ui::DateiDialog& d) {
  auto pfad = ui.DateiSpeichern(d);
  if (pfad) s.Diagramm.DateiVerzeichnis = Ordner(*pfad);
  return pfad;
}

std::optional<std::string> Oeffnen(ProjectState& s, ui::Oberflaeche& ui, const ui::DateiDialog& d) {
  auto pfad = ui.DateiOeffnen(d);
  if (pfad) s.Diagramm.DateiVerzeichnis = Ordner(*pfad);
  return pfad;
}

bool Schreiben(ui::Oberflaeche& ui, const std::string& pfad, const std::string& text) {
  if (SchreibeDateiBytes(pfad, text)) return true;
  ui.Meldung("Die Datei " + pfad + "\r\nkann nicht geschrieben werden.\r\nDas Diagramm ist nicht gespeichert.",
             "Fehler beim Speichern", ui::Symbol::Kritisch);
  return false;
}

// The bytes of a file to load, or a message and nothing.
std::optional<std::string> Lesen(ui::Oberflaeche& ui, const std::string& pfad, const std::string& titel) {
  std::string bytes;
  if (!LeseDateiBytes(pfad, bytes) || bytes.size() > GroessteDiagrammDatei) {
    ui.Meldung("Die Datei " + pfad + "\r\nkann nicht gelesen werden.", titel, ui::Symbol::Ausruf);
    return std::nullopt;
  }
  return bytes;
}

void Unlesbar(ui::Oberflaeche& ui, const std::string& pfad, const std::string& grund) {
  ui.Meldung("Die Datei " + DateiName(pfad) + " ist keine lesbare Diagrammdatei:\r\n" + grund +
                 "\r\nDas Diagramm bleibt, wie es war.",
             TitelLaden, ui::Symbol::Ausruf);
}

// Tells what differs between the file's origin and what is loaded now.
void HerkunftPruefen(const ProjectState& s, ui::Oberflaeche& ui, const DiagrammHerkunft& datei) {
  const std::vector<std::string> unterschiede = HerkunftUnterschiede(datei, HerkunftVon(s));
  if (unterschiede.empty()) return;
  std::string text = "Das Diagramm wurde mit anderen Einstellungen erstellt, als jetzt geladen sind:";
  for (const std::string& z : unterschiede) text += "\r\n- " + z;
  text += "\r\nZum Weiterbearbeiten laden Sie bitte den passenden Stoff und die gleichen Modelle"
          "\r\n(inkl. gleicher Normierung der thermodynamischen Funktionen).";
  ui.Meldung(text, "Hinweis", ui::Symbol::Information);
}

void EinmaligerHinweis(ProjectState& s, ui::Oberflaeche& ui) {
  if (s.Diagramm.OC2HinweisGezeigt) return;
  s.Diagramm.OC2HinweisGezeigt = true;
  ui.Meldung("Wenn Sie das OC2-Diagramm weiter bearbeiten möchen,\r\n"
             "beachten Sie bitte:\r\n"
             "1) Laden Sie das OC2-Diagrammfile nur bei passender Einstellung\r\n"
             "   des Diagramm-Typs.\r\n"
             "2) Es müssen der für dieses OC2-File gültige Stoff und die\r\n"
             "   gleichen Modelle (inkl. gleicher Normierung der thermo-\r\n"
             "   dynamischen Funktionen) geladen sein.",
             "einmaliger Hinweis", ui::Symbol::Information);
}

std::string Klein(std::string t) {
  std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::tolower(c); });
  return t;
}

} // namespace

bool mnuSaveOC2(ProjectState& s, ui::Oberflaeche& ui, const frmQGraph2D& d) {
  if (d.Gekippt() &&
      ui.Frage("Es wird empfohlen, das Diagramm nicht im gekippten Zustand zu speichern.\r\nFortfahren?", "Warnung",
               ui::Knoepfe::JaNein, ui::Antwort::Nein) != ui::Antwort::Ja)
    return false;
  auto dialog = Dialog(s, "Speichern dieser 2D-Diagrammgestaltung", FilterOC2, ".oc2");
  dialog.dateiName = "*.oc2";
  const auto pfad = Speichern(s, ui, dialog);
  if (!pfad) return false;
  return Schreiben(ui, *pfad, SchreibeOC2({HerkunftVon(s), d.Zustand()}));
}

bool mnuLoadOC2(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& d) {
  EinmaligerHinweis(s, ui);
  const auto pfad = Oeffnen(s, ui, Dialog(s, TitelLaden, FilterOC2, ".oc2"));
  if (!pfad) return false;
  const auto bytes = Lesen(ui, *pfad, TitelLaden);
  if (!bytes) return false;
  std::string fehler;
  const auto datei = LeseOC2(*bytes, fehler);
  if (!datei) {
    Unlesbar(ui, *pfad, fehler);
    return false;
  }
  d.ZustandSetzen(datei->Zustand);
  HerkunftPruefen(s, ui, datei->Herkunft);
  return true;
}

bool mnuSaveOC3(ProjectState& s, ui::Oberflaeche& ui, const frmGraph3D& d, const Ansicht3D& ansicht) {
  auto dialog = Dialog(s, "Speichern dieser Diagrammgestaltung", FilterOC3, ".oc3");
  dialog.dateiName = "*.oc3";
  const auto pfad = Speichern(s, ui, dialog);
  if (!pfad) return false;
  return Schreiben(ui, *pfad, SchreibeOC3({HerkunftVon(s), d.Zustand(ansicht)}));
}

bool mnuLoadOC3(ProjectState& s, ui::Oberflaeche& ui, frmGraph3D& d) {
  const auto pfad = Oeffnen(s, ui, Dialog(s, TitelLaden, FilterOC3, ".oc3"));
  if (!pfad) return false;
  const auto bytes = Lesen(ui, *pfad, TitelLaden);
  if (!bytes) return false;
  std::string fehler;
  const auto datei = LeseOC3(*bytes, fehler);
  if (!datei) {
    Unlesbar(ui, *pfad, fehler);
    return false;
  }
  d.ZustandSetzen(datei->Zustand);
  HerkunftPruefen(s, ui, datei->Herkunft);
  return true;
}

bool mnuAddPunkte(ProjectState& s, ui::Oberflaeche& ui, frmQGraph2D& d) {
  if (d.PunktSaetze().size() >= static_cast<std::size_t>(MaxPunktSaetze)) {
    ui.Meldung(PunktSaetzeVoll(), "Ausführung nicht möglich", ui::Symbol::Ausruf);
    return false;
  }
  const auto pfad = Oeffnen(s, ui,
                            Dialog(s, "(Kurven)punkte vom File laden", "x-y-Daten (*.XY)|*.XY|(*.LRG)|*LRG", ".XY"));
  if (!pfad) return false;
  const auto bytes = Lesen(ui, *pfad, "(Kurven)punkte vom File laden");
  if (!bytes) return false;
  const XYDatei xy = LeseXYText(*bytes, s.Optionen.XYTrenner);
  if (xy.X.empty()) {
    ui.Meldung("Die Datei " + DateiName(*pfad) + " enthält keine Punkte.", "(Kurven)punkte vom File laden",
               ui::Symbol::Ausruf);
    return false;
  }
  const std::vector<double> X(xy.X.begin(), xy.X.end()), Y(xy.Y.begin(), xy.Y.end());
  const std::string legende = xy.Kommentar.empty() ? DateiName(*pfad) : xy.Kommentar;
  return d.cmdExternPoints(X, Y, PunktQuelle::XYEditor, legende);
}

bool PunkteSpeichern(ProjectState& s, ui::Oberflaeche& ui, const frmQGraph2D& d, int satz, int kurve) {
  XYDatei xy;
  if (satz >= 0 && satz < static_cast<int>(d.PunktSaetze().size())) {
    const Graph2DPunktSatz& ps = d.PunktSaetze()[static_cast<std::size_t>(satz)];
    xy.Kommentar = ps.Legende;
    xy.X.assign(ps.X.begin(), ps.X.end());
    xy.Y.assign(ps.Y.begin(), ps.Y.end());
  } else if (satz < 0 && kurve >= 0 && kurve < MaxKurven && d.KurveBelegt()[static_cast<std::size_t>(kurve)]) {
    const Graph2DKurve& k = d.Kurve(kurve);
    xy.Kommentar = k.Legende;
    for (std::size_t i = 1; i < k.Punkte.size(); ++i) {
      xy.X.push_back(k.Punkte[i].X);
      xy.Y.push_back(k.Punkte[i].Y);
    }
  }
  if (xy.X.empty()) {
    ui.Meldung("keine Daten zum Abspeichern verfügbar", "(Kurven)punkte speichern unter ...", ui::Symbol::Ausruf);
    return false;
  }
  const auto pfad = Speichern(s, ui, Dialog(s, "(Kurven)punkte speichern unter ...", "x-y-Daten (*.XY)|*.XY", ".XY"));
  if (!pfad) return false;
  return Schreiben(ui, *pfad, SchreibeXYText(xy, s.Optionen.XYTrenner));
}

std::optional<BildFormat> BildFormatVon(const std::string& pfad) {
  const std::size_t punkt = pfad.find_last_of('.');
  if (punkt == std::string::npos || pfad.find('/', punkt) != std::string::npos) return std::nullopt;
  const std::string e = Klein(pfad.substr(punkt + 1));
  if (e == "png") return BildFormat::PNG;
  if (e == "bmp") return BildFormat::BMP;
  if (e == "svg") return BildFormat::SVG;
  if (e == "pdf") return BildFormat::PDF;
  return std::nullopt;
}

std::optional<BildDatei> BildDateiWaehlen(ProjectState& s, ui::Oberflaeche& ui, bool vektor) {
  // The metafile formats of Windows have no writer here; PNG and BMP stand for the bitmap, SVG and
  // PDF for the vector picture, and the dialog's title says so.
  const auto dialog =
      vektor ? Dialog(s, "Bildfile schreiben: Vektor-Grafik (SVG oder PDF; WMF und EMF gibt es unter Linux nicht)",
                      "Vektor-Grafik SVG (*.svg)|*.svg|Vektor-Grafik PDF (*.pdf)|*.pdf", ".svg")
             : Dialog(s, "Bildfile schreiben: Bitmap-Grafik (PNG oder BMP)",
                      "Bitmap-Grafik PNG (*.png)|*.png|Bitmap (.BMP) (*.bmp)|*.bmp", ".png");
  const auto pfad = Speichern(s, ui, dialog);
  if (!pfad) return std::nullopt;
  BildDatei b{*pfad, vektor ? BildFormat::SVG : BildFormat::PNG};
  const auto format = BildFormatVon(*pfad);
  const bool passt = format && ((*format == BildFormat::SVG || *format == BildFormat::PDF) == vektor);
  if (passt) b.Format = *format;
  else b.Pfad += vektor ? ".svg" : ".png";
  return b;
}

bool DruckenBestaetigt(ui::Oberflaeche& ui, RGBFarbe seitenfarbe) {
  if (seitenfarbe != RGBFarbe{0, 0, 0}) return true;
  return ui.Frage("Sie haben ein schwarzes Zeichenblatt gewählt.\r\nWollen Sie das wirklich so drucken?", "WARNUNG",
                  ui::Knoepfe::JaNein, ui::Antwort::Nein) == ui::Antwort::Ja;
}

} // namespace quor
