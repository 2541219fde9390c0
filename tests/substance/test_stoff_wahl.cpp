// The substance choice: the name keys and the synonym file with its messages, the search of the
// default database by list name, CAS number and synonym, and the dialog with its list and labels,
// number field, name search and OK.
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/stoff_wahl.h"
#include "substance/stoff_wahl_suche.h"
#include "substance/synonyme.h"
#include "support/stoff_fixture.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using namespace quor::test;

// Three blocks, the "END" line, and one block behind it that must never be read (UTF-8, CR LF).
const std::string SynonymText = test::LeseDatei(std::string(QUOR_TESTDATEN) + "/substance/synonyme.txt");

struct Suche {
  TempOrdner dir;
  ProjectState s;
  ui::SkriptOberflaeche ui;
  explicit Suche(const std::string& bytes, const std::string& name = "SYNOM7.TXT") {
    s.Datenbank.ProgrammVerzeichnis = dir.Pfad();
    if (!bytes.empty()) dir.Schreibe(name, bytes);
  }
  // CAS line of the hit, "END" for none.
  std::string CAS(const std::string& text) {
    std::string cas, line2;
    bool missing = true;
    NameNormieren(s, ui, text, cas, line2, missing);
    EXPECT_FALSE(missing);
    return cas;
  }
};

// One case of each kind of rule: the umlaut of an old spelling, K and Z for C, ph for f, the short
// forms, umlauts spelt out, and what is dropped from the key.
TEST(NameNormieren, BringsEachGermanSpellingToTheCSpelling) {
  const char* const faelle[][2] = {{"Äthan", "ETHAN"},
                                   {"Karbonat", "CARBONAT"},
                                   {"Zyklohexan", "CYCLOHEXAN"},
                                   {"Sulphid", "SULFID"},
                                   {"sek-Butanol", "SECBUTANOL"},
                                   {"Essigsaeure", "ESSIGSÄURE"},
                                   {"Me-Ethylketon", "METHYLETHYLKETON"},
                                   {"(R)-2-[Chlor].methan", "R2CHLORMETHAN"},
                                   {"Methyl propan", "METHYLPROPAN"}};
  for (const auto& [eingabe, schluessel] : faelle)
    EXPECT_EQ(NormalSchluessel(KlarSchluessel(eingabe)), schluessel) << eingabe;
  EXPECT_EQ(KlarSchluessel(" 74-82-8 "), "74-82-8"); // a CAS number keeps its hyphens
  EXPECT_EQ(GrossSchreibung("ä ö ü é ß x÷"), "Ä Ö Ü É ß X÷");
}

TEST(NameNormieren, ReplacesOxydUnlessAnOxydiStandsInTheText) {
  EXPECT_EQ(NormalSchluessel(KlarSchluessel("Kohlendioxyd")), "KOHLENDIOXID");
  EXPECT_EQ(NormalSchluessel("OXYDOXYD"), "OXIDOXID");
  // A hydroxy group before an "I" stops every replacement, also of the "OXYD" in front of it.
  EXPECT_EQ(NormalSchluessel("OXYDHYDROXYDIETHYL"), "OXYDHYDROXYDIETHYL");
  // Once the last "OXYD" is gone the loop ends; an "OXYDI" made by it cannot occur.
  EXPECT_EQ(NormalSchluessel("DIOXYD"), "DIOXID");
}

TEST(NameNormieren, FindsBlocksBySynonymOrCasNumber) {
  Suche suche(Utf8ZuWin1252(SynonymText)); // the file as older installations write it
  // An umlaut of the file; the CAS line against the plain key; hyphens of a synonym line don't count;
  // a synonym of another length is never a hit, neither as a prefix nor extended; nothing behind the
  // "END" line.
  const char* const faelle[][2] = {{"Essigsaeure", "64-19-7"}, {"74-82-8", "74-82-8"},
                                   {"Sumpfgas", "74-82-8"},    {"Me-Ethylketon", "78-93-3"},
                                   {"Metha", "END"},           {"Methanes", "END"},
                                   {"Hinterdemende", "END"}};
  for (const auto& [text, cas] : faelle)
    EXPECT_EQ(suche.CAS(text), cas) << text;
  EXPECT_TRUE(suche.ui.protokoll.empty());

  Suche utf8("\xEF\xBB\xBF" + SynonymText, "synom7.txt"); // UTF-8 with a byte order mark, small name
  EXPECT_EQ(utf8.CAS("Essigsaeure"), "64-19-7");
  Suche ohneEnd(SynonymText.substr(0, SynonymText.find("END")));
  EXPECT_EQ(ohneEnd.CAS("Essigsaeure"), "64-19-7");
  EXPECT_EQ(ohneEnd.CAS("Butan"), "END"); // the file's end counts as "END"
}

