#include "diagrams/kurven_intern.h"

namespace quor::kurven {

void KoexistenzPV(Lauf&) {}
void KoexistenzUeberP(Lauf&) {}
void KoexistenzTv(Lauf&) {}
void KoexistenzRhoT(Lauf&) {}
void Durchmesser(Lauf&) {}
void DampfdruckKurve(Lauf&) {}
void VerdampfungsEnthalpie(Lauf&) {}

} // namespace quor::kurven
