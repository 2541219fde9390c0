// Parameter counts, start values and scale factors of the models; choosing a model; taking data.
#include "core/zahl_lesen.h"
#include "core/zahlformat.h"
#include "fitting/fit_modelle.h"

namespace quor {

namespace {

namespace fm = fitmodell;

ModellVorgabe Vorgabe(int16_t n, std::array<float, FitMaxPar> start,
                      FitParameter skala = {1, 1, 1, 1, 1, 1, 1}) {
  ModellVorgabe v;
  v.n = n;
  v.Start = start;
  v.Skala = skala;
  return v;
}

ModellVorgabe DampfdruckVorgaben(int16_t modell, bool lg, double Tcr) {
  switch (modell) {
  case fm::August: // A, B, D
    return Vorgabe(3, {20, 1500, -1}, {1, 1000, 1, 1, 1, 1, 1});
  case fm::Antoine:
    if (lg) return Vorgabe(3, {5, 0, 200});
    return Vorgabe(3, {10, 3000, 200}, {1, 1000, 1, 1, 1, 1, 1});
  case fm::FrostKalkwarf: {
    const double B = lg ? -3000 : -5000;
    const double D = Tcr > 0 ? 1.8 * B / Tcr + 2.67 : -5;
    return Vorgabe(5, {lg ? 20.0f : 50.0f, static_cast<float>(B), 273.15f, static_cast<float>(D), 5},
                   {1, 1000, 1, 1, 1, 1, 1});
  }
  case fm::FrostKalkwarfThodos: // five fields shown, the fourth (D) computed
    return Vorgabe(4, {20, static_cast<float>(-12 * Tcr / 1.8), 273.15f, 5, 5}, {1, 1000, 1, 1, 1, 1, 1});
  case fm::DipprDampfdruck: // A, B, D, H, I
    return Vorgabe(5, {20, -1500, -1, 1e-5f, 2}, {1, 1000, 1, 1e-5, 1, 1, 1});
  default: // Wagner
    return Vorgabe(4, {1, 1, 1, 1});
  }
}

} // namespace

ModellVorgabe ModellVorgaben(int16_t modell, bool lg, double Tcr) {
  switch (modell) {
  case fm::Polynom:
    return Vorgabe(6, {1, 1, 1});
  case fm::Kombi:
    return Vorgabe(7, {1, 1, 1});
  case fm::August:
  case fm::Antoine:
  case fm::FrostKalkwarf:
  case fm::FrostKalkwarfThodos:
  case fm::DipprDampfdruck:
  case fm::Wagner:
    return DampfdruckVorgaben(modell, lg, Tcr);
  case fm::Rackett:
    return Vorgabe(3, {75, 0.3f, 0.24f});
  case fm::Leuna:
    return Vorgabe(5, {0, -1, 0.002f, -2e-6f}, {1, 1, 0.001, 1e-6, 1, 1, 1});
  case fm::PolynomDichte:
    return Vorgabe(4, {600, 1, -0.001f, -1e-6f}, {10, 1, 0.001, 1e-6, 1, 1, 1});
  case fm::Majer:
    return Vorgabe(3, {30000}, {1000, 1, 1, 1, 1, 1, 1});
  case fm::DipprHLV:
    return Vorgabe(5, {30000}, {1000, 1, 1, 1, 1, 1, 1});
  case fm::PolynomCp:
    return Vorgabe(5, {20, 0.02f, -1e-5f, -1e-8f}, {1, 1, 1e-5, 1e-8, 1e-11, 1, 1});
  case fm::Shomate:
    return Vorgabe(5, {30, 0.2f, -2e-5f, -1e-8f, -1e6f}, {1, 1, 1e-5, 1e-8, 1e6, 1, 1});
  case fm::DipprCp:
    return Vorgabe(5, {60, 300, 1500, 200, 500});
  default: // the reserved codes; the spline counts its parameters when it is built
    return Vorgabe(0, {});
  }
}

int TcrFeld(int16_t modell) {
  switch (modell) {
  case fm::FrostKalkwarfThodos:
    return 5;
  case fm::Wagner:
    return 4;
  case fm::Rackett:
  case fm::Majer:
    return 3;
  case fm::Leuna:
  case fm::DipprHLV:
    return 5;
  default:
    return -1;
  }
}

int PcrFeld(int16_t modell) {
  return modell == fm::Wagner ? 5 : -1;
}

void ModellWaehlen(FitZustand& z, int16_t modell, bool lg, double Tcr, double pcr) {
  const ModellVorgabe v = ModellVorgaben(modell, lg, Tcr);
  z.FitModell = modell;
  z.FitNPar = v.n;
  z.Lg = lg;
  z.FitStart = v.Start;
  z.FitSkala = v.Skala;
  // The fields show the proposals as text, and the run reads them back from there.
  for (int i = 0; i < FitMaxPar; ++i)
    z.StartFeld[i] = ValVB(SingleText(v.Start[i]));
  if (TcrFeld(modell) >= 0) z.StartFeld[TcrFeld(modell)] = Tcr;
  if (PcrFeld(modell) >= 0) z.StartFeld[PcrFeld(modell)] = pcr;
  z.FitTcr = Tcr;
  z.FitPcr = pcr;
  ErgebnisLoeschen(z);
}

void FitDatenSetzen(FitZustand& z, std::vector<FitPunkt> punkte, int16_t editorCode) {
  z.FitDaten = std::move(punkte);
  z.FitAnzahl = static_cast<int16_t>(z.FitDaten.size());
  z.FitInaktiv = 0;
  for (const FitPunkt& p : z.FitDaten)
    if (p.Flag == FlagInaktiv) ++z.FitInaktiv;
  z.FitEditorCode = editorCode;
  ErgebnisLoeschen(z);
}

// FitStDev stays: a run that an iteration limit ends leaves the previous run's values in it.
void ErgebnisLoeschen(FitZustand& z) {
  z.FitPar = {};
  z.FQS = 0;
  z.sR = 0;
  z.fehler = 0;
  z.Ergebnis = false;
  z.Meldungen.clear();
  z.Spline = AkimaSpline{};
}

} // namespace quor
