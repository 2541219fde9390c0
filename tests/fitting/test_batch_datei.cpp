// The measured-data files: what the writer puts into a file and the reader takes back, the older
// five-value form, the substance line, the questions for another substance, appending, the files
// the reader refuses and the save command.
#include "dienste/skript_oberflaeche.h"
#include "fitting/batch_datei.h"
#include "fitting/messdaten_testhilfe.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>
#include <tuple>

namespace quor {
namespace {

using test::BaqText;
using test::Satz;

const std::string WasserZeile = "Wasser;7732-18-5";
const std::vector<std::string> EineZeile = {"300", "3.5", "0", "996", "0", "0"};

std::vector<std::string> Zeilen(const std::string& text) {
  std::vector<std::string> z;
  for (std::size_t pos = 0; pos < text.size();) {
    const std::size_t ende = text.find("\r\n", pos);
    z.push_back(text.substr(pos, ende - pos));
    pos = ende == std::string::npos ? text.size() : ende + 2;
  }
  return z;
}

// Every field of a row, for comparing rows as a whole.
auto Felder(const ExpDatenSatz& z) {
  return std::make_tuple(z.T, z.p, z.RhoV, z.RhoL, z.HLV, z.Cp, z.Inaktiv);
}

// Water loaded, the files in a fresh folder, the questions answered by script.
struct BatchDatei : testing::Test {
  test::TempOrdner ordner;
  ProjectState s = test::MitWasser();
  ui::SkriptOberflaeche ui;
};

// Every column travels exactly: T and p with all digits of a double, the others as single values;
// rho(V) and rho(L) keep their places although the file orders them the other way round.
TEST_F(BatchDatei, SchreibenUndLesenGibtJedeSpalteInIhrerBreiteZurueck) {
  const ExpDatenSatz a = Satz(373.12345678901234, 101.32500000000001, 958.35f, 0.5977f, 40657.1f, 75.98f);
  const ExpDatenSatz b = Satz(1.0 / 3.0, 2.0 / 3.0, 1e-37f, 3.4e38f, -1.5f, 0.1f);
  test::SetzeZeilen(s, {a, b});
  s.Mess.BatchKommentar = "Sättigung, aus Tabellen";
  const std::string pfad = ordner.Datei("wasser.BAQ");
  ASSERT_TRUE(SchreibeBatchDatei(s, pfad));

  ProjectState neu = test::MitWasser();
  ASSERT_TRUE(LadeBatchDatei(neu, ui, pfad));
  EXPECT_TRUE(ui.protokoll.empty()); // the current substance: no question
  ASSERT_EQ(neu.Mess.ExpAnzahl, 2);
  EXPECT_EQ(Felder(neu.Mess.ExpDaten[1]), Felder(a));
  EXPECT_EQ(Felder(neu.Mess.ExpDaten[2]), Felder(b));
  EXPECT_EQ(neu.Mess.BatchKommentar, "Sättigung, aus Tabellen");
  EXPECT_EQ(neu.Mess.BatchStoff, "Wasser");
  EXPECT_EQ(neu.Mess.BatchCAS, "7732-18-5");
  EXPECT_EQ(neu.Mess.BatchDateiTitel, "wasser.BAQ");
  std::string vorschau;
  EXPECT_TRUE(BatchVorschau(pfad, vorschau));
  EXPECT_NE(vorschau.find("\r\nSättigung, aus Tabellen\r\nWasser "), std::string::npos) << vorschau;
}

// The file itself: Windows-1252 with CR LF, the substance line in its fixed widths, the count, one
// value a line in its shortest form with "." (the file's order rho(V), rho(L)); inactive rows stay out.
TEST_F(BatchDatei, DieDateiHatFesteBreitenEinenWertJeZeileUndKeineInaktivenZeilen) {
  ExpDatenSatz aus = Satz(280, 1);
  aus.Inaktiv = true;
  test::SetzeZeilen(s, {Satz(300, 3.5368, 996.51f, 0.02559f, 43908, 75.3f), aus});
  s.Mess.BatchKommentar = "Dampfdrücke";
  const std::vector<std::string> soll = {
      "01.02.2024", "Dampfdrücke", "Wasser" + std::string(101, ' ') + ";7732-18-5   ",
      "1",          "300",         "3.5368",
      "0.02559",    "996.51",      "43908",
      "75.3",
  };
  EXPECT_EQ(Zeilen(BatchText(s, "01.02.2024")), soll);

  const std::string pfad = ordner.Datei("d.BAQ");
  ASSERT_TRUE(SchreibeBatchDatei(s, pfad));
  const std::string bytes = test::LeseDatei(pfad);
  EXPECT_NE(bytes.find("Dampfdr\xFC"
                       "cke\r\n"),
            std::string::npos);
  EXPECT_EQ(bytes.substr(bytes.size() - 6), "75.3\r\n");
}

// The older form has five values a row: cp stays 0, and the next save writes the sixth value.
TEST_F(BatchDatei, DieAeltereFormOhneCpGewinntBeimSpeichernDenSechstenWert) {
  const std::string pfad =
      ordner.Schreibe("alt.BAQ", BaqText(WasserZeile, 2,
                                         {"300.0", "3.5368", "0.02559", "996.51", "43908", "350", "41.682",
                                          "0.26029", "973.7", "41716"}));
  ASSERT_TRUE(LadeBatchDatei(s, ui, pfad));
  ASSERT_EQ(s.Mess.ExpAnzahl, 2);
  EXPECT_EQ(Felder(s.Mess.ExpDaten[1]), Felder(Satz(300, 3.5368, 996.51f, 0.02559f, 43908, 0)));
  EXPECT_EQ(Felder(s.Mess.ExpDaten[2]), Felder(Satz(350, 41.682, 973.7f, 0.26029f, 41716, 0)));
  const std::vector<std::string> z = Zeilen(BatchText(s, "heute"));
  ASSERT_EQ(z.size(), 4u + 2 * 6);
  EXPECT_EQ(z[9], "0");
  EXPECT_EQ(z[15], "0");
}

// Line 3 with a ";" gives name and CAS number trimmed; without one the whole line is the name.
TEST_F(BatchDatei, DieStoffzeileMitUndOhneSemikolon) {
  ASSERT_TRUE(
      LadeBatchDatei(s, ui, ordner.Schreibe("a.BAQ", BaqText("  Wasser   ;  7732-18-5  ", 1, EineZeile))));
  EXPECT_EQ(s.Mess.BatchStoff, "Wasser");
  EXPECT_EQ(s.Mess.BatchCAS, "7732-18-5");
  ASSERT_TRUE(LadeBatchDatei(s, ui, ordner.Schreibe("b.BAQ", BaqText("  Wasser  ", 1, EineZeile))));
  EXPECT_EQ(s.Mess.BatchStoff, "Wasser");
  EXPECT_EQ(s.Mess.BatchCAS, "");
  EXPECT_TRUE(ui.protokoll.empty());
}

// A substance the database lacks: No leaves the data; Yes loads, or without a loaded substance
// ends with the hint. Another substance of the database: No leaves the data, Yes loads.
TEST_F(BatchDatei, DieFragenFuerEinenFremdenOderUnbekanntenStoff) {
  const std::string unbekannt = ordner.Schreibe("u.BAQ", BaqText("Xenon;7440-63-3", 1, EineZeile));
  const std::string methan = ordner.Schreibe("m.BAQ", BaqText("methan", 1, EineZeile));
  const std::string fremdFrage = "Sie versuchen einen Datensatz für einen\r\nfremden Stoff zu "
                                 "laden!\r\n\r\nT-p-rho-Daten trotzdem laden?";
  const std::string unbekanntFrage =
      "Stoff nicht in aktueller Datenbank gefunden\r\n\r\n     Daten trotzdem laden?";
  struct Fall {
    std::string pfad;
    bool stoffGeladen;
    ui::Antwort antwort;
    std::string frage;
    bool geladen;
    std::string meldung;
  };
  const Fall faelle[] = {
      {unbekannt, true, ui::Antwort::Nein, unbekanntFrage, false, ""},
      {unbekannt, true, ui::Antwort::Ja, unbekanntFrage, true, ""},
      {unbekannt, false, ui::Antwort::Ja, unbekanntFrage, false, "Laden Sie vorher einen Stoff!"},
      {methan, true, ui::Antwort::Nein, fremdFrage, false, ""},
      {methan, true, ui::Antwort::Ja, fremdFrage, true, ""},
  };
  for (const Fall& f : faelle) {
    s = test::MitWasser();
    if (!f.stoffGeladen) s.Datenbank.StoffIndex = 0;
    test::SetzeZeilen(s, {Satz(280, 1)});
    ui = ui::SkriptOberflaeche();
    ui.antworten = {f.antwort};
    EXPECT_EQ(LadeBatchDatei(s, ui, f.pfad), f.geladen) << f.pfad;
    ASSERT_GE(ui.protokoll.size(), 1u);
    EXPECT_EQ(ui.protokoll[0].text, f.frage);
    EXPECT_EQ(ui.protokoll[0].titel, "WARNUNG");
    ASSERT_EQ(ui.Meldungen().size(), f.meldung.empty() ? 0u : 1u);
    if (!f.meldung.empty()) {
      EXPECT_EQ(ui.Meldungen()[0].text, f.meldung);
      EXPECT_EQ(ui.Meldungen()[0].titel, "WARNUNG");
    }
    ASSERT_EQ(s.Mess.ExpAnzahl, 1);
    EXPECT_EQ(s.Mess.ExpDaten[1].T, f.geladen ? 300 : 280);
  }
}

// Appending keeps the rows held and puts the file's behind them; the file's comment replaces the
// one held, and another substance is asked about as in a load.
TEST_F(BatchDatei, AnfuegenBehaeltDieZeilenUndUeberschreibtDenKommentar) {
  ExpDatenSatz aus = Satz(290, 2);
  aus.Inaktiv = true;
  test::SetzeZeilen(s, {Satz(280, 1), aus});
  s.Mess.BatchKommentar = "alt";
  const std::string pfad = ordner.Schreibe(
      "neu.BAQ", BaqText("Methan;74-82-8", 2,
                         {"150", "1000", "0", "0", "0", "0", "160", "1500", "0", "0", "0", "0"}, "neu"));
  ASSERT_TRUE(LadeBatchDatei(s, ui, pfad, true));
  EXPECT_EQ(ui.protokoll.size(), 1u); // the question for the foreign substance, answered yes
  ASSERT_EQ(s.Mess.ExpAnzahl, 4);
  ASSERT_EQ(s.Mess.ExpDaten.size(), 5u);
  EXPECT_EQ(s.Mess.ExpDaten[1].T, 280);
  EXPECT_TRUE(s.Mess.ExpDaten[2].Inaktiv);
  EXPECT_EQ(s.Mess.ExpDaten[3].T, 150);
  EXPECT_EQ(s.Mess.ExpDaten[4].p, 1500);
  EXPECT_EQ(s.Mess.BatchKommentar, "neu");
}

// Files the reader refuses: the message names the cause and the file, and the data held before are
// gone, in an append too. A file without rows has no row length. An empty path just returns.
TEST_F(BatchDatei, EineUnlesbareDateiMeldetDenGrundUndLeertDieDaten) {
  struct Fall {
    std::string name, text, grund;
  };
  const Fall faelle[] = {
      {"null.BAQ", BaqText(WasserZeile, 0, {}), "Division durch Null"},
      {"null_mit_werten.BAQ", BaqText(WasserZeile, 0, {"300", "1"}), "Division durch Null"},
      {"kurz.BAQ", "12.05.2024\r\nnur zwei Zeilen\r\n", "Einlesen hinter Dateiende"},
      {"abc.BAQ", BaqText(WasserZeile, 1, {"300", "3.5", "abc", "996", "0", "0"}), "Typen unverträglich"},
      {"bricht_ab.BAQ", BaqText(WasserZeile, 2, {"300", "3.5", "0", "996", "0", "0", "350"}),
       "Einlesen hinter Dateiende"},
      {"fehlt.BAQ", "", "Datei nicht gefunden"},
  };
  for (const Fall& f : faelle) {
    const std::string pfad = f.text.empty() ? ordner.Datei(f.name) : ordner.Schreibe(f.name, f.text);
    for (bool anfuegen : {false, true}) {
      test::SetzeZeilen(s, {Satz(280, 1), Satz(290, 2)});
      ui = ui::SkriptOberflaeche();
      EXPECT_FALSE(LadeBatchDatei(s, ui, pfad, anfuegen)) << f.name;
      ASSERT_EQ(ui.Meldungen().size(), 1u) << f.name;
      const ui::Aufzeichnung m = ui.Meldungen()[0];
      EXPECT_EQ(m.text, f.grund + ":\r\n" + pfad + " (exper. data)");
      EXPECT_EQ(m.titel, "Message from Sub LadeBatchFile");
      EXPECT_EQ(m.symbol, ui::Symbol::Kritisch);
      EXPECT_EQ(s.Mess.ExpAnzahl, 0) << f.name;
      EXPECT_EQ(s.Mess.ExpDaten.size(), 1u) << f.name;
    }
  }

  ui = ui::SkriptOberflaeche();
  test::SetzeZeilen(s, {Satz(280, 1)});
  EXPECT_FALSE(LadeBatchDatei(s, ui, ""));
  EXPECT_TRUE(ui.protokoll.empty());
  EXPECT_EQ(s.Mess.ExpAnzahl, 1);
}

// The save command: its dialog, the question before an existing file (No writes nothing), the flag
// cleared after writing; a file that cannot be written is told and the flag stays.
TEST_F(BatchDatei, SpeichernFragtVorDemUeberschreibenUndMeldetEinenFehlschlag) {
  test::SetzeZeilen(s, {Satz(300, 3.5)});
  s.Mess.BatchGeaendert = true;
  const std::string pfad = ordner.Schreibe("da.BAQ", "alt");
  ui.dateien = {pfad, pfad};
  ui.antworten = {ui::Antwort::Nein};
  EXPECT_FALSE(BatchSpeichernUnter(s, ui));
  EXPECT_EQ(test::LeseDatei(pfad), "alt");
  EXPECT_TRUE(s.Mess.BatchGeaendert);
  ASSERT_EQ(ui.dateiDialoge.size(), 1u);
  EXPECT_EQ(ui.dateiDialoge[0].titel, "experimentelle Daten speichern als Textdatei *.BAQ");
  EXPECT_EQ(ui.dateiDialoge[0].filter, "systemeigene BAQ-Datei (*.BAQ)|*.BAQ");
  EXPECT_EQ(ui.dateiDialoge[0].standardEndung, ".BAQ");
  EXPECT_EQ(ui.Letzte().text, "Eine solche Datei ist bereits vorhanden.\r\nÜberschreiben?");
  EXPECT_EQ(ui.Letzte().titel, "WARNUNG");

  EXPECT_FALSE(BatchSpeichernUnter(s, ui)); // the question's default button is No
  EXPECT_EQ(test::LeseDatei(pfad), "alt");
  ui.antworten = {ui::Antwort::Ja};
  ui.dateien = {pfad};
  EXPECT_TRUE(BatchSpeichernUnter(s, ui));
  EXPECT_NE(test::LeseDatei(pfad), "alt");
  EXPECT_FALSE(s.Mess.BatchGeaendert);
  EXPECT_EQ(s.Mess.BatchDateiTitel, "da.BAQ");

  s.Mess.BatchGeaendert = true;
  const std::string unmoeglich = ordner.Datei("fehlt/x.BAQ");
  ui.dateien = {unmoeglich};
  EXPECT_FALSE(BatchSpeichernUnter(s, ui));
  EXPECT_EQ(ui.Letzte().text, "Die Datei " + unmoeglich +
                                  "\r\nkann nicht geschrieben werden.\r\nDie Daten sind nicht gespeichert.");
  EXPECT_TRUE(s.Mess.BatchGeaendert);
  EXPECT_EQ(s.Mess.ExpAnzahl, 1);
}

} // namespace
} // namespace quor
