#include "cli/sitzung.h"

#include "calc/frm_referenz.h"
#include "cli/fehler.h"
#include "core/festtext.h"
#include "core/programm_verzeichnis.h"
#include "dienste/kind_prozess.h"
#include "engine/eos_parameter.h"
#include "engine/eos_zeilen.h"
#include "substance/b_par_input.h"
#include "substance/datenbank.h"
#include "substance/modell_wahl.h"
#include "substance/stoff_wahl.h"
#include "substance/stoff_wahl_suche.h"

#include <cstdlib>
#include <filesystem>

namespace quor::cli {

namespace fs = std::filesystem;

namespace {

bool EndetAufQ06(const std::string& pfad) {
  if (pfad.size() < 4) return false;
  std::string endung = pfad.substr(pfad.size() - 4);
  for (char& c : endung)
    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return endung == ".Q06";
}

// "--eos 6 (CEOS Peng / Robinson) is not offered for Wasser ...; offered: 0 ..., 2 ..."
template <std::size_t N>
CliFehler NichtAngeboten(const char* option, int index, const std::array<std::string, N>& namen,
                         const ModellListe& liste, const std::string& stoff) {
  std::string text = std::string(option) + " " + std::to_string(index);
  if (index >= 0 && static_cast<std::size_t>(index) < N && !ZeilenText(namen[index]).empty())
    text += " (" + ZeilenText(namen[index]) + ")";
  text += " is not offered for " + stoff + ": the substance's data don't allow it. Offered:";
  for (std::size_t i = 0; i < liste.Index.size(); ++i)
    text +=
        std::string(i == 0 ? " " : ", ") + std::to_string(liste.Index[i]) + " " + ZeilenText(liste.Texte[i]);
  return Eingabefehler(text);
}

} // namespace

std::string AbsoluterPfad(const std::string& pfad) {
  std::error_code fehler;
  const fs::path p = fs::absolute(fs::u8path(pfad), fehler);
  return fehler ? pfad : p.lexically_normal().u8string();
}

std::string ZeilenText(const std::string& zeile) {
  return Trim(zeile);
}

Sitzung::Sitzung(const Aufruf& a) : aufruf(a) {
  ui.prozessAusfuehren = ui::StarteKindProzess;
  s.Datenbank.ProgrammVerzeichnis = ProgrammVerzeichnisEinrichten(ExeVerzeichnis(), BenutzerVerzeichnis());
  ui::Oberflaeche& dienst = ui;
  InitProjectState(s, [&dienst](ProjectState& z) {
    int16_t fehler = 0;
    EOSParameterSetup(z, dienst, z.Modell.EOSIndex, fehler);
  });
}

void Sitzung::DatenbankOeffnen() {
  const std::string pfad = aufruf.Datenbank.empty()
                               ? (fs::u8path(s.Datenbank.ProgrammVerzeichnis) / "QUOR.Q07").u8string()
                               : AbsoluterPfad(aufruf.Datenbank);
  const int typ = EndetAufQ06(pfad) ? 6 : 7;
  if (!quor::DatenbankOeffnen(s, typ, pfad, ui))
    throw Eingabefehler("the database " + pfad + " cannot be opened");
}

void Sitzung::StoffUndModelle() {
  StoffWaehlen();
  ModelleWaehlen();
  EinheitenSetzen();
  ReferenzSetzen();
}

void Sitzung::StoffWaehlen() {
  const std::string text = Trim(aufruf.Stoff);
  if (text.empty()) throw Eingabefehler("command " + aufruf.Befehl + " needs --substance");
  frmQStoffWahl wahl(s, ui);
  if (!wahl.Form_Load()) throw Eingabefehler("no substance in the database");
  if (text[0] == '#') {
    const std::string nummer = Trim(text.substr(1));
    const bool ziffern =
        !nummer.empty() && nummer.size() <= 5 && nummer.find_first_not_of("0123456789") == std::string::npos;
    const int16_t position = ziffern ? IndexVonMDBNr(s, std::stoi(nummer)) : int16_t{0};
    if (position < 1) throw Eingabefehler("no substance with the system number " + text);
    wahl.List1_Click(position - 1);
    wahl.NameCombo.clear(); // the row's number decides, not its name
  } else {
    wahl.NameCombo = text;
  }
  if (wahl.StoffOK_Click() != StoffWahlAktion::ModellFenster)
    throw Eingabefehler("substance not found: " + text);
}

void Sitzung::ModelleWaehlen() {
  const Aufruf& a = aufruf;
  ModelSelection& m = s.Modell;
  const std::string& stoff = s.Stoff.StoffName;
  frmQModell fenster(s, ui);
  if (!fenster.Form_Load().Getestet) throw Eingabefehler("the models of " + stoff + " cannot be set up");
  auto geprueft = [&](const ModellAktionen& aktion, const char* option) {
    if (!aktion.Getestet) throw Eingabefehler("the model set-up failed (" + std::string(option) + ")");
  };

  if (a.EOS) {
    const int eintrag = fenster.EOS.Position(static_cast<int16_t>(*a.EOS));
    if (eintrag < 0) throw NichtAngeboten("--eos", *a.EOS, s.Tab.EOSNamen, fenster.EOS, stoff);
    const ModellAktionen aktion = fenster.EOSListe_Click(eintrag);
    if (aktion.BParInputOeffnen) {
      frmBParInput eingabe(s);
      eingabe.Form_Load();
      for (std::size_t i = 0; i < 3; ++i)
        if (a.Virial[i]) eingabe.par[i] = *a.Virial[i];
      eingabe.cmdParameter_OK();
    }
    geprueft(aktion, "--eos");
  }
  for (const auto& b : a.Virial)
    if (b && m.EOSIndex != eos::VirialHand)
      throw Eingabefehler("--virial-b0/b1/b2 need the hand-input virial model (--eos 10)");

  if (a.Dampfdruck) {
    const int eintrag = fenster.Dampfdruck.Position(static_cast<int16_t>(*a.Dampfdruck));
    if (eintrag < 0)
      throw NichtAngeboten("--vapour-pressure", *a.Dampfdruck, s.Tab.DampfdruckNamen, fenster.Dampfdruck,
                           stoff);
    geprueft(fenster.DampfdruckListe_Click(eintrag), "--vapour-pressure");
  }
  if (a.HLV) {
    const int eintrag = fenster.HLV.Position(static_cast<int16_t>(*a.HLV));
    if (eintrag < 0) throw NichtAngeboten("--hlv", *a.HLV, s.Tab.HLVNamen, fenster.HLV, stoff);
    geprueft(fenster.HLVListe_Click(eintrag), "--hlv");
  }
  if (a.Cp) {
    const int eintrag = fenster.Cp.Position(static_cast<int16_t>(*a.Cp));
    if (eintrag < 0) throw NichtAngeboten("--cp", *a.Cp, s.Tab.CpNamen, fenster.Cp, stoff);
    geprueft(fenster.CpListe_Click(eintrag), "--cp");
  }
  if (a.Watson) {
    if (m.HLVIndex != 4) throw Eingabefehler("--watson needs the Watson correlation (--hlv 4)");
    fenster.WatsonListe_Change(*a.Watson);
  }

  if (a.KonzeptGlobal) {
    if (*a.KonzeptGlobal && m.VirialFlag)
      throw Eingabefehler(
          "GLOBAL-Berechnung ist nur mit einer kubischen EOS möglich (=> Fenster \"Modelle\").");
    if (!m.VirialFlag) geprueft(fenster.optKonzept_Click(*a.KonzeptGlobal ? 0 : 1), "--concept");
  }
  m.RechnungGlobal = m.KonzeptGlobal;

  if (a.BensonDichte) {
    const TGrenzen& g = s.Stoff.RhoLGrenzen;
    if (!*a.BensonDichte && (g.TLo < 1e-6 || g.THi < 1e-6))
      throw Eingabefehler("--liquid-density database: (keine Datenbank-Funktion verfügbar.)");
    m.BensonDichte = *a.BensonDichte;
  }
}

// The preset parameters take the critical values, as at the start of a project, and the units
// follow the modes of the command line.
void Sitzung::EinheitenSetzen() {
  EinheitenGruppe& e = s.Einheiten;
  if (e.TVorgabe == 0) e.TVorgabe = static_cast<float>(s.Stoff.TKrit);
  if (e.pVorgabe == 0) e.pVorgabe = static_cast<float>(s.Stoff.pKrit);
  if (e.vVorgabe == 0 && s.EOS.vKritEOS > 0) e.vVorgabe = static_cast<float>(s.EOS.vKritEOS);
  if (aufruf.EnergieMode) e.EnergieMode = static_cast<int16_t>(*aufruf.EnergieMode);
  if (aufruf.VolumenMode) {
    if (*aufruf.VolumenMode == 2 && !(s.Stoff.TKrit > 0))
      throw Eingabefehler("Für diesen Stoff fehlt die kritische Temperatur.");
    e.VolumenMode = static_cast<int16_t>(*aufruf.VolumenMode);
    SetzeEinheiten(s, ui);
  }
}

void Sitzung::ReferenzSetzen() {
  const Aufruf& a = aufruf;
  bool gegeben = a.RefArt.has_value();
  for (const auto& feld : a.Referenz)
    gegeben = gegeben || feld.has_value();
  if (!gegeben) return;
  frmReferenz fenster(s, ui);
  fenster.Form_Load();
  if (a.RefArt) {
    const int option = *a.RefArt == 1 ? 0 : (*a.RefArt == 10 ? 1 : 2);
    if (!fenster.opt_HNull_Enabled[option])
      throw Eingabefehler("--reference " + std::to_string(*a.RefArt) + " is not possible for " +
                          s.Stoff.StoffName + ": its formation data are missing");
    fenster.opt_HNull_Click(option);
  }
  const char* const namen[6] = {"--h-ref", "--s-ref", "--T-ref", "--p-ref", "--T-env", "--p-env"};
  for (std::size_t i = 0; i < 6; ++i) {
    if (!a.Referenz[i]) continue;
    if (!fenster.T_Enabled[i])
      throw Eingabefehler(std::string(namen[i]) + " can only be given with --reference 1");
    fenster.T[i] = *a.Referenz[i];
  }
  fenster.OK_Click();
}

} // namespace quor::cli
