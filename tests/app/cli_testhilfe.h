// Shared by the end-to-end tests of quor-cli: running the built executable with its output and exit
// code captured, a strict reader of its JSON output, a scratch folder per test, and the numbers of
// the Peng/Robinson equation for checks made independently of the program.
#pragma once

#include "dienste/kind_prozess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace quor::test {

namespace fs = std::filesystem;

inline std::string Testdatei(const std::string& name) {
  return std::string(QUOR_TESTDATEN) + "/cli/" + name;
}

inline std::string LeseDatei(const fs::path& pfad) {
  std::ifstream ein(pfad, std::ios::binary);
  std::stringstream text;
  text << ein.rdbuf();
  return text.str();
}

// A folder of its own, removed at the end of the test.
struct Arbeitsordner {
  fs::path pfad;
  Arbeitsordner() {
    std::random_device zufall;
    pfad = fs::temp_directory_path() /
           ("quor_cli_test_" + std::to_string(getpid()) + "_" + std::to_string(zufall()));
    fs::create_directories(pfad);
  }
  ~Arbeitsordner() {
    std::error_code fehler;
    fs::remove_all(pfad, fehler);
  }
  std::string operator/(const std::string& name) const { return (pfad / name).string(); }
};

struct Ergebnis {
  int code = -1;      // exit code; 128 + signal number when the program was killed
  std::string aus;    // stdout
  std::string fehler; // stderr
};

// Runs `programm` with `argumente` in `verzeichnis` (a scratch folder when empty), through the
// program's own child-process launcher.
inline Ergebnis StarteProgramm(const std::string& programm, const std::vector<std::string>& argumente,
                               const std::string& verzeichnis = "") {
  Arbeitsordner puffer;
  ui::ProzessAuftrag auftrag;
  auftrag.programm = programm;
  auftrag.argumente = argumente;
  auftrag.arbeitsVerzeichnis = verzeichnis.empty() ? puffer.pfad.string() : verzeichnis;
  auftrag.ausgabeDatei = puffer / "stdout";
  auftrag.fehlerDatei = puffer / "stderr";
  auftrag.wartenMs = 120000;
  const ui::ProzessStatus status = ui::StarteKindProzess(auftrag);
  Ergebnis e;
  if (status.ergebnis != ui::ProzessErgebnis::Beendet) return e;
  e.code = status.exitCode;
  e.aus = LeseDatei(auftrag.ausgabeDatei);
  e.fehler = LeseDatei(auftrag.fehlerDatei);
  // In the sanitizer build a fault of the program shows as a report on stderr.
  for (const char* bericht : {"AddressSanitizer", "LeakSanitizer", "runtime error:"})
    EXPECT_EQ(e.fehler.find(bericht), std::string::npos) << e.fehler;
  return e;
}

inline Ergebnis Starte(const std::vector<std::string>& argumente, const std::string& verzeichnis = "") {
  return StarteProgramm(QUOR_CLI, argumente, verzeichnis);
}

// ---- a strict JSON reader: any deviation from the grammar fails the test ----

struct Json {
  enum class Typ { Null, Bool, Zahl, Text, Liste, Objekt } typ = Typ::Null;
  bool b = false;
  double zahl = 0;
  std::string text;
  std::vector<Json> liste;
  std::vector<std::pair<std::string, Json>> objekt;

  bool Hat(const std::string& schluessel) const {
    for (const auto& [k, v] : objekt)
      if (k == schluessel) return true;
    return false;
  }
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

class JsonLeser {
public:
  explicit JsonLeser(const std::string& t) : t_(t) {}

