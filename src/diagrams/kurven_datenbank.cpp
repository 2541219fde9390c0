// The temperature functions of the database drawn over their validity range: liquid and solid
// density, liquid volume, the heat capacities, the enthalpy of vaporization and the vapour-pressure
// equations, those of the database and the correlated ones.
#include "diagrams/diagramm_codes.h"
#include "diagrams/kurven_groessen.h"
#include "diagrams/kurven_intern.h"
#include "engine/korrelationen.h"

#include <algorithm>

namespace quor::kurven {

namespace {

// The vapour-pressure equation of codes 306 to 309 (database) and 312 to 315 (correlated).
int DampfdruckIndexVon(int16_t c) {
  if (c >= code::DbDampfdruck && c < code::DbDampfdruck + 4)
    return AntoineNiederdruck + (c - code::DbDampfdruck);
  if (c >= code::KorrDampfdruck && c < code::KorrDampfdruck + 4)
    return AugustKorreliert + (c - code::KorrDampfdruck);
  return DampfdruckKeine;
}

// The validity range of the function of code c; none for the correlated equations.
TGrenzen GrenzenVon(const StoffGruppe& st, int16_t c) {
  switch (c) {
  case code::DbRhoL:
  case code::DbVL:
    return st.RhoLGrenzen;
  case code::DbCpIdGPolynom:
    return st.CpPolyGrenzen;
  case code::DbCpIdGSinh:
    return st.CpSinhGrenzen;
  case code::DbCpL:
    return st.CpLGrenzen;
  case code::DbCpS:
    return st.CpSGrenzen;
  case code::DbHLV:
    return st.HLVGrenzen;
  case code::DbRhoS:
    return st.RhoSGrenzen;
  default:
    break;
  }
  switch (DampfdruckIndexVon(c)) {
  case AntoineNiederdruck:
    return st.AntoineNdGrenzen;
  case AntoineHochdruck:
    return st.AntoineHdGrenzen;
  case FrostKalkwarfDB:
    return st.FrostKalkwarfGrenzen;
  case WagnerDB:
    return st.WagnerGrenzen;
  default:
    return {};
  }
}

// The function's value at T in displayed units; false where it fails or the database has none.
bool FunktionsWert(ProjectState& s, int16_t c, double T, double& y) {
  const StoffGruppe& st = s.Stoff;
  const double E = EnergieFaktorBeiT(s, T);
  int16_t failed = 0;
  switch (c) {
  case code::DbRhoL:
    y = RhoL(s, T, false, failed);
    break;
  case code::DbVL: {
    const double rho = RhoL(s, T, false, failed);
    y = st.MolMasse / rho * s.Einheiten.VolumenFaktor;
    return failed == 0 && rho > 0;
  }
  case code::DbRhoS:
    y = RhoS(s, T, false, failed);
    break;
  case code::DbCpIdGPolynom:
    y = CpIdG(s, T, CpPolynom) * E;
    return st.CpPolyOK;
  case code::DbCpIdGSinh:
    y = CpIdG(s, T, CpSinhCosh) * E;
    return st.CpSinhOK;
  case code::DbCpL:
    y = CpL(s, T) * E;
    return st.CpLOK;
  case code::DbCpS:
    y = CpS(s, T) * E;
    return st.CpSOK;
  case code::DbHLV:
    y = HLVFu(s, T, failed) * E;
    return failed == 0 && st.HLVTcr > 1e-6;
  default: {
    const int index = DampfdruckIndexVon(c);
    if (index == DampfdruckKeine) return false;
    y = pLV(s, T, index, false, failed) * s.Einheiten.pFaktor;
    break;
  }
  }
  return failed == 0;
}

} // namespace

// From the lower to the upper end of the validity range in PunktDichte steps; an end that the
// database doesn't give is the axis' end.
void Datenbankfunktion(Lauf& l) {
  const int16_t c = l.a.Code;
  const TGrenzen g = GrenzenVon(l.s.Stoff, c);
  const double von = g.TLo > 0 ? g.TLo : l.a.Xmin / l.TF();
  const double bis = g.THi > 0 ? g.THi : l.a.Xmax / l.TF();
  if (!(bis > von)) return;
  const double n = std::max<int16_t>(l.s.Optionen.PunktDichte, 1);
  Schritte(von, bis, (bis - von) / n, 0.9, [&](double T) {
    double y = 0;
    if (T > 0 && FunktionsWert(l.s, c, T, y)) l.Punkt(T * l.TF(), y, 0);
    return true;
  });
  l.Kopf(kopf::OhneParameter);
}

} // namespace quor::kurven
