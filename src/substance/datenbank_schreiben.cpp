#include "substance/datenbank_schreiben.h"

#include "core/datei_io.h"
#include "substance/datenbank.h"

namespace quor {

namespace {

template <std::size_t N> void SetzeBlock(DatenbankSatz& satz, int ersteZelle, const std::array<float, N>& b) {
  for (std::size_t i = 0; i < N; ++i)
    satz.SetzeZelle(ersteZelle + static_cast<int>(i), b[i]);
}

void SetzeGrenzen(DatenbankSatz& satz, int ersteZelle, const TGrenzen& g) {
  satz.SetzeZelle(ersteZelle, g.TLo);
  satz.SetzeZelle(ersteZelle + 1, g.THi);
}

std::string Getrimmt(const std::string& t) {
  const std::size_t a = t.find_first_not_of(' ');
  if (a == std::string::npos) return "";
  return t.substr(a, t.find_last_not_of(' ') - a + 1);
}

} // namespace

void StoffInSatz(const ProjectState& s, DatenbankSatz& satz) {
  const StoffGruppe& st = s.Stoff;
  satz.SetzeText(SatzFeld::Formel, st.Formel);
  satz.SetzeText(s.Datenbank.EnglischeOberflaeche ? SatzFeld::NameEnglisch : SatzFeld::NameDeutsch,
                 Getrimmt(st.StoffName));
  satz.SetzeText(SatzFeld::CASRN, st.CASRN);

  satz.SetzeZelle(0, st.MolMasse);
  satz.SetzeZelle(6, static_cast<float>(st.TKrit));
  satz.SetzeZelle(7, static_cast<float>(st.pKrit));
  satz.SetzeZelle(8, static_cast<float>(st.rhoKritExp));
  satz.SetzeZelle(9, static_cast<float>(st.omega));
  satz.SetzeZelle(10, st.TSiede);
  SetzeBlock(satz, 13, st.RhoL);
  satz.SetzeZelle(20, st.RhoLTcr);
  SetzeGrenzen(satz, 21, st.RhoLGrenzen);
  SetzeBlock(satz, 24, st.FrostKalkwarf);
  SetzeGrenzen(satz, 33, st.FrostKalkwarfGrenzen);
  SetzeBlock(satz, 36, st.AntoineNd);
  SetzeGrenzen(satz, 39, st.AntoineNdGrenzen);
  SetzeBlock(satz, 42, st.AntoineHd);
  SetzeGrenzen(satz, 45, st.AntoineHdGrenzen);
  SetzeBlock(satz, 48, st.Wagner);
  SetzeGrenzen(satz, 58, st.WagnerGrenzen);
  SetzeBlock(satz, 61, st.CpPoly);
  SetzeGrenzen(satz, 66, st.CpPolyGrenzen);
  SetzeBlock(satz, 69, st.CpSinh);
  SetzeGrenzen(satz, 74, st.CpSinhGrenzen);
  SetzeBlock(satz, 77, st.CpL);
  SetzeGrenzen(satz, 82, st.CpLGrenzen);
  satz.SetzeZelle(85, st.hBildung);
  satz.SetzeZelle(87, st.gBildung);
  satz.SetzeZelle(91, st.TTripel);
  satz.SetzeZelle(93, st.TUntereGrenze);
  SetzeBlock(satz, 96, st.HLV);
  satz.SetzeZelle(102, st.HLVTcr);
  SetzeGrenzen(satz, 103, st.HLVGrenzen);
  satz.SetzeZelle(105, st.WatsonH);
  satz.SetzeZelle(106, st.WatsonT);
  SetzeBlock(satz, 110, st.CpS);
  SetzeGrenzen(satz, 115, st.CpSGrenzen);
  SetzeBlock(satz, 118, st.RhoS);
  SetzeGrenzen(satz, 122, st.RhoSGrenzen);
}

bool SchreibeEinzelstoffDatenbank(const ProjectState& s, const std::string& pfad) {
  const int typ = s.Datenbank.DatenbankTyp;
  DatenbankSatz satz(typ);
  LeseStoffSatz(s, s.Datenbank.StoffIndex, satz); // without an old record a blank one is filled
  StoffInSatz(s, satz);
  satz.SetzeNummer(1);
  const std::string datei = DatenbankDatei(KopfSatz(typ, HeutigesDatum(), 1), {satz});
  return SchreibeDateiBytes(PfadImProgrammVerzeichnis(s, pfad), datei);
}

} // namespace quor
