#include "calc/parinput.h"

#include "core/rechen_art.h"
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"

#include <algorithm>
#include <utility>

namespace quor {

const char* const frmParinput::UngueltigText = "keine gültige Eingabe";
const char* const frmParinput::fraRhoVInputCaption = "Vorgabegröße";
const char* const frmParinput::cmdCloseCaption = "Schließen";

namespace {

constexpr const char* LabelT = "        T/K = ";
constexpr const char* Labelp = "      p/kPa = ";
constexpr const char* LabelRho = " rho/kg/m^3 = ";

bool BrauchtT(int16_t a) {
  return a != art::PzuTLV && a != art::HLVvonP && a != art::pRho;
}
bool Brauchtp(int16_t a) {
  return a == art::Tp || a == art::PzuTLV || a == art::HLVvonP || a == art::Funktionen ||
         a == art::Polytrope || a == art::pRho;
}
bool BrauchtDichte(int16_t a) {
  return a == art::TRhoV || a == art::TRhoL || a == art::pRho;
}

// Label and option text of a volume in the unit of the display.
const char* VolumenLabel(int16_t mode) {
  switch (mode) {
  case 1:
    return "  V/m^3/kg  = ";
  case 2:
    return " V/(m^3/m^3) = ";
  default:
    return " V/m^3/kmol = ";
  }
}
const char* VolumenOption(int16_t mode) {
  switch (mode) {
  case 1:
    return "Eingabe spez. Volumen, vgl. \"Optionen\" ";
  case 2:
    return "Eingabe reduz. Volumen, vgl. \"Optionen\" ";
  default:
    return " Eingabe molares Volumen, vgl. \"Optionen\" ";
  }
}

// A kept value as the field's text; nothing for a value not given.
std::string Text(double x) {
  return x > 0 ? DoubleText(x) : "";
}
std::string Text(float x) {
  return x > 0 ? SingleText(x) : "";
}

} // namespace

bool ZahlTaste(char32_t c) {
  if (c < 0x20 || c == 0x7f) return true; // backspace, Enter, Tab and the other control keys
  if (c >= '0' && c <= '9') return true;
  return c == '.' || c == ',' || c == '-' || c == '+' || c == 'e' || c == 'E' || c == 'd' || c == 'D';
}

frmParinput::frmParinput(ProjectState& s, ui::Oberflaeche& ui, std::function<std::string()> berechnen)
    : s_(s), ui_(ui), berechnen_(std::move(berechnen)) {}

ParinputFeld* frmParinput::Feld(ParinputGroesse g) {
  for (ParinputFeld& f : Felder)
    if (f.groesse == g) return &f;
  return nullptr;
}

void frmParinput::Form_Load() {
  Geschlossen = false;
  Felder.clear();
  fraRhoVInputVisible = false;
  optm_nVisible = false;
  cmdParameter_OKCaption = "&Berechnen";
  const int16_t modus = s_.Rechnung.ParinputModus;
  if (modus == ParinputBezugspunkt) {
    const ReferenzGruppe& r = s_.Referenz;
    Caption = "Eingabe: Bezugspunkt";
    cmdParameter_OKCaption = "OK";
    Felder = {{ParinputGroesse::BezugT, "        T/K = ", SingleText(r.BezugT)},
              {ParinputGroesse::BezugP, "  p(LV)/kPa = ", SingleText(r.BezugP)},
              {ParinputGroesse::BezugRhoL, "rho_L/kg/m^3= ", SingleText(r.BezugRhoL)},
              {ParinputGroesse::BezugRhoV, "rho_V/kg/m^3= ", SingleText(r.BezugRhoV)}};
  } else if (modus == ParinputBehaelter) {
    BehaelterFelder();
  } else {
    DirektFelder(static_cast<int16_t>(modus - ParinputDirekt));
  }
}

void frmParinput::DirektFelder(int16_t art) {
  Caption = "Eingabe Direktberechnung";
  const ExpDatenSatz& z = ExpZeile(s_.Mess, 0);
  if (BrauchtT(art)) Felder.push_back({ParinputGroesse::T, LabelT, Text(z.T)});
  if (Brauchtp(art)) Felder.push_back({ParinputGroesse::p, Labelp, Text(z.p)});
  if (!BrauchtDichte(art)) return;
  fraRhoVInputVisible = true;
  optRhoVTexte = {" Eingabe Dichte kg/m^3", VolumenOption(s_.Einheiten.VolumenMode)};
  optRhoV = s_.Rechnung.EingabeRho ? 0 : 1;
  Felder.push_back({ParinputGroesse::Rho, "", ""});
  DichteFeldSetzen();
}

// The density field in the chosen quantity, showing the kept density of the kind.
void frmParinput::DichteFeldSetzen() {
  ParinputFeld* f = Feld(ParinputGroesse::Rho);
  if (!f) return;
  const ExpDatenSatz& z = ExpZeile(s_.Mess, 0);
  const float rho = s_.Rechnung.ParinputModus == ParinputDirekt + 2 ? z.RhoL : z.RhoV;
  if (optRhoV == 0) {
    f->Bz = LabelRho;
    f->par = Text(rho);
  } else {
    f->Bz = VolumenLabel(s_.Einheiten.VolumenMode);
    const double v = rho > 0 ? s_.Stoff.MolMasse / rho * s_.Einheiten.VolumenFaktor : 0;
    f->par = Text(static_cast<float>(v));
  }
}

void frmParinput::BehaelterFelder() {
  Caption = s_.Modell.RechnungGlobal ? "Behälter-Berechnung (GLOBAL)" : "Behälter-Berechnung (PARTIAL)";
  const BehaelterDaten& b = s_.Rechnung.Behaelter;
  const double M = s_.Stoff.MolMasse;
  Felder = {{ParinputGroesse::V, "      V/m^3   ", Text(b.V)},
            {ParinputGroesse::m, "      m/kg    ", Text(b.m)},
            {ParinputGroesse::n, "      n/kmol  ", Text(M > 0 ? b.m / M : 0.0)},
            {ParinputGroesse::T, "      T/K     ", Text(b.BehaelterT)}};
  optm_nVisible = true;
  optm_n_Click(s_.Rechnung.EingabeMasse ? 0 : 1);
}

void frmParinput::optRhoV_Click(int index) {
  optRhoV = index == 0 ? 0 : 1;
  s_.Rechnung.EingabeRho = optRhoV == 0;
  DichteFeldSetzen();
}

void frmParinput::optm_n_Click(int index) {
  optm_n = index == 0 ? 0 : 1;
  s_.Rechnung.EingabeMasse = optm_n == 0;
  ParinputFeld* m = Feld(ParinputGroesse::m);
  ParinputFeld* n = Feld(ParinputGroesse::n);
  if (!m || !n) return;
  m->enabled = optm_n == 0;
  n->enabled = optm_n == 1;
}

bool frmParinput::cmdParameter_OK_Click() {
  std::vector<double> werte(Felder.size(), 0.0);
  for (std::size_t i = 0; i < Felder.size(); ++i) {
    if (!Felder[i].enabled) continue;
    std::string text = Felder[i].par;
    std::replace(text.begin(), text.end(), ',', '.');
    const ZahlErgebnis z = LeseZahl(text);
    if (!z.ok || !(z.wert >= 1e-6)) {
      ui_.Meldung(UngueltigText, "Ausführung nicht möglich", ui::Symbol::Ausruf);
      return false;
    }
    werte[i] = z.wert;
  }
  Speichern(werte);
  if (s_.Rechnung.ParinputModus == ParinputBezugspunkt) {
    Geschlossen = true;
    return true;
  }
  if (berechnen_) Ausgang = berechnen_();
  return false;
}

void frmParinput::Speichern(const std::vector<double>& werte) {
  RechnungGruppe& r = s_.Rechnung;
  ReferenzGruppe& ref = s_.Referenz;
  const double M = s_.Stoff.MolMasse;
  if (r.ParinputModus > ParinputDirekt) ExpZeile(s_.Mess, 0) = ExpDatenSatz{};
  ExpDatenSatz& z = ExpZeile(s_.Mess, 0);
  for (std::size_t i = 0; i < Felder.size(); ++i) {
    const double w = werte[i];
    switch (Felder[i].groesse) {
    case ParinputGroesse::BezugT:
      ref.BezugT = static_cast<float>(w);
      break;
    case ParinputGroesse::BezugP:
      ref.BezugP = static_cast<float>(w);
      break;
    case ParinputGroesse::BezugRhoL:
      ref.BezugRhoL = static_cast<float>(w);
      break;
    case ParinputGroesse::BezugRhoV:
      ref.BezugRhoV = static_cast<float>(w);
      break;
    case ParinputGroesse::V:
      r.Behaelter.V = w;
      break;
    case ParinputGroesse::m:
      if (optm_n == 0) r.Behaelter.m = w;
      break;
    case ParinputGroesse::n:
      if (optm_n == 1) r.Behaelter.m = w * M;
      break;
    case ParinputGroesse::T:
      if (r.ParinputModus == ParinputBehaelter)
        r.Behaelter.BehaelterT = static_cast<float>(w);
      else
        z.T = w;
      break;
    case ParinputGroesse::p:
      z.p = w;
      break;
    case ParinputGroesse::Rho: {
      // A volume is taken back from the display's unit to the engine's before it becomes a density.
      const double rho = optRhoV == 0 ? w : M / (w / s_.Einheiten.VolumenFaktor);
      (r.ParinputModus == ParinputDirekt + 2 ? z.RhoL : z.RhoV) = static_cast<float>(rho);
      break;
    }
    }
  }
}

} // namespace quor
