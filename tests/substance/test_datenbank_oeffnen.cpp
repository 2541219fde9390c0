// Opening database files: the lists, the kinds, and every broken file ending in the user's message
// with the earlier state kept.
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "rohdatei.h"
#include "substance/datenbank.h"
#include "substance/stoff_laden.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>

namespace quor {
namespace {

using test::RohDatei;
using test::RohSatz;
using test::TempOrdner;

RohSatz Stoff(int typ, int16_t nummer, const std::string& formel, const std::string& name,
              const std::string& cas) {
  RohSatz r(typ);
  r.Formel(formel).Deutsch(name).Englisch("E-" + name).CAS(cas).Nummer(nummer);
  r.Zelle(6, 190.56f).Zelle(7, 4599.f);
  return r;
}

// Two substances; the second has a formula of 16 characters and a name padded with NUL.
std::string ZweiStoffe(int typ) {
  RohSatz b = Stoff(typ, 17, "C2H6O2CLxyzABCDE", std::string("Glykol;Ethylenglykol") + std::string(5, '\0'),
                    "107-21-1");
  return RohDatei(typ, 2, {Stoff(typ, 1, "CH4", "  Methan", "74-82-8"), b});
}

TEST(DatenbankOeffnen, BuildsTheFourListsFromEveryRecordOfBothKinds) {
  for (int typ : {7, 6}) {
    SCOPED_TRACE(typ);
    TempOrdner dir;
    ProjectState s;
    int16_t failed = 0;
    bool leer = true;
    const std::string pfad = dir.Schreibe("A.Q0x", ZweiStoffe(typ));
    LadeDatenbank(s, typ, pfad, failed, leer);
    ASSERT_EQ(failed, 0);
    EXPECT_FALSE(leer);
    const DatenbankGruppe& db = s.Datenbank;
    EXPECT_TRUE(db.DatenbankGeladen);
    EXPECT_EQ(std::tie(db.DatenbankTyp, db.PfadQ07, db.PfadQ06),
              std::make_tuple(typ, typ == 7 ? pfad : "", typ == 6 ? pfad : ""));
    ASSERT_EQ(db.NamenListe.size(), 3u); // indexed from 1
    // Formula cut to 12 of 16 characters, names trimmed on both sides and at the NUL padding.
    EXPECT_EQ(std::tie(db.MDBNummern[2], db.FormelListe[2], db.NamenListe[2], db.CASListe[2]),
              std::make_tuple(17, "C2H6O2CLxyzA", "Glykol;Ethylenglykol", "107-21-1"));
    EXPECT_EQ(db.NamenListe[1], "Methan");
  }
}

TEST(DatenbankOeffnen, EnglishInterfaceTakesTheEnglishNames) {
  ProjectState s;
  s.Datenbank.EnglischeOberflaeche = true;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbankAusBytes(s, 7, "A.Q07", ZweiStoffe(7), failed, leer);
  ASSERT_EQ(failed, 0);
  EXPECT_EQ(s.Datenbank.NamenListe[1], "E-  Methan");
  LadeStoff(s, 2, failed);
  EXPECT_EQ(s.Stoff.StoffName, "E-Glykol");
}

TEST(DatenbankOeffnen, CountZeroIsAnEmptyDatabaseNotABrokenOne) {
  ProjectState s;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbankAusBytes(s, 7, "LEER.Q07", RohDatei(7, 0, {}), failed, leer);
  EXPECT_EQ(std::tie(failed, leer, s.Datenbank.DatenbankGeladen), std::make_tuple(0, true, false));
}

// Each broken file: its bytes, or none at all.
struct KaputteDatei {
  const char* name;
  std::string bytes;
  bool fehlt = false;
};

std::vector<KaputteDatei> KaputteDateien() {
  const std::string gut = ZweiStoffe(7);
  return {
      {"leere Datei", ""},
      {"Kopf abgeschnitten", gut.substr(0, 385)},
      {"Anzahl groesser als die Datei", RohDatei(7, 5, {Stoff(7, 1, "CH4", "Methan", "74-82-8")})},
      {"letzter Satz abgeschnitten", gut.substr(0, gut.size() - 1)},
      {"negative Anzahl", RohDatei(7, -3, {})},
      {"Anzahl 0", RohDatei(7, 0, {})},
      {"fehlende Datei", "", true},
  };
}

// A broken file ends in the error when nothing is loaded and in the warning when a database is held,
// which stays in use.
TEST(DatenbankOeffnen, BrokenFilesFailAndKeepTheEarlierDatabase) {
  TempOrdner dir;
  const std::string gut = dir.Schreibe("GUT.Q07", ZweiStoffe(7));
  for (const KaputteDatei& k : KaputteDateien()) {
    SCOPED_TRACE(k.name);
    const std::string pfad = k.fehlt ? dir.Datei("FEHLT.Q07") : dir.Schreibe("K.Q07", k.bytes);
    ProjectState s;
    ui::SkriptOberflaeche ui;
    EXPECT_FALSE(DatenbankOeffnen(s, 7, pfad, ui));
    ASSERT_EQ(ui.Meldungen().size(), 1u);
    const auto fehler = ui.Letzte();
    EXPECT_EQ(std::tie(fehler.text, fehler.titel, fehler.symbol),
              std::make_tuple("Datenbank " + pfad + " nicht gefunden bzw. leer", "Ausführung nicht möglich",
                              ui::Symbol::Kritisch));
    EXPECT_EQ(std::tie(s.Datenbank.DatenbankGeladen, s.Datenbank.StoffAnzahl), std::make_tuple(false, 0));

    ASSERT_TRUE(DatenbankOeffnen(s, 7, gut, ui));
    EXPECT_FALSE(DatenbankOeffnen(s, 7, pfad, ui));
    const auto warnung = ui.Letzte();
    EXPECT_EQ(std::tie(warnung.text, warnung.titel, warnung.symbol),
              std::make_tuple("Datenbank " + pfad +
                                  " im QUOR-Verzeichnis nicht gefunden bzw. leer.\r\n"
                                  "Bereits geladene Datenbank wird weiter verwendet.",
                              "Warnung", ui::Symbol::Ausruf));
    int16_t failed = 0;
    LadeStoff(s, 2, failed);
    EXPECT_EQ(std::tie(s.Datenbank.PfadQ07, s.Stoff.StoffName), std::make_tuple(gut, "Glykol"));
  }
}

TEST(DatenbankOeffnen, GarbageTextBytesBecomeCharactersAndNothingBreaks) {
  std::string alleBytes;
  for (int b = 1; b < 256; ++b)
    alleBytes += static_cast<char>(b);
  RohSatz r(7);
  r.Formel(alleBytes.substr(120, 16))
      .Deutsch(alleBytes.substr(128, 107))
      .CAS(alleBytes.substr(0, 12))
      .Nummer(3);
  r.Struktur(alleBytes.substr(20, 107));
  for (int i = 0; i < 141; ++i)
    r.Zelle(i, i % 2 ? std::numeric_limits<float>::quiet_NaN() : -1e38f);
  ProjectState s;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbankAusBytes(s, 7, "X.Q07", RohDatei(7, 1, {r}), failed, leer);
  ASSERT_EQ(failed, 0);
  EXPECT_TRUE(IstUtf8(s.Datenbank.NamenListe[1]));
  // 0x81 is undefined in Windows-1252 and stands for itself; 0x82 is the low quotation mark.
  EXPECT_EQ(s.Datenbank.NamenListe[1].substr(0, 5), "\xC2\x81\xE2\x80\x9A");
  LadeStoff(s, 1, failed);
  EXPECT_EQ(failed, -1); // no critical temperature or pressure
  EXPECT_TRUE(IstUtf8(s.Stoff.Struktur));
  EXPECT_EQ(s.Stoff.omega, 0.0);                // NaN counts as empty
  EXPECT_EQ(s.Stoff.CpPolyGrenzen.TLo, -32768); // a limit beyond 16 bits is held at its end
  for (double x : {double(s.Stoff.AugustB), double(s.Stoff.DeltaFs), s.Stoff.vKritExp})
    EXPECT_TRUE(std::isfinite(x));
}

TEST(DatenbankOeffnen, FileDialogOffersTheKindAndCancelLoadsNothing) {
  TempOrdner dir;
  ProjectState s;
  ui::SkriptOberflaeche ui;
  bool cancelled = false;
  WaehleDatenbank(s, 6, cancelled, ui);
  EXPECT_TRUE(cancelled);
  ASSERT_EQ(ui.dateiDialoge.size(), 1u);
  EXPECT_EQ(ui.dateiDialoge[0].filter, "Datenbank (*.Q06|*.Q06");
  EXPECT_EQ(ui.dateiDialoge[0].titel.rfind("Datenbank *.Q06 laden (", 0), 0u);
  ui.dateien.push_back(dir.Schreibe("B.Q07", ZweiStoffe(7)));
  WaehleDatenbank(s, 7, cancelled, ui);
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(s.Datenbank.StoffAnzahl, 2);
}

} // namespace
} // namespace quor
