// The exchange with the parameter program: its input file, its start, the failures, the real run.
#include "core/datei_io.h"
#include "engine/eos_parameter.h"
#include "engine/varnik_ji.h"
#include "stoffe.h"
#include "support/cubpar_lauf.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <locale>
#include <sstream>
#include <tuple>
#include <vector>

namespace quor {
namespace {

using namespace quor::test;

const char* const NichtMoeglich = "Ausführung nicht möglich";
const char* const SetupFehler = "Fehler bei der EOS-Parameterberechnung (Varnik-Ji-Modell)";

std::string Golden(const std::string& tag) {
  std::string bytes;
  EXPECT_TRUE(LeseDateiBytes(std::string(QUOR_TESTDATEN) + "/ji/jipar_" + tag + ".tmp", bytes)) << tag;
  return bytes;
}

// Runs the set-up of `s` with a child that only records what it finds in the program directory.
struct Mitschnitt {
  std::string jipar;          // jipar.tmp as the child sees it
  bool altesErgebnis = false; // a parameter file of the model is there when the child starts
  std::vector<ui::ProzessAuftrag> auftraege;
};

// `schreibt`: what the child leaves as parameter file (nullptr: nothing).
Mitschnitt SetupMitAttrappe(ProjectState& s, ui::SkriptOberflaeche& ui, int16_t& err,
                            const char* schreibt = nullptr) {
  Mitschnitt m;
  const std::string ergebnis = JiPfad(s, JiParameterDateiName(s.Modell.EOSIndex));
  ui.prozessAusfuehren = [&](const ui::ProzessAuftrag& a) {
    m.auftraege.push_back(a);
    LeseDateiBytes(a.arbeitsVerzeichnis + "/jipar.tmp", m.jipar);
    m.altesErgebnis = DateiExistiert(ergebnis);
    if (schreibt != nullptr) SchreibeDateiBytes(ergebnis, schreibt);
    ui::ProzessStatus st;
    st.ergebnis = ui::ProzessErgebnis::Beendet;
    st.exitCode = 0;
    return st;
  };
  EOSParameterSetup(s, ui, s.Modell.EOSIndex, err);
  return m;
}

// The golden files were checked line by line against the layout of the input file.
const char* const AlleTags[] = {"ALP", "AHP", "FRO", "WAG", "AUG", "KFW", "KFR", "THO", "000"};

// The set-up writes the file that the program finds; model II differs in the model code only.
TEST(JiParDatei, MatchesTheGoldenFileForEveryTag) {
  TempOrdner dir;
  for (const char* tag : AlleTags) {
    ProjectState s = MethanFuerJi(7, tag, dir.Pfad());
    ui::SkriptOberflaeche ui;
    int16_t err = 0;
    EXPECT_EQ(SetupMitAttrappe(s, ui, err).jipar, Golden(tag)) << tag;
  }
  std::string erwartet = Golden("FRO");
  EXPECT_EQ(JiParDateiBytes(MethanFuerJi(8, "FRO", dir.Pfad())), erwartet.replace(0, 2, "11"));
}

// The numbers keep their decimal point under a decimal-comma locale (C++ facet, German C locale).
struct KommaPunkt : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
};

TEST(JiParDatei, KeepsTheDecimalPointUnderACommaLocale) {
  const std::locale vorher = std::locale::global(std::locale(std::locale::classic(), new KommaPunkt));
  const std::string cVorher = std::setlocale(LC_ALL, nullptr);
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "de_DE@euro", "German"})
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  for (const char* tag : {"FRO", "WAG"}) {
    TempOrdner dir;
    ProjectState s = MethanFuerJi(7, tag, dir.Pfad());
    s.Optionen.DezimalKomma = true;
    ui::SkriptOberflaeche ui;
    int16_t err = 0;
    EXPECT_EQ(SetupMitAttrappe(s, ui, err).jipar, Golden(tag)) << tag;
  }
  std::setlocale(LC_ALL, cVorher.c_str());
  std::locale::global(vorher);
}

