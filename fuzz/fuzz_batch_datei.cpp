// Feeds arbitrary bytes to the reader of measured-data files (.BAQ). The first byte chooses the
// setting: bit 0 a loaded substance (water of a database of two), bit 1 an append to two rows held.
// The questions are answered with their default, yes. Nothing may crash; a refused file leaves no
// rows and is told; a file taken gives active rows only, and writing them and reading the text again
// gives the same rows.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/project_state.h"
#include "core/text_kodierung.h"
#include "dienste/skript_oberflaeche.h"
#include "fitting/batch_datei.h"

namespace {

void Pruefe(bool bedingung) {
  if (!bedingung) std::abort();
}

quor::ProjectState Zustand(bool stoff, bool zeilen) {
  quor::ProjectState s;
  quor::InitProjectState(s);
  quor::DatenbankGruppe& db = s.Datenbank;
  db.StoffAnzahl = 2;
  db.NamenListe = {"", "Methan", "Wasser"};
  db.CASListe = {"", "74-82-8", "7732-18-5"};
  if (stoff) {
    db.StoffIndex = 2;
    s.Stoff.StoffName = "Wasser";
    s.Stoff.CASRN = "7732-18-5";
  }
  if (zeilen) {
    quor::ExpDatenSatz z;
    z.T = 300;
    z.p = 3.5;
    s.Mess.ExpDaten.assign(3, z);
    s.Mess.ExpAnzahl = 2;
  }
  return s;
}

bool GleicheZeilen(const quor::MessdatenGruppe& a, const quor::MessdatenGruppe& b) {
  if (a.ExpAnzahl != b.ExpAnzahl) return false;
  for (int i = 1; i <= a.ExpAnzahl; ++i) {
    const quor::ExpDatenSatz& x = a.ExpDaten[static_cast<std::size_t>(i)];
    const quor::ExpDatenSatz& y = b.ExpDaten[static_cast<std::size_t>(i)];
    if (x.T != y.T || x.p != y.p || x.RhoL != y.RhoL || x.RhoV != y.RhoV || x.HLV != y.HLV || x.Cp != y.Cp)
      return false;
  }
  return true;
}

void PruefeGeladen(const quor::ProjectState& s) {
  const quor::MessdatenGruppe& m = s.Mess;
  Pruefe(m.ExpAnzahl >= 0 && m.ExpDaten.size() == static_cast<std::size_t>(m.ExpAnzahl) + 1);
  for (int i = 1; i <= m.ExpAnzahl; ++i)
    Pruefe(!m.ExpDaten[static_cast<std::size_t>(i)].Inaktiv);
  Pruefe(quor::IstUtf8(m.BatchDatum) && quor::IstUtf8(m.BatchKommentar) && quor::IstUtf8(m.BatchStoff) &&
         quor::IstUtf8(m.BatchCAS));
  // What the writer makes of the rows reads back to the same rows.
  quor::ProjectState neu = Zustand(true, false);
  quor::ui::SkriptOberflaeche ui;
  const std::string text = quor::Utf8ZuWin1252(quor::BatchText(s, "Datum"));
  Pruefe(quor::LadeBatchDateiAusBytes(neu, ui, "RUNDLAUF.BAQ", text, false) || m.ExpAnzahl == 0);
  if (m.ExpAnzahl > 0) Pruefe(GleicheZeilen(m, neu.Mess));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 1) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const bool anfuegen = (data[0] & 2) != 0;
  quor::ProjectState s = Zustand((data[0] & 1) != 0, anfuegen);
  quor::ui::SkriptOberflaeche ui;
  if (quor::LadeBatchDateiAusBytes(s, ui, "FUZZ.BAQ", bytes, anfuegen)) {
    Pruefe(s.Mess.ExpAnzahl >= (anfuegen ? 2 : 0));
    PruefeGeladen(s);
  } else {
    Pruefe(!ui.Meldungen().empty()); // a refusal is always told
    const quor::ui::Aufzeichnung m = ui.Meldungen().back();
    if (m.titel == "Message from Sub LadeBatchFile")
      Pruefe(s.Mess.ExpAnzahl == 0 && s.Mess.ExpDaten.size() == 1);
  }
  return 0;
}
