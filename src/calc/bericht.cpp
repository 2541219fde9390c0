// What the batch report says, line by line; bericht_ausgabe.cpp puts it into a file or on paper.
#include "calc/bericht_zeilen.h"
#include "calc/protokoll.h"
#include "core/festtext.h"
#include "core/rechen_art.h"
#include "core/zahlformat.h"
#include "engine/eos_zeilen.h"

#include <array>
#include <cmath>

namespace quor {
namespace {

// Columns of T, p, rho(V), rho(L) and delta(LV)h in the rows of a point.
constexpr std::array<std::size_t, 5> WertSpalten{9, 20, 32, 46, 60};
constexpr std::size_t SpalteL = 26, SpalteV = 52;
constexpr double Schwelle = 1e-6;

struct Texte {
  const char* titel;
  const char* stoff;
  const char* rechnung;
  const char* verdampfung;
  const char* benson;
  const char* modell;
  const char* dampfdruck;
  const char* anzahl;
  const char* stapel;
  const char* nummer;
  const char* phase;
  const char* mittel;
};

const Texte DateiTexte{"QUOR Results of Calculation",
                       "Substance            : ",
                       "Calculation          : ",
                       "Enthalpy of Vaporization (using EOS)",
                       "(BENSON-Methode)",
                       "model                : ",
                       "Vapor Pressure Equation",
                       "Number of Data Sets  : ",
                       "Name of Batchfile    : ",
                       "#",
                       "phase",
                       "arithmet. mean of ABS(%-deviations):"};

const Texte DruckerTexte{"QUOR: Results of Calculation",
                         "Substance:",
                         "Calculation:",
                         "Enthalpy of Vaporization del(LV)h calc. using EOS:",
                         "(BENSON-Methode):",
                         "Model:",
                         "Vapor Press. Equation:",
                         "Number of Data Sets:",
                         "Name Batchfile:",
                         "No.",
                         "Phase",
                         "arithmetic mean of ABS(%-deviations):"};

// The file avoids the superscript of the second-derivative labels.
constexpr std::array<std::pair<std::size_t, const char*>, 4> DateiLabels{
    {{9, "       d2p/dV2"}, {12, "       d2V/dT2"}, {13, "       d2T/dV2"}, {16, "  d2ln phi/dT2"}}};

std::string OhneEndBlanks(const std::string& t) {
  return t.substr(0, t.find_last_not_of(' ') + 1);
}

// A number behind a label: the blank of the sign place before a value that is not negative.
std::string NachLabel(float x) {
  return (x < 0 ? "" : " ") + SingleText(x);
}

std::string Ganzzahl(double x) {
  return std::to_string(std::lround(x));
}

class Aufbau {
public:
  Aufbau(const ProjectState& s, const RechenKontext& k, const BerichtAuftrag& a, BerichtZiel ziel)
      : s_(s), k_(k), a_(a), ziel_(ziel), t_(ziel == BerichtZiel::Datei ? DateiTexte : DruckerTexte) {}

  std::vector<BerichtZeile> Zeilen() {
    Kopf();
    Spaltenkopf();
    for (int n = 1; n <= k_.AnzahlPunkte && n < static_cast<int>(k_.StapelErgebnisse.size()); ++n)
      if (k_.StapelErgebnisse[n].Phase != "   ") Punkt(n);
    if (a_.Art == art::Funktionen) return z_;
    Mittelwerte();
    Leer(2);
    if (a_.MitDetails) Details();
    return z_;
  }

private:
  void Zeile(std::vector<BerichtEintrag> e) { z_.push_back({std::move(e), "", 0}); }
  void Leer(int n) {
    for (int i = 0; i < n; ++i)
      Zeile({});
  }
  void Linie(const char* zeichen, std::size_t laenge = 70) { z_.push_back({{}, zeichen, laenge}); }

  // A head field: label and value as one text in the file, the value in its own column on paper.
  void Feld(const char* label, const std::string& wert) {
    if (ziel_ == BerichtZiel::Datei)
      Zeile({{3, label + wert}});
    else
      Zeile({{3, label}, {26, Trim(wert)}});
  }

