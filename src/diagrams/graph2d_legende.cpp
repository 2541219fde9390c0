// The legend texts of the 2D diagram's curves: the parameter of an isotherm, isobar or isochor, the
// vapour-pressure curve by concept, the projections of the coexistence region and the inversion
// curve with the model they come from.
#include "diagrams/graph2d.h"

#include "core/festtext.h"
#include "core/zahlformat.h"
#include "diagrams/diagramm_codes.h"
#include "engine/korrelationen.h"

namespace quor {

namespace {

const char* const Koexistenz = " (Koexistenzkurve V - L); ";

std::string Zeile(const std::string& text) {
  return Trim(text);
}

std::string EOSText(const ProjectState& s) {
  const int i = s.Modell.EOSIndex;
  if (i < 0 || i >= static_cast<int>(s.Tab.EOSNamen.size())) return "";
  return Zeile(s.Tab.EOSNamen[static_cast<std::size_t>(i)]);
}

// The row of the vapour-pressure equation; the correlated August equation carries its constants.
std::string DampfdruckText(const ProjectState& s) {
  const int i = s.Modell.DampfdruckIndex;
  std::string text;
  if (i >= 0 && i < static_cast<int>(s.Tab.DampfdruckNamen.size()))
    text = Zeile(s.Tab.DampfdruckNamen[static_cast<std::size_t>(i)]);
  if (i == AugustKorreliert)
    text +=
        "; AUGUST-Par: A = " + SingleText(s.Stoff.AugustA) + ", B = " + SingleText(s.Stoff.AugustB) + " K";
  return text;
}

std::string DampfdruckLegende(const ProjectState& s) {
  if (s.Modell.KonzeptGlobal)
    return "p(LV) berechnet aus " + EOSText(s) + " (entsprechend Einstellung \"Modelle\"), GLOBAL-Konzept";
  return "p(LV) entsprechend EVP-Einstellung \"Modelle\" " + DampfdruckText(s) + ", PARTIAL-Konzept";
}

// A line of constant vapour fraction names its fraction.
std::string Dampfanteil(const ProjectState& s) {
  const double x = s.Diagramm.Isohygre;
  if (x == 0) return "";
  return ", x(V) = " + FormatVB(x, "0.000");
}

std::string HLVText(const ProjectState& s) {
  const int i = s.Modell.HLVIndex;
  if (i < 0 || i >= static_cast<int>(s.Tab.HLVNamen.size())) return "";
  return Zeile(s.Tab.HLVNamen[static_cast<std::size_t>(i)]);
}

std::string KoexistenzLegende(const ProjectState& s, const DiagrammAuftrag& a) {
  std::string projektion;
  switch (a.Code) {
  case code::KoexPv:
    projektion = "p-V-Projektion";
    break;
  case code::KoexTv:
    projektion = "T-V-Projektion";
    break;
  case code::KoexPvProdukt:
    projektion = "pV-p-Projektion";
    break;
  case code::KoexTRho:
    projektion = "T-rho(L)-rho(V)-Projektion";
    break;
  case code::KoexRhoP:
    projektion = "rho-p-Projektion";
    break;
  case code::KoexRhoT:
    return "Dichten rho(L), rho(V) = Fu(T), Mathias-Cailletet-Kurve aus " + EOSText(s);
  case code::Durchmesser:
    return "Mathias-Cailletet-Halbierende aus " + EOSText(s);
  case code::Dampfdruck:
  case code::LnPvonInvT:
  case code::Anstieg:
    return DampfdruckLegende(s);
  case code::HLVvonT:
    return "delta(LV)H = Fu(T): " + HLVText(s);
  default:
    return a.Titel + Dampfanteil(s);
  }
  return projektion + Koexistenz + EOSText(s) + Dampfanteil(s);
}

} // namespace

std::string ParameterAngabe(int16_t klasse, double T, double p, double v) {
  switch (klasse) {
  case klasse::Isotherme:
    return "T = " + FormatVB(T, "###0.00") + " K";
  case klasse::Isobare:
    return "p = " + FormatVB(p, "#####0.000") + " kPa";
  case klasse::Isochore:
    return "v = " + FormatVB(v, "##0.000000") + " m^3/kmol";
  default:
    return "";
  }
}

std::string KurvenLegende(const ProjectState& s, const DiagrammAuftrag& a, double T, double p, double v,
                          bool konnode) {
  switch (a.Klasse) {
  case klasse::Isotherme:
  case klasse::Isobare:
  case klasse::Isochore:
    return (konnode ? "(V-L) " : "") + ParameterAngabe(a.Klasse, T, p, v) + ".";
  case klasse::Koexistenz:
    return KoexistenzLegende(s, a);
  case klasse::Inversion:
    return " p-T-Inversionskurve Joule-Thomson-Effekt, " + EOSText(s) +
           " (entsprechend Einstellung \"Modelle\")";
  default:
    return a.Titel;
  }
}

} // namespace quor
