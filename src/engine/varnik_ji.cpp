#include "engine/varnik_ji.h"

#include "core/datei_io.h"
#include "core/listen_datei.h"
#include "core/zahlformat.h"
#include "engine/eos_zeilen.h"

#include <charconv>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quor {

const char* const JiEingabeDatei = "jipar.tmp";
const char* const JiProgramm = "cubpar";

namespace {

const char* const TitelNichtMoeglich = "Ausführung nicht möglich";
const char* const ZahlMuster = ".00000000E+00";
const char* const NullFeld = "0.00000000E+00";    // filler of a block shorter than its line
constexpr std::size_t DampfdruckZeileLaenge = 12; // the longest block: Wagner, ten values and two limits
constexpr int WartenMs = 100000;

// One value of lines 4 to 7. FormatVB always writes a point, so a decimal comma of the locale
// never reaches the file.
std::string Zahl(double x) {
  return FormatVB(x, ZahlMuster);
}

// A single value by its own shortest decimal digits (273.15, not the 273.149994 of its binary
// widening); read back into single precision they give the same value in all but rare cases.
std::string Zahl(float x) {
  char text[32];
  const auto ende = std::to_chars(text, text + sizeof text, x).ptr;
  double wert = 0;
  std::from_chars(text, ende, wert);
  return Zahl(wert);
}

std::string Zahl(int16_t x) {
  return Zahl(static_cast<double>(x));
}

class Zeile {
public:
  template <typename T> Zeile& operator<<(T x) {
    felder_.push_back(Zahl(x));
    return *this;
  }
  Zeile& operator<<(const TGrenzen& g) { return *this << g.TLo << g.THi; }
  template <typename T, std::size_t N> Zeile& operator<<(const std::array<T, N>& werte) {
    for (const T& w : werte)
      *this << w;
    return *this;
  }
  void Auffuellen(std::size_t laenge) {
    while (felder_.size() < laenge)
      felder_.push_back(NullFeld);
  }
  std::string Text() const {
    std::string t;
    for (std::size_t i = 0; i < felder_.size(); ++i)
      t += (i > 0 ? ", " : "") + felder_[i];
    return t;
  }

private:
  std::vector<std::string> felder_;
};

// A Frost/Kalkwarf set computed for the correlations: C is stored without the 273.15 that the
// database form carries, so it gets it here; the six others stand as they are.
void KorrelierterFKBlock(Zeile& z, const std::array<float, 9>& k, const StoffGruppe& st) {
  z << k[0] << k[1] << static_cast<double>(k[2]) + 273.15;
  for (std::size_t i = 3; i < k.size(); ++i)
    z << k[i];
  z << st.TTripel << st.TKrit;
}

// Line 6: the block of the chosen vapour-pressure equation; empty (all fillers) for a tag without one.
std::string DampfdruckZeile(const ProjectState& s) {
  const StoffGruppe& st = s.Stoff;
  const std::string& tag = s.Modell.DampfdruckTag;
  Zeile z;
  if (tag == "AHP") {
    z << st.AntoineHd << st.AntoineHdGrenzen;
  } else if (tag == "AUG") {
    z << st.AugustA << -st.AugustB << st.TSiede << st.TKrit;
  } else if (tag == "FRO") {
    z << st.FrostKalkwarf << st.FrostKalkwarfGrenzen;
  } else if (tag == "KFR") {
    KorrelierterFKBlock(z, st.KFR, st);
  } else if (tag == "KFW") {
    KorrelierterFKBlock(z, st.KFW, st);
  } else if (tag == "WAG") {
    z << st.Wagner << st.WagnerGrenzen;
  } else if (tag == "THO") {
    z << st.THO << st.TTripel << st.TSiede;
  }
  z.Auffuellen(DampfdruckZeileLaenge);
  return z.Text();
}

int16_t JiModell(const ProjectState& s) {
  return s.Modell.EOSIndex == eos::VarnikJi2 ? eos::VarnikJi2 : eos::VarnikJi1;
}

std::string CAS12(const std::string& cas) {
  std::string t = cas.substr(0, 12);
  t.resize(12, ' ');
  return t;
}

// Deletes a file; false when it is still there afterwards.
bool Loesche(const std::string& pfad) {
  std::error_code ec;
  std::filesystem::remove(pfad, ec);
  return !DateiExistiert(pfad);
}

void MeldeLesefehler(ui::Oberflaeche& ui, const std::string& grund, int16_t& err) {
  ui.Meldung("Meldung von Sub Daten_Ji\r\n" + grund, "Fehler", ui::Symbol::Kritisch);
  err = 1;
}

} // namespace

std::string JiParameterDateiName(int16_t EOSIndex) {
  return EOSIndex == eos::VarnikJi2 ? "PARA_JI2.DAT" : "PARAM_JI.DAT";
}

