// Shared by the tests of the 2D diagram page and its insert menu: methane with Peng/Robinson, a
// scripted user interface and a page opened on a code with the catalogue's texts and ranges.
#pragma once

#include "calc/calc_testhilfe.h"
#include "diagrams/diagramm_codes.h"
#include "diagrams/graph2d.h"
#include "diagrams/katalog.h"

#include <gtest/gtest.h>

namespace quor::test {

struct Seite {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQGraph2D g{s, ui};

  explicit Seite(int16_t code, int16_t eos = 6) : s(StoffMitModell(CasMethan, eos)) {
    s.Optionen.PunktDichte = 100; // enough for the assertions, quick to compute
    Oeffne(code);
  }

  // A new diagram of `code` with the catalogue's texts and standard ranges.
  void Oeffne(int16_t code) {
    DiagrammAuftrag a;
    a.Code = code;
    EXPECT_TRUE(SetzeKatalogTexte(a, s.Einheiten));
    EXPECT_TRUE(IniStandardBereich(s, a));
    g.Neu(a);
  }

  ZeichenErgebnis Isotherme(float T) {
    s.Einheiten.TVorgabe = T;
    return g.cmdDraw();
  }

  // The messages' texts with their titles, "titel|text".
  std::vector<std::string> Meldungen() const {
    std::vector<std::string> m;
    for (const ui::Aufzeichnung& a : ui.Meldungen())
      m.push_back(a.titel + "|" + a.text);
    return m;
  }
};

} // namespace quor::test
