// The calculation dispatcher: the prologue that every call starts from, the branch by kind, and the
// common ending with the region of the state, the further blocks, the record and the page's flags.
#include "calc/calc_batch.h"

#include "calc/calc_batch_intern.h"
#include "engine/korrelationen.h"
#include "engine/numerik.h"

#include <cmath>
#include <exception>

namespace quor {

using namespace calcbatch;

namespace {

void Prolog(Lauf& l) {
  ErgebnisSeite& seite = l.seite;
  l.s.EOS.VRoots = {};
  l.k.Letzter = LetzterZustand{};
  l.k.ErrorFlag = false;
  l.k.HatL = false;
  l.k.HatV = false;
  for (SeitenFeld* f : {&seite.par1, &seite.par2, &seite.Liste, &seite.co1, &seite.txtco2})
    f->farbe = TextFarbe::Schwarz;
  seite.cmdInfoSuperCritVerfuegbar = true;
  // co1 keeps its text: only the kinds that have a main result line write it.
  for (SeitenFeld* f : {&seite.par1, &seite.par2, &seite.Liste, &seite.txtco2})
    f->text.clear();
  l.k.Ergebnis.fill(0);

  EinheitenGruppe& e = l.s.Einheiten;
  const double TR = e.TVorgabe * RGas;
  const double M = l.s.Stoff.MolMasse;
  switch (e.EnergieMode) {
  case 1:
    e.EnergieFaktor = 1 / RGas;
    break;
  case 2:
    e.EnergieFaktor = TR > 0 ? 1 / TR : 1;
    break;
  case 3:
    e.EnergieFaktor = M > 0 ? 1 / M : 1;
    break;
  default:
    e.EnergieFaktor = 1;
  }
}

void Verzweige(Lauf& l) {
  switch (l.art) {
  case art::TRhoV:
  case art::TRhoL:
  case art::BehaelterGlobal:
  case art::BehaelterPartial:
    Art1Bis2(l);
    break;
  case art::Tp:
    Art3(l);
    break;
  case art::pRho:
    Art13(l);
    break;
  case art::TzuPLV:
    Art4(l);
    break;
  case art::PzuTLV:
    Art5(l);
    break;
  case art::HLVvonT:
  case art::HLVvonP:
    Art6Bis7(l);
    break;
  case art::Funktionen:
    Art8(l);
    break;
  case art::Virial:
    Art11(l);
    break;
  case art::Polytrope:
    Art12(l);
    break;
  default:
    if (art::IstDatenbank(l.art) && l.art != art::OhneZweig) Datenbank(l);
  }
}

void FehlerSatz(Lauf& l) {
  StapelErgebnis& z = l.satz;
  z.Phase = "   ";
  z.TCalc = z.pCalc = z.rhoVCalc = z.rhoLCalc = z.dhCalc = 0;
}

void SatzSpeichern(Lauf& l) {
  if (l.punkt < 0) return;
  auto& saetze = l.k.StapelErgebnisse;
  if (static_cast<std::size_t>(l.punkt) >= saetze.size()) saetze.resize(l.punkt + 1);
  saetze[l.punkt] = l.satz;
}

// A number that could not be shown counts as an error of the engine.
void EndlichPruefen(Lauf& l) {
  for (double& zelle : l.k.Ergebnis) {
    if (!std::isfinite(zelle)) {
      zelle = 0;
      l.nichtEndlich = true;
    }
  }
  if (l.nichtEndlich && !l.k.ErrorFlag) MeldeFehler(l, FehlerCode(-1));
}

bool DiagnoseMoeglich(const Lauf& l) {
  const int16_t a = l.art;
  const ModelSelection& m = l.s.Modell;
  if (l.k.ErrorFlag || !l.Kubisch() || !(l.k.HatV || l.k.HatL)) return false;
  if (a == art::Virial || a == art::Polytrope || (a >= art::DbRhoL && a <= art::DbAntoineHd)) return false;
  if (art::IstGleichgewicht(a) && !m.RechnungGlobal) return false;
  if (art::IstVerdampfung(a) && m.HLVIndex != HLVAusKubischerEOS) return false;
  return true;
}

void KeinePhase(ErgebnisSeite& seite) {
  seite.lblLphase.sichtbar = false;
  seite.lblVphase.sichtbar = false;
}

void Abschluss(Lauf& l, float& eta) {
  ErgebnisSeite& seite = l.seite;
  RechenKontext& k = l.k;
  seite.lblLphase.text = "L-Phase";
  seite.lblLphase.sichtbar = k.HatL;
  seite.lblVphase.text = "V-Phase";
  seite.lblVphase.sichtbar = k.HatV;
  GebietZeigen(l);

  EndlichPruefen(l);
  if (!k.ErrorFlag) {
    ResidualBlock(l);
    FunktionenBlock(l);
    ParameterBlock(l);
    EndlichPruefen(l);
  }
  if (k.ErrorFlag) {
    FehlerSatz(l);
    KeinePhase(seite); // a failed calculation shows no phase
  }
  SatzSpeichern(l);

  if (k.HatL && !k.HatV) eta = 0;
  if (k.HatV && !k.HatL) eta = 100;
  k.EtaProzent = eta;
  if (!k.ErrorFlag) seite.Liste.text = l.text;
  seite.cmdCEOSDiagnoseVerfuegbar = DiagnoseMoeglich(l);
}

} // namespace

namespace calcbatch {

// The region of the state in the label lblGleich, T and p against the critical point in single
// precision. The rows "überkritische Phase (T > T(cr)), kein VLE" and "überkritische V-Phase" stand
// behind the test T > T(cr) and are never reached: a superheated state below p(cr) is reported as
// code 2. They are kept as they are.
void GebietZeigen(Lauf& l) {
  ErgebnisSeite& seite = l.seite;
  seite.lblGleich = SeitenFeld{};
  seite.lblIdentisch = SeitenFeld{};
  if (!l.Kubisch()) {
    seite.lblGleich.sichtbar = false;
    seite.lblIdentisch.sichtbar = false;
    return;
  }
  const float T = Einfach(l.T), p = Einfach(l.p);
  const float Tc = Einfach(l.s.Stoff.TKrit), pc = Einfach(l.s.Stoff.pKrit);
  const char* const keinZweiPhasen = " kein 2-Phasen-Zustand! ";
  int16_t gebiet = 0;
  std::string text, identisch, tip;
  bool rot = false;
  if (T == Tc && p == pc) {
    gebiet = GebietKritisch;
    text = "kritischer Punkt (T = T(cr), p = p(cr))   > > > > > > > > >";
    identisch = "identisch";
  } else if (T < Tc && p < pc) {
    gebiet = GebietSubkritisch;
  } else if (T > Tc) {
    gebiet = GebietUeberkritisch;
    text = "überkritische Phase (L) = (V) (T > T(cr), p > p(cr))   > > > > >";
    identisch = "identisch";
    tip = keinZweiPhasen;
  } else if (p > pc && T <= Tc && l.T == 0) {
    gebiet = GebietKomprimiert;
    text = "überkritische Phase (p > p(cr)), kein VLE   > > > > > > > >";
    rot = true;
  } else if (p > pc && T <= Tc) {
    gebiet = GebietKomprimiert;
    text = "überkritische L-Phase (T < T(cr), p > p(cr))   > > > > > > >";
    identisch = "(identisch)";
    tip = keinZweiPhasen;
    seite.lblLphase.sichtbar = true;
  } else if (p <= pc && T > Tc && l.p == 0) {
    gebiet = GebietUeberhitzt;
    text = "überkritische Phase (T > T(cr)), kein VLE   > > > > > > > > >";
    rot = true;
  } else if (p <= pc && T > Tc) {
    gebiet = GebietUeberhitzt;
    text = "überkritische V-Phase (T > T(cr), p < p(cr))   > > > > > > > >";
    identisch = "(identisch)";
    tip = keinZweiPhasen;
    seite.lblVphase.sichtbar = true;
  }
  l.s.EOS.Gebiet = gebiet;
  seite.lblGleich.text = text;
  seite.lblGleich.farbe = rot ? TextFarbe::Rot : TextFarbe::Schwarz;
  seite.lblGleich.tooltip = tip;
  seite.lblGleich.sichtbar = gebiet > 0;
  seite.lblIdentisch.text = identisch;
  seite.lblIdentisch.sichtbar = gebiet > 0 && !identisch.empty();
}

} // namespace calcbatch

void CalcBatch(ProjectState& s, ui::Oberflaeche& ui, ErgebnisSeite& seite, RechenKontext& k, int16_t art,
               int16_t& punkt, double& p, float& eta, std::string& ausgang) {
  ausgang.clear();
  Lauf l(s, ui, seite, k, art, punkt);
  try {
    Prolog(l);
    Verzweige(l);
    if (l.exit) {
      ausgang = "EXIT";
      return;
    }
    Abschluss(l, eta);
    // Kinds 9 and 10 end on the vessel display, after an error too; the branches that show it
    // with the state have done so already.
    if (art::IstBehaelter(art) && !l.behaelterGezeigt) BehaelterAnzeigen(l);
    p = l.p;
  } catch (const std::exception& e) {
    KeinePhase(seite);
    ui.Meldung(std::string("Meldung von Sub CalcBatch:") + CRLF + e.what(), "WARNUNG", ui::Symbol::Ausruf);
  }
}

} // namespace quor
