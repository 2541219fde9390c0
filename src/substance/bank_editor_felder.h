// Which value of the substance group each number field of the data editor shows: one list used
// both ways, to fill the fields and to take them over.
#pragma once

#include "core/project_state.h"

#include <array>
#include <cstdint>
#include <string>

namespace quor::bank {

// The visitor is called with (DD index, value) for every number field; temperature limits come
// as int16_t&, the other values as float& or double&.
template <class F> void FuerJedenWert(StoffGruppe& st, F&& f) {
  auto block = [&](int erster, auto& werte) {
    for (std::size_t i = 0; i < werte.size(); ++i)
      f(erster + static_cast<int>(i), werte[i]);
  };
  auto grenzen = [&](int erster, TGrenzen& g) {
    f(erster, g.TLo);
    f(erster + 1, g.THi);
  };
  f(0, st.MolMasse);
  f(1, st.TSiede);
  f(2, st.TTripel);
  f(3, st.pTripel);
  f(4, st.TKrit);
  f(5, st.pKrit);
  f(6, st.rhoKritExp);
  f(7, st.omega);
  block(8, st.AntoineNd);
  grenzen(11, st.AntoineNdGrenzen);
  block(13, st.AntoineHd);
  grenzen(16, st.AntoineHdGrenzen);
  block(18, st.RhoL);
  f(25, st.RhoLTcr);
  grenzen(26, st.RhoLGrenzen);
  block(28, st.CpPoly);
  grenzen(33, st.CpPolyGrenzen);
  block(35, st.CpSinh);
  grenzen(40, st.CpSinhGrenzen);
  f(42, st.WatsonH);
  f(43, st.WatsonT);
  f(44, st.hBildung);
  f(45, st.gBildung);
  block(51, st.FrostKalkwarf);
  grenzen(60, st.FrostKalkwarfGrenzen);
  block(62, st.Wagner);
  grenzen(72, st.WagnerGrenzen);
  block(74, st.HLV);
  f(80, st.HLVTcr);
  grenzen(81, st.HLVGrenzen);
  block(108, st.CpL);
  grenzen(113, st.CpLGrenzen);
  block(115, st.CpS);
  grenzen(120, st.CpSGrenzen);
  f(122, st.sBildung);
  block(123, st.RhoS);
  grenzen(128, st.RhoSGrenzen);
}

// Row of the vapour-pressure table of a tag; 0 for "000", "<> " and anything else.
inline int IndexVonTag(const std::string& tag) {
  for (int i = 1; i <= 8; ++i)
    if (DampfdruckTagVon(i) == tag) return i;
  return 0;
}

// The equation of the models: the chosen row, or the tag's row before a choice was made.
inline int AktuelleDampfdruckGleichung(const ProjectState& s) {
  return s.Modell.DampfdruckIndex > 0 ? s.Modell.DampfdruckIndex : IndexVonTag(s.Modell.DampfdruckTag);
}

// DD indices of the text fields.
constexpr int DDName = 83, DDFormel = 84, DDCAS = 85, DDStruktur = 130;

} // namespace quor::bank