TEST(FindSynonymVonCAS, GivesTheBlockOfANumber) {
  EXPECT_EQ(BeschreibungsTeile("C4H8O_Methyl ethyl ketone_"),
            (std::vector<std::string>{"Methyl ethyl ketone", "C4H8O"}));
  EXPECT_EQ(BeschreibungsTeile("A_B_C_D"), (std::vector<std::string>{"C_D", "A", "B"}));

  Suche suche(Utf8ZuWin1252(SynonymText));
  const auto fenster = SynonymListe(suche.s, suche.ui, "64-19-7   "); // compared right-trimmed
  ASSERT_TRUE(fenster.has_value());
  EXPECT_EQ(fenster->Caption, "  Synonym-Liste");
  EXPECT_EQ(fenster->Zeilen(), (std::vector<std::string>{"CAS-RN: 64-19-7", "Essigsäure", "C2H4O2",
                                                         "Acetic acid", "", "ACETICACID", "ESSIGSÄURE"}));
  EXPECT_EQ(suche.s.Projekt.SynonymDatum.size(), 10u); // the file's date, dd.mm.yyyy
  EXPECT_TRUE(suche.ui.protokoll.empty());
}

TEST(FindSynonymVonCAS, TellsWhatIsMissing) {
  Suche suche(SynonymText);
  std::string text;
  std::vector<std::string> synonyme;
  bool failed = false;
  FindSynonymVonCAS(suche.s, suche.ui, "1-1-1", text, synonyme, failed); // only behind "END"
  EXPECT_TRUE(failed);
  EXPECT_EQ(suche.ui.Letzte().text, "CAS-RN fehlt noch in der Synonymdatei synom7.txt\r\n"
                                    "ACHTUNG!\r\n"
                                    "Damit ist dieser Stoff in der Datenbank über Stoffnamen-\r\n"
                                    "Eingabe nicht auffindbar.");
  EXPECT_EQ(suche.ui.Letzte().titel, "Ausführung nicht möglich");

  for (const std::string cas : {"00-00-0", "  "}) {
    EXPECT_FALSE(SynonymListe(suche.s, suche.ui, cas).has_value());
    EXPECT_EQ(suche.ui.Letzte().text, "CAS-RN nicht angegeben bzw. inkorrekt");
    EXPECT_EQ(suche.ui.Letzte().titel, "Warnung");
  }

  // Without the file: the name search and the synonym window tell it in their own words.
  Suche ohneDatei("");
  std::string cas, line2;
  bool missing = false;
  NameNormieren(ohneDatei.s, ohneDatei.ui, "Methan", cas, line2, missing);
  EXPECT_TRUE(missing);
  ASSERT_EQ(ohneDatei.ui.Meldungen().size(), 1u);
  const auto meldung = ohneDatei.ui.Letzte();
  EXPECT_EQ(std::tie(meldung.text, meldung.titel, meldung.symbol),
            std::make_tuple("Datei 'SYNOM7.TXT' im QUOR-Verzeichnis nicht gefunden.\r\n"
                            "Wählen Sie den Stoff über die Liste.",
                            "FEHLER", ui::Symbol::Kritisch));
  EXPECT_FALSE(SynonymListe(ohneDatei.s, ohneDatei.ui, "74-82-8").has_value());
  EXPECT_EQ(ohneDatei.ui.Letzte().text, "Synonymdatei synom7.txt nicht gefunden,");
}

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
  EXPECT_EQ(std::tie(e.index, e.notFound), std::make_tuple(3, true));
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
  EXPECT_EQ(std::tie(d.frm.lblStruktur, d.frm.NameCombo), std::make_tuple("Struktur: CH3CH2OH", "Ethanol"));
  EXPECT_TRUE(d.ui.protokoll.empty());

  ProjectState alt;
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

// A typed name whose hit is already selected still takes two Enters; typing between starts anew.
TEST(frmQStoffWahl, AHitAlreadySelectedStillNeedsTheSecondEnter) {
  Dialog d;
  const int16_t ethanol = Position(d.s, "Ethanol");
  d.frm.List1_Click(ethanol - 1);
  d.frm.NameCombo_Change("ethanol");
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::Nichts);
  d.frm.NameCombo_Change("Äthanol");
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::Nichts);
  EXPECT_EQ(d.frm.NameCombo_KeyEnter(), StoffWahlAktion::ModellFenster);
  EXPECT_EQ(d.s.Datenbank.StoffIndex, ethanol);
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