std::string JiPfad(const ProjectState& s, const std::string& name) {
  const std::string& verzeichnis = s.Datenbank.ProgrammVerzeichnis;
  if (verzeichnis.empty() || name.find_first_of("/\\") != std::string::npos) return name;
  return verzeichnis.back() == '/' ? verzeichnis + name : verzeichnis + "/" + name;
}

void JiBlockCodes(const std::string& DampfdruckTag, int16_t& code1, int16_t& code2) {
  code1 = 0;
  code2 = 0;
  const std::string& t = DampfdruckTag;
  if (t == "AHP") {
    code2 = 1;
  } else if (t == "FRO" || t == "KFR" || t == "KFW") {
    code2 = 2;
  } else if (t == "AUG") {
    code1 = 1;
    code2 = 1;
  } else if (t == "WAG") {
    code1 = 1;
    code2 = 3;
  }
}

std::string JiParDateiBytes(const ProjectState& s) {
  const StoffGruppe& st = s.Stoff;
  ListenSchreiber w;
  w.Ganz(JiModell(s) == eos::VarnikJi2 ? 11 : 10);
  w.ZeileEnde();
  w.Text(CAS12(st.CASRN));
  w.ZeileEnde();
  int16_t code1 = 0, code2 = 0;
  JiBlockCodes(s.Modell.DampfdruckTag, code1, code2);
  w.Ganz(code1);
  w.Ganz(code2);
  w.ZeileEnde();

  Zeile kritisch;
  kritisch << st.MolMasse << st.RhoLTcr << st.TKrit << st.pKrit << st.rhoKritExp << st.omega;
  Zeile dichte;
  dichte << st.RhoL << st.RhoLGrenzen;
  Zeile antoine;
  antoine << st.AntoineNd << st.AntoineNdGrenzen;
  antoine.Auffuellen(DampfdruckZeileLaenge);
  for (const std::string& zeile : {kritisch.Text(), dichte.Text(), DampfdruckZeile(s), antoine.Text()}) {
    w.Roh(zeile);
    w.ZeileEnde();
  }
  return w.Bytes();
}

void JiParameterBerechnen(ProjectState& s, ui::Oberflaeche& ui, int16_t& err) {
  err = 0;
  const bool eingabeDa = SchreibeDateiBytes(JiPfad(s, JiEingabeDatei), JiParDateiBytes(s));
  // An old result must never pass for a new one; one that cannot be removed ends the exchange.
  if (!Loesche(JiPfad(s, JiParameterDateiName(JiModell(s))))) {
    ui.Meldung("Kein Parameterfile erzeugt.", TitelNichtMoeglich, ui::Symbol::Ausruf);
    err = 1;
    return;
  }
  // Without its input the program isn't run; the loading then reports the missing result.
  if (eingabeDa) {
    ui::ProzessAuftrag auftrag;
    auftrag.programm = JiPfad(s, JiProgramm);
    auftrag.arbeitsVerzeichnis = s.Datenbank.ProgrammVerzeichnis;
    auftrag.versteckt = true;
    auftrag.wartenMs = WartenMs;
    ui.StarteProzess(auftrag); // whether it ended in time shows in the parameter file alone
  }
  JiParameterLaden(s, ui, err);
}

void JiParameterLaden(ProjectState& s, ui::Oberflaeche& ui, int16_t& err) {
  const std::string datei = JiParameterDateiName(JiModell(s));
  if (!DateiExistiert(JiPfad(s, datei))) {
    ui.Meldung("Kein Parameterfile erzeugt.", TitelNichtMoeglich, ui::Symbol::Ausruf);
    err = 1;
    return;
  }
  Daten_Ji(s, ui, datei, s.EOS.JiParameter, err);
}

void Daten_Ji(const ProjectState& s, ui::Oberflaeche& ui, const std::string& fileName,
              std::array<double, 9>& JiParameter, int16_t& err) {
  err = 0;
  std::string bytes;
  if (!LeseDateiBytes(JiPfad(s, fileName), bytes)) {
    MeldeLesefehler(ui, "Fehler beim Zugriff auf Pfad/Datei", err);
    return;
  }
  // Leading number, unused value, JiM, JiN, JiP, JiZc [, JiB2].
  const std::size_t anzahl = JiModell(s) == eos::VarnikJi2 ? 7 : 6;
  std::array<double, 7> w{};
  ListenLeser leser(bytes);
  for (std::size_t i = 0; i < anzahl; ++i) {
    if (leser.AmEnde()) {
      MeldeLesefehler(ui, "Einlesen hinter Dateiende", err);
      return;
    }
    if (!leser.LeseDouble(w[i])) {
      MeldeLesefehler(ui, "Typen unverträglich", err);
      return;
    }
  }
  JiParameter[JiM] = w[2];
  JiParameter[JiN] = w[3];
  JiParameter[JiP] = w[4];
  JiParameter[JiZc] = w[5];
  JiParameter[JiB2] = anzahl == 7 ? w[6] : 0.0;
}

} // namespace quor