// A readable old result is deleted before the start, so a program that writes nothing ends in the
// failure; the program starts from the program directory, hidden, without arguments, for 100 s.
TEST(JiSetup, OldParameterFileIsGoneBeforeTheStart) {
  for (int16_t modell : {7, 8}) {
    TempOrdner dir;
    ProjectState s = MethanFuerJi(modell, "FRO", dir.Pfad());
    const std::string alt = dir.Datei(JiParameterDateiName(modell));
    ASSERT_TRUE(SchreibeDateiBytes(alt, "50\r\n0.01\r\n0.7\r\n0.1\r\n0.05\r\n0.29\r\n0.2\r\n"));
    ui::SkriptOberflaeche ui;
    int16_t err = 0;
    const Mitschnitt m = SetupMitAttrappe(s, ui, err);
    EXPECT_FALSE(m.altesErgebnis) << modell;
    ASSERT_EQ(m.auftraege.size(), 1u);
    const ui::ProzessAuftrag& a = m.auftraege[0];
    EXPECT_EQ(std::tie(a.programm, a.arbeitsVerzeichnis, a.versteckt, a.wartenMs),
              std::make_tuple(dir.Datei("cubpar"), dir.Pfad(), true, 100000));
    EXPECT_TRUE(a.argumente.empty());
    EXPECT_GT(err, 0);
    EXPECT_EQ(ui.Meldungen().size(), 2u); // as without the program, below
  }
}

// A program directory without cubpar: the start fails and the set-up ends in both messages.
TEST(JiSetup, MissingProgramEndsInBothMessages) {
  TempOrdner dir;
  ProjectState s = MethanFuerJi(7, "FRO", dir.Pfad());
  ui::SkriptOberflaeche ui = EchteProzesse();
  int16_t err = 0;
  EOSParameterSetup(s, ui, 7, err);
  EXPECT_GT(err, 0);
  EXPECT_EQ(s.EOS.vKritEOS, 0.0);
  const auto m = ui.Meldungen();
  ASSERT_EQ(m.size(), 2u);
  EXPECT_EQ(std::tie(m[0].text, m[0].titel), std::make_tuple("Kein Parameterfile erzeugt.", NichtMoeglich));
  EXPECT_EQ(std::tie(m[1].text, m[1].titel), std::tie(SetupFehler, NichtMoeglich));
  EXPECT_TRUE(DateiExistiert(dir.Datei("jipar.tmp")));
}

// Parameter files that cannot be read: the reading routine names itself and the reason, then the
// set-up adds its own message; JiParameter keeps what it held.
TEST(JiSetup, UnreadableParameterFileEndsInItsMessages) {
  struct Fall {
    int16_t modell;
    const char* inhalt;
    const char* grund;
  };
  const Fall faelle[] = {
      {7, "50\r\n0.01\r\n0.7\r\n", "Einlesen hinter Dateiende"},
      {7, "50, 0.01, 0.7, 0.1, Zc\r\n0.29\r\n", "Typen unverträglich"},
      // Model II needs JiB2 behind the five values of model I.
      {8, "50\r\n0.01\r\n0.7\r\n0.1\r\n0.05\r\n0.29\r\n", "Einlesen hinter Dateiende"},
  };
  for (const Fall& f : faelle) {
    TempOrdner dir;
    ProjectState s = MethanFuerJi(f.modell, "FRO", dir.Pfad());
    s.EOS.JiParameter[JiM] = 0.123;
    ui::SkriptOberflaeche ui;
    int16_t err = 0;
    SetupMitAttrappe(s, ui, err, f.inhalt);
    EXPECT_GT(err, 0) << f.inhalt;
    EXPECT_EQ(s.EOS.JiParameter[JiM], 0.123);
    ASSERT_EQ(ui.Meldungen().size(), 2u) << f.inhalt;
    EXPECT_EQ(ui.Meldungen()[0].text, std::string("Meldung von Sub Daten_Ji\r\n") + f.grund) << f.inhalt;
    EXPECT_EQ(ui.Letzte().text, SetupFehler);
  }
}

