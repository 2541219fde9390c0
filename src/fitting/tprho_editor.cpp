// frmTpRhoEdit: opening, the mirror between the data and the table, the enabling, the input of a
// row in its units and the direct editing of cells.
#include "fitting/tprho_editor.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace quor {

const char* const frmTpRhoEdit::LeereListe = "leere Liste";
const char* const frmTpRhoEdit::GridKopf = "  #     aus";
const char* const frmTpRhoEdit::TitelNeu = " experimentelle Daten eingeben/editieren ";
const char* const frmTpRhoEdit::Kopf[2][6] = {
    {"T /", "p /", "rhoV/", "rhoL/", "delta(LV)h /", "cp /"},
    {"K", "kPa", "kg/m^3", "kg/m^3", "kJ/kmol", "kJ/(kmol K)"},
};

namespace {

const SteuerText Texte[] = {
    {"cmdBatchLoad", "Neu-&Laden *.BAQ", nullptr},
    {"cmdBatchAdd", "Add. ein File *.BAQ", nullptr},
    {"TSort", nullptr, " Tabelle nach Temperatur sortieren (aufsteigend) "},
    {"pSort", nullptr, " Tabelle nach Druck sortieren  (aufsteigend) "},
    {"cmdAus", "Zeile aktiv/inaktiv", "... schließt Zeile von Grafiik und Fitting aus "},
    {"aus", nullptr, " deaktiviert den markierten  Datensatz, ohne ihn zu löschen (wird nicht gespeichert) "},
    {"cmdErase", "markierte Zeile(n) &entfernen", nullptr},
    {"cmdClipEinfuegen", "Einfügen Clipboard-Inhalt", " ...an markierter Tabellenposition "},
    {"cmdFitting", nullptr, " ausgewähltes Daten-Paar T-y  zum Fitting senden und Fitting-Modul öffnen   "},
    {"cmdGraphFunction", "Kontroll-Grafik   y=f(T)",
     " für ausgewähltes Spaltenpaar T-y Punkte zeichnen - auch in ein bestehendes Diagramm   (ohne "
     "Datenprüfung) "},
    {"cmdlogGraf", "Messpunkt-Grafik  ln(p)=f(1/T)",
     " ausgewähltes Spaltenpaar T-p: Punkte ln(p) versus (1/T) zeichnen "},
    {"cmdSaveXY", "als *.XY speichern",
     " ausgewähltes Spaltenpaar T-y: systemeigene Textdatei  *.XY schreiben; Betrachter:XY-Editor  "},
    {"cmdPrintTpVListe", "Tabelle &drucken", nullptr},
    {"Edit_OK", "Schließen <Esc>", nullptr},
    {"txtComment", "optionaler File-Kommentar für BAQ-Files", nullptr},
    {"txtMol", "n/kmol =", nullptr},
    {"optInputMode(0)", "Zeile zufügen", nullptr},
    {"optInputMode(1)", "Zeile editieren", nullptr},
    {"opt_T_unit(0)", "K", nullptr},
    {"opt_T_unit(1)", "°C", nullptr},
    {"opt_p_Unit(0)", "kPa", nullptr},
    {"opt_p_Unit(1)", "atm", nullptr},
    {"opt_p_Unit(2)", "Torr", nullptr},
    {"opt_Rho_Unit(0)", "rho", nullptr},
    {"opt_Rho_Unit(1)", " V = M n / rho ", nullptr},
};

constexpr RGBFarbe Weiss{255, 255, 255};
constexpr RGBFarbe Hervorgehoben{255, 255, 192};
constexpr double CelsiusNull = 273.15;
constexpr double TorrJeAtm = 760;

// A number typed or pasted: "," becomes ".", then read as Basic's Val() reads it.
double Zahl(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  const double x = ValVB(text);
  return std::isfinite(x) ? x : 0.0;
}

// A value of a single column; one beyond the range of float holds no measurement.
float AlsSingle(double x) {
  return std::fabs(x) <= std::numeric_limits<float>::max() ? static_cast<float>(x) : 0.0f;
}

// Rounded to `stellen` decimals as Int(x * 10^n + 0.5) / 10^n.
double Gerundet(double x, double faktor) {
  return std::floor(x * faktor + 0.5) / faktor;
}

} // namespace

