#include "substance/synonyme.h"

#include "core/datei_io.h"
#include "core/festtext.h"
#include "core/text_kodierung.h"
#include "dienste/oberflaeche.h"
#include "substance/datenbank.h"

#include <chrono>
#include <ctime>
#include <filesystem>
#include <functional>

namespace quor {

const char* const SynonymDateiName = "SYNOM7.TXT";

namespace {

const char* const CRLF = "\r\n";

struct SynonymBlock {
  std::string CAS;
  std::string Beschreibung;
  std::vector<std::string> Synonyme;
};

// German spellings and their C-spelling, applied in this order, each to all occurrences.
const char* const Schreibweisen[][2] = {{"ÄTH", "ETH"},     {"GLYKO", "GLYCO"},  {"KARBO", "CARBO"},
                                        {"SULPH", "SULF"},  {"AZET", "ACET"},    {"SEK", "SEC"},
                                        {"ZYKLO", "CYCLO"}, {"ZYCLO", "CYCLO"},  {"CYKLO", "CYCLO"},
                                        {"DEKAN", "DECAN"}, {"KRESOL", "CRESOL"}};

void ErsetzeAlle(std::string& t, std::string_view von, std::string_view nach) {
  std::size_t pos = 0;
  while ((pos = t.find(von, pos)) != std::string::npos) {
    t.replace(pos, von.size(), nach);
    pos += nach.size();
  }
}

// "OXYD" becomes "OXID" one occurrence after the other, but not at all while an "OXYDI" is there
// (hydroxy groups before an "I" keep their Y).
void OxydRegel(std::string& t) {
  std::size_t pos;
  while ((pos = t.find("OXYD")) != std::string::npos && t.find("OXYDI") == std::string::npos)
    t[pos + 2] = 'I';
}

std::vector<std::string> TextZeilen(const std::string& text) {
  std::vector<std::string> zeilen;
  std::size_t anfang = 0;
  while (anfang < text.size()) {
    std::size_t ende = text.find_first_of("\r\n", anfang);
    if (ende == std::string::npos) ende = text.size();
    zeilen.push_back(Trim(std::string_view(text).substr(anfang, ende - anfang)));
    if (ende < text.size() && text[ende] == '\r' && ende + 1 < text.size() && text[ende + 1] == '\n') ++ende;
    anfang = ende + 1;
  }
  return zeilen;
}

// Calls `treffer` for each block in the file's order until it returns true; false when "END" or the
// file's end came first.
bool DurchsucheBloecke(const std::string& text, const std::function<bool(const SynonymBlock&)>& treffer) {
  const std::vector<std::string> z = TextZeilen(text);
  std::size_t i = 0;
  while (true) {
    while (i < z.size() && z[i].empty())
      ++i;
    if (i >= z.size() || z[i] == "END") return false;
    SynonymBlock b;
    b.CAS = z[i++];
    if (i < z.size() && z[i] != "END") b.Beschreibung = z[i++];
    while (i < z.size() && !z[i].empty() && z[i] != "END")
      b.Synonyme.push_back(z[i++]);
    if (treffer(b)) return true;
  }
}

std::string DateiDatum(const std::string& pfad) {
  namespace fs = std::filesystem;
  std::error_code fehler;
  const fs::file_time_type zeit = fs::last_write_time(fs::u8path(pfad), fehler);
  if (fehler) return "";
  const auto system = std::chrono::time_point_cast<std::chrono::system_clock::duration>(
      zeit - fs::file_time_type::clock::now() + std::chrono::system_clock::now());
  const std::time_t t = std::chrono::system_clock::to_time_t(system);
  std::tm tm{};
  localtime_r(&t, &tm);
  char puffer[16];
  std::strftime(puffer, sizeof puffer, "%d.%m.%Y", &tm);
  return puffer;
}

std::string Verbinde(const std::vector<std::string>& zeilen) {
  std::string text;
  for (std::size_t i = 0; i < zeilen.size(); ++i)
    text += (i > 0 ? CRLF : "") + zeilen[i];
  return text;
}

} // namespace

std::string GrossSchreibung(std::string_view utf8) {
  std::string t(utf8);
  for (std::size_t i = 0; i < t.size(); ++i) {
    const auto c = static_cast<unsigned char>(t[i]);
    if (c >= 'a' && c <= 'z') {
      t[i] = static_cast<char>(c - 32);
    } else if (c == 0xC3 && i + 1 < t.size()) {
      // U+00E0 .. U+00FE without U+00F7: the capital lies 0x20 below.
      const auto d = static_cast<unsigned char>(t[i + 1]);
      if (d >= 0xA0 && d <= 0xBE && d != 0xB7) t[i + 1] = static_cast<char>(d - 0x20);
      ++i;
    }
  }
  return t;
}

std::string KlarSchluessel(std::string_view text) {
  std::string t = GrossSchreibung(text);
  ErsetzeAlle(t, " ", "");
  return t;
}

std::string NormalSchluessel(std::string_view klarSchluessel) {
  std::string t(klarSchluessel);
  for (const auto& s : Schreibweisen)
    ErsetzeAlle(t, s[0], s[1]);
  OxydRegel(t);
  ErsetzeAlle(t, "ME-", "METHYL");
  ErsetzeAlle(t, "ET-", "ETHYL");
  ErsetzeAlle(t, "SAEURE", "SÄURE");
  return OhneTrennzeichen(t);
}

std::string OhneTrennzeichen(std::string_view zeile) {
  std::string t;
  for (char c : zeile)
    if (c != '-' && c != '(' && c != ')' && c != '[' && c != ']' && c != '.') t += c;
  return t;
}

std::string SynonymDateiPfad(const ProjectState& s) {
  const std::string gross = PfadImProgrammVerzeichnis(s, SynonymDateiName);
  if (DateiExistiert(gross)) return gross;
  const std::string klein = PfadImProgrammVerzeichnis(s, "synom7.txt");
  return DateiExistiert(klein) ? klein : gross;
}

bool LeseSynonymDatei(const ProjectState& s, std::string& text, std::string& datum) {
  const std::string pfad = SynonymDateiPfad(s);
  std::string bytes;
  text.clear();
  datum.clear();
  if (!DateiExistiert(pfad) || !LeseDateiBytes(pfad, bytes)) return false;
  text = DateitextZuUtf8(bytes);
  datum = DateiDatum(pfad);
  return true;
}

void NameNormieren(ProjectState& s, ui::Oberflaeche& ui, const std::string& text, std::string& casOut,
                   std::string& line2Out, bool& missing) {
  missing = false;
  casOut = "END";
  line2Out.clear();
  const std::string klar = KlarSchluessel(text);
  const std::string normal = NormalSchluessel(klar);
  std::string inhalt, datum;
  if (!LeseSynonymDatei(s, inhalt, datum)) {
    ui.Meldung(std::string("Datei 'SYNOM7.TXT' im QUOR-Verzeichnis nicht gefunden.") + CRLF +
                   "Wählen Sie den Stoff über die Liste.",
               "FEHLER", ui::Symbol::Kritisch);
    missing = true;
    return;
  }
  if (klar.empty()) return;
  DurchsucheBloecke(inhalt, [&](const SynonymBlock& b) {
    bool hit = b.CAS == klar;
    for (std::size_t k = 0; !hit && k < b.Synonyme.size(); ++k) {
      const std::string syn = OhneTrennzeichen(b.Synonyme[k]);
      hit = syn.size() == normal.size() && syn == normal;
    }
    if (hit) {
      casOut = b.CAS;
      line2Out = b.Beschreibung;
    }
    return hit;
  });
}

std::vector<std::string> BeschreibungsTeile(const std::string& line2) {
  std::vector<std::string> teile;
  std::size_t anfang = 0;
  while (teile.size() < 2) {
    const std::size_t ende = line2.find('_', anfang);
    if (ende == std::string::npos) break;
    teile.push_back(line2.substr(anfang, ende - anfang));
    anfang = ende + 1;
  }
  teile.push_back(line2.substr(anfang));
  std::vector<std::string> gezeigt;
  int letzter = -1;
  for (int i = static_cast<int>(teile.size()) - 1; i >= 0 && letzter < 0; --i)
    if (!Trim(teile[i]).empty()) letzter = i;
  if (letzter < 0) return gezeigt;
  gezeigt.push_back(Trim(teile[letzter]));
  for (int i = 0; i < static_cast<int>(teile.size()); ++i)
    if (i != letzter && !Trim(teile[i]).empty()) gezeigt.push_back(Trim(teile[i]));
  return gezeigt;
}

void FindSynonymVonCAS(ProjectState& s, ui::Oberflaeche& ui, const std::string& cas, std::string& text,
                       std::vector<std::string>& synonyms, bool& failed) {
  failed = false;
  text.clear();
  synonyms.clear();
  std::string inhalt, datum;
  if (!LeseSynonymDatei(s, inhalt, datum)) {
    ui.Meldung("Synonymdatei synom7.txt nicht gefunden,", "Ausführung nicht möglich", ui::Symbol::Kritisch);
    failed = true;
    return;
  }
  s.Projekt.SynonymDatum = datum.substr(0, 10);
  const std::string nummer = Trim(cas);
  const bool gefunden = DurchsucheBloecke(inhalt, [&](const SynonymBlock& b) {
    if (b.CAS.size() != nummer.size() || b.CAS != nummer) return false;
    std::vector<std::string> zeilen{"CAS-RN: " + nummer};
    for (const std::string& teil : BeschreibungsTeile(b.Beschreibung))
      zeilen.push_back(teil);
    text = Verbinde(zeilen);
    synonyms = b.Synonyme;
    return true;
  });
  if (gefunden) return;
  ui.Meldung(
      Verbinde({"CAS-RN fehlt noch in der Synonymdatei synom7.txt", "ACHTUNG!",
                "Damit ist dieser Stoff in der Datenbank über Stoffnamen-", "Eingabe nicht auffindbar."}),
      "Ausführung nicht möglich", ui::Symbol::Kritisch);
  failed = true;
}

std::optional<frmQTextEdit> SynonymListe(ProjectState& s, ui::Oberflaeche& ui, const std::string& cas) {
  const std::string nummer = Trim(cas);
  if (nummer.empty() || nummer == "00-00-0") {
    ui.Meldung("CAS-RN nicht angegeben bzw. inkorrekt", "Warnung", ui::Symbol::Ausruf);
    return std::nullopt;
  }
  std::string text;
  std::vector<std::string> synonyme;
  bool failed = false;
  FindSynonymVonCAS(s, ui, nummer, text, synonyme, failed);
  if (failed) return std::nullopt;
  return frmQTextEdit("  Synonym-Liste", text + CRLF + CRLF + Verbinde(synonyme));
}

} // namespace quor
