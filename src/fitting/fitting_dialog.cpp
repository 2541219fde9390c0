// The fitting dialog: opening with the data of an editor, the choice of tab, model and options, the
// run with its results, the start fields, the evaluation and the spline's smoothing field.
#include "fitting/fitting_dialog.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "fitting/fit_lauf.h"
#include "fitting/fit_modell.h"
#include "fitting/fit_modelle.h"

#include <algorithm>

namespace quor {

namespace fm = fitmodell;

namespace {

const char* const FQSTextY = "Fehlerquadrasumme FQS = sum[(y(i),calc - y(i),exp)^2]";
const char* const FQSTextP = "Fehlerquadrasumme FQS = sum[(p(i),calc - p(i),exp)^2]";
const char* const FQSTextLn = "Fehlerquadratsumme FQS = sum[ln((p(i),calc) - ln(p(i),exp))^2]";
const char* const FQSTextLinear = "Fehlerquadratsumme FQS = sum[(p(i),calc - p(i),exp)^2]";
const char* const FixWert = " 0.";
const char* const SmAusserhalb = "Eingabe außerhalb des zulässigen Bereichs";

bool Linear(int16_t code) {
  return code == fm::Polynom || code == fm::Kombi;
}

// The numbers of the dialog's fields are read with "," as a decimal mark too.
double FeldWert(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return ValVB(text);
}

std::string Text(double x) {
  return SingleText(static_cast<float>(std::clamp(x, -3.4e38, 3.4e38)));
}

// The measured value of a row in the column sent (1 p, 2 rho(V), 3 rho(L), 4 delta(LV)h, 5 cp).
double Spalte(const ExpDatenSatz& z, int16_t spalte) {
  switch (spalte) {
  case tprho::p:
    return z.p;
  case tprho::RhoV:
    return z.RhoV;
  case tprho::RhoL:
    return z.RhoL;
  case tprho::HLV:
    return z.HLV;
  case tprho::Cp:
    return z.Cp;
  default:
    return 0;
  }
}

} // namespace

frmQFitting::frmQFitting(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {
  ModellSetzen(Fit.FitModell);
}

// ----- opening -----

void frmQFitting::Form_Load() {
  tcr_ = s_.Stoff.TKrit;
  pcr_ = s_.Stoff.pKrit;
  Fit.SplineGlaettung = 0;
  txtSplineWicht = "0";
  lblEingabetest.clear();
  if (Fit.FitAnzahl == 0) {
    Caption = CaptionOhneDaten;
  } else {
    Caption = " Fitting y = f(T) (" + std::to_string(AktivePunkte(Fit)) +
              " (aktive) Datensätze geladen aus " +
              (Fit.FitEditorCode == QuelleTpRhoEditor ? "T-p-Rho-Editor)" : "XY-Editor)");
  }
  lblApply =
      "...in den aktuell geladenen Datenbestand von " + s_.Stoff.StoffName + " (vgl. Stoffdaten-Editor) ";
  ModellSetzen(Fit.FitModell);
}

// Each row gives x = T and y = the column, both as single values; inactive rows get the flag -1.
void frmQFitting::DatenLaden(const FitUebergabe& u) {
  std::vector<FitPunkt> punkte;
  const MessdatenGruppe& m = s_.Mess;
  for (int i = 1; i <= m.ExpAnzahl && i < static_cast<int>(m.ExpDaten.size()); ++i) {
    const ExpDatenSatz& z = m.ExpDaten[static_cast<std::size_t>(i)];
    punkte.push_back({static_cast<float>(z.T), static_cast<float>(Spalte(z, u.FitSpalte)),
                      z.Inaktiv ? FlagInaktiv : FlagAktiv});
  }
  FitDatenSetzen(Fit, std::move(punkte), u.FitEditorCode);
  FitSpalte = u.FitSpalte;
  FitDatenQuelle = u.FitDatenQuelle;
  if (u.Tab) SSTab1 = *u.Tab;
  if (u.Modell) Fit.FitModell = *u.Modell;
  if (u.optLogFit) optLogFit_Click(*u.optLogFit);
  if (u.FunktionsKnopf) cmdGraphFunctionCaption = *u.FunktionsKnopf;
  Form_Load();
}

void frmQFitting::DatenLaden(const std::vector<FitPunkt>& punkte) {
  FitDatenSetzen(Fit, punkte, QuelleXYEditor);
  FitSpalte = 0;
  FitDatenQuelle = 1;
  Form_Load();
}

// ----- choices -----

void frmQFitting::SSTab1_Click(int tab) {
  if (tab >= 0 && tab < fittab::Anzahl) SSTab1 = tab;
}

void frmQFitting::optFit_Click(int16_t code) {
  const FitModellEintrag* e = FitModellVon(code);
  if (e == nullptr || !e->Sichtbar) return;
  ModellSetzen(code);
}

void frmQFitting::chkLg_Click(int16_t code, bool an) {
  if (!HatLg(code)) return;
  chkLg[static_cast<std::size_t>(code)] = an;
  if (code != Fit.FitModell) return;
  Fit.Lg = an;
  lblFittingEq = FormelText(code, an);
}

// In the linear models a fixed term is left out: its field is hidden. Every fixed field reads " 0."
// for the user to type the fixed value; releasing it brings the proposal back.
void frmQFitting::chkFix_Click(int i, bool an) {
  if (i < 0 || i >= FitMaxPar || !chkFixVisible[static_cast<std::size_t>(i)]) return;
  const auto k = static_cast<std::size_t>(i);
  chkFix[k] = an;
  txtStart[k] = an ? FixWert : SingleText(Fit.FitStart[k]);
  if (Linear(Fit.FitModell)) txtStartVisible[k] = !an;
  ErgebnisLoeschen(Fit);
  ErgebnisVerwerfen();
}

void frmQFitting::txtStart_Change(int i, const std::string& text) {
  if (i >= 0 && i < FitMaxPar) txtStart[static_cast<std::size_t>(i)] = text;
}

void frmQFitting::optLogFit_Click(int index) {
  optLogFit = index == 1 ? 1 : 0;
  Fit.FitLog = optLogFit == 1;
  lblFQS1 = Fit.FitLog ? FQSTextLn : FQSTextLinear;
}

void frmQFitting::optcpPhase_Click(int index) {
  if (index >= 0 && index < 3) optcpPhase = index;
}

void frmQFitting::txtSplineWicht_Change(const std::string& text) {
  const ZahlErgebnis z = LeseZahl(text);
  if (z.ok && z.wert >= 0 && z.wert <= 1000) {
    txtSplineWicht = text;
    Fit.SplineGlaettung = z.wert;
    lblEingabetest = z.wert == 0 ? "OHNE GLÄTTUNG" : "AKIMA-SPLINE MIT GLÄTTUNG";
  } else {
    txtSplineWicht = "0";
    Fit.SplineGlaettung = 0;
    lblEingabetest = SmAusserhalb;
  }
  cmdGraphFunctionEnabled = cmdGraphResidEnabled = cmdGraphLnpEnabled = false;
}

// ----- the model and its fields -----

void frmQFitting::ModellSetzen(int16_t code) {
  const bool lg = HatLg(code) && chkLg[static_cast<std::size_t>(code)];
  ModellWaehlen(Fit, code, lg, tcr_, pcr_);
  chkFix = {};
  FelderDesModells();
  ErgebnisVerwerfen();
}

// The start fields show the proposals, the critical constants behind them.
void frmQFitting::FelderDesModells() {
  const int16_t code = Fit.FitModell;
  lblStart = StartLabels(code);
  const int n = ParameterFelder(code);
  for (std::size_t i = 0; i < FitMaxPar; ++i) {
    txtStartVisible[i] = !lblStart[i].empty() && !(Linear(code) && chkFix[i]);
    chkFixVisible[i] = static_cast<int>(i) < n;
    txtStart[i] = static_cast<int>(i) < n ? SingleText(Fit.FitStart[i]) : "";
  }
  if (code == fm::FrostKalkwarfThodos) chkFixVisible[3] = false; // D is computed
  if (TcrFeld(code) >= 0) txtStart[static_cast<std::size_t>(TcrFeld(code))] = Text(tcr_);
  if (PcrFeld(code) >= 0) txtStart[static_cast<std::size_t>(PcrFeld(code))] = Text(pcr_);
  lblFittingEq = FormelText(code, Fit.Lg);
  const FitModellEintrag* e = FitModellVon(code);
  optcpPhaseVisible = e != nullptr && e->Tab == fittab::Cp;
  fraSplineVisible = code == fm::AkimaSpline;
}

void frmQFitting::FelderInZustand() {
  for (std::size_t i = 0; i < FitMaxPar; ++i) {
    Fit.StartFeld[i] = FeldWert(txtStart[i]);
    Fit.FixFeld[i] = chkFix[i];
  }
  Fit.Lg = HatLg(Fit.FitModell) && chkLg[static_cast<std::size_t>(Fit.FitModell)];
  Fit.FitLog = optLogFit == 1;
}

// ----- the run and its results -----

bool frmQFitting::cmdStart() {
  FelderInZustand();
  const bool ok = FitStarten(s_, Fit);
  MeldungenZeigen();
  if (!ok) {
    ErgebnisVerwerfen();
    return false;
  }
  ErgebnisAnzeigen();
  return true;
}

void frmQFitting::MeldungenZeigen() {
  for (const FitMeldung& m : Fit.Meldungen)
    ui_.Meldung(m.Text, m.Titel, m.Symbol);
}

// The text of result field i; model 6 shows its D from B and Tcr, and its E behind it.
std::string frmQFitting::ParText(int i) const {
  const FitParameter& P = Fit.FitPar;
  if (Fit.FitModell == fm::FrostKalkwarfThodos) {
    if (i == 3) return Text(P[1] * 1.8 / Fit.FitTcr + 2.67);
    if (i == 4) return Text(P[3]);
  }
  return Text(P[static_cast<std::size_t>(i)]);
}

void frmQFitting::ErgebnisAnzeigen() {
  const int16_t code = Fit.FitModell;
  fraFQSVisible = true;
  fraFQSCaption = "Qualität des Fitting (N = " + std::to_string(AktivePunkte(Fit)) +
                  ", NPar = " + std::to_string(Fit.FitNPar) + ")";
  lblFQS1 = code < fm::August || code >= fm::Rackett ? FQSTextY : FQSTextP;
  lblFQS2 = Text(Fit.FQS);
  lblsr2 = Text(Fit.sR);
  const FitModellEintrag* e = FitModellVon(code);
  StDevKopfVisible = e != nullptr && e->Tab != fittab::Allgemein;
  const int n = ParameterFelder(code);
  for (int i = 0; i < FitMaxPar; ++i) {
    const auto k = static_cast<std::size_t>(i);
    txtParVisible[k] = i < n;
    txtStDevVisible[k] = i < n && StDevKopfVisible;
    txtPar[k] = i < n ? ParText(i) : "";
    txtStDev[k] = txtStDevVisible[k] ? Text(Fit.FitStDev[k]) : "";
  }
  if (code == fm::FrostKalkwarfThodos) {
    txtStDev[3].clear();
    txtStDev[4] = Text(Fit.FitStDev[3]);
  }
  fraCalcVisible = cmdCalcEnabled = true;
  cmdGraphFunctionEnabled = cmdGraphResidEnabled = true;
  cmdGraphLnpEnabled = SSTab1 < 2 || code == fm::AkimaSpline;
  cmdApplyEnabled = code != fm::AkimaSpline;
  cmdleftEnabled = cmdLeftAllEnabled = n > 0;
  cmdSplineParAnzeigenEnabled = code == fm::AkimaSpline;
}

// The shown results go, and with them everything that needs a run.
void frmQFitting::ErgebnisVerwerfen() {
  fraFQSVisible = false;
  fraFQSCaption.clear();
  lblFQS2.clear();
  lblsr2.clear();
  txtPar = {};
  txtStDev = {};
  txtParVisible = {};
  txtStDevVisible = {};
  StDevKopfVisible = false;
  fraCalcVisible = cmdCalcEnabled = false;
  cmdGraphFunctionEnabled = cmdGraphResidEnabled = cmdGraphLnpEnabled = false;
  cmdApplyEnabled = cmdleftEnabled = cmdLeftAllEnabled = cmdSplineParAnzeigenEnabled = false;
}

void frmQFitting::cmdleft(int i) {
  if (!cmdleftEnabled || i < 0 || i >= ParameterFelder(Fit.FitModell)) return;
  txtStart[static_cast<std::size_t>(i)] = txtPar[static_cast<std::size_t>(i)];
}

void frmQFitting::cmdLeftAll() {
  for (int i = 0; i < ParameterFelder(Fit.FitModell); ++i)
    cmdleft(i);
}

// ----- evaluation -----

void frmQFitting::optCalc_Click(int index) {
  optCalc = index == 1 ? 1 : 0;
}

void frmQFitting::txtCalcX_Change(const std::string& text) {
  txtCalcX = text;
}

void frmQFitting::txtCalcY_Change(const std::string& text) {
  txtCalcY = text;
}

void frmQFitting::cmdCalc() {
  if (!cmdCalcEnabled) return;
  int16_t fehler = 0;
  if (optCalc == 0) {
    const double y = FitFunktionswert(s_, Fit, FeldWert(txtCalcX), fehler);
    txtCalcY = fehler != 0 ? "Error" : Text(y);
  } else {
    const double x = FitInvers(s_, Fit, FeldWert(txtCalcY), fehler);
    txtCalcX = fehler != 0 ? "Error" : Text(x);
  }
}

std::optional<frmQTextEdit> frmQFitting::cmdSplineParAnzeigen() const {
  if (!cmdSplineParAnzeigenEnabled || Fit.Spline.SplineN < 3) return std::nullopt;
  return frmQTextEdit(SplineListeTitel, SplineListe(Fit.Spline));
}

} // namespace quor