  void Kopf() {
    Zeile({{59, a_.Datum}});
    Zeile({{20, t_.titel}});
    Leer(1);
    Feld(t_.stoff, s_.Stoff.StoffName);
    Feld(t_.rechnung, a_.Titel);
    const bool partial = !s_.Modell.RechnungGlobal;
    if (art::IstGleichgewicht(a_.Art)) {
      Zeile({{26, t_.verdampfung}});
      if (partial) Zeile({{26, t_.benson}});
    }
    const bool mitEOS = eos::IstGewaehlt(s_.Modell.EOSIndex);
    if (mitEOS) Feld(t_.modell, ModellText(s_));
    if (partial || !mitEOS) Feld(t_.dampfdruck, DampfdruckText());
    Feld(t_.anzahl, std::to_string(k_.AnzahlPunkte));
    if (!s_.Mess.BatchDateiTitel.empty()) Feld(t_.stapel, s_.Mess.BatchDateiTitel);
  }

  std::string DampfdruckText() const {
    const int i = s_.Modell.DampfdruckIndex;
    if (i < 0 || i >= static_cast<int>(s_.Tab.DampfdruckNamen.size())) return std::string();
    return OhneEndBlanks(s_.Tab.DampfdruckNamen[static_cast<std::size_t>(i)]);
  }

  void Spaltenkopf() {
    Linie("=");
    Zeile({{0, t_.nummer},
           {9, "T(exp)"},
           {20, "p(exp)"},
           {32, "rhoV(exp)"},
           {46, "rhoL(exp)"},
           {59, "delta(LV)h(exp)"}});
    Zeile({{3, t_.phase},
           {9, "T(calc)"},
           {20, "p(calc)"},
           {32, "rhoV(calc)"},
           {46, "rhoL(calc)"},
           {59, "delta(LV)h(calc)"}});
    Zeile({{9, "delta T"}, {20, "delta p"}, {32, "delta rhoV"}, {46, "delta rhoL"}, {59, "delta(LV)h"}});
    Linie("=");
    Zeile({{11, "K"}, {21, "kPa"}, {35, "kg/m^3"}, {49, "kg/m^3"}, {61, "kJ/kmol"}});
    Linie("=");
  }

  void Punkt(int n) {
    const StapelErgebnis& e = k_.StapelErgebnisse[n];
    const ExpDatenSatz d =
        n < static_cast<int>(s_.Mess.ExpDaten.size()) ? s_.Mess.ExpDaten[n] : ExpDatenSatz{};
    Zeile({{0, std::to_string(n)},
           {9, DoubleText(d.T)},
           {20, DoubleText(d.p)},
           {32, SingleText(d.RhoV)},
           {46, SingleText(d.RhoL)},
           {60, SingleText(d.HLV)}});
    if (a_.Art == art::Funktionen) {
      FunktionsWerte(e);
    } else {
      const std::array<double, 5> exp{d.T, d.p, d.RhoV, d.RhoL, d.HLV};
      const std::array<float, 5> calc{e.TCalc, e.pCalc, e.rhoVCalc, e.rhoLCalc, e.dhCalc};
      Vergleich(e.Phase, exp, calc);
    }
    if (n != k_.AnzahlPunkte) Linie("-");
  }

  void FunktionsWerte(const StapelErgebnis& e) {
    Zeile({{4, e.Phase}});
    Leer(1);
    Zeile({{9, " Enthalpy        h/kJ/kmol     =" + NachLabel(e.hFu)}});
    Zeile({{9, " Entropy         s/kJ/(kmol*K) =" + NachLabel(e.sFu)}});
    Zeile({{9, " Gibbs Enthalpy  g/kJ/kmol     =" + NachLabel(e.gFu)}});
    Zeile({{9, " Exergy of H     e/kJ/kmol     =" + NachLabel(e.eHFu)}});
    Zeile({{9, " Exergy of U     e/kJ/kmol     =" + NachLabel(e.eUFu)}});
  }

  // Rows 2 to 4 of a point: calculated values, differences and relative deviations; the deviations
  // are summed per column for the mean.
  void Vergleich(const std::string& phase, const std::array<double, 5>& exp,
                 const std::array<float, 5>& calc) {
    std::vector<BerichtEintrag> werte{{4, phase}}, differenzen, abweichungen;
    for (std::size_t i = 0; i < 5; ++i) {
      const bool ganz = i == 4;
      if (std::fabs(calc[i]) > Schwelle)
        werte.push_back({WertSpalten[i], ganz ? Ganzzahl(calc[i]) : SingleText(calc[i])});
      if (calc[i] <= Schwelle || exp[i] <= Schwelle) continue;
      const float differenz = calc[i] - static_cast<float>(exp[i]);
      differenzen.push_back({WertSpalten[i], ganz ? Ganzzahl(differenz) : SingleText(differenz)});
      const double d = (calc[i] / exp[i] - 1) * 100;
      if (std::fabs(d) < Schwelle) continue;
      abweichungen.push_back({WertSpalten[i], Abweichung(d)});
      summe_[i] += std::fabs(d);
      ++anzahl_[i];
    }
    Zeile(werte);
    if (!differenzen.empty()) Zeile(differenzen);
    if (!abweichungen.empty()) Zeile(abweichungen);
  }

