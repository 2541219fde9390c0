#include "substance/stoff_laden.h"

#include "core/festtext.h"
#include "engine/korrelationen.h"
#include "substance/datenbank.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

// A cell's value, 0 for one that isn't a finite number.
float Z(const DatenbankSatz& satz, int i) {
  const float x = satz.Zelle(i);
  return std::isfinite(x) ? x : 0.0f;
}

// A temperature limit: the cell rounded to the nearest integer, ties to even.
int16_t Grenze(const DatenbankSatz& satz, int i) {
  const double r = std::nearbyint(static_cast<double>(Z(satz, i)));
  return static_cast<int16_t>(std::clamp(r, -32768.0, 32767.0));
}

TGrenzen Grenzen(const DatenbankSatz& satz, int ersteZelle) {
  return {Grenze(satz, ersteZelle), Grenze(satz, ersteZelle + 1)};
}

template <std::size_t N> std::array<float, N> Block(const DatenbankSatz& satz, int ersteZelle) {
  std::array<float, N> b{};
  for (std::size_t i = 0; i < N; ++i)
    b[i] = Z(satz, ersteZelle + static_cast<int>(i));
  return b;
}

// Four decimals: floor(x*10000 + 0.5)/10000.
double VierStellen(float x) {
  return std::floor(static_cast<double>(x) * 10000 + 0.5) / 10000;
}

// Single precision of x, 0 when x isn't finite there.
float SicherFloat(double x) {
  if (!(std::fabs(x) <= 3.4028234663852886e38)) return 0;
  return static_cast<float>(x);
}

std::string OhneNul(std::string t) {
  std::replace(t.begin(), t.end(), '\0', ' ');
  return t;
}

std::string RechtsGetrimmt(std::string t) {
  const std::size_t ende = t.find_last_not_of(' ');
  t.erase(ende == std::string::npos ? 0 : ende + 1);
  return t;
}

void Texte(StoffGruppe& st, const DatenbankSatz& satz, bool englisch) {
  st.Formel = OhneNul(FestText(satz.Text(SatzFeld::Formel), 12));
  std::string name = OhneNul(satz.Text(englisch ? SatzFeld::NameEnglisch : SatzFeld::NameDeutsch));
  st.StoffName = RechtsGetrimmt(name.substr(0, name.find(';')));
  st.Struktur = RechtsGetrimmt(OhneNul(satz.Text(SatzFeld::Struktur)));
  st.CASRN = RechtsGetrimmt(OhneNul(satz.Text(SatzFeld::CASRN)));
  st.MDBNr = satz.Nummer();
}

void Konstanten(StoffGruppe& st, const DatenbankSatz& satz) {
  st.MolMasse = SicherFloat(VierStellen(Z(satz, 0)));
  st.TKrit = VierStellen(Z(satz, 6));
  st.pKrit = VierStellen(Z(satz, 7));
  st.rhoKritExp = Z(satz, 8);
  st.vKritExp = st.rhoKritExp > 1e-6 ? st.MolMasse / st.rhoKritExp : 0;
  st.omega = Z(satz, 9);
  st.TSiede = Z(satz, 10);
  st.hBildung = Z(satz, 85);
  st.gBildung = Z(satz, 87);
  st.sBildung = Z(satz, 89);
  if (std::fabs(static_cast<double>(st.hBildung) * st.gBildung) > 1e-6)
    st.DeltaFs = SicherFloat((static_cast<double>(st.hBildung) - st.gBildung) / TStandard);
  st.TTripel = Z(satz, 91);
  st.pTripel = Z(satz, 92);
  const float untere = Z(satz, 93);
  st.TUntereGrenze = untere < 1e-6f ? st.TTripel : untere;
}

void Dampfdruck(StoffGruppe& st, const DatenbankSatz& satz) {
  st.FrostKalkwarf = Block<9>(satz, 24);
  st.FrostKalkwarfGrenzen = Grenzen(satz, 33);
  st.AntoineNd = Block<3>(satz, 36);
  st.AntoineNdGrenzen = Grenzen(satz, 39);
  st.AntoineHd = Block<3>(satz, 42);
  st.AntoineHdGrenzen = Grenzen(satz, 45);
  st.Wagner = Block<10>(satz, 48);
  st.WagnerGrenzen = Grenzen(satz, 58);
  // August constants through the normal boiling point and the critical point; A takes the
  // single-precision B.
  st.AugustB = SicherFloat(st.TSiede * st.TKrit * std::log(st.pKrit / pNormal) / (st.TSiede - st.TKrit));
  st.AugustA = SicherFloat(std::log(st.pKrit) - st.AugustB / st.TKrit);
}

void Dichten(StoffGruppe& st, const DatenbankSatz& satz) {
  st.RhoL = Block<7>(satz, 13);
  st.RhoLTcr = Z(satz, 20);
  st.RhoLGrenzen = Grenzen(satz, 21);
  st.RhoS = Block<4>(satz, 118);
  st.RhoSGrenzen = Grenzen(satz, 122);
}

