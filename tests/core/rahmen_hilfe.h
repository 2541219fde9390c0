// A frame logic whose services record their calls, a project state in each frame state, and a
// program directory of its own.
#pragma once

#include "core/rahmen.h"
#include "dienste/skript_oberflaeche.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace quor::test {

using Aufrufe = std::vector<std::string>;

struct Rahmen {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  Aufrufe aufrufe;
  bool datenbankErfolg = true;
  RahmenDienste d;
  std::unique_ptr<RahmenLogik> logik;

  Rahmen() {
    s.Datenbank.ProgrammVerzeichnis = "/quor/programm";
    d.DatenbankWaehlen = [this](ProjectState& st, int typ) {
      aufrufe.push_back("Datenbank " + std::to_string(typ));
      if (datenbankErfolg) {
        st.Datenbank.DatenbankGeladen = true;
        st.Datenbank.DatenbankTyp = static_cast<int16_t>(typ);
        (typ == 6 ? st.Datenbank.PfadQ06 : st.Datenbank.PfadQ07) = "/daten/NEU.Q0" + std::to_string(typ);
      }
      return datenbankErfolg;
    };
    d.ModellFensterZeigen = [this] { aufrufe.push_back("ModellFenster"); };
    d.StoffFensterSchliessen = [this] { aufrufe.push_back("StoffFenster"); };
    d.TextFensterZeigen = [this](const std::string& titel, const std::string& text) {
      aufrufe.push_back("Text " + titel + "|" + text);
    };
    d.ParameterEOSText = [](ProjectState&) { return std::string("a0 = 1"); };
    d.ParameterEOSTitel = " Parameter der generalisierten Zustandsgleichung ";
    Bauen();
  }

  // A new logic with the services as they stand now.
  // The substance choice is a row of the registry; its window records the call.
  void Bauen() {
    logik = std::make_unique<RahmenLogik>(s, ui, d);
    logik->Befehle.Handler("mnuStoffwahl", [this](int) { aufrufe.push_back("StoffWahl"); });
  }

  // An open database and a substance with critical data whose models were tested, as the
  // substance choice and the model window leave them.
  void MitStoffUndModell() {
    s.Datenbank.DatenbankGeladen = true;
    s.Datenbank.PfadQ07 = "QUOR.Q07";
    s.Stoff.StoffName = "Methan";
    s.Stoff.TKrit = 190.56;
    s.Stoff.pKrit = 4599;
    s.Stoff.omega = 0.011;
    s.Stoff.TSiede = 111.6f;
    s.Stoff.FrostKalkwarfGrenzen = {91, 190};
    s.Stoff.HLVGrenzen = {91, 190};
    s.Projekt.Ampel.DatenAmpel = 1;
    s.Projekt.StatusLeiste[2] = "Methan";
    MenueFreigaben& f = s.Projekt.Freigaben;
    f.Stoff = f.KritischerPunkt = f.Modell = f.Diagramme = f.Saettigung = true;
    s.Modell.EOSIndex = 6;
  }
};

// A folder in the temporary directory for the program directory, removed at the end.
struct ProgrammOrdner : TempOrdner {
  std::filesystem::path pfad{Pfad()};
};

} // namespace quor::test