// The numbers of a parameter file, read here with the C library, independently of the program.
std::vector<double> Zahlen(const std::string& datei) {
  std::string bytes;
  LeseDateiBytes(datei, bytes);
  for (char& c : bytes)
    if (c == ',') c = ' ';
  std::istringstream ein(bytes);
  std::vector<double> z;
  std::string wort;
  while (ein >> wort)
    z.push_back(std::strtod(wort.c_str(), nullptr));
  return z;
}

// The fitted parameters reach JiParameter unchanged, and a calculation with them works from end to
// end: single-phase states on both sides of the saturation line and T -> p(LV) -> T.
TEST(Cubpar, ItsParameterFileIsReadBackAndTheModelCalculates) {
  TempOrdner dir;
  StelleCubparBereit(dir.Pfad());
  ProjectState s = MethanFuerJi(8, "FRO", dir.Pfad());
  ui::SkriptOberflaeche ui = EchteProzesse();
  int16_t err = 0;
  EOSParameterSetup(s, ui, 8, err);
  ASSERT_EQ(err, 0);
  EXPECT_TRUE(ui.Meldungen().empty());
  // Count, unused, JiM, JiN, JiP, JiZc, JiB2; 25 vapour pressures and 25 liquid densities of methane.
  const std::vector<double> z = Zahlen(dir.Datei(JiParameterDateiName(8)));
  ASSERT_EQ(z.size(), 7u);
  EXPECT_EQ(z[0], 50);
  const auto& J = s.EOS.JiParameter;
  EXPECT_EQ(std::tie(J[JiM], J[JiN], J[JiP], J[JiZc], J[JiB2]), std::tie(z[2], z[3], z[4], z[5], z[6]));
  // The set-up turned JiZc into the critical volume.
  EXPECT_REL(s.EOS.vKritEOS, J[JiZc] * RGas * 190.56 / 4599, 1e-14);

  const double T = 140;
  const double p = Saettigungsdruck(s, T, err);
  ASSERT_EQ(err, 0);
  const Loesung fluessig = Loese(s, T, 2 * p), dampf = Loese(s, T, 0.5 * p);
  EXPECT_TRUE(fluessig.istL && !fluessig.istV);
  EXPECT_TRUE(dampf.istV && !dampf.istL);
  EXPECT_REL(Saettigungstemperatur(s, p, err), T, 1e-4);
  EXPECT_EQ(err, 0);
}

// With no vapour-pressure data at all (no tag and an empty Antoine block) the program has nothing
// to fit and writes nothing; an input it cannot read ends it the same way.
TEST(Cubpar, WritesNothingWhenItHasNothingToFit) {
  TempOrdner dir;
  StelleCubparBereit(dir.Pfad());
  ProjectState s = MethanFuerJi(7, "000", dir.Pfad());
  s.Stoff.AntoineNd = {0, 0, 0};
  s.Stoff.AntoineNdGrenzen = {0, 0};
  // Exit code 1: nothing to fit; 2: an input it cannot read.
  const std::pair<std::string, int> faelle[] = {{JiParDateiBytes(s), 1},
                                                {"10\r\n\"74-82-8     \"\r\n0,2\r\n", 2},
                                                {"Unsinn", 2},
                                                {"12\r\n\"x\"\r\n0,0\r\n1,1,1,1,1,1\r\n", 2}};
  for (const auto& [eingabe, code] : faelle) {
    ASSERT_TRUE(SchreibeDateiBytes(dir.Datei("jipar.tmp"), eingabe));
    ui::ProzessAuftrag a;
    a.programm = dir.Datei("cubpar");
    a.arbeitsVerzeichnis = dir.Pfad();
    const ui::ProzessStatus st = StarteEcht(a);
    EXPECT_EQ(std::tie(st.ergebnis, st.exitCode), std::make_tuple(ui::ProzessErgebnis::Beendet, code))
        << eingabe;
    EXPECT_FALSE(DateiExistiert(dir.Datei("PARAM_JI.DAT"))) << eingabe;
  }
}

} // namespace
} // namespace quor