  static std::string Abweichung(double d) {
    if (d < AbweichungsGrenze) return "(" + FormatVB(d, "####.##") + " %)";
    return "(Abw.>500 %!)";
  }

  void Mittelwerte() {
    Linie("=");
    Zeile({{0, t_.mittel}});
    std::vector<BerichtEintrag> mittel;
    for (std::size_t i = 0; i < 5; ++i) {
      const double m = anzahl_[i] > 0 ? summe_[i] / anzahl_[i] : 0;
      std::string text(13, ' ');
      if (m >= AbweichungsGrenze)
        text = "(Abw.>500 %!)";
      else if (m > Schwelle)
        text = DoubleText(std::floor(m * 100 + 0.5) / 100) + "%";
      mittel.push_back({WertSpalten[i], text});
    }
    Zeile(mittel);
  }

  std::string Label(std::size_t zeile) const {
    if (ziel_ == BerichtZiel::Datei)
      for (const auto& [nummer, text] : DateiLabels)
        if (nummer == zeile) return text;
    return s_.Tab.AbleitungsLabels[zeile];
  }

  void Details() {
    Leer(3);
    const std::string ueberschrift = "T -, p -, v - derivatives and thermodynamic functions";
    Zeile({{0, ueberschrift}});
    Linie("\u00c4", Utf8Laenge(ueberschrift)); // the character of code 196
    Leer(1);
    Linie("-");
    Zeile({{SpalteL, "L-phase"}, {SpalteV, "V-phase"}});
    Linie("-");
    for (int n = 1; n <= k_.AnzahlPunkte && n < static_cast<int>(k_.StapelErgebnisse.size()); ++n) {
      const StapelErgebnis& e = k_.StapelErgebnisse[n];
      if (e.Phase != "   " && e.TFu != 0 && e.pFu != 0) DetailSeite(n, e);
    }
  }

  // One label row with the liquid and the vapour value of phase row `r` of a table.
  template <std::size_t N>
  void Werte(std::size_t label, const std::array<std::array<float, N>, 2>& tabelle, std::size_t spalte,
             const std::string& phase) {
    std::vector<BerichtEintrag> z{{5, Label(label) + ": "}};
    if (phase.find('L') != std::string::npos) z.push_back({SpalteL, SingleText(tabelle[0][spalte])});
    if (phase.find('V') != std::string::npos) z.push_back({SpalteV, SingleText(tabelle[1][spalte])});
    Zeile(z);
  }

  void DetailSeite(int n, const StapelErgebnis& e) {
    Zeile({{0, "for data set " + std::to_string(n)},
           {17, "p/kPa =" + NachLabel(e.pFu)},
           {36, "T/K =" + NachLabel(e.TFu)},
           {52, "v/m^3/kmol =" + NachLabel(e.vFu)}});
    for (std::size_t r = 0; r <= 5; ++r)
      Werte(r, e.Abl1, r + 1, e.Phase); // first derivatives in columns 1 to 6
    Werte(9, e.Abl2, 1, e.Phase);
    Werte(12, e.Abl2, 4, e.Phase);
    Werte(13, e.Abl2, 5, e.Phase);
    Linie("-");
    for (std::size_t r : {21, 23, 22})
      Werte(r, e.Fuga, r - 14, e.Phase); // residual block: label rows 14 to 23 in columns 0 to 9
    for (std::size_t r = 14; r <= 20; ++r)
      Werte(r, e.Fuga, r - 14, e.Phase);
    Linie("-");
    for (std::size_t r = 6; r <= 8; ++r)
      Werte(r, e.Mech, r - 6, e.Phase);
    Linie("=");
  }

  const ProjectState& s_;
  const RechenKontext& k_;
  const BerichtAuftrag& a_;
  BerichtZiel ziel_;
  const Texte& t_;
  std::vector<BerichtZeile> z_;
  std::array<double, 5> summe_{};
  std::array<int, 5> anzahl_{};
};

} // namespace

std::vector<BerichtZeile> BerichtZeilen(const ProjectState& s, const RechenKontext& k,
                                        const BerichtAuftrag& a, BerichtZiel ziel) {
  return Aufbau(s, k, a, ziel).Zeilen();
}

} // namespace quor
