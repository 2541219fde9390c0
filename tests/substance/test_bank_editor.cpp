// The substance data editor: fields from and into the project state, the take-over rules with the
// derived values, the triple-point option, the correlated sets shown, the private one-substance
// database and the buttons that leave the dialog.
#include "core/datei_io.h"
#include "core/daten_diagnose.h"
#include "core/zahlformat.h"
#include "dienste/skript_oberflaeche.h"
#include "engine/korrelationen.h"
#include "substance/bank_editor.h"
#include "substance/datenbank.h"
#include "substance/datenbank_satz.h"
#include "substance/korrelierte_parameter.h"
#include "substance/stoff_laden.h"
#include "support/relativ.h"
#include "support/stoff_fixture.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <set>
#include <tuple>

namespace quor {
namespace {

using test::TempOrdner;

// A substance of the default database with its vapour-pressure equation chosen, in the editor.
struct Editor {
  explicit Editor(const std::string& cas) : s(test::StoffAusStandardDatenbank(cas)), e(s, ui) {
    e.Form_Load();
  }
  ProjectState s;
  ui::SkriptOberflaeche ui;
  frmQBankEdit e;
};

TEST(BankEditorFelder, EachGroupSitsAtItsIndicesAndMissingValuesShowAsNoValue) {
  ProjectState s;
  StoffGruppe& st = s.Stoff;
  st.StoffName = "Testname";
  st.AntoineNd = {7.1f, 1700.f, 230.f};
  st.FrostKalkwarfGrenzen = {250, 400};
  st.Wagner[8] = 647.1f;
  st.RhoLTcr = 647.f;
  st.RhoS = {917.f, 0, 0, 0};
  st.RhoSGrenzen.TLo = 200;
  st.CpSinh[0] = 33.3f;
  st.CpL[0] = 75.f;
  st.HLVTcr = 646.f;
  st.sBildung = 188.8f;
  ui::SkriptOberflaeche ui;
  frmQBankEdit e(s, ui);
  e.Form_Load();
  const std::vector<std::pair<int, std::string>> soll = {
      {83, "Testname"}, {84, "<>"},   {8, "7.1"},   {10, "230"},  {60, "250"}, {61, "400"}, {70, "647.1"},
      {25, "647"},      {123, "917"}, {128, "200"}, {35, "33.3"}, {108, "75"}, {80, "646"}, {122, "188.8"},
      {4, "<>"},        {11, "<>"},   {124, "<>"},  {129, "<>"},  {85, "<>"},  {130, "<>"}};
  for (const auto& [index, text] : soll)
    EXPECT_EQ(e.DD[index], text) << "DD " << index;

  // Every index of the table once; nothing in the gaps between the groups.
  std::set<int> indizes;
  for (const BankFeld& f : BankFelder())
    EXPECT_TRUE(indizes.insert(f.Index).second) << f.Index;
  EXPECT_EQ(indizes.size(), 103u);
  for (int frei : {46, 47, 48, 49, 50, 86, 107, 127})
    EXPECT_EQ(BankFeldVon(frei), nullptr) << frei;
}

TEST(BankEditorFelder, TheKeyFilterPassesNumbersAndTurnsTheCommaIntoAPoint) {
  for (char c : std::string("0123456789Ee-.\r\b\x7f"))
    EXPECT_EQ(BankTaste(c), c) << int(c);
  EXPECT_EQ(BankTaste(','), '.');
  for (char c : std::string("+aDx <>/ "))
    EXPECT_EQ(BankTaste(c), 0) << c;
}

TEST(BankEditorUebernehmen, AnEnteredZeroStaysAValueAndAnEmptyFieldHasNone) {
  Editor t(test::CasWasser);
  frmQBankEdit& e = t.e;
  e.FeldGeaendert(7, "0");    // omega
  e.FeldGeaendert(45, "0.0"); // gBildung
  e.FeldGeaendert(44, "");    // hBildung
  e.FeldGeaendert(85, "0");   // CAS number: a text stays as it is
  e.FeldGeaendert(125, "0");  // rho(S) C lies beyond the fields that are marked
  e.cmdUebernehmen();
  EXPECT_EQ(std::tie(e.DD[7], e.DD[45], e.DD[44], e.DD[85], e.DD[125]),
            std::make_tuple("1E-37", "1E-37", "<>", "0", "0"));
  EXPECT_DOUBLE_EQ(t.s.Stoff.omega, 1e-37);
  EXPECT_EQ(t.s.Stoff.hBildung, 0.f);
  EXPECT_EQ(t.s.Stoff.CASRN, "0");

  frmQBankEdit neu(t.s, t.ui); // the value comes back from the project state
  neu.Form_Load();
  EXPECT_EQ(neu.DD[7], "1E-37");
  EXPECT_EQ(neu.DD[44], "<>");
}

TEST(BankEditorUebernehmen, LimitsAreWholeKelvinsSinhC2IsPositiveAndTheFlagsFollowTLoTimesC0) {
  Editor t(test::CasWasser);
  frmQBankEdit& e = t.e;
  e.FeldGeaendert(11, "300.5"); // ties to even
  e.FeldGeaendert(12, "301,5"); // comma typed around the filter
  e.FeldGeaendert(35, "33.3");
  e.FeldGeaendert(37, "-2610.5");
  e.FeldGeaendert(40, "100");
  e.FeldGeaendert(108, "<>"); // cp(L) without C0 but with C1: no function for the editor
  e.FeldGeaendert(109, "0.5");
  e.FeldGeaendert(113, "280");
  e.FeldGeaendert(114, "500");
  e.FeldGeaendert(28, "<>"); // polynomial: C0 missing
  e.cmdUebernehmen();
  const StoffGruppe& st = t.s.Stoff;
  EXPECT_EQ(std::tie(st.AntoineNdGrenzen.TLo, st.AntoineNdGrenzen.THi), std::make_tuple(300, 302));
  EXPECT_EQ(st.CpSinh[2], 2610.5f);
  EXPECT_TRUE(st.CpSinhOK);
  EXPECT_FALSE(st.CpLOK);
  EXPECT_FALSE(st.CpPolyOK);

  e.FeldGeaendert(37, "0"); // an entered zero beside a C0 is no usable C2 either
  e.cmdUebernehmen();
  EXPECT_EQ(st.CpSinh[2], 0.1f);
  EXPECT_EQ(e.DD[37], "0.1");
}

TEST(BankEditorUebernehmen, WithoutATagAnAntoineSetIsTakenAndGivesTheBoilingPointAndAugust) {
  Editor t(test::CasWasser);
  t.s.Modell.DampfdruckTag = "000";
  t.s.Modell.DampfdruckIndex = 0;
  t.e.FeldGeaendert(1, "<>");
  t.e.cmdUebernehmen();
  const StoffGruppe& st = t.s.Stoff;
  ASSERT_EQ(t.s.Modell.DampfdruckTag, "ALP"); // low pressure wins over high pressure
  // Water boils at 373.12 K (IAPWS); the stored Antoine set meets it within 0.3 K.
  EXPECT_NEAR(st.TSiede, 373.12, 0.3);
  int16_t failed = -1;
  EXPECT_NEAR(pLV(t.s, st.TSiede, AntoineNiederdruck, false, failed), pNormal, 1e-3);
  EXPECT_EQ(t.e.DD[1], SingleText(st.TSiede));
  // August through the new boiling point and the critical point.
  double A = 0, B = 0;
  ASSERT_TRUE(AugustParameter(st.TKrit, st.pKrit, st.TSiede, A, B));
  EXPECT_REL(st.AugustB, B, 1e-6);
  EXPECT_EQ(t.e.Korreliert[0].Texte[1], SingleText(st.AugustB));
}

TEST(BankEditorUebernehmen, WatsonWithoutItsPointFallsBackToChenAndTheGradeIsNew) {
  Editor t(test::CasWasser);
  int neu = 0;
  t.e.ModellFensterNeu = [&neu] { ++neu; };
  t.s.Modell.HLVIndex = HLVWatson;
  t.e.cmdUebernehmen();
  EXPECT_EQ(t.s.Modell.HLVIndex, HLVWatson); // water has its Watson point
  EXPECT_EQ(t.s.Projekt.Ampel.DatenAmpel, 1);

  t.e.FeldGeaendert(43, "<>");
  t.e.FeldGeaendert(5, "<>"); // no critical pressure: no calculation possible
  t.e.cmdUebernehmen();
  EXPECT_EQ(t.s.Modell.HLVIndex, HLVChen);
  EXPECT_EQ(t.s.Projekt.Ampel.DatenAmpel, 4);
  EXPECT_EQ(neu, 2);
  EXPECT_FALSE(t.e.Geaendert);
}

TEST(BankEditorTripelpunkt, TheSecondOptionComputesThePressureFromTheCurrentEquation) {
  Editor t(test::CasWasser);
  t.e.FeldGeaendert(2, "280");
  t.e.optpSL_Click(1);
  int16_t failed = -1;
  const double p = pLV(t.s, 280, test::DampfdruckIndexVon(t.s.Modell.DampfdruckTag), false, failed);
  ASSERT_EQ(failed, 0);
  EXPECT_EQ(t.e.DD[3], SingleText(static_cast<float>(p)));
  t.e.optpSL_Click(0);
  EXPECT_EQ(t.e.DD[3], FeldText(t.s.Stoff.pTripel));
}

TEST(BankEditorKorreliert, NewSetsComeFromTheFieldsAndStayOutOfTheProjectState) {
  Editor t(test::CasWasser);
  const auto vorher = t.s.Stoff.THO;
  t.e.FeldGeaendert(4, "600");
  t.e.cmdCorrelate(AntoineThompson);
  ProjectState r;
  KorrelierteParameter(r, AntoineThompson, 600, t.s.Stoff.pKrit, t.s.Stoff.TSiede);
  EXPECT_EQ(t.e.Korreliert[3].Texte,
            (std::vector<std::string>{SingleText(r.Stoff.THO[0]), SingleText(r.Stoff.THO[1]),
                                      SingleText(r.Stoff.THO[2])}));
  EXPECT_EQ(t.s.Stoff.THO, vorher);
}

// A database of kind `typ` with two substances; the second has every cell distinct and a value in
// each cell the program keeps without using.
std::string Datenbank(int typ) {
  DatenbankSatz a(typ), b(typ);
  a.SetzeText(SatzFeld::Formel, "CH4");
  a.SetzeText(SatzFeld::NameDeutsch, "Methan");
  a.SetzeZelle(6, 190.56f);
  a.SetzeZelle(7, 4599.f);
  b.SetzeText(SatzFeld::Formel, "C6H5Cl");
  b.SetzeText(SatzFeld::NameDeutsch, "Chlorbenzol");
  b.SetzeText(SatzFeld::CASRN, "108-90-7");
  b.SetzeNummer(99);
  for (int i = 0; i < ZellenAnzahl; ++i)
    b.SetzeZelle(i, 1000.f + i);
  b.SetzeZelle(71, 2000.f);
  return DatenbankDatei(KopfSatz(typ, "01.02.2003", 2), {a, b});
}

TEST(BankEditorPrivateDatenbank, HoldsTwoRecordsKeepsTheUnusedCellsAndOpensLikeAnyOther) {
  const int behalten[] = {11, 12, 23, 47, 88, 89, 92, 94, 95, 107, 108, 117};
  for (int typ : {7, 6}) {
    SCOPED_TRACE(typ);
    TempOrdner dir;
    ProjectState s;
    s.Datenbank.ProgrammVerzeichnis = dir.Pfad();
    int16_t failed = 0;
    bool leer = false;
    LadeDatenbank(s, typ, dir.Schreibe("MAIN.Q0x", Datenbank(typ)), failed, leer);
    s.Datenbank.StoffIndex = 2;
    LadeStoff(s, 2, failed);
    ui::SkriptOberflaeche ui;
    frmQBankEdit e(s, ui);
    e.Form_Load();
    e.FeldGeaendert(122, "1.5");  // sBildung
    e.FeldGeaendert(3, "2.5");    // pTripel
    e.FeldGeaendert(4, "632.35"); // TKrit
    ui.dateien.push_back("PRIVAT.Q0x");
    e.WriteDataBaseQ07();

    const std::string art = std::to_string(typ);
    ASSERT_EQ(ui.dateiDialoge.size(), 1u);
    const ui::DateiDialog& d = ui.dateiDialoge[0];
    EXPECT_EQ(d.titel, "Speichern eines privaten Datenbank-Files *.Q0" + art + " für aktuellen Stoff");
    EXPECT_EQ(d.filter, "Datenbank (*.Q0" + art + ")|*.Q0" + art);
    EXPECT_EQ(d.standardEndung, ".Q0" + art);
    EXPECT_EQ(s.Stoff.sBildung, 1.5f); // taken over first
    EXPECT_EQ(s.Stoff.pTripel, 2.5f);

    std::string datei;
    ASSERT_TRUE(LeseDateiBytes(dir.Datei("PRIVAT.Q0x"), datei));
    ASSERT_EQ(datei.size(), 2u * SatzLaenge(typ));
    const DatenbankSatz kopf(typ, datei.substr(0, SatzLaenge(typ)));
    const DatenbankSatz neu(typ, datei.substr(SatzLaenge(typ)));
    DatenbankSatz alt(typ);
    ASSERT_TRUE(LeseStoffSatz(s, 2, alt));
    EXPECT_EQ(kopf.Nummer(), 1);
    EXPECT_EQ(kopf.Text(SatzFeld::Formel).substr(0, 10), HeutigesDatum());
    EXPECT_EQ(kopf.Text(SatzFeld::NameDeutsch).find_first_not_of(' '), std::string::npos);
    EXPECT_EQ(neu.Nummer(), 1);
    for (int i : behalten)
      EXPECT_EQ(neu.Zelle(i), alt.Zelle(i)) << "cell " << i;
    EXPECT_EQ(neu.Zelle(6), 632.35f);

    ProjectState p;
    p.Datenbank.ProgrammVerzeichnis = dir.Pfad();
    LadeDatenbank(p, typ, "PRIVAT.Q0x", failed, leer);
    ASSERT_EQ(std::tie(failed, leer, p.Datenbank.StoffAnzahl), std::make_tuple(0, false, 1));
    LadeStoff(p, 1, failed);
    EXPECT_EQ(failed, 0);
    EXPECT_EQ(p.Stoff.StoffName, "Chlorbenzol");
    EXPECT_DOUBLE_EQ(p.Stoff.TKrit, 632.35);
    EXPECT_EQ(p.Stoff.sBildung, 1089.f); // the file keeps the old value
    EXPECT_EQ(p.Stoff.CpSinh, s.Stoff.CpSinh);
  }
}

TEST(BankEditorPrivateDatenbank, ACancelledDialogWritesNothingAndAFailedWriteSaysSo) {
  TempOrdner dir;
  Editor t(test::CasMethan);
  t.s.Datenbank.ProgrammVerzeichnis = dir.Pfad();
  t.e.WriteDataBaseQ07(); // the empty queue cancels
  EXPECT_TRUE(t.ui.Meldungen().empty());
  const std::string pfad = dir.Datei("fehlt/P.Q07");
  t.ui.dateien.push_back(pfad);
  t.e.WriteDataBaseQ07();
  ASSERT_EQ(t.ui.Meldungen().size(), 1u);
  EXPECT_EQ(t.ui.Meldungen()[0].text, "Die Datei " + pfad + "\r\nkann nicht geschrieben werden.");
}

TEST(BankEditorKnoepfe, DrawingIsRefusedBesideAnOpenDiagramAndOtherwiseUsesTheModelsEquations) {
  Editor t(test::CasWasser);
  bool offen = true;
  std::vector<std::pair<std::string, int>> gezeichnet;
  t.e.DiagrammOffen2D = [&offen] { return offen; };
  t.e.Zeichnen = [&gezeichnet](const std::string& n, int i) { gezeichnet.emplace_back(n, i); };
  t.e.cmdDraw(BankZeichnen::HLV);
  ASSERT_EQ(t.ui.Meldungen().size(), 1u);
  EXPECT_EQ(t.ui.Meldungen()[0].text, "Löschen Sie das vorhandene 2D-Diagramm.");
  EXPECT_TRUE(gezeichnet.empty());

  offen = false;
  t.s.Modell.DampfdruckIndex = WagnerDB;
  t.s.Modell.CpIndex = 2;
  for (BankZeichnen k : {BankZeichnen::pLV, BankZeichnen::CpIdGas, BankZeichnen::RhoS, BankZeichnen::CpL})
    t.e.cmdDraw(k);
  const std::vector<std::pair<std::string, int>> soll = {{"mnuGraf_sub_sub_database", 1},
                                                         {"mnuGraf_sub_database", 4},
                                                         {"mnuGraf_sub_database", 1},
                                                         {"mnuGraf_sub_database", 5}};
  EXPECT_EQ(gezeichnet, soll);
}

TEST(BankEditorKnoepfe, JobackValuesReachTheirFieldsAndEscAsksOnlyAfterChanges) {
  Editor t(test::CasWasser);
  int modus = 0;
  t.e.JobackOeffnen = [&modus](int m) { modus = m; };
  t.e.cmdJoback(JobackCp);
  EXPECT_EQ(modus, 3);
  EXPECT_TRUE(t.e.Esc()); // nothing changed: no question
  EXPECT_TRUE(t.ui.protokoll.empty());

  t.e.JobackWert(32, 1e-37);
  t.e.JobackWert(33, 250);
  EXPECT_EQ(std::tie(t.e.DD[32], t.e.DD[33]), std::make_tuple("1E-37", "250"));
  t.ui.antworten.push_back(ui::Antwort::Abbrechen);
  EXPECT_FALSE(t.e.Esc());
  EXPECT_EQ(t.ui.Letzte().text, " Achtung, evtl. Änderungen gehen ohne \"Übernehmen\" verloren ");
  t.ui.antworten.push_back(ui::Antwort::OK);
  EXPECT_TRUE(t.e.Esc());
}

} // namespace
} // namespace quor
