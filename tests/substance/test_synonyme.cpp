// The name search behind the substance choice: the keys, the synonym file in both encodings, the
// synonym block of a CAS number and the messages for what is missing.
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/synonyme.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using test::TempOrdner;

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
  std::string cas, line2;
  bool missing = true;
  NameNormieren(suche.s, suche.ui, "Essigsaeure", cas, line2, missing);
  EXPECT_EQ(cas, "64-19-7");
  EXPECT_EQ(line2, "C2H4O2_Acetic acid_Essigsäure");
  EXPECT_FALSE(missing);
  // The CAS line against the plain key; hyphens of a synonym line don't count; a synonym of another
  // length is never a hit, neither as a prefix nor extended; nothing behind the "END" line.
  const char* const faelle[][2] = {{"74-82-8", "74-82-8"},       {"Sumpfgas", "74-82-8"},
                                   {"Me-Ethylketon", "78-93-3"}, {"Metha", "END"},
                                   {"Methanes", "END"},          {"Hinterdemende", "END"}};
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

} // namespace
} // namespace quor
