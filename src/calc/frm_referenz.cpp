#include "calc/frm_referenz.h"

#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "engine/eos_zeilen.h"
#include "engine/referenz.h"
#include "engine/saettigung.h"

namespace quor {

const char* const frmReferenz::Caption = "  Vorbereitung Funktionsberechnung Z";
const char* const frmReferenz::Ueberschrift =
    "Legen Sie den Bezugszustand für Enthalpie h und Entropie s fest:";
const char* const frmReferenz::TextTo = "bei Bezugstemperatur    To/K =";
const char* const frmReferenz::TextPo = "und Bezugsdruck po/kPa =";
const char* const frmReferenz::TextUmgebung = "Umgebungsbedingungen ( nur für Exergie wirksam):";
const char* const frmReferenz::TextTu = "T(u)/K =";
const char* const frmReferenz::TextPu = "p(u)/kPa =";
const char* const frmReferenz::HinweisPo = "(bei CEOS: Voreinstellung po = pLV(To)) ";
// The first option carries no text of its own here; the view gives it its caption.
const std::array<const char*, 3> frmReferenz::OptionTexte{
    "", "Konventionelle Normierung (vgl. Hilfe)",
    "Z(ref) = Bildungsgröße für Idealgaszustand bei To = 298.15 K und Normaldruck  aus Elementen im stabilen "
    "Zustand"};

namespace {

// RefArt of each option and back.
constexpr std::array<int16_t, 3> ArtVonOption{RefBenutzer, RefKonventionell, RefBildung};

int OptionVonArt(int16_t art) {
  for (int i = 0; i < 3; ++i)
    if (ArtVonOption[i] == art) return i;
  return 0;
}

double EnergieFaktorReferenz(const ProjectState& s) {
  const double TRef = s.Referenz.TRef, M = s.Stoff.MolMasse;
  switch (s.Einheiten.EnergieMode) {
  case 1:
    return 1 / RGas;
  case 2:
    return TRef > 0 ? 1 / (TRef * RGas) : 1;
  case 3:
    return M > 0 ? 1 / M : 1;
  default:
    return 1;
  }
}

// The field's number, or `bisher` when the text is none.
double Lies(const std::string& text, double bisher) {
  const ZahlErgebnis z = LeseZahl(text);
  return z.ok ? z.wert : bisher;
}

} // namespace

frmReferenz::frmReferenz(ProjectState& s, ui::Oberflaeche& ui) : s_(s), ui_(ui) {}

void frmReferenz::Form_Load() {
  static const std::array<const char*, 4> hTexte{"h /(kJ/kmol)", "h /K", "h /(R T)", "h /(kJ/kg)"};
  static const std::array<const char*, 4> sTexte{"s /(kJ/kmol/K)", "s /R", "s /(1/K) ", "s /(kJ/(kg K))"};
  ReferenzGruppe& r = s_.Referenz;
  Faktor = EnergieFaktorReferenz(s_);
  const int mode =
      s_.Einheiten.EnergieMode >= 0 && s_.Einheiten.EnergieMode <= 3 ? s_.Einheiten.EnergieMode : 0;
  bz7 = {hTexte[mode], sTexte[mode]};
  HinweisPoVisible = eos::KubischGewaehlt(s_.Modell) && s_.Stoff.TKrit > r.TRef;
  if (r.pRef == 0) {
    // Proposal: the saturation pressure of the EOS at TRef; silent fall-back to normal pressure.
    double imbalance = 0, A = 0, B = 0;
    int16_t err = 0;
    const double p = pLVbeiT(s_, r.TRef, imbalance, A, B, err);
    r.pRef = err == 0 && p > 0 ? static_cast<float>(p) : static_cast<float>(pNormal);
  }
  const StoffGruppe& st = s_.Stoff;
  opt_HNull_Enabled = {true, st.hBildung != 0 && st.gBildung != 0, st.sBildung != 0 && st.hBildung != 0};
  opt_HNull = OptionVonArt(r.RefArt);
  FelderFuellen();
  T[4] = DoubleText(r.TUmgebung);
  T[5] = DoubleText(r.pUmgebung);
  Geschlossen = false;
}

void frmReferenz::FelderFuellen() {
  const ReferenzGruppe& r = s_.Referenz;
  T[0] = SingleText(static_cast<float>(r.hRef * Faktor));
  T[1] = SingleText(static_cast<float>(r.sRef * Faktor));
  T[2] = SingleText(r.TRef);
  T[3] = SingleText(r.pRef);
  for (int i = 0; i < 4; ++i)
    T_Enabled[i] = opt_HNull == 0;
}

void frmReferenz::opt_HNull_Click(int index) {
  if (index < 0 || index > 2) return;
  opt_HNull = index;
  if (index == 1) {
    s_.Referenz.pRef = static_cast<float>(pNormal);
    s_.Referenz.TRef = static_cast<float>(TStandard);
  }
  FelderFuellen();
}

bool frmReferenz::OK_Click() {
  ReferenzGruppe& r = s_.Referenz;
  r.hRef = Lies(T[0], r.hRef * Faktor) / Faktor;
  r.sRef = Lies(T[1], r.sRef * Faktor) / Faktor;
  r.TRef = static_cast<float>(Lies(T[2], r.TRef));
  r.pRef = static_cast<float>(Lies(T[3], r.pRef));
  r.TUmgebung = Lies(T[4], r.TUmgebung);
  if (r.TUmgebung == 0) r.TUmgebung = 1e-6;
  r.pUmgebung = Lies(T[5], r.pUmgebung);
  r.RefArt = ArtVonOption[opt_HNull];
  Geschlossen = true;
  return true;
}

} // namespace quor
