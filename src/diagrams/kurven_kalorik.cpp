#include "diagrams/kurven_intern.h"

namespace quor::kurven {

void FunktionUeberT(Lauf&) {}
void FunktionUeberP(Lauf&) {}
void FunktionUeberV(Lauf&) {}
void IsochorFunktion(Lauf&) {}
void SaettigungsFunktion(Lauf&) {}
void SaettigungZweiFunktionen(Lauf&) {}
void HSKurve(Lauf&) {}

} // namespace quor::kurven