void Waermekapazitaeten(StoffGruppe& st, const DatenbankSatz& satz) {
  st.CpPoly = Block<5>(satz, 61);
  st.CpPolyGrenzen = Grenzen(satz, 66);
  st.CpSinh = Block<5>(satz, 69);
  st.CpSinhGrenzen = Grenzen(satz, 74);
  st.CpL = Block<5>(satz, 77);
  st.CpLGrenzen = Grenzen(satz, 82);
  st.CpS = Block<5>(satz, 110);
  st.CpSGrenzen = Grenzen(satz, 115);

  auto kondensiertOK = [](const std::array<float, 5>& c, const TGrenzen& g) {
    return (std::fabs(c[0]) > 1e-6f || std::fabs(c[1]) > 1e-6f) && g.TLo > 1e-6 && g.THi > 1e-6;
  };
  st.CpPolyOK = st.CpPolyGrenzen.TLo > 1e-6;
  st.CpSinhOK = std::fabs(st.CpSinhGrenzen.TLo * static_cast<double>(st.CpSinh[0])) > 1e-6;
  st.CpLOK = kondensiertOK(st.CpL, st.CpLGrenzen);
  st.CpSOK = kondensiertOK(st.CpS, st.CpSGrenzen);

  // The sinh term needs C2 other than 0: its absolute value, 0.1 when it is missing beside a C0.
  float& C2 = st.CpSinh[2];
  C2 = std::fabs(C2);
  if (std::fabs(st.CpSinh[0]) > 1e-6f && C2 < 1e-6f) C2 = 0.1f;
}

void Verdampfung(StoffGruppe& st, const DatenbankSatz& satz) {
  st.HLV = Block<6>(satz, 96);
  st.HLVTcr = Z(satz, 102);
  st.HLVGrenzen = Grenzen(satz, 103);
  // The second Watson point wins when it lies within 2 K of the normal boiling point.
  st.WatsonH = Z(satz, 105);
  st.WatsonT = Z(satz, 106);
  if (std::fabs(static_cast<double>(st.TSiede) - Z(satz, 108)) < 2.0) {
    st.WatsonH = Z(satz, 107);
    st.WatsonT = Z(satz, 108);
  }
}

// The equation offered first: Frost/Kalkwarf before Wagner, Antoine low and high pressure, August.
std::string StandardDampfdruckTag(const StoffGruppe& st) {
  std::string tag = "000";
  if (st.AugustA > 1e-6f) tag = "AUG";
  if (st.AntoineHdGrenzen.TLo > 1e-6) tag = "AHP";
  if (st.AntoineNdGrenzen.TLo > 1e-6) tag = "ALP";
  if (st.WagnerGrenzen.TLo > 1e-6) tag = "WAG";
  if (std::abs(st.FrostKalkwarfGrenzen.TLo) > 1e-6) tag = "FRO";
  return tag == "000" ? "<> " : tag;
}

void LadeStoffVonTyp(ProjectState& s, int typ, int index, int16_t& failed) {
  failed = 0;
  if (index == 0) return;
  DatenbankSatz satz(typ);
  if (s.Datenbank.DatenbankTyp != typ || !LeseStoffSatz(s, index, satz)) {
    failed = -1;
    return;
  }
  StoffAusSatz(s, satz, failed);
}

} // namespace

void StoffAusSatz(ProjectState& s, const DatenbankSatz& satz, int16_t& failed) {
  failed = 0;
  StoffGruppe st;
  Texte(st, satz, s.Datenbank.EnglischeOberflaeche);
  Konstanten(st, satz);
  if (Z(satz, 6) < 1e-6f || Z(satz, 7) < 1e-6f) failed = -1;
  Dampfdruck(st, satz);
  Dichten(st, satz);
  Waermekapazitaeten(st, satz);
  Verdampfung(st, satz);
  s.Stoff = std::move(st);
  s.Modell.DampfdruckTag = StandardDampfdruckTag(s.Stoff);
}

void LadeStoff06(ProjectState& s, int index, int16_t& failed) {
  LadeStoffVonTyp(s, 6, index, failed);
}

void LadeStoff07(ProjectState& s, int index, int16_t& failed) {
  LadeStoffVonTyp(s, 7, index, failed);
}

void LadeStoff(ProjectState& s, int index, int16_t& failed) {
  failed = 0;
  if (index == 0) return;
  if (s.Datenbank.DatenbankTyp == 6)
    LadeStoff06(s, index, failed);
  else
    LadeStoff07(s, index, failed);
  StoffGruppe& st = s.Stoff;
  st.Formel = RechtsGetrimmt(st.Formel);
  st.FormelOhneLeer.clear();
  std::copy_if(st.Formel.begin(), st.Formel.end(), std::back_inserter(st.FormelOhneLeer),
               [](char c) { return c != ' '; });
}

} // namespace quor
