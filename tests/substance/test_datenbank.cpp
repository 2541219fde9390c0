// Database files: the lists of both kinds, every broken file ending in the user's message with the
// earlier state kept, one substance loaded with every cell where it belongs and the values derived
// on load, and a record written back with every byte the program does not hold kept.
#include "core/datei_io.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/datenbank.h"
#include "substance/datenbank_schreiben.h"
#include "substance/stoff_laden.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace quor {
namespace {

using test::TempOrdner;

// Records put together byte by byte from the layout, independent of the program's own record class.
// Offsets of one kind: formula, structure (none in .Q06), English and German name, CAS number, the
// i16 and the first cell.
struct RohLayout {
  int laenge, formel, struktur, englisch, deutsch, cas, nummer, zellen;
};

constexpr RohLayout RohQ07{950, 0, 16, 123, 183, 290, 384, 386};
constexpr RohLayout RohQ06{776, 0, 0, 16, 66, 116, 210, 212};

class RohSatz {
public:
  explicit RohSatz(int typ = 7) : l_(typ == 6 ? RohQ06 : RohQ07), bytes_(l_.laenge, ' ') {
    for (int i = l_.nummer; i < l_.laenge; ++i)
      bytes_[i] = 0;
  }
  // Raw bytes (Windows-1252) at a position, nothing padded.
  RohSatz& Bytes(int offset, const std::string& b) {
    bytes_.replace(offset, b.size(), b);
    return *this;
  }
  RohSatz& Formel(const std::string& b) { return Bytes(l_.formel, b); }
  RohSatz& Struktur(const std::string& b) { return Bytes(l_.struktur, b); }
  RohSatz& Englisch(const std::string& b) { return Bytes(l_.englisch, b); }
  RohSatz& Deutsch(const std::string& b) { return Bytes(l_.deutsch, b); }
  RohSatz& CAS(const std::string& b) { return Bytes(l_.cas, b); }
  RohSatz& Nummer(int16_t n) {
    bytes_[l_.nummer] = static_cast<char>(n & 0xFF);
    bytes_[l_.nummer + 1] = static_cast<char>((static_cast<uint16_t>(n) >> 8) & 0xFF);
    return *this;
  }
  RohSatz& Zelle(int i, float x) {
    uint32_t u;
    std::memcpy(&u, &x, 4);
    for (int k = 0; k < 4; ++k)
      bytes_[l_.zellen + 4 * i + k] = static_cast<char>((u >> (8 * k)) & 0xFF);
    return *this;
  }
  float ZelleLesen(int i) const {
    uint32_t u = 0;
    for (int k = 3; k >= 0; --k)
      u = (u << 8) | static_cast<uint8_t>(bytes_[l_.zellen + 4 * i + k]);
    float x;
    std::memcpy(&x, &u, 4);
    return x;
  }
  const std::string& Roh() const { return bytes_; }
  const RohLayout& Layout() const { return l_; }

private:
  RohLayout l_;
  std::string bytes_;
};

// Header with a date and a count, then the records.
inline std::string RohDatei(int typ, int16_t anzahl, const std::vector<RohSatz>& saetze) {
  RohSatz kopf(typ);
  kopf.Formel("01.02.2003").Nummer(anzahl);
  std::string d = kopf.Roh();
  for (const RohSatz& s : saetze)
    d += s.Roh();
  return d;
}

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
    const DatenbankGruppe& db = s.Datenbank;
    EXPECT_EQ(std::tie(failed, leer, db.DatenbankGeladen), std::make_tuple(0, false, true));
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
      {"Anzahl groesser als die Datei ohne vollstaendigen Satz", RohDatei(7, 5, {}) + std::string(900, ' ')},
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

// A count above the records held, or a last record cut short: the complete records are opened, and
// the user is told how many the header promised.
TEST(DatenbankOeffnen, AFileCutShortOpensItsCompleteRecords) {
  const std::string gut = ZweiStoffe(7);
  for (const auto& [name, bytes, kopf] :
       {std::tuple{"Anzahl groesser als die Datei", RohDatei(7, 5, {Stoff(7, 1, "CH4", "Methan", "74-82-8")}), 5},
        {"letzter Satz abgeschnitten", gut.substr(0, gut.size() - 1), 2}}) {
    SCOPED_TRACE(name);
    TempOrdner dir;
    const std::string pfad = dir.Schreibe("K.Q07", bytes);
    ProjectState s;
    ui::SkriptOberflaeche ui;
    ASSERT_TRUE(DatenbankOeffnen(s, 7, pfad, ui));
    EXPECT_EQ(std::tie(s.Datenbank.StoffAnzahl, s.Datenbank.KopfAnzahl, s.Datenbank.NamenListe[1]),
              std::make_tuple(1, kopf, "Methan"));
    ASSERT_EQ(ui.Meldungen().size(), 1u);
    EXPECT_EQ(ui.Letzte().text, "Die Datenbank " + pfad + " ist unvollständig:\r\nihr Kopfsatz nennt " +
                                    std::to_string(kopf) +
                                    " Stoffe, vollständig enthalten sind 1.\r\nDiese 1 Stoffe stehen zur Wahl.");
    int16_t failed = 0;
    LadeStoff(s, 1, failed);
    EXPECT_NE(s.Stoff.StoffName.find("Methan"), std::string::npos);
  }
}

TEST(DatenbankOeffnen, GarbageTextBytesBecomeCharactersAndNothingBreaks) {
  std::string alleBytes;
  for (int b = 1; b < 256; ++b)
    alleBytes += static_cast<char>(b);
  RohSatz r(7);
  r.Formel(alleBytes.substr(120, 16)).Deutsch(alleBytes.substr(128, 107)).CAS(alleBytes.substr(0, 12));
  r.Struktur(alleBytes.substr(20, 107)).Nummer(3);
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

// A substance of water's size with every block filled and distinct values in every cell.
RohSatz Vollstaendig() {
  RohSatz r(7);
  r.Formel("H2O  D").Deutsch("Wasser; destilliert").Englisch("Water").CAS("7732-18-5").Nummer(12);
  r.Struktur("H-O-H");
  for (int i = 0; i < 141; ++i)
    r.Zelle(i, 1000.f + i); // every cell distinct
  r.Zelle(0, 18.01528f).Zelle(6, 647.096049f).Zelle(7, 22064.06f).Zelle(8, 322.f).Zelle(9, 0.3443f);
  r.Zelle(10, 373.15f).Zelle(85, -241818.f).Zelle(87, -228572.f).Zelle(89, 188.84f);
  r.Zelle(91, 273.16f).Zelle(92, 0.6117f).Zelle(93, 273.15f);
  r.Zelle(21, 273.5f).Zelle(22, 274.5f);
  r.Zelle(33, 273.f).Zelle(34, 647.f).Zelle(39, 274.f).Zelle(40, 373.f).Zelle(45, 373.f).Zelle(46, 600.f);
  r.Zelle(58, 275.f).Zelle(59, 646.f).Zelle(66, 100.f).Zelle(67, 1500.f).Zelle(74, 100.f).Zelle(75, 2000.f);
  r.Zelle(69, 33.3f).Zelle(71, -2610.5f);
  r.Zelle(77, 276.f).Zelle(78, -2.09f).Zelle(82, 273.f).Zelle(83, 533.f);
  r.Zelle(110, 0.f).Zelle(111, 0.f).Zelle(115, 0.f).Zelle(116, 0.f); // no solid cp
  r.Zelle(105, 40650.f).Zelle(106, 373.15f).Zelle(107, 41000.f).Zelle(108, 375.f);
  return r;
}

ProjectState Geladen(const RohSatz& r, int16_t& failed) {
  ProjectState s;
  bool leer = false;
  LadeDatenbankAusBytes(s, 7, "T.Q07", RohDatei(7, 1, {r}), failed, leer);
  EXPECT_EQ(failed, 0);
  LadeStoff(s, 1, failed);
  return s;
}

TEST(StoffLaden, CellsGoToTheirFieldsWithTheDerivedValues) {
  int16_t failed = -1;
  const ProjectState s = Geladen(Vollstaendig(), failed);
  EXPECT_EQ(failed, 0);
  const StoffGruppe& st = s.Stoff;
  EXPECT_EQ(std::tie(st.FormelOhneLeer, st.StoffName, st.Struktur, st.CASRN, st.MDBNr),
            std::make_tuple("H2OD", "Wasser", "H-O-H", "7732-18-5", 12)); // name cut before the ';'
  // Four decimals on molar mass and critical point, rounded by hand from the single-precision
  // cells 18.0152797..., 647.0960693..., 22064.0605468...
  EXPECT_EQ(st.MolMasse, 18.0153f);
  EXPECT_DOUBLE_EQ(st.TKrit, 647.0961);
  EXPECT_DOUBLE_EQ(st.pKrit, 22064.0605);
  EXPECT_DOUBLE_EQ(st.vKritExp, 18.0153f / 322.0);
  EXPECT_DOUBLE_EQ(st.omega, 0.3443f);
  EXPECT_FLOAT_EQ(st.DeltaFs, (-241818.f + 228572.f) / 298.15f);
  EXPECT_EQ(std::tie(st.sBildung, st.TUntereGrenze), std::make_tuple(188.84f, 273.15f));
  // One cell of each block and limit; the stored vapour-pressure blocks show at water's boiling point.
  EXPECT_EQ(std::tie(st.RhoL[0], st.RhoLTcr, st.FrostKalkwarf[8], st.CpPoly[4], st.CpL[0], st.HLV[5],
                     st.HLVTcr, st.CpS[4], st.RhoS[3]),
            std::make_tuple(1013.f, 1020.f, 1032.f, 1065.f, 276.f, 1101.f, 1102.f, 1114.f, 1121.f));
  EXPECT_EQ(std::tie(st.RhoLGrenzen.TLo, st.RhoLGrenzen.THi, st.HLVGrenzen.THi, st.RhoSGrenzen.THi),
            std::make_tuple(274, 274, 1104, 1123)); // the limits round half to even
  // August through (373.15 K, 101.325 kPa) and the critical point, computed independently:
  // B = 373.15*647.0961*ln(22064.0605/101.325)/(373.15 - 647.0961) = -4745.0577,
  // A = ln(22064.0605) - B/647.0961 = 17.334554.
  EXPECT_REL(st.AugustB, -4745.0577, 1e-7);
  EXPECT_REL(st.AugustA, 17.334554, 1e-7);
}

TEST(StoffLaden, CpFlagsAndTheSinhCoshC2) {
  int16_t failed = 0;
  const StoffGruppe voll = Geladen(Vollstaendig(), failed).Stoff;
  EXPECT_EQ(std::tie(voll.CpPolyOK, voll.CpSinhOK, voll.CpLOK, voll.CpSOK),
            std::make_tuple(true, true, true, false));
  EXPECT_EQ(voll.CpSinh[2], 2610.5f); // stored as its absolute value

  RohSatz r = Vollstaendig();
  r.Zelle(71, 0.f);                                                    // C2 missing beside a C0
  r.Zelle(110, 0.f).Zelle(111, 5.f).Zelle(115, 10.f).Zelle(116, 20.f); // solid cp from C1 alone
  r.Zelle(74, 0.f);                                                    // sinh/cosh without a range
  const StoffGruppe t = Geladen(r, failed).Stoff;
  EXPECT_EQ(std::tie(t.CpSinh[2], t.CpSinhOK, t.CpSOK), std::make_tuple(0.1f, false, true));
  r.Zelle(69, 0.f); // neither C0 nor C2: C2 stays 0
  EXPECT_EQ(Geladen(r, failed).Stoff.CpSinh[2], 0.f);
}

TEST(StoffLaden, SecondWatsonPointWinsOnlyWithinTwoKelvin) {
  // Boiling point, second Watson temperature, the enthalpy taken.
  const struct {
    float tSiede, tWatson, h;
  } faelle[] = {{373.15f, 375.f, 41000.f}, {300.f, 302.f, 40650.f}, {300.f, 298.5f, 41000.f}};
  for (const auto& f : faelle) {
    int16_t failed = 0;
    RohSatz r = Vollstaendig();
    r.Zelle(10, f.tSiede).Zelle(108, f.tWatson);
    EXPECT_EQ(Geladen(r, failed).Stoff.WatsonH, f.h) << f.tWatson;
  }
}

TEST(StoffLaden, DefaultVapourPressureTagFollowsThePreference) {
  int16_t failed = 0;
  RohSatz r = Vollstaendig();
  r.Zelle(33, -5.f); // a negative lower limit counts by its absolute value
  EXPECT_EQ(Geladen(r, failed).Modell.DampfdruckTag, "FRO");
  // Each block removed in turn hands over to the next one.
  for (const auto& [zelle, tag] : {std::pair{33, "WAG"}, {58, "ALP"}, {39, "AHP"}, {45, "AUG"}}) {
    r.Zelle(zelle, 0.f);
    EXPECT_EQ(Geladen(r, failed).Modell.DampfdruckTag, tag);
  }
  r.Zelle(7, 0.f); // no critical pressure: the August constants vanish
  const ProjectState s = Geladen(r, failed);
  EXPECT_EQ(failed, -1);
  EXPECT_EQ(s.Modell.DampfdruckTag, "<> ");
  EXPECT_EQ(s.Stoff.AugustA, 0.f);
}

TEST(StoffLaden, MissingDataFailButTheRecordIsLoaded) {
  int16_t failed = 0;
  RohSatz r = Vollstaendig();
  r.Zelle(6, 0.f).Zelle(93, 0.f);
  const ProjectState s = Geladen(r, failed);
  EXPECT_EQ(failed, -1); // no critical temperature
  EXPECT_EQ(s.Stoff.StoffName, "Wasser");
  EXPECT_EQ(s.Stoff.AugustB, 0.f);           // Tb*Tc = 0
  EXPECT_EQ(s.Stoff.TUntereGrenze, 273.16f); // an empty lower bound takes the triple point
}

TEST(StoffLaden, IndexZeroDoesNothingAndAnIndexBeyondTheListFails) {
  int16_t failed = 0;
  ProjectState s = Geladen(Vollstaendig(), failed);
  s.Stoff.StoffName = "vorher";
  LadeStoff(s, 0, failed);
  EXPECT_EQ(failed, 0);
  for (int16_t index : {2, -1}) {
    LadeStoff(s, index, failed);
    EXPECT_EQ(failed, -1) << index;
  }
  EXPECT_EQ(s.Stoff.StoffName, "vorher");
}

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

ProjectState AlsZweiterGeladen(int typ, const RohSatz& r) {
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
    ProjectState s = AlsZweiterGeladen(typ, alt);
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
    const RohLayout& l = alt.Layout();
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
