// The substance choice: the search of the default database by list name, CAS number and synonym (the
// spelling rules of the key are the synonym tests'), and the dialog with its list and labels, number
// field, name search and OK.
#include "dienste/skript_oberflaeche.h"
#include "substance/stoff_wahl.h"
#include "substance/stoff_wahl_suche.h"
#include "support/stoff_fixture.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

struct Ergebnis {
  int16_t index;
  bool notFound;
};

Ergebnis Suchen(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, int16_t start = 7) {
  Ergebnis e{start, true};
  StoffSuchen(s, ui, text, e.index, e.notFound);
  return e;
}

// The list name in any case, the list's CAS number, an English synonym, an old German spelling.
TEST(StoffSuchen, FindsByNameCasNumberAndSynonym) {
  ProjectState s = MitStandardDatenbank();
  ui::SkriptOberflaeche ui;
  for (const auto& [text, name] : {std::pair{"methan   ", "Methan"},
                                   {"64-17-5", "Ethanol"},
                                   {"Methane", "Methan"},
                                   {"Äthanol", "Ethanol"}})
    EXPECT_EQ(Suchen(s, ui, text).index, Position(s, name)) << text;
  EXPECT_EQ(IndexVonCAS(s, "74-82-8   "), 1); // compared right-trimmed
  EXPECT_TRUE(ui.protokoll.empty());
}

TEST(StoffSuchen, TellsOfASynonymWhoseSubstanceIsNotInTheDatabase) {
  TempOrdner dir;
  dir.Schreibe("SYNOM7.TXT", "1-1-1\r\nXu_Unob en_Unob de\r\nUNOBTANIUM\r\n\r\nEND\r\n");
  ProjectState s = MitStandardDatenbank(dir.Pfad());
  ui::SkriptOberflaeche ui;
  const Ergebnis e = Suchen(s, ui, "Unobtanium", 3);
  EXPECT_TRUE(e.notFound);
  EXPECT_EQ(e.index, 3);
  EXPECT_EQ(ui.Letzte().text, "Unob de\r\nXu\r\nUnob en\r\nCAS-Nr. 1-1-1\r\n"
                              "  dieser Stoff ist in der Datenbank nicht enthalten  ");

  ProjectState ohne = MitStandardDatenbank(dir.Pfad() + "/fehlt");
  ui::SkriptOberflaeche ui2;
  EXPECT_EQ(Suchen(ohne, ui2, "Methan").index, 1); // the list needs no synonym file
  EXPECT_TRUE(Suchen(ohne, ui2, "Methane").notFound);
  ASSERT_EQ(ui2.Meldungen().size(), 1u); // only the missing file is told
  EXPECT_EQ(ui2.Letzte().titel, "FEHLER");
}

struct Dialog {
  ProjectState s = MitStandardDatenbank();
  ui::SkriptOberflaeche ui;
  frmQStoffWahl frm{s, ui};
  Dialog() { EXPECT_TRUE(frm.Form_Load()); }
};

TEST(frmQStoffWahl, RefusesToOpenWithoutADatabase) {
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQStoffWahl frm(s, ui);
  EXPECT_FALSE(frm.Form_Load());
  EXPECT_EQ(ui.Letzte().text,
            "=> über Icon \"Neues Projekt\" oder über Menüpunkt \"Daten\"\r\nStoffdaten laden");
  EXPECT_EQ(ui.Letzte().titel, "Ausführung nicht möglich");
}

TEST(frmQStoffWahl, ListsTheDatabaseAndShowsTheSelectedRecord) {
  Dialog d;
  EXPECT_EQ(d.frm.Caption, "Wählen Sie einen Stoff (aus 430)");
  ASSERT_EQ(d.frm.List1.size(), 430u);
  const std::string kopf = frmQStoffWahl::ListenKopf;
  const std::string& zeile = d.frm.List1[0];
  EXPECT_EQ(zeile.find("CH4"), kopf.find("Formel")); // the columns stand under their headings
  EXPECT_EQ(zeile.find("Methan"), kopf.find("Stoffname"));
  EXPECT_EQ(d.frm.lblDatenbank, "geladene Datenbank: " + StandardDatenbank);
  // Nothing loaded yet: the first row is selected and shown.
  EXPECT_EQ(std::tie(d.frm.ListIndex, d.frm.lblCAS, d.frm.NameCombo),
            std::make_tuple(0, " CAS-RN: 74-82-8", "Methan"));

  const int16_t ethanol = Position(d.s, "Ethanol");
  d.frm.List1_Click(ethanol - 1);
  EXPECT_EQ(d.frm.StoffIndexNeu, ethanol);
  EXPECT_EQ(std::tie(d.frm.lblStruktur, d.frm.NameCombo), std::make_tuple("Struktur: CH3CH2OH", "Ethanol"));
  EXPECT_TRUE(d.ui.protokoll.empty());

  ProjectState alt;
  alt.Datenbank.ProgrammVerzeichnis = ProgrammVerzeichnis;
  ASSERT_TRUE(DatenbankOeffnen(alt, 6, std::string(QUOR_TESTDATEN) + "/datenbank/AUSWAHL.Q06", d.ui));
  frmQStoffWahl aeltere(alt, d.ui);
  ASSERT_TRUE(aeltere.Form_Load());
  EXPECT_EQ(aeltere.lblCAS.substr(0, 10), "CAS-RN:   "); // the older kind has no structure line
  EXPECT_EQ(aeltere.lblStruktur, "");
}

