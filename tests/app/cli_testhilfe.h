// Shared by the end-to-end tests of quor-cli and quor-plot: running the built executable with its
// output and exit code captured, a strict reader of its JSON output, and the Peng/Robinson equation
// written out for checks made independently of the program.
#pragma once

#include "dienste/kind_prozess.h"
#include "support/relativ.h"
#include "support/temp_ordner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

namespace quor::test {

inline std::string Testdatei(const std::string& name) {
  return std::string(QUOR_TESTDATEN) + "/cli/" + name;
}

struct Ergebnis {
  int code = -1;      // exit code; -1 when the program did not end by itself
  std::string aus;    // stdout
  std::string fehler; // stderr
};

// Runs `programm` with `argumente` in `verzeichnis` (a scratch folder when empty), through the
// program's own child-process launcher.
inline Ergebnis StarteProgramm(const std::string& programm, const std::vector<std::string>& argumente,
                               const std::string& verzeichnis = "") {
  TempOrdner puffer("quor_cli_test_");
  ui::ProzessAuftrag auftrag;
  auftrag.programm = programm;
  auftrag.argumente = argumente;
  auftrag.arbeitsVerzeichnis = verzeichnis.empty() ? puffer.Pfad() : verzeichnis;
  auftrag.ausgabeDatei = puffer.Datei("stdout");
  auftrag.fehlerDatei = puffer.Datei("stderr");
  auftrag.wartenMs = 120000;
  const ui::ProzessStatus status = ui::StarteKindProzess(auftrag);
  Ergebnis e;
  if (status.ergebnis != ui::ProzessErgebnis::Beendet) return e;
  e = {status.exitCode, LeseDatei(auftrag.ausgabeDatei), LeseDatei(auftrag.fehlerDatei)};
  // In the sanitizer build a fault of the program shows as a report on stderr.
  for (const char* bericht : {"AddressSanitizer", "LeakSanitizer", "runtime error:"})
    EXPECT_EQ(e.fehler.find(bericht), std::string::npos) << e.fehler;
  return e;
}

// The full path of a program on the search path; empty when it isn't installed.
inline std::string Werkzeug(const std::string& name) {
  const char* pfad = std::getenv("PATH");
  std::string liste = pfad ? pfad : "/usr/bin";
  for (std::size_t a = 0; a <= liste.size();) {
    const std::size_t e = std::min(liste.find(':', a), liste.size());
    const auto kandidat = std::filesystem::path(liste.substr(a, e - a)) / name;
    if (std::filesystem::exists(kandidat)) return kandidat.string();
    a = e + 1;
  }
  return "";
}

// Runs quor-cli.
inline Ergebnis Starte(const std::vector<std::string>& argumente, const std::string& verzeichnis = "") {
  return StarteProgramm(QUOR_CLI, argumente, verzeichnis);
}

struct Json {
  enum class Typ { Null, Bool, Zahl, Text, Liste, Objekt } typ = Typ::Null;
  bool b = false;
  double zahl = 0;
  std::string text;
  std::vector<Json> liste;
  std::vector<std::pair<std::string, Json>> objekt;

