#include "substance/datenbank.h"

#include "core/datei_io.h"
#include "core/festtext.h"
#include "dienste/oberflaeche.h"

#include <algorithm>
#include <filesystem>

namespace quor {

namespace {

// NUL counts as a blank; blanks at the right end go.
std::string RechtsGetrimmt(std::string t) {
  for (char& c : t) {
    if (c == '\0') c = ' ';
  }
  const std::size_t ende = t.find_last_not_of(' ');
  t.erase(ende == std::string::npos ? 0 : ende + 1);
  return t;
}

std::string BeidseitigGetrimmt(const std::string& t) {
  const std::string r = RechtsGetrimmt(t);
  return r.substr(std::min(r.size(), r.find_first_not_of(' ')));
}

// The lists of a file whose records are all there.
void BaueListen(DatenbankGruppe& db, int typ, const std::string& bytes, int16_t anzahl, bool englisch) {
  const int laenge = SatzLaenge(typ);
  db.StoffAnzahl = anzahl;
  db.MDBNummern.assign(anzahl + 1, 0);
  db.FormelListe.assign(anzahl + 1, "");
  db.NamenListe.assign(anzahl + 1, "");
  db.CASListe.assign(anzahl + 1, "");
  for (int k = 1; k <= anzahl; ++k) {
    const DatenbankSatz satz(typ,
                             std::string_view(bytes).substr(static_cast<std::size_t>(k) * laenge, laenge));
    db.MDBNummern[k] = satz.Nummer();
    db.FormelListe[k] = RechtsGetrimmt(FestText(satz.Text(SatzFeld::Formel), 12));
    db.NamenListe[k] =
        BeidseitigGetrimmt(satz.Text(englisch ? SatzFeld::NameEnglisch : SatzFeld::NameDeutsch));
    db.CASListe[k] = RechtsGetrimmt(satz.Text(SatzFeld::CASRN));
  }
}

std::string AktuellesVerzeichnis() {
  std::error_code fehler;
  const std::filesystem::path p = std::filesystem::current_path(fehler);
  return fehler ? std::string() : p.u8string();
}

} // namespace

std::string PfadImProgrammVerzeichnis(const ProjectState& s, const std::string& pfad) {
  if (pfad.find('/') != std::string::npos || pfad.find('\\') != std::string::npos) return pfad;
  const std::string& dir = s.Datenbank.ProgrammVerzeichnis;
  if (dir.empty()) return pfad;
  return dir.back() == '/' ? dir + pfad : dir + "/" + pfad;
}

bool DateiVorhanden(const ProjectState& s, const std::string& pfad) {
  if (pfad.empty()) return false;
  return DateiExistiert(PfadImProgrammVerzeichnis(s, pfad));
}

void LadeDatenbank(ProjectState& s, int typ, const std::string& pfad, int16_t& failed, bool& leer) {
  failed = 0;
  leer = false;
  std::string bytes;
  if (!DateiVorhanden(s, pfad) || !LeseDateiBytes(PfadImProgrammVerzeichnis(s, pfad), bytes)) {
    failed = -1;
    return;
  }
  LadeDatenbankAusBytes(s, typ, pfad, bytes, failed, leer);
}

void LadeDatenbankAusBytes(ProjectState& s, int typ, const std::string& pfad, const std::string& bytes,
                           int16_t& failed, bool& leer) {
  failed = 0;
  leer = false;
  typ = typ == 6 ? 6 : 7;
  const std::size_t laenge = SatzLaenge(typ);
  if (bytes.size() < laenge) {
    failed = -1;
    return;
  }
  const int16_t kopf = DatenbankSatz(typ, std::string_view(bytes).substr(0, laenge)).Nummer();
  if (kopf < 1) {
    leer = true;
    return;
  }
  // The complete records count, whatever the header says.
  const std::size_t vollstaendig = bytes.size() / laenge - 1;
  const auto anzahl = static_cast<int16_t>(std::min<std::size_t>(static_cast<std::size_t>(kopf), vollstaendig));
  if (anzahl < 1) {
    failed = -1;
    return;
  }
  DatenbankGruppe& db = s.Datenbank;
  BaueListen(db, typ, bytes, anzahl, db.EnglischeOberflaeche);
  db.KopfAnzahl = kopf;
  db.Saetze.assign(bytes, 0, (static_cast<std::size_t>(anzahl) + 1) * laenge);
  db.DatenbankTyp = static_cast<int16_t>(typ);
  (typ == 6 ? db.PfadQ06 : db.PfadQ07) = pfad;
  db.DatenbankGeladen = true;
}

void MeldeUnvollstaendig(const ProjectState& s, const std::string& pfad, ui::Oberflaeche& ui) {
  const DatenbankGruppe& db = s.Datenbank;
  if (db.KopfAnzahl <= db.StoffAnzahl) return;
  ui.Meldung("Die Datenbank " + pfad + " ist unvollständig:\r\nihr Kopfsatz nennt " +
                 std::to_string(db.KopfAnzahl) + " Stoffe, vollständig enthalten sind " +
                 std::to_string(db.StoffAnzahl) + ".\r\nDiese " + std::to_string(db.StoffAnzahl) +
                 " Stoffe stehen zur Wahl.",
             "Hinweis", ui::Symbol::Information);
}

bool DatenbankOeffnen(ProjectState& s, int typ, const std::string& pfad, ui::Oberflaeche& ui) {
  int16_t failed = 0;
  bool leer = false;
  const bool vorher = s.Datenbank.DatenbankGeladen;
  LadeDatenbank(s, typ, pfad, failed, leer);
  if (failed == 0 && !leer) {
    MeldeUnvollstaendig(s, pfad, ui);
    return true;
  }
  if (vorher) {
    ui.Meldung("Datenbank " + pfad +
                   " im QUOR-Verzeichnis nicht gefunden bzw. leer.\r\n"
                   "Bereits geladene Datenbank wird weiter verwendet.",
               "Warnung", ui::Symbol::Ausruf);
  } else {
    ui.Meldung("Datenbank " + pfad + " nicht gefunden bzw. leer", "Ausführung nicht möglich",
               ui::Symbol::Kritisch);
  }
  return false;
}

void WaehleDatenbank(ProjectState& s, int typ, bool& cancelled, ui::Oberflaeche& ui) {
  const std::string endung = typ == 6 ? "Q06" : "Q07";
  ui::DateiDialog dialog;
  dialog.filter = "Datenbank (*." + endung + "|*." + endung;
  dialog.standardEndung = "." + endung;
  dialog.dateiName = "*." + endung;
  dialog.startVerzeichnis = AktuellesVerzeichnis();
  dialog.titel = "Datenbank *." + endung + " laden (" + dialog.startVerzeichnis + ")";
  const std::optional<std::string> pfad = ui.DateiOeffnen(dialog);
  cancelled = !pfad || pfad->empty();
  if (cancelled) return;
  DatenbankOeffnen(s, typ, *pfad, ui);
}

bool LeseStoffSatz(const ProjectState& s, int index, DatenbankSatz& satz) {
  const DatenbankGruppe& db = s.Datenbank;
  if (index < 1 || index > db.StoffAnzahl) return false;
  const std::size_t laenge = SatzLaenge(db.DatenbankTyp);
  const std::size_t anfang = static_cast<std::size_t>(index) * laenge;
  if (db.Saetze.size() < anfang + laenge) return false;
  satz = DatenbankSatz(db.DatenbankTyp, std::string_view(db.Saetze).substr(anfang, laenge));
  return true;
}

} // namespace quor