TEST(frmQStoffWahl, NumberFieldSelectsBySystemNumber) {
  Dialog d;
  const int16_t ethanol = Position(d.s, "Ethanol");
  const std::string nummer = std::to_string(d.s.Datenbank.MDBNummern[ethanol]);
  EXPECT_FALSE(d.frm.Text1_Change(nummer));
  EXPECT_EQ(d.frm.NameCombo, "Ethanol");

  EXPECT_FALSE(d.frm.Text1_Change("9999")); // unknown: the selection stands
  EXPECT_EQ(d.frm.ListIndex, ethanol - 1);
  for (const std::string falsch : {"0", "x1"}) {
    EXPECT_TRUE(d.frm.Text1_Change(falsch)) << falsch; // the beep
    EXPECT_EQ(d.frm.Text1, "");
  }
  EXPECT_FALSE(d.frm.Text1_Change(""));
}

// A name without a hit shows the current entry again and loads nothing; a hit is shown by the first
// Enter and loaded by the second one.
TEST(frmQStoffWahl, EnterOnANameSearchesAndTheSecondEnterGoesOnToTheModels) {
  Dialog d;
  d.frm.List1_Click(4);
  d.frm.NameCombo = "Metha";
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::Nichts);
  ASSERT_EQ(d.ui.Meldungen().size(), 1u);
  const auto meldung = d.ui.Letzte();
  EXPECT_EQ(std::tie(meldung.text, meldung.titel, meldung.symbol),
            std::make_tuple("Unter dieser Bezeichnung nichts gefunden.", "Fehler bei Stoffwahl",
                            ui::Symbol::Ausruf));
  EXPECT_EQ(d.frm.NameCombo, NameOhneZusatz(d.s.Datenbank.NamenListe[5]));
  d.frm.NameCombo = "Metha";
  EXPECT_EQ(d.frm.StoffOK_Click(), StoffWahlAktion::Nichts);
  EXPECT_EQ(d.s.Datenbank.StoffIndex, 0);

  const int16_t ethanol = Position(d.s, "Ethanol");
  d.frm.NameCombo = "Äthanol";
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::Nichts);
  EXPECT_EQ(d.frm.ListIndex, ethanol - 1); // the list shows the hit
  EXPECT_EQ(d.frm.NameCombo, "Ethanol");
  EXPECT_EQ(d.s.Datenbank.StoffIndex, 0);
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::ModellFenster);
  EXPECT_EQ(d.s.Datenbank.StoffIndex, ethanol);
  EXPECT_EQ(d.s.Projekt.StatusLeiste[2], "Ethanol");
  EXPECT_EQ(d.s.Projekt.Ampel.DatenAmpel, 1);
  EXPECT_TRUE(d.s.Projekt.Freigaben.Stoff && d.s.Projekt.Freigaben.KritischerPunkt);
  // Each typed name remembered once.
  EXPECT_EQ(d.frm.NameComboListe, (std::vector<std::string>{"Metha", "Äthanol", "Ethanol"}));
}

TEST(frmQStoffWahl, OKAsksAboutMeasuredDataAndComputesCorrelatedSets) {
  Dialog d;
  d.s.Mess.ExpAnzahl = 2;
  d.s.Mess.ExpDaten.resize(3);
  d.s.Mess.BatchDateiPfad = "alt.BAQ";
  d.s.Mess.BatchKommentar = "alt";
  d.s.Projekt.Freigaben.ExpDaten = true;
  d.s.Modell.DampfdruckIndex = 6;
  d.ui.antworten = {ui::Antwort::Nein, ui::Antwort::Ja};

  EXPECT_EQ(d.frm.StoffOK_Click(), StoffWahlAktion::ModellFenster);
  const auto frage = d.ui.Letzte();
  EXPECT_EQ(std::tie(frage.art, frage.text, frage.titel),
            std::make_tuple("Frage", "Geladene exper. Daten jetzt löschen?", "exper. Daten"));
  EXPECT_EQ(d.s.Mess.ExpAnzahl, 2);  // "Nein" keeps them
  EXPECT_NE(d.s.Stoff.KFW[1], 0.0f); // Frost/Kalkwarf (van der Waals) from Tc, pc and Tb

  d.frm.List1_Click(1);
  EXPECT_EQ(d.frm.List1_KeyEnter(), StoffWahlAktion::ModellFenster);
  const MessdatenGruppe& m = d.s.Mess;
  EXPECT_EQ(std::tie(m.ExpAnzahl, m.BatchDateiPfad, m.BatchKommentar), std::make_tuple(0, "", ""));
  EXPECT_EQ(m.ExpDaten.size(), 1u);
  EXPECT_FALSE(d.s.Projekt.Freigaben.ExpDaten);
  EXPECT_EQ(d.s.Stoff.StoffName, "Ethan");
}

} // namespace
} // namespace quor
