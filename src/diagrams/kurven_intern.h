// Shared by the branches of the curve engine: the run of one request with its spacing, its unit
// factors and the list it fills, and the branch functions the dispatcher calls by code.
#pragma once

#include "diagrams/kurven.h"

#include <string>

namespace quor::kurven {

class Lauf {
public:
  Lauf(ProjectState& s, ui::Oberflaeche& ui, const DiagrammAuftrag& a, double T, double p, double v,
       Kurvenpunkte& punkte);

  ProjectState& s;
  ui::Oberflaeche& ui;
  const DiagrammAuftrag& a;
  double T, p, v;        // the curve's parameters, engine units
  double dx = 0, dy = 0; // spacing: axis span / PunktDichte, displayed units
  int16_t ergebnis = kurve::Fertig;
  std::string meldung;
  bool imBereich = false;
  bool koexistenzErreicht = false; // an isochor was cut where it meets the coexistence curve

  // Unit factors of the display.
  double VF() const { return s.Einheiten.VolumenFaktor; }
  double PF() const { return s.Einheiten.pFaktor; }
  double TF() const { return s.Einheiten.TFaktor; }
  double EF() const { return s.Einheiten.EnergieFaktor; }
  // The energy factor at temperature T: mode 2 (per R*T) takes the point's own T.
  double EFbeiT(double T) const;

  bool Virial() const { return s.Modell.VirialFlag; }

  // Appends a point (displayed units; Z in engine units) and tests it against the axes. Values that
  // are not finite are dropped.
  void Punkt(double x, double y, double z);
  std::size_t Anzahl() const { return punkte_.size() - 1; }
  Kurvenpunkte& Punkte() { return punkte_; }
  // The head: the count and the mark.
  void Kopf(float markierung);

private:
  Kurvenpunkte& punkte_;
};

// --- branches, by the code's family; each writes its points and its head ---
// p, v, T sections (kurven_pvt.cpp)
void IsothermePV(Lauf& l);        // 1
void IsothermePvProdukt(Lauf& l); // 2, 26
void IsobareTv(Lauf& l);          // 3, 4
void IsochorePT(Lauf& l);         // 5
// coexistence region (kurven_koexistenz.cpp; vapour pressure and delta(LV)h in kurven_dampfdruck.cpp)
void KoexistenzPV(Lauf& l);       // 6
void KoexistenzUeberP(Lauf& l);   // 27, 106
void KoexistenzTv(Lauf& l);       // 7, 12
void KoexistenzRhoT(Lauf& l);     // 8
void Durchmesser(Lauf& l);        // 80
void DampfdruckKurve(Lauf& l);    // 9, 10, 11
void VerdampfungsEnthalpie(Lauf& l); // 13
// caloric functions (kurven_kalorik.cpp)
void FunktionUeberT(Lauf& l);      // 14 to 20, 25, 30 to 34 at p
void FunktionUeberP(Lauf& l);      // 148 to 155, 40 to 43 at T
void FunktionUeberV(Lauf& l);      // 156 to 160 at T
void IsochorFunktion(Lauf& l);     // 180 to 185 at v
void SaettigungsFunktion(Lauf& l); // 68 to 75, 88, 90 to 95, 98, 99
void SaettigungZweiFunktionen(Lauf& l); // 89, 97, 100 to 102
void HSKurve(Lauf& l);             // 21 to 24, 107, 109 and the saturation lines 96, 120, 121
// inversion and database functions (kurven_inversion.cpp, kurven_datenbank.cpp)
void InversionPT(Lauf& l);  // 105
void InversionPv(Lauf& l);  // 190
void Datenbankfunktion(Lauf& l); // 300 to 315
// process lines (filled by the process lines)
void Prozesslinie(Lauf& l); // 201 to 211

} // namespace quor::kurven
