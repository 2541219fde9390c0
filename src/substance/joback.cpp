#include "substance/joback.h"

#include "core/daten_diagnose.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "engine/korrelationen.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr const char* FormatKrit = "#####.0";

// sum(n_i * x_i) over the groups for one column of the table.
template <typename Spalte> double Summe(const JobackAnzahlen& n, Spalte spalte) {
  double summe = 0;
  for (int i = 0; i < JobackGruppen; ++i)
    summe += n[static_cast<std::size_t>(i)] * spalte(JobackTabelle[static_cast<std::size_t>(i)]);
  return summe;
}

bool KeineGruppe(const JobackAnzahlen& n) {
  return std::all_of(n.begin(), n.end(), [](int k) { return k == 0; });
}

std::string CpText(double x) {
  return SingleText(static_cast<float>(x));
}

} // namespace

const std::array<const char*, 3> frmJOBACK::ModusTexte = {
    "LYDERSEN/JOBACK-Berechnung kritischer Daten",
    "JOBACK-Berechnung von Bildungsgrößen aus Molekül-Inkrementen",
    "JOBACK-Berechnung Idealgas-cp aus Molekül-Inkrementen",
};
const char* const frmJOBACK::Beispiel =
    " Beispiel Propan-2-ol (Isopropanol): 2x -CH3, 1x >CH-, 1x -OH (Alkohol)";
const char* const frmJOBACK::lblMM = " aus den Inkrementen berechnete Molmasse";
const char* const frmJOBACK::lblOmega = "azentrischer Faktor omega,\nberechnet nach LEE/KESLER\naus den "
                                        "gegebenen Werten für\nT(LV),NP, T(cr) und p(cr)";
const char* const frmJOBACK::OmegaPrefix = " omega = ";
const char* const frmJOBACK::NHMeldung =
    "Das Inkrement (=NH) steht für diese berechnung leider nicht zur Verfügung";
const char* const frmJOBACK::TbPrompt = "Falls ein experimenteller Wert des Normalsiedepunkts\r\n"
                                        "zur Verfügung steht, kann er zur Verbesserung von T(cr)\r\n"
                                        "hier eingegeben werden, andernfalls wird der aus den\r\n"
                                        "Inkrementen berechnete Wert verwendet.\r\n"
                                        "\r\n"
                                        "T(LV),NP /K";
const char* const frmJOBACK::TbTitel = "Input Normalsiedetemperatur T(LV), NP";
const char* const frmJOBACK::KeinWert = " ---";
const char* const frmJOBACK::ApplyEditor = "Übertragen in Daten-Editor";
const char* const frmJOBACK::ApplyDaten = "Übernehmen in Datenbasis";

int JobackAtome(const JobackAnzahlen& n) {
  return static_cast<int>(Summe(n, [](const JobackGruppe& g) { return g.Atome; }));
}

double JobackMolmasse(const JobackAnzahlen& n) {
  return Summe(n, [](const JobackGruppe& g) { return g.M; });
}