  bool Lies(Json& j) {
    if (!Wert(j)) return false;
    Leer();
    return i_ == t_.size();
  }

private:
  void Leer() {
    while (i_ < t_.size() && (t_[i_] == ' ' || t_[i_] == '\n' || t_[i_] == '\r' || t_[i_] == '\t'))
      ++i_;
  }
  bool Wort(const char* w) {
    const std::string s(w);
    if (t_.compare(i_, s.size(), s) != 0) return false;
    i_ += s.size();
    return true;
  }
  bool Text(std::string& s) {
    if (t_[i_] != '"') return false;
    for (++i_; i_ < t_.size(); ++i_) {
      const char c = t_[i_];
      if (c == '"') {
        ++i_;
        return true;
      }
      if (static_cast<unsigned char>(c) < 0x20) return false;
      if (c != '\\') {
        s += c;
        continue;
      }
      if (++i_ >= t_.size()) return false;
      switch (t_[i_]) {
      case '"':
        s += '"';
        break;
      case '\\':
        s += '\\';
        break;
      case '/':
        s += '/';
        break;
      case 'n':
        s += '\n';
        break;
      case 'r':
        s += '\r';
        break;
      case 't':
        s += '\t';
        break;
      case 'b':
        s += '\b';
        break;
      case 'f':
        s += '\f';
        break;
      case 'u': {
        if (i_ + 4 >= t_.size()) return false;
        const long code = std::strtol(t_.substr(i_ + 1, 4).c_str(), nullptr, 16);
        if (code >= 0x80) return false; // the writer escapes control characters only
        s += static_cast<char>(code);
        i_ += 4;
        break;
      }
      default:
        return false;
      }
    }
    return false;
  }
  bool Zahl(double& x) {
    const std::size_t anfang = i_;
    if (t_[i_] == '-') ++i_;
    if (i_ >= t_.size() || !std::isdigit(static_cast<unsigned char>(t_[i_]))) return false;
    if (t_[i_] == '0' && i_ + 1 < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_ + 1])))
      return false;
    while (i_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_])))
      ++i_;
    if (i_ < t_.size() && t_[i_] == '.') {
      ++i_;
      if (i_ >= t_.size() || !std::isdigit(static_cast<unsigned char>(t_[i_]))) return false;
      while (i_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_])))
        ++i_;
    }
    if (i_ < t_.size() && (t_[i_] == 'e' || t_[i_] == 'E')) {
      ++i_;
      if (i_ < t_.size() && (t_[i_] == '+' || t_[i_] == '-')) ++i_;
      if (i_ >= t_.size() || !std::isdigit(static_cast<unsigned char>(t_[i_]))) return false;
      while (i_ < t_.size() && std::isdigit(static_cast<unsigned char>(t_[i_])))
        ++i_;
    }
    x = std::strtod(t_.substr(anfang, i_ - anfang).c_str(), nullptr);
    return true;
  }
  bool Wert(Json& j) {
    Leer();
    if (i_ >= t_.size()) return false;
    const char c = t_[i_];
    if (c == '{') {
      j.typ = Json::Typ::Objekt;
      ++i_;
      Leer();
      if (i_ < t_.size() && t_[i_] == '}') return ++i_, true;
      for (;;) {
        Leer();
        std::string k;
        if (i_ >= t_.size() || !Text(k)) return false;
        Leer();
        if (i_ >= t_.size() || t_[i_++] != ':') return false;
        Json v;
        if (!Wert(v)) return false;
        j.objekt.emplace_back(k, v);
        Leer();
        if (i_ >= t_.size()) return false;
        if (t_[i_] == ',') {
          ++i_;
          continue;
        }
        return t_[i_++] == '}';
      }
    }
    if (c == '[') {
      j.typ = Json::Typ::Liste;
      ++i_;
      Leer();
      if (i_ < t_.size() && t_[i_] == ']') return ++i_, true;
      for (;;) {
        Json v;
        if (!Wert(v)) return false;
        j.liste.push_back(v);
        Leer();
        if (i_ >= t_.size()) return false;
        if (t_[i_] == ',') {
          ++i_;
          continue;
        }
        return t_[i_++] == ']';
      }
    }
    if (c == '"') {
      j.typ = Json::Typ::Text;
      return Text(j.text);
    }
    if (Wort("true")) return j.typ = Json::Typ::Bool, j.b = true, true;
    if (Wort("false")) return j.typ = Json::Typ::Bool, j.b = false, true;
    if (Wort("null")) return j.typ = Json::Typ::Null, true;
    j.typ = Json::Typ::Zahl;
    return Zahl(j.zahl);
  }

  const std::string& t_;
  std::size_t i_ = 0;
};

// The whole output must be one JSON document.
inline Json LeseJson(const std::string& text) {
  Json j;
  JsonLeser leser(text);
  EXPECT_TRUE(leser.Lies(j)) << "not valid JSON:\n" << text.substr(0, 2000);
  return j;
}

// Runs with --json and reads the document; the exit code must be `code`.
inline Json StarteJson(std::vector<std::string> argumente, int code = 0) {
  argumente.insert(argumente.begin(), "--json");
  const Ergebnis e = Starte(argumente);
  EXPECT_EQ(e.code, code) << e.fehler;
  return LeseJson(e.aus);
}

// Relative comparison with the tolerance written at each assertion.
inline ::testing::AssertionResult NaheRel(double ist, double soll, double tol) {
  if (std::fabs(ist - soll) <= tol * std::fabs(soll)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << ist << " differs from " << soll << " by more than " << tol * 100 << " %";
}

constexpr double R = 8.31451; // kJ/(kmol K)

// The cubic equation p = R T/(v - b) - a(T)/((v + c)(v + d)) with the constants that `info` reports
// (Soave form a(T) = a0 (1 + m (1 - sqrt(T/Tc)))^2 for aForm 2, a0 T^aExp otherwise; b, c, d
// as b0 T^bExp and so on), written out
// here so that the program's roots can be checked against the equation itself.
inline double DruckAusInfo(const Json& info, double T, double v) {
  const double a0 = info["a0"].Z(), m = info["aExp"].Z(), Tc = info["TKrit"].Z();
  const double a = info["aForm"].Z() == 2 ? a0 * std::pow(1 + m * (1 - std::sqrt(T / Tc)), 2)
                                          : a0 * std::pow(T, info["aExp"].Z());
  const double b = info["b0"].Z() * std::pow(T, info["bExp"].Z());
  const double c = info["c0"].Z() * std::pow(T, info["cExp"].Z());
  const double d = info["d0"].Z() * std::pow(T, info["dExp"].Z());
  return R * T / (v - b) - a / ((v + c) * (v + d));
}

// True when the equation's pressure passes through `p` within a relative step `dv` of the volume
// `v` either way: the volume is a root of p(T, v) = p to that precision. The liquid branch is too
// stiff for a test on the pressure itself.
inline ::testing::AssertionResult IstWurzel(const Json& info, double T, double p, double v,
                                            double dv = 1e-6) {
  const double p1 = DruckAusInfo(info, T, v * (1 - dv)) - p, p2 = DruckAusInfo(info, T, v * (1 + dv)) - p;
  if (p1 * p2 <= 0) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "p(T, v) - p is " << p1 << " and " << p2 << " around v = " << v;
}

} // namespace quor::test
