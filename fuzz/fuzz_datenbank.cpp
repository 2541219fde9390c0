// Feeds arbitrary bytes to the database reader as a .Q07 or .Q06 file (the first byte chooses the
// kind), loads every substance it lists, runs the correlations on what came out, and writes each
// record back. Nothing may crash, hang, or hand a non-finite number to the caller.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/text_kodierung.h"
#include "engine/korrelationen.h"
#include "substance/datenbank.h"
#include "substance/datenbank_schreiben.h"
#include "substance/korrelierte_parameter.h"
#include "substance/stoff_laden.h"

namespace {

void Pruefe(bool bedingung) {
  if (!bedingung) std::abort();
}

void PruefeZahl(double x) {
  Pruefe(std::isfinite(x));
}

// Every correlation at a few temperatures around the substance's own points.
void Korrelationen(quor::ProjectState& s) {
  const quor::StoffGruppe& st = s.Stoff;
  for (int index = 5; index <= 8; ++index)
    quor::KorrelierteParameter(s, index, st.TKrit, st.pKrit, st.TSiede);
  const double temperaturen[] = {st.TSiede, 0.7 * st.TKrit, st.TKrit, 300.0};
  int16_t failed = 0;
  for (double T : temperaturen) {
    for (int index = 0; index <= 8; ++index) {
      const double p = quor::pLV(s, T, index, false, failed);
      PruefeZahl(p);
      PruefeZahl(quor::TLV(s, p > 0 ? p : 101.325, index, false, failed));
      PruefeZahl(quor::DLnpDInvT(s, T, index, failed));
    }
    PruefeZahl(quor::RhoL(s, T, false, failed));
    PruefeZahl(quor::RhoS(s, T, false, failed));
    PruefeZahl(quor::HLVFu(s, T, failed));
    PruefeZahl(quor::CpIdG(s, T, 1) + quor::CpIdG(s, T, 2) + quor::CpL(s, T) + quor::CpS(s, T));
    for (int methode = 1; methode <= 4; ++methode) {
      double TT = T, p = 0;
      quor::HLVErgebnis erg;
      PruefeZahl(quor::HLVBerechnen(s, methode, TT, p, 3, false, erg, failed));
      PruefeZahl(TT);
      PruefeZahl(p);
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  const int typ = (data[0] & 1) != 0 ? 6 : 7;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  quor::ProjectState s;
  quor::InitProjectState(s);
  int16_t failed = 0;
  bool leer = false;
  quor::LadeDatenbankAusBytes(s, typ, "FUZZ", bytes, failed, leer);
  if (failed != 0 || leer) {
    Pruefe(s.Datenbank.StoffAnzahl == 0 && !s.Datenbank.DatenbankGeladen);
    return 0;
  }
  const quor::DatenbankGruppe& db = s.Datenbank;
  Pruefe(db.StoffAnzahl >= 1 && db.NamenListe.size() == static_cast<std::size_t>(db.StoffAnzahl) + 1);
  Pruefe(db.StoffAnzahl <= db.KopfAnzahl && db.Saetze.size() <= bytes.size()); // complete records only
  for (int k = 1; k <= db.StoffAnzahl && k <= 20; ++k) {
    Pruefe(quor::IstUtf8(db.NamenListe[k]) && quor::IstUtf8(db.FormelListe[k]) &&
           quor::IstUtf8(db.CASListe[k]));
    quor::LadeStoff(s, k, failed);
    Pruefe(quor::IstUtf8(s.Stoff.StoffName) && quor::IstUtf8(s.Stoff.Struktur));
    PruefeZahl(s.Stoff.AugustA + s.Stoff.AugustB + s.Stoff.vKritExp + s.Stoff.DeltaFs);
    Korrelationen(s);

    // A record written back keeps every byte that the program doesn't hold.
    quor::DatenbankSatz satz(typ);
    Pruefe(quor::LeseStoffSatz(s, k, satz));
    const quor::DatenbankSatz alt = satz;
    quor::StoffInSatz(s, satz);
    Pruefe(satz.Bytes().size() == alt.Bytes().size());
    Pruefe(satz.Nummer() == alt.Nummer());
    for (int zelle : {1, 11, 12, 23, 47, 88, 89, 92, 94, 95, 107, 108, 117, 140}) {
      const float a = alt.Zelle(zelle), b = satz.Zelle(zelle);
      Pruefe(a == b || (std::isnan(a) && std::isnan(b)));
    }
  }
  return 0;
}
