// frmTpRhoEdit: what leaves the editor: the printed list, a column pair as .XY file, the points of
// the control diagrams, and what the fitting dialog is opened with.
#include "fitting/batch_datei.h"
#include "fitting/fit_modell.h"
#include "fitting/tprho_editor.h"

#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/projekt_datei.h"
#include "core/zahlformat.h"
#include "diagrams/xy_datei.h"

#include <cmath>

namespace quor {

namespace {

constexpr const char* NichtMoeglich = "Ausführung nicht möglich";
constexpr std::size_t Spaltenbreite = 14;

std::string Listenzeile(const std::array<std::string, tprho::Spalten>& texte) {
  std::string z;
  for (const std::string& t : texte)
    z += RechtsBuendig(t, Spaltenbreite);
  return z;
}

// The printer's line by line, a new page where the next line wouldn't fit.
void DruckeZeilen(ui::Drucker& d, const std::vector<std::string>& zeilen) {
  const double h = d.ZeilenHoehe();
  double y = 0;
  for (const std::string& z : zeilen) {
    if (y > 0 && y + h > d.SeitenHoehe()) {
      d.NeueSeite();
      y = 0;
    }
    d.Position(0, y);
    d.DruckeText(z);
    y += h;
  }
}

// The column's value of a stored row, in screen order.
double Wert(const ExpDatenSatz& z, int spalte) {
  return TabellenZeile(z).Werte[static_cast<std::size_t>(spalte)];
}

} // namespace

bool frmTpRhoEdit::cmdPrintTpVListe() {
  const MessdatenGruppe& m = s_.Mess;
  if (m.ExpAnzahl < 1) return false;
  std::array<std::string, tprho::Spalten> kopf1, kopf2;
  for (int k = 0; k < tprho::Spalten; ++k) {
    kopf1[k] = Kopf[0][k];
    kopf2[k] = Kopf[1][k];
  }
  const std::string linie(Spaltenbreite * tprho::Spalten, '_');
  std::vector<std::string> zeilen = {Listenzeile(kopf1), Listenzeile(kopf2), linie};
  for (int i = 1; i <= m.ExpAnzahl; ++i) {
    std::array<std::string, tprho::Spalten> werte;
    for (int k = 0; k < tprho::Spalten; ++k)
      werte[k] = SingleText(static_cast<float>(Wert(m.ExpDaten[static_cast<std::size_t>(i)], k)));
    zeilen.push_back(Listenzeile(werte));
  }
  zeilen.push_back(linie);
  ui::Drucker& d = ui_.Druck();
  if (!d.StartDokument("QUOR: exper. Daten")) return false;
  d.Schrift("COURIER", 10);
  DruckeZeilen(d, zeilen);
  d.EndeDokument();
  return true;
}

bool frmTpRhoEdit::cmdSaveXY() {
  const MessdatenGruppe& m = s_.Mess;
  const int k = m.FitSpalte;
  XYDatei xy;
  for (int i = 1; i <= m.ExpAnzahl && k > 0 && k < tprho::Spalten; ++i) {
    const ExpDatenSatz& z = m.ExpDaten[static_cast<std::size_t>(i)];
    if (z.Inaktiv) continue;
    xy.X.push_back(static_cast<float>(z.T));
    xy.Y.push_back(static_cast<float>(Wert(z, k)));
  }
  if (xy.X.empty()) {
    ui_.Meldung("keine Daten zum Abspeichern verfügbar", NichtMoeglich, ui::Symbol::Ausruf);
    return false;
  }
  xy.Kommentar = "exper. Daten " + s_.Stoff.StoffName + ": x = T / K, y = " + Kopf[0][k] + " " + Kopf[1][k];
  ui::DateiDialog d;
  d.titel = "T-y-Daten speichern unter ...";
  d.filter = "x-y-Daten (*.XY)|*.XY";
  d.standardEndung = ".XY";
  d.startVerzeichnis =
      m.BatchDateiPfad.empty() ? s_.Datenbank.ProgrammVerzeichnis : VerzeichnisTeil(m.BatchDateiPfad);
  const auto pfad = ui_.DateiSpeichern(d);
  if (!pfad || pfad->empty() || !UeberschreibenErlaubt(ui_, *pfad)) return false;
  if (SchreibeDateiBytes(*pfad, SchreibeXYText(xy, s_.Optionen.XYTrenner))) return true;
  ui_.Meldung("Die Datei " + *pfad + "\r\nkann nicht geschrieben werden.", "Fehler beim Speichern",
              ui::Symbol::Kritisch);
  return false;
}

// The active rows as points: T and the chosen column, or 1/T and ln p; no check of the values in
// the control diagram.
std::optional<DiagrammPunkte> frmTpRhoEdit::Punkte(bool logarithmisch) {
  const MessdatenGruppe& m = s_.Mess;
  const int k = logarithmisch ? tprho::p : m.FitSpalte;
  if (k < 1 || k >= tprho::Spalten) return std::nullopt;
  DiagrammPunkte d;
  for (int i = 1; i <= m.ExpAnzahl; ++i) {
    const ExpDatenSatz& z = m.ExpDaten[static_cast<std::size_t>(i)];
    if (z.Inaktiv) continue;
    if (logarithmisch && (z.T < GemessenAb || z.p < GemessenAb)) {
      ui_.Meldung("T- und p-Spalte dürfen keine Null-Werte enthalten.", NichtMoeglich, ui::Symbol::Ausruf);
      return std::nullopt;
    }
    d.X.push_back(logarithmisch ? 1 / z.T : z.T);
    d.Y.push_back(logarithmisch ? std::log(z.p) : Wert(z, k));
  }
  if (d.X.empty()) return std::nullopt;
  d.Quelle = PunktQuelle::ExpDaten;
  DiagrammAuftrag& a = d.NeuesDiagramm;
  a.Titel = logarithmisch ? "experimentelle Punkte ln{p} = f(1/T)" : "experimentelle Punkte y(T)";
  a.XText = logarithmisch ? "1/ (T/K)" : "T / K";
  a.YText = logarithmisch ? "ln {p}" : "y";
  a.Achsentag = "YX";
  d.Legende = logarithmisch ? std::string("ln {p}") : std::string(Kopf[0][k]) + " " + Kopf[1][k];
  DiagrammBereich(d.X, a.Xmin, a.Xmax);
  DiagrammBereich(d.Y, a.Ymin, a.Ymax);
  return d;
}

std::optional<DiagrammPunkte> frmTpRhoEdit::cmdGraphFunction() {
  return Punkte(false);
}

std::optional<DiagrammPunkte> frmTpRhoEdit::cmdlogGraf() {
  return Punkte(true);
}

FitUebergabe FitUebergabeVon(int16_t fitSpalte) {
  FitUebergabe u;
  u.FitSpalte = fitSpalte;
  switch (fitSpalte) {
  case tprho::p:
    u.Tab = 1;
    u.Modell = fitmodell::August;
    u.optLogFit = 1; // the sum of squares runs on ln p
    u.FunktionsKnopf = "p = f(T)";
    break;
  case tprho::RhoV:
    // The general tab, with option 9 chosen on it.
    u.Tab = 0;
    u.Modell = 9;
    u.FunktionsKnopf = "y = f(T)";
    break;
  case tprho::RhoL:
    u.Tab = 2;
    u.Modell = fitmodell::Rackett;
    u.FunktionsKnopf = "y = f(T)";
    break;
  case tprho::HLV:
    u.Tab = 3;
    u.Modell = fitmodell::Majer;
    break;
  case tprho::Cp:
    u.Tab = 4;
    u.Modell = fitmodell::PolynomCp;
    u.FunktionsKnopf = "y = f(T)";
    break;
  default:
    u.optLogFit = 0;
    u.FunktionsKnopf = "y = f(x)";
  }
  return u;
}

// The data go to the fit sorted by T, so the row numbers of the table change.
FitUebergabe frmTpRhoEdit::cmdFitting() {
  TSort();
  return FitUebergabeVon(s_.Mess.FitSpalte);
}

} // namespace quor
