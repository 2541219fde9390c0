#include "core/project_state.h"

#include "core/festtext.h"
#include "dienste/oberflaeche.h"

#include <locale>
#include <sstream>

namespace quor {

namespace {

const char* const EOSTexte[17] = {"Idealgas-EOS ",
                                  "",
                                  "CEOS van der Waals",
                                  "CEOS Berthelot",
                                  "CEOS Redlich / Kwong",
                                  "CEOS Soave / Redlich / Kwong",
                                  "CEOS Peng / Robinson",
                                  "CEOS Varnik / Ji I   ",
                                  "CEOS Varnik / Ji II  ",
                                  "",
                                  "VIRIAL-EOS Hand-Eingabe",
                                  "VIRIAL-EOS Van der Waals",
                                  "VIRIAL-EOS Berthelot",
                                  "VIRIAL-EOS Redlich / Kwong",
                                  "VIRIAL-EOS Soave / Redlich / Kwong",
                                  "VIRIAL-EOS Peng / Robinson  ",
                                  "VIRIAL-EOS Pitzer / Curl     "};

const char* const DampfdruckTexte[9] = {"keine",
                                        "Antoine (T < Normalsiede-T)(MDB-Gl)",
                                        "Antoine (T > Normalsiede-T)(MDB-Gl)",
                                        "            Frost/Kalkwarf (MDB-Gl)",
                                        "                    Wagner (MDB-Gl)",
                                        "August (korreliert)",
                                        "Fro/Kalk (v.d.Waals korreliert)",
                                        "Fro/Kalk (Redl./Kwong korreliert)",
                                        "Antoine  (Thompson korreliert)"};

const char* const HLVTexte[8] = {"keine",
                                 "Gleichung Fu(T)  (MDB-Gl.)",
                                 "Chen-Korrelation",
                                 "Carruth/Kobayashi-Korrelation",
                                 "Watson-Korrelation",
                                 "aus Dampfdruckgl.+ rhoL(T)",
                                 "aus Dampfdruckgl.+ Benson",
                                 "aus kub.-EOS (GLOBAL-Berechnung)"};

const char* const CpTexte[3] = {"(keine Gleichung vorhanden)   ", "Polynomansatz    (MDB-Gl.)",
                                "sinh/cosh-Ansatz (MDB-Gl.)"};

const char* const LabelTexte[24] = {" (dp/dV) bei T",
                                    " (dp/dT) bei v",
                                    " (dV/dp) bei T",
                                    " (dV/dT) bei p",
                                    " (dT/dV) bei p",
                                    " (dT/dp) bei v",
                                    " alpha/(1/K)  ",
                                    "   chi/(1/kPa)",
                                    "  beta/(1/K)  ",
                                    "       d2p/dV²",
                                    "",
                                    "",
                                    "       d2V/dT²",
                                    "       d2T/dV²",
                                    "     ln (phi*)",
                                    "    dln phi/dT",
                                    "  d2ln phi/dT²",
                                    "   (s-s_idG)/R",
                                    "   (h-h_idG)/R",
                                    "   (g-g_idG)/R",
                                    " (cp-cp_idG)/R",
                                    " (dT/dp) bei H",
                                    " cv/kJ/kmol/K ",
                                    " cp/kJ/kmol/K "};

const char* const DampfdruckTags = "ALP.AHP.FRO.WAG.AUG.KFW.KFR.THO";

template <std::size_t N>
void Fuelle(std::array<std::string, N>& tabelle, const char* const (&texte)[N], std::size_t breite) {
  for (std::size_t i = 0; i < N; ++i)
    tabelle[i] = FestText(texte[i], breite);
}

void FuelleTabellen(Tabellen& t) {
  Fuelle(t.EOSNamen, EOSTexte, NamenBreite);
  Fuelle(t.DampfdruckNamen, DampfdruckTexte, NamenBreite);
  Fuelle(t.HLVNamen, HLVTexte, NamenBreite);
  Fuelle(t.CpNamen, CpTexte, NamenBreite);
  Fuelle(t.AbleitungsLabels, LabelTexte, LabelBreite);
}

void LoescheEOSKonstantenFelder(EOSGruppe& e) {
  e.a0 = e.b0 = e.c0 = e.d0 = 0;
  e.aExp = e.bExp = e.cExp = e.dExp = 0;
}

void Vorgabewerte(ProjectState& s, const EOSSetupFunktion& setup) {
  EinheitenGruppe& e = s.Einheiten;
  if (e.TVorgabe == 0) e.TVorgabe = static_cast<float>(s.Stoff.TKrit);
  if (e.pVorgabe == 0) e.pVorgabe = static_cast<float>(s.Stoff.pKrit);
  if (s.EOS.vKritEOS == 0 && setup) setup(s);
  if (e.vVorgabe == 0 && s.EOS.vKritEOS > 0) e.vVorgabe = static_cast<float>(s.EOS.vKritEOS);
}

} // namespace

bool LocaleHatDezimalKomma() {
  try {
    std::ostringstream text;
    text.imbue(std::locale(""));
    text << 0.75;
    return text.str().find(',') != std::string::npos;
  } catch (...) {
    return false; // no usable user locale: the classic one writes a point
  }
}

void InitProjectState(ProjectState& s, const EOSSetupFunktion& setup) {
  s.Optionen.DezimalKomma = LocaleHatDezimalKomma();

  s.Referenz.TRef = 298.15f;
  s.Referenz.TUmgebung = TStandard;
  s.Referenz.pUmgebung = pNormal;
  s.Referenz.pRef = 0;
  s.Modell.HLVIndex = 0;
  s.Modell.RechnungGlobal = true;
  s.Modell.KonzeptGlobal = true;
  LoescheEOSKonstantenFelder(s.EOS);

  FuelleTabellen(s.Tab);

  s.Modell.EOSIndex = -1;
  s.Modell.DampfdruckTag.clear();
  s.Modell.BensonDichte = true;

  Vorgabewerte(s, setup);

  s.Einheiten.EnergieFaktor = 1;
  s.Einheiten.VolumenFaktor = 1;
  s.Referenz.RefArt = 1;

  OptionenGruppe& o = s.Optionen;
  o.KurveTpBeschraenkt = true;
  o.SKurveOhneKonnode = false;
  o.UnloadGraph2D = true;
  o.PartialKurve = false;
  o.ParSpeichern = false;
  o.PunktDichte = 500;
  o.CsvTrenner = ';';
  o.XYTrenner = ';';
}

std::string DampfdruckTagVon(int index) {
  if (index < 1 || index > 8) return "000";
  return std::string(DampfdruckTags + 4 * index - 4, 3);
}

void SetzeEinheiten(ProjectState& s, ui::Oberflaeche& ui) {
  EinheitenGruppe& e = s.Einheiten;
  e.TFaktor = 1;
  e.pFaktor = 1;
  e.TEinheit = " K";
  e.pEinheit = " kPa";
  switch (e.VolumenMode) {
  case 1:
    e.VolumenFaktor = s.Stoff.MolMasse > 0 ? 1.0 / s.Stoff.MolMasse : 1.0;
    e.vEinheit = " m^3/kg  ";
    return;
  case 2:
    break;
  default:
    e.VolumenFaktor = 1;
    e.vEinheit = " m^3/kmol";
    return;
  }
  if (s.EOS.vKritEOS <= 0) {
    e.VolumenFaktor = 1;
    e.VolumenMode = 0;
    e.vEinheit = " m^3/kmol";
    ui.Meldung("Die gewählte EOS stellt kein V(cr) (kritisches mol. Volumen) zur Verfügung.\r\n"
               "Die gewünschte Option \"reduzierte Größen für T, p, v\" ist damit nicht möglich.",
               "Ausführung nicht möglich", ui::Symbol::Ausruf);
  } else {
    e.VolumenFaktor = 1.0 / s.EOS.vKritEOS;
    e.vEinheit = " V(red)";
  }
  if (s.Stoff.TKrit > 0) {
    e.TFaktor = static_cast<float>(1.0 / s.Stoff.TKrit);
    e.TEinheit = " T(red)";
  } else {
    e.TFaktor = 1;
  }
  // The pressure's reduced text lands in the temperature unit and the pressure keeps " kPa".
  if (s.Stoff.pKrit > 0) {
    e.pFaktor = static_cast<float>(1.0 / s.Stoff.pKrit);
    e.TEinheit = " p(red)";
  } else {
    e.pFaktor = 1;
  }
}

} // namespace quor