  const Json& operator[](const std::string& schluessel) const {
    for (const auto& [k, v] : objekt)
      if (k == schluessel) return v;
    ADD_FAILURE() << "no key \"" << schluessel << "\"";
    static const Json leer;
    return leer;
  }
  const Json& operator[](std::size_t i) const {
    if (i < liste.size()) return liste[i];
    ADD_FAILURE() << "no element " << i;
    static const Json leer;
    return leer;
  }
  double Z() const {
    EXPECT_EQ(typ, Typ::Zahl);
    return zahl;
  }
  const std::string& T() const {
    EXPECT_EQ(typ, Typ::Text);
    return text;
  }
  bool B() const {
    EXPECT_EQ(typ, Typ::Bool);
    return b;
  }
};

// A strict reader: any deviation from the JSON grammar fails.
class JsonLeser {
public:
  explicit JsonLeser(const std::string& t) : t_(t) {}
  bool Lies(Json& j) { return Wert(j) && (Leer(), i_ == t_.size()); }

private:
  char C() const { return i_ < t_.size() ? t_[i_] : '\0'; }
  void Leer() {
    while (C() == ' ' || C() == '\n' || C() == '\r' || C() == '\t')
      ++i_;
  }
  bool Zeichen(char c) {
    Leer();
    return C() == c && ++i_;
  }
  bool Text(std::string& s) {
    if (!Zeichen('"')) return false;
    for (char c; (c = C()) != '"'; ++i_) {
      if (static_cast<unsigned char>(c) < 0x20) return false; // a control character, or the end
      if (c != '\\') {
        s += c;
        continue;
      }
      const std::string kurz = "\"\\/bfnrt", steht = "\"\\/\b\f\n\r\t";
      if (++i_ < t_.size() && C() == 'u') { // the writer escapes control characters only
        const long code = std::strtol(t_.substr(i_ + 1, 4).c_str(), nullptr, 16);
        if (i_ + 4 >= t_.size() || code >= 0x80) return false;
        s += static_cast<char>(code);
        i_ += 4;
      } else if (C() != '\0' && kurz.find(C()) != std::string::npos) {
        s += steht[kurz.find(C())];
      } else {
        return false;
      }
    }
    return ++i_;
  }
  bool Wert(Json& j) {
    if (Zeichen('{')) {
      j.typ = Json::Typ::Objekt;
      if (Zeichen('}')) return true;
      do {
        std::string k;
        Json v;
        if (!Text(k) || !Zeichen(':') || !Wert(v)) return false;
        j.objekt.emplace_back(k, v);
      } while (Zeichen(','));
      return Zeichen('}');
    }
    if (Zeichen('[')) {
      j.typ = Json::Typ::Liste;
      if (Zeichen(']')) return true;
      do {
        j.liste.emplace_back();
        if (!Wert(j.liste.back())) return false;
      } while (Zeichen(','));
      return Zeichen(']');
    }
    if (C() == '"') return j.typ = Json::Typ::Text, Text(j.text);
    for (const auto& [wort, typ, b] : {std::tuple{"true", Json::Typ::Bool, true},
                                       {"false", Json::Typ::Bool, false},
                                       {"null", Json::Typ::Null, false}})
      if (t_.compare(i_, std::strlen(wort), wort) == 0) {
        i_ += std::strlen(wort);
        return j.typ = typ, j.b = b, true;
      }
    static const std::regex zahl(R"(-?(0|[1-9][0-9]*)(\.[0-9]+)?([eE][+-]?[0-9]+)?)");
    std::smatch m;
    if (!std::regex_search(t_.begin() + static_cast<long>(i_), t_.end(), m, zahl,
                           std::regex_constants::match_continuous))
      return false;
    j.typ = Json::Typ::Zahl;
    j.zahl = std::strtod(m.str().c_str(), nullptr);
    i_ += static_cast<std::size_t>(m.length());
    return true;
  }

  const std::string& t_;
  std::size_t i_ = 0;
};

// The whole output must be one JSON document.
inline Json LeseJson(const std::string& text) {
  Json j;
  EXPECT_TRUE(JsonLeser(text).Lies(j)) << "not valid JSON:\n" << text.substr(0, 2000);
  return j;
}

// Runs with --json and reads the document; the exit code must be `code`.
inline Json StarteJson(std::vector<std::string> argumente, int code = 0) {
  argumente.insert(argumente.begin(), "--json");
  const Ergebnis e = Starte(argumente);
  EXPECT_EQ(e.code, code) << e.fehler;
  return LeseJson(e.aus);
}

constexpr double R = 8.31451; // kJ/(kmol K)

// The cubic equation p = R T/(v - b) - a(T)/((v + c)(v + d)) with the constants that `info` reports
// (Soave form a(T) = a0 (1 + m (1 - sqrt(T/Tc)))^2; b, c, d constant for Peng/Robinson), written out
// here so that the program's roots can be checked against the equation itself.
inline double DruckAusInfo(const Json& info, double T, double v) {
  const double m = info["aExp"].Z(), Tc = info["TKrit"].Z();
  const double a = info["a0"].Z() * std::pow(1 + m * (1 - std::sqrt(T / Tc)), 2);
  return R * T / (v - info["b0"].Z()) - a / ((v + info["c0"].Z()) * (v + info["d0"].Z()));
}

// True when the equation's pressure passes through `p` within a relative step `dv` of the volume `v`
// either way: the volume is a root of p(T, v) = p to that precision. The liquid branch is too stiff
// for a test on the pressure itself.
inline ::testing::AssertionResult IstWurzel(const Json& info, double T, double p, double v,
                                            double dv = 1e-6) {
  const double p1 = DruckAusInfo(info, T, v * (1 - dv)) - p, p2 = DruckAusInfo(info, T, v * (1 + dv)) - p;
  if (p1 * p2 <= 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "p(T, v) - p is " << p1 << " and " << p2 << " around v = " << v;
}

} // namespace quor::test
