// Feeds arbitrary bytes to the project reader as a .QC6 file. An odd first byte puts a small
// database of two substances (methane, water) in memory first, so that the load can go past the
// database into the substance and the settings. Directory separators are taken out of the input so
// that no name in it reaches a real file. Nothing may crash; a load that succeeds must leave the
// model indices inside their tables, and writing its state and reading it again must give the same
// file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/listen_datei.h"
#include "core/projekt_datei.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "substance/datenbank.h"
#include "substance/datenbank_satz.h"
#include "substance/projekt_laden.h"

namespace {

void Pruefe(bool bedingung) {
  if (!bedingung) std::abort();
}

quor::DatenbankSatz Stoff(int16_t nummer, const char* name, const char* cas, float M, float Tc, float pc,
                          float Tb) {
  quor::DatenbankSatz satz(7);
  satz.SetzeNummer(nummer);
  satz.SetzeText(quor::SatzFeld::NameDeutsch, name);
  satz.SetzeText(quor::SatzFeld::CASRN, cas);
  satz.SetzeZelle(0, M);
  satz.SetzeZelle(6, Tc);
  satz.SetzeZelle(7, pc);
  satz.SetzeZelle(10, Tb);
  return satz;
}

const std::string& Datenbank() {
  static const std::string bytes = quor::DatenbankDatei(
      quor::KopfSatz(7, "01.01.2024", 2), {Stoff(1, "Methan", "74-82-8", 16.043f, 190.56f, 4599, 111.6f),
                                           Stoff(2, "Wasser", "7732-18-5", 18.015f, 647.1f, 22064, 373.15f)});
  return bytes;
}

void PruefeZustand(const quor::ProjectState& s) {
  const quor::ModelSelection& m = s.Modell;
  Pruefe(m.EOSIndex >= 0 && m.EOSIndex <= 16 && m.DampfdruckIndex >= 0 && m.DampfdruckIndex <= 8);
  Pruefe(m.CpIndex >= 0 && m.CpIndex <= 2 && m.HLVIndex >= 0 && m.HLVIndex <= 7);
  Pruefe(s.Einheiten.VolumenMode >= 0 && s.Einheiten.VolumenMode <= 2);
  Pruefe(s.Einheiten.EnergieMode >= 0 && s.Einheiten.EnergieMode <= 3);
  Pruefe(s.Optionen.PunktDichte >= 1 && s.Einheiten.EnergieFaktor > 0);
  Pruefe(s.Projekt.Freigaben.Stoff && !s.Stoff.StoffName.empty());
  Pruefe(quor::IstUtf8(s.Projekt.DateiKommentar) && quor::IstUtf8(s.Projekt.ProjektDatum));
}

// The state written and read into a fresh state gives the same text again.
void PruefeRundlauf(const quor::ProjectState& s) {
  const std::string text = quor::ProjektText(s, "Datum");
  quor::ProjectState neu;
  quor::InitProjectState(neu);
  quor::ListenLeser leser(quor::Utf8ZuWin1252(text));
  quor::ProjektKopf kopf;
  quor::LeseFehler fehler;
  Pruefe(quor::LeseKopfAnfang(leser, kopf, fehler) && quor::LeseKopfRest(leser, kopf, fehler) &&
         quor::LeseEinstellungen(leser, neu, fehler));
  // The texts of the head are taken over: a Windows-1252 comment whose bytes happen to form UTF-8
  // reads back as UTF-8, which no writer can avoid.
  neu.Projekt.DateiKommentar = s.Projekt.DateiKommentar;
  neu.Datenbank = s.Datenbank;
  neu.Mess.ExpAnzahl = kopf.ExpAnzahl;
  neu.Mess.BatchDateiTitel = kopf.BatchDatei;
  neu.Stoff.CASRN = s.Stoff.CASRN;
  // Compared as the file holds them: characters beyond Windows-1252 are '?' on both sides.
  Pruefe(quor::Utf8ZuWin1252(quor::ProjektText(neu, "Datum")) == quor::Utf8ZuWin1252(text));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  for (char& c : bytes)
    if (c == '/' || c == '\\') c = '_';
  quor::ProjectState s;
  quor::InitProjectState(s);
  s.Datenbank.ProgrammVerzeichnis = "/nonexistent-quor-fuzz";
  if ((data[0] & 1) != 0) {
    int16_t failed = 0;
    bool leer = false;
    quor::LadeDatenbankAusBytes(s, 7, "QUOR.Q07", Datenbank(), failed, leer);
    Pruefe(failed == 0 && !leer);
  }
  quor::ui::SkriptOberflaeche ui;
  std::string batch;
  int16_t kind = 0, failed = 0;
  quor::ProjektLadenAusBytes(s, "FUZZ.QC6", bytes, batch, kind, failed, ui);
  Pruefe(quor::IstUtf8(batch));
  if (failed == 0) {
    PruefeZustand(s);
    PruefeRundlauf(s);
  } else {
    Pruefe(!ui.Meldungen().empty()); // every failure is told
  }
  return 0;
}
