// Shared material of the result page tests: a batch of five measured points (the third deleted), a
// calculation stand-in that answers each point with prepared numbers, and the comparison with golden
// files (QUOR_GOLDEN_NEU=1 writes them anew).
#pragma once

#include "calc/ergebnis_seite.h"
#include "core/datei_io.h"
#include "support/golden.h"
#include "support/temp_ordner.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace quor::test {

// Compares the bytes with tests/data/calc/seite/<name>.
inline void VergleicheMitGolden(const std::string& name, const std::string& ist) {
  PruefeGolden("calc/seite/" + name, ist);
}

// The batch: point 3 is deleted (T = 0), point 4 has no delta(LV)h, point 5 no pressure measured.
inline ProjectState StapelZustand(const std::string& verzeichnis) {
  ProjectState s;
  InitProjectState(s);
  s.Stoff.StoffName = "Propan";
  s.Stoff.MolMasse = 44.097f;
  s.Stoff.TKrit = 369.83;
  s.Stoff.pKrit = 4248;
  s.Modell.EOSIndex = 6;
  s.Modell.RechnungGlobal = true;
  s.Datenbank.ProgrammVerzeichnis = verzeichnis;
  s.Optionen.CsvTrenner = ';';
  s.Optionen.DezimalKomma = false;
  s.Mess.BatchDateiTitel = "PROPAN.BAQ";
  // Inaktiv, T, p, rho(L), rho(V), delta(LV)h
  s.Mess.ExpDaten = {{},
                     {false, 300, 1000, 500, 20, 30000, 0},
                     {false, 320, 1500, 480, 2, 5000, 0},
                     {false, 0, 1700, 470, 30, 8000, 0},
                     {false, 340, 2000, 0, 40, 0, 0},
                     {false, 360, 0, 420, 50, 10000, 0}};
  s.Mess.ExpAnzahl = 5;
  s.RechenArt = 4;
  return s;
}

// Record of a point as the dispatcher would leave it: calculated values and, for the derivative
// pages, distinct numbers in every table cell (liquid positive, vapour negative and small).
inline StapelErgebnis Ergebnis(int n, const std::string& phase, float T, float p, float rhoV, float rhoL,
                               float dh) {
  StapelErgebnis e;
  e.Phase = phase;
  e.TCalc = T;
  e.pCalc = p;
  e.rhoVCalc = rhoV;
  e.rhoLCalc = rhoL;
  e.dhCalc = dh;
  e.TFu = T;
  e.pFu = p;
  e.vFu = 0.25f * static_cast<float>(n);
  auto wert = [n](int tabelle, int phase, std::size_t spalte) {
    const float basis = static_cast<float>(n * 100 + tabelle * 10) + static_cast<float>(spalte);
    return phase == 0 ? basis / 8 : -basis / 1024;
  };
  for (int ph = 0; ph < 2; ++ph) {
    for (std::size_t c = 0; c < 7; ++c)
      e.Abl1[ph][c] = wert(1, ph, c);
    for (std::size_t c = 0; c < 6; ++c)
      e.Abl2[ph][c] = wert(2, ph, c);
    for (std::size_t c = 0; c < 11; ++c)
      e.Fuga[ph][c] = wert(3, ph, c);
    for (std::size_t c = 0; c < 3; ++c)
      e.Mech[ph][c] = wert(4, ph, c);
  }
  e.hFu = 1000.5f * static_cast<float>(n);
  e.sFu = -2.25f * static_cast<float>(n);
  e.gFu = 500.0f;
  e.eHFu = 12.5f;
  e.eUFu = -7.75f;
  return e;
}

// Stands in for the dispatcher: records each call and answers from the prepared points.
struct RechnungsAttrappe {
  std::map<int, StapelErgebnis> ergebnisse;
  std::map<int, ErgebnisVektor> vektoren;
  std::vector<int> aufrufe; // point of each call
  std::vector<int16_t> abschnitte;
  std::string antwort; // "EXIT" closes the page

  RechenFunktion Funktion() {
    return [this](ProjectState&, ui::Oberflaeche&, ErgebnisSeite& seite, RechenKontext& k, int16_t,
                  int16_t& punkt, double&, float&, std::string& ausgang) {
      aufrufe.push_back(punkt);
      abschnitte.push_back(k.Abschnitte);
      k.Ergebnis.fill(0);
      StapelErgebnis e;
      if (auto it = ergebnisse.find(punkt); it != ergebnisse.end()) e = it->second;
      if (auto it = vektoren.find(punkt); it != vektoren.end()) k.Ergebnis = it->second;
      seite.par1.text = "Punkt " + std::to_string(punkt);
      k.StapelErgebnisse.at(static_cast<std::size_t>(punkt)) = e;
      ausgang = antwort;
    };
  }
};

// Deviations per column (T, p, rho(V), rho(L), delta(LV)h), by construction:
//  point 1: p +1.25 %, rho(V) +2.5 %, rho(L) -1 %, delta(LV)h +33.33 %
//  point 2: p -1.3167 %, rho(V) exactly +500 %, rho(L) 0 (not counted), delta(LV)h +700 %
//  point 4: p +1.585 %, rho(V) -2 %; no measured rho(L) or delta(LV)h
//  point 5: no measured p; rho(V) +3 %, rho(L) -0.1 %, delta(LV)h +900 %
inline RechnungsAttrappe StapelRechnung() {
  RechnungsAttrappe r;
  r.ergebnisse[1] = Ergebnis(1, "V+L", 300, 1012.5f, 20.5f, 495, 40000);
  r.ergebnisse[2] = Ergebnis(2, "V+L", 320, 1480.25f, 12, 480, 40000);
  r.ergebnisse[4] = Ergebnis(4, "V+L", 340, 2031.7f, 39.2f, 450.5f, 25000.4f);
  r.ergebnisse[4].pFu = 0; // no function block: no derivative page
  r.ergebnisse[5] = Ergebnis(5, "V+L", 360, 2500.125f, 51.5f, 419.58f, 100000);
  return r;
}

} // namespace quor::test
