// Writing a record back: what the program holds is overwritten, every other byte survives, and the
// one-substance database opens like any other.
#include "core/datei_io.h"
#include "rohdatei.h"
#include "substance/datenbank.h"
#include "substance/datenbank_schreiben.h"
#include "substance/stoff_laden.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quor {
namespace {

using test::RohDatei;
using test::RohSatz;
using test::TempOrdner;

// Every cell distinct, reserved texts filled, a German name with an umlaut (0xE4 in Windows-1252).
RohSatz Alt(int typ) {
  RohSatz r(typ);
  r.Formel("C6H5Cl").Deutsch("Chlorbenzol").Englisch("Chlorobenzene").CAS("108-90-7").Nummer(99);
  if (typ == 7) r.Struktur("C6H5-Cl");
  const int reserve = r.Layout().cas + 12;
  r.Bytes(reserve, std::string(82, 'R'));
  for (int i = 0; i < 141; ++i)
    r.Zelle(i, 1000.f + i);
  r.Zelle(71, 2000.f);                     // sinh/cosh C2, positive so that loading leaves it
  r.Zelle(10, 404.87f).Zelle(108, 405.5f); // the second Watson point is in use
  return r;
}

ProjectState Geladen(int typ, const RohSatz& r) {
  ProjectState s;
  int16_t failed = 0;
  bool leer = false;
  LadeDatenbankAusBytes(s, typ, "ALT", RohDatei(typ, 3, {RohSatz(typ), r, RohSatz(typ)}), failed, leer);
  s.Datenbank.StoffIndex = 2;
  LadeStoff(s, 2, failed);
  return s;
}

// Cells the program doesn't hold: group heads, kept and unused cells, sBildung, pTripel, the
// second Watson point.
const int Unberuehrt[] = {1,  2,  3,  4,  5,  11, 12, 23,  35,  41,  47,  60,  68,  76, 84,
                          86, 88, 89, 90, 92, 94, 95, 107, 108, 109, 117, 124, 130, 140};

TEST(DatenbankSchreiben, OneSubstanceFileKeepsWhatTheProgramDoesNotHold) {
  for (int typ : {7, 6}) {
    SCOPED_TRACE(typ);
    TempOrdner dir;
    const RohSatz alt = Alt(typ);
    ProjectState s = Geladen(typ, alt);
    s.Datenbank.ProgrammVerzeichnis = dir.Pfad();
    s.Stoff.StoffName = "  Chlorbenzol, geändert ";
    s.Stoff.TKrit = 632.35;
    s.Stoff.sBildung = 1.f; // changes the project state only
    s.Stoff.pTripel = 2.f;
    s.Stoff.RhoLGrenzen.THi = 555;
    ASSERT_TRUE(SchreibeEinzelstoffDatenbank(s, "PRIVAT.Q0x"));
    EXPECT_FALSE(SchreibeEinzelstoffDatenbank(s, dir.Pfad() + "/fehlt/PRIVAT.Q0x")); // no such folder

    std::string datei;
    ASSERT_TRUE(LeseDateiBytes(dir.Pfad() + "/PRIVAT.Q0x", datei));
    const int laenge = alt.Layout().laenge;
    ASSERT_EQ(datei.size(), 2u * laenge); // header and one record
    RohSatz neu(typ);
    neu.Bytes(0, datei.substr(laenge));
    for (int i : Unberuehrt)
      EXPECT_EQ(neu.ZelleLesen(i), alt.ZelleLesen(i)) << "cell " << i;
    EXPECT_EQ(neu.ZelleLesen(22), 555.f);
    EXPECT_EQ(neu.ZelleLesen(105), 1107.f); // the Watson point in use goes to the first pair
    const test::RohLayout& l = alt.Layout();
    EXPECT_EQ(datei.substr(laenge + l.cas + 12, 82), std::string(82, 'R'));
    EXPECT_EQ(datei.substr(laenge + l.deutsch, 21), "Chlorbenzol, ge\xE4ndert");
    EXPECT_EQ(datei[laenge + l.nummer], 1); // numbered 1

    // ... and it opens like any other database.
    ProjectState t;
    t.Datenbank.ProgrammVerzeichnis = dir.Pfad();
    int16_t failed = 0;
    bool leer = false;
    LadeDatenbank(t, typ, "PRIVAT.Q0x", failed, leer);
    ASSERT_EQ(failed, 0);
    ASSERT_EQ(t.Datenbank.StoffAnzahl, 1);
    LadeStoff(t, 1, failed);
    EXPECT_EQ(t.Stoff.StoffName, "Chlorbenzol, geändert");
    EXPECT_DOUBLE_EQ(t.Stoff.TKrit, 632.35);
    EXPECT_EQ(std::tie(t.Stoff.Struktur, t.Stoff.CpSinh, t.Stoff.HLV),
              std::tie(s.Stoff.Struktur, s.Stoff.CpSinh, s.Stoff.HLV));
  }
}

} // namespace
} // namespace quor