frmJOBACK::frmJOBACK(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmJOBACK::Form_Load(int16_t modus) {
  optModus_Click(modus);
  MolmasseZeigen();
}

void frmJOBACK::optModus_Click(int16_t modus) {
  if (modus >= JobackKritisch && modus <= JobackCp) Modus = modus;
}

std::string frmJOBACK::Caption() const {
  return ModusTexte[static_cast<std::size_t>(Modus - 1)];
}

void frmJOBACK::txtInkr_Change(int i, const std::string& text) {
  if (i < 0 || i >= JobackGruppen) return;
  std::string ziffern;
  for (const char c : text)
    if (c >= '0' && c <= '9') ziffern += c;
  ziffern = ziffern.substr(0, 3);
  const auto k = static_cast<std::size_t>(i);
  txtInkr[k] = ziffern;
  Anzahl[k] = ziffern.empty() ? 0 : std::stoi(ziffern);
  MolmasseZeigen();
}

void frmJOBACK::MolmasseZeigen() {
  M = JobackMolmasse(Anzahl);
  txtMM = M > 0 ? FormatVB(M, "#####.000") : "";
}

void frmJOBACK::KritLeeren(const std::string& text) {
  Tb = Tf = Tc = pc = vc = rhoCr = 0;
  KritGerechnet = false;
  for (std::string* feld : {&txtTb, &txtTf, &txtTc, &txtpc, &txtvc, &txtRhoCr})
    *feld = text;
  lblRhoCr.clear();
}

// The input box for a measured normal boiling point; a value above 0 replaces the estimate.
double frmJOBACK::TbAbfragen(double TbInkremente) {
  const std::optional<std::string> antwort =
      ui_.Eingabe(TbPrompt, TbTitel, FormatVB(TbInkremente, FormatKrit));
  std::string text = antwort.value_or("");
  std::replace(text.begin(), text.end(), ',', '.');
  const double gemessen = ValVB(text);
  return gemessen > 0 ? gemessen : TbInkremente;
}

void frmJOBACK::cmdCalcCrit() {
  MolmasseZeigen();
  // An acentric factor of the former critical data no longer belongs to the fields.
  omega = 0;
  OmegaGerechnet = false;
  txtOmega.clear();
  if (Anzahl[JobackGruppeNH] > 0) {
    ui_.Meldung(NHMeldung, "Ausführung nicht möglich", ui::Symbol::Ausruf);
    KritLeeren(KeinWert);
    return;
  }
  const JobackAnzahlen& n = Anzahl;
  Tb = TbAbfragen(198.0 + Summe(n, [](const JobackGruppe& g) { return g.Tb; }));
  Tf = 122.0 + Summe(n, [](const JobackGruppe& g) { return g.Tf; });
  const double S = Summe(n, [](const JobackGruppe& g) { return g.Tc; });
  Tc = Tb / (0.584 + 0.965 * S - S * S);
  const double nenner =
      0.113 + 0.0032 * JobackAtome(n) - Summe(n, [](const JobackGruppe& g) { return g.pc; });
  pc = 100 / (nenner * nenner);
  vc = (17.5 + Summe(n, [](const JobackGruppe& g) { return g.vc; })) / 1000;
  rhoCr = M / vc;
  KritGerechnet = true;
  txtTb = FormatVB(Tb, FormatKrit);
  txtTf = FormatVB(Tf, FormatKrit);
  txtTc = FormatVB(Tc, FormatKrit);
  txtpc = FormatVB(pc, FormatKrit);
  txtvc = FormatVB(vc, "0.####");
  txtRhoCr = FormatVB(rhoCr, "####.0");
  lblRhoCr = "kritische Dichte berechnet aus v(cr) mit M = " + txtMM + " kg/kmol ";
}

// The value of a field: the computed one while the field shows it, else what was typed there
// ("," read as "."); 0 when the field holds no number.
double frmJOBACK::FeldWert(const std::string& text, double wert) const {
  if (text == FormatVB(wert, FormatKrit)) return wert;
  const ZahlErgebnis z = LeseZahl(text);
  return z.ok ? z.wert : 0;
}

void frmJOBACK::cmdOmega() {
  const double TbW = FeldWert(txtTb, Tb), TcW = FeldWert(txtTc, Tc), pcW = FeldWert(txtpc, pc);
  OmegaGerechnet = false;
  omega = 0;
  txtOmega = KeinWert;
  if (!(TbW > 0 && TcW > 0 && pcW > 0)) return;
  const double pcAtm = pcW / 100 * 0.98692327;
  const double t = TbW / TcW;
  const double t6 = std::pow(t, 6);
  const double alpha = -std::log(pcAtm) - 5.92714 + 6.09648 / t + 1.28862 * std::log(t) - 0.169347 * t6;
  const double beta = 15.2518 - 15.6875 / t - 13.4721 * std::log(t) + 0.43577 * t6;
  const double w = alpha / beta;
  if (!std::isfinite(w)) return;
  omega = w;
  OmegaGerechnet = true;
  txtOmega = FormatVB(omega, "0.000");
}

void frmJOBACK::cmdCalcBildung() {
  MolmasseZeigen();
  if (KeineGruppe(Anzahl)) {
    hf = gf = 0;
    BildungGerechnet = false;
    txthf = txtgf = KeinWert;
    return;
  }
  hf = 1000 * Summe(Anzahl, [](const JobackGruppe& g) { return g.hf; }) + 68290.0;
  gf = 1000 * Summe(Anzahl, [](const JobackGruppe& g) { return g.gf; }) + 53880.0;
  BildungGerechnet = true;
  txthf = FormatVB(hf, "#######");
  txtgf = FormatVB(gf, "#######");
}

void frmJOBACK::cmdCalccp() {
  MolmasseZeigen();
  C[0] = Summe(Anzahl, [](const JobackGruppe& g) { return g.A; }) - 37.93;
  C[1] = Summe(Anzahl, [](const JobackGruppe& g) { return g.B; }) + 0.21;
  C[2] = Summe(Anzahl, [](const JobackGruppe& g) { return g.C; }) - 0.000391;
  C[3] = Summe(Anzahl, [](const JobackGruppe& g) { return g.D; }) + 2.06e-7;
  CpGerechnet = true;
  for (std::size_t i = 0; i < 4; ++i)
    txtC[i] = CpText(C[i]);
}

// The critical data whose fields hold a value, with the editor field each one belongs to.
void frmJOBACK::KritUebertragen(const std::function<void(int, double)>& setze) {
  const double werte[] = {FeldWert(txtTc, Tc), FeldWert(txtpc, pc), rhoCr, FeldWert(txtTb, Tb), omega, M};
  const int felder[] = {jobackdd::TKrit,  jobackdd::pKrit, jobackdd::rhoKritExp,
                        jobackdd::TSiede, jobackdd::omega, jobackdd::MolMasse};
  const bool da[] = {
      werte[0] > 0, werte[1] > 0, KritGerechnet && rhoCr > 0, werte[3] > 0, OmegaGerechnet && omega != 0,
      M > 0};
  for (std::size_t i = 0; i < 6; ++i)
    if (da[i]) setze(felder[i], werte[i]);
}

void frmJOBACK::cmdApply() {
  if (!Editor) {
    UebernehmenInStoff();
    return;
  }
  if (Modus == JobackKritisch) KritUebertragen(Editor);
  if (Modus == JobackBildung && BildungGerechnet) {
    if (hf != 0) Editor(jobackdd::hBildung, hf);
    if (gf != 0) Editor(jobackdd::gBildung, gf);
  }
  if (Modus == JobackCp && CpGerechnet) {
    for (int i = 0; i < 4; ++i)
      Editor(jobackdd::CpPolyC0 + i, C[static_cast<std::size_t>(i)]);
    Editor(jobackdd::CpPolyC0 + 4, 1e-37);
    Editor(jobackdd::CpPolyTLo, 250);
    Editor(jobackdd::CpPolyTHi, 1000);
  }
}

// Into the loaded substance; the values derived from the changed ones follow as on loading.
void frmJOBACK::UebernehmenInStoff() {
  StoffGruppe& st = s_.Stoff;
  if (Modus == JobackKritisch) {
    KritUebertragen([&st](int feld, double wert) {
      switch (feld) {
      case jobackdd::TKrit:
        st.TKrit = wert;
        break;
      case jobackdd::pKrit:
        st.pKrit = wert;
        break;
      case jobackdd::rhoKritExp:
        st.rhoKritExp = wert;
        break;
      case jobackdd::TSiede:
        st.TSiede = static_cast<float>(wert);
        break;
      case jobackdd::omega:
        st.omega = wert;
        break;
      case jobackdd::MolMasse:
        st.MolMasse = static_cast<float>(wert);
        break;
      }
    });
    st.vKritExp = st.rhoKritExp > 1e-6 ? st.MolMasse / st.rhoKritExp : 0;
    if (st.TSiede * st.TKrit * st.pKrit > 1e-6) {
      double A = 0, B = 0;
      AugustParameter(st.TKrit, st.pKrit, st.TSiede, A, B);
      st.AugustA = static_cast<float>(A);
      st.AugustB = static_cast<float>(B);
    }
  }
  if (Modus == JobackBildung && BildungGerechnet) {
    if (hf != 0) st.hBildung = static_cast<float>(hf);
    if (gf != 0) st.gBildung = static_cast<float>(gf);
    if (std::fabs(static_cast<double>(st.hBildung) * st.gBildung) > 1e-6)
      st.DeltaFs = static_cast<float>((static_cast<double>(st.hBildung) - st.gBildung) / TStandard);
  }
  if (Modus == JobackCp && CpGerechnet) {
    for (std::size_t i = 0; i < 4; ++i)
      st.CpPoly[i] = static_cast<float>(C[i]);
    st.CpPoly[4] = 1e-37f;
    st.CpPolyGrenzen = {250, 1000};
    st.CpPolyOK = true;
  }
  DatenDiagnose(s_);
  if (NachUebernahme) NachUebernahme();
}

void frmJOBACK::cmdReset() {
  Anzahl.fill(0);
  for (std::string& t : txtInkr)
    t.clear();
  KritLeeren("");
  omega = 0;
  OmegaGerechnet = false;
  txtOmega.clear();
  hf = gf = 0;
  BildungGerechnet = false;
  txthf.clear();
  txtgf.clear();
  C.fill(0);
  CpGerechnet = false;
  for (std::string& t : txtC)
    t.clear();
  MolmasseZeigen();
}

} // namespace quor