DatenZeile TabellenZeile(const ExpDatenSatz& z) {
  DatenZeile d;
  d.Werte = {z.T, z.p, z.RhoV, z.RhoL, z.HLV, z.Cp};
  d.Inaktiv = z.Inaktiv;
  return d;
}

ExpDatenSatz DatenSatz(const DatenZeile& d) {
  ExpDatenSatz z;
  auto wert = [&d](int i) { return i < static_cast<int>(d.Werte.size()) ? d.Werte[i] : 0.0; };
  z.T = wert(tprho::T);
  z.p = wert(tprho::p);
  z.RhoV = AlsSingle(wert(tprho::RhoV));
  z.RhoL = AlsSingle(wert(tprho::RhoL));
  z.HLV = AlsSingle(wert(tprho::HLV));
  z.Cp = AlsSingle(wert(tprho::Cp));
  z.Inaktiv = d.Inaktiv;
  return z;
}

const SteuerText* TpRhoText(const std::string& name) {
  for (const SteuerText& t : Texte)
    if (name == t.Name) return &t;
  return nullptr;
}

frmTpRhoEdit::frmTpRhoEdit(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmTpRhoEdit::Form_Load() {
  const float M = s_.Stoff.MolMasse;
  opt_Rho_UnitVolumenEnabled = M > 0;
  opt_Rho_UnitToolTip =
      " Übernahme des Eingabewertes nach Umrechnung rho = M n / V (Molmasse M/(kg/kmol) = " +
      FormatVB(M, "####.##") + ") ";
  txtComment = s_.Mess.BatchKommentar;
  TabelleAusDaten();
  CaptionSetzen();
  opt_T_unit_Click(opt_T_unit);
  opt_p_Unit_Click(opt_p_Unit);
  opt_Rho_Unit_Click(opt_Rho_Unit);
  optInputMode_Click(Grid.Leer() ? ZeileZufuegen : ZeileEditieren);
}

// ---- the mirror of the data

void frmTpRhoEdit::TabelleAusDaten() {
  const MessdatenGruppe& m = s_.Mess;
  std::vector<DatenZeile> zeilen;
  for (int i = 1; i <= m.ExpAnzahl && i < static_cast<int>(m.ExpDaten.size()); ++i)
    zeilen.push_back(TabellenZeile(m.ExpDaten[static_cast<std::size_t>(i)]));
  Grid.Setzen(std::move(zeilen));
  Freigaben();
}

void frmTpRhoEdit::DatenAusTabelle() {
  constexpr int Hoechstens = std::numeric_limits<int16_t>::max();
  if (Grid.Anzahl() > Hoechstens) Grid.ZeilenLoeschen(Hoechstens, Grid.Anzahl() - 1);
  MessdatenGruppe& m = s_.Mess;
  m.ExpDaten.resize(1);
  for (const DatenZeile& z : Grid.Zeilen())
    m.ExpDaten.push_back(DatenSatz(z));
  m.ExpAnzahl = static_cast<int16_t>(Grid.Anzahl());
  Freigaben();
}

// One routine sets every enabling after a change: the buttons by the count of rows, the fit
// columns by their measured values, the colours by the chosen column.
void frmTpRhoEdit::Freigaben() {
  const int n = s_.Mess.ExpAnzahl;
  const std::vector<int> gemessen = Grid.Gemessen();
  std::copy(gemessen.begin(), gemessen.end(), Gemessen.begin());
  optFitFunction = s_.Mess.FitSpalte;
  for (int k = 0; k < tprho::Spalten; ++k) {
    optFitFunctionEnabled[k] = k > 0 && Gemessen[tprho::T] >= 3 && Gemessen[k] >= 1;
    SpaltenFarbe[k] = k == tprho::T || k == optFitFunction ? Hervorgehoben : Weiss;
  }
  cmdBatchAddEnabled = cmdBatchSaveEnabled = cmdEraseEnabled = n >= 1;
  cmdAusEnabled = cmdPrintTpVListeEnabled = cmdSaveXYEnabled = n >= 1;
  TSortEnabled = pSortEnabled = cmdGraphFunctionEnabled = n >= 2;
  cmdFittingEnabled = n >= 3;
  cmdlogGrafEnabled = optFitFunction == 1 && n >= 2;
  optInputModeEditierenEnabled = n >= 1;
  if (n == 0) optInputMode = ZeileZufuegen;
  s_.Projekt.Freigaben.ExpDaten = n >= 1;
}

void frmTpRhoEdit::CaptionSetzen() {
  const MessdatenGruppe& m = s_.Mess;
  Caption = m.BatchDateiTitel.empty()
                ? TitelNeu
                : " experimentelle Daten, " + s_.Stoff.StoffName + " (File " + m.BatchDateiTitel + ")";
}

bool frmTpRhoEdit::Leer() {
  if (!Grid.Leer()) return false;
  ++Piepser;
  return true;
}

// ---- the input of a row

double frmTpRhoEdit::Molmenge() const {
  return Zahl(txtMol);
}

void frmTpRhoEdit::y_LostFocus(int feld) {
  if (feld < 0 || feld >= tprho::Spalten) return;
  const double w = Zahl(y[feld]);
  double& ziel = puffer_[feld];
  switch (feld) {
  case tprho::T:
    ziel = opt_T_unit == einheit::Celsius ? w + CelsiusNull : w;
    break;
  case tprho::p:
    ziel = opt_p_Unit == einheit::atm    ? w * pNormal
           : opt_p_Unit == einheit::Torr ? w * pNormal / TorrJeAtm
                                         : w;
    break;
  case tprho::RhoV:
  case tprho::RhoL:
    if (opt_Rho_Unit == einheit::Dichte)
      ziel = w;
    else if (w > 0)
      ziel = s_.Stoff.MolMasse * Molmenge() / w;
    break;
  default:
    ziel = w;
  }
}

void frmTpRhoEdit::FeldAusPuffer(int feld) {
  const double x = puffer_[feld];
  std::string& text = y[feld];
  switch (feld) {
  case tprho::T:
    text = DoubleText(Gerundet(opt_T_unit == einheit::Celsius ? x - CelsiusNull : x, 1000));
    break;
  case tprho::p:
    if (opt_p_Unit == einheit::kPa)
      text = DoubleText(Gerundet(x, 100000));
    else
      text = SingleText(AlsSingle(opt_p_Unit == einheit::atm ? x / pNormal : x / pNormal * TorrJeAtm));
    break;
  case tprho::RhoV:
  case tprho::RhoL:
    if (opt_Rho_Unit == einheit::Dichte)
      text = SingleText(AlsSingle(x));
    else
      text = x > 0 ? SingleText(AlsSingle(s_.Stoff.MolMasse * Molmenge() / x)) : std::string();
    break;
  default:
    text = SingleText(AlsSingle(x));
  }
}

void frmTpRhoEdit::FelderAusPuffer() {
  for (int i = 0; i < tprho::Spalten; ++i)
    FeldAusPuffer(i);
}

void frmTpRhoEdit::opt_T_unit_Click(int16_t index) {
  opt_T_unit = index == einheit::Celsius ? einheit::Celsius : einheit::Kelvin;
  FelderAusPuffer();
}

void frmTpRhoEdit::opt_p_Unit_Click(int16_t index) {
  static const char* const einheiten[] = {"kPa", "atm", "Torr"};
  opt_p_Unit = index >= einheit::kPa && index <= einheit::Torr ? index : einheit::kPa;
  lblPEinheit = einheiten[opt_p_Unit];
  FelderAusPuffer();
}

void frmTpRhoEdit::opt_Rho_Unit_Click(int16_t index) {
  const bool volumen = index == einheit::Volumen && opt_Rho_UnitVolumenEnabled;
  opt_Rho_Unit = volumen ? einheit::Volumen : einheit::Dichte;
  lblDichte = volumen ? "mol. Volumen" : "Dichte";
  lblRhoV = volumen ? "v_V" : "rho_V";
  lblRhoL = volumen ? "v_L" : "rho_L";
  lblRhoEinheit = volumen ? "m^3" : "kg/m^3";
  FelderAusPuffer();
}

void frmTpRhoEdit::optInputMode_Click(int16_t index) {
  optInputMode = index == ZeileEditieren && !Grid.Leer() ? ZeileEditieren : ZeileZufuegen;
  if (optInputMode == ZeileEditieren)
    Grid_Zeile(std::max(Grid.CursorZeile, 0));
  else
    lblZeile = "Zeile " + std::to_string(Grid.Anzahl() + 1);
}

void frmTpRhoEdit::Grid_Zeile(int zeile) {
  if (zeile < 0 || zeile >= Grid.Anzahl()) return;
  Grid.CursorZeile = zeile;
  if (optInputMode != ZeileEditieren) return;
  const std::vector<double>& werte = Grid.Zeile(zeile).Werte;
  std::copy(werte.begin(), werte.end(), puffer_.begin());
  FelderAusPuffer();
  lblZeile = "Zeile " + std::to_string(zeile + 1);
}

void frmTpRhoEdit::OKinput() {
  double summe = 0;
  for (int i = 0; i < tprho::Spalten; ++i) {
    y_LostFocus(i);
    summe += Zahl(y[i]);
  }
  if (summe == 0) return;
  if (Grid.Leer()) optInputMode = ZeileZufuegen;
  DatenZeile neu;
  neu.Werte.assign(puffer_.begin(), puffer_.end());
  int naechste = Grid.Anzahl() + 2;
  if (optInputMode == ZeileZufuegen) {
    Grid.Anhaengen(neu);
  } else {
    const int zeile = std::clamp(Grid.CursorZeile, 0, Grid.Anzahl() - 1);
    neu.Inaktiv = Grid.Zeile(zeile).Inaktiv;
    Grid.Ersetzen(zeile, neu);
    naechste = zeile + 2;
  }
  s_.Mess.BatchGeaendert = true;
  DatenAusTabelle();
  if (optInputMode == ZeileEditieren) Grid_Zeile(naechste - 1);
  lblZeile = "Zeile " + std::to_string(naechste);
}

// ---- direct editing of a cell

bool frmTpRhoEdit::ZahlTaste(char c) {
  return (c >= '0' && c <= '9') || (c != '\0' && std::strchr(".,+-eE\b", c) != nullptr);
}

void frmTpRhoEdit::Grid_Enter(int zeile, int spalte, const std::string& text) {
  if (zeile < 0 || zeile >= Grid.Anzahl() || spalte < 0 || spalte >= tprho::Spalten) return;
  Grid.SetzeWert(zeile, spalte, Zahl(text));
  s_.Mess.BatchGeaendert = true;
  DatenAusTabelle();
  puffer_[spalte] = Grid.Zeile(zeile).Werte[spalte];
  FeldAusPuffer(spalte);
}

void frmTpRhoEdit::txtComment_Change(const std::string& text) {
  txtComment = text;
  if (text == s_.Mess.BatchKommentar) return;
  s_.Mess.BatchKommentar = text;
  s_.Mess.BatchGeaendert = true;
}

void frmTpRhoEdit::optFitFunction_Click(int16_t index) {
  if (index < 0 || index >= tprho::Spalten || (index > 0 && !optFitFunctionEnabled[index])) return;
  s_.Mess.FitSpalte = index;
  Freigaben();
}

} // namespace quor
