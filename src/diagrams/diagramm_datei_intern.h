// Pieces shared by the .oc2 and .oc3 files: the head with the origin, colours as "#RRGGBB", and a
// reader of the value tree that names the place of the first wrong value ("kurven[2].farbe").
#pragma once

#include "core/json_leser.h"
#include "core/json_schreiber.h"
#include "diagrams/diagramm_datei.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quor::datei {

constexpr const char* FormatName = "QUOR-Diagramm";

// The head: format, version, art ("2D" or "3D") and the origin; the caller's object stays open.
void SchreibeKopf(JsonSchreiber& j, const char* art, const DiagrammHerkunft& h);
std::string FarbText(RGBFarbe f);

class Leser {
public:
  bool Ok() const { return fehler_.empty(); }
  const std::string& Fehler() const { return fehler_; }
  void Falsch(const std::string& wo, const std::string& was);

  // A member of `o`: missing is allowed unless `pflicht`; a wrong type is an error.
  const JsonWert* Objekt(const JsonWert& o, const char* name, const std::string& wo, bool pflicht = false);
  const JsonWert* Liste(const JsonWert& o, const char* name, const std::string& wo, bool pflicht = false);
  void Zahl(const JsonWert& o, const char* name, double& z, const std::string& wo, bool pflicht = false);
  void Zahl(const JsonWert& o, const char* name, float& z, const std::string& wo, bool pflicht = false);
  void Ganz(const JsonWert& o, const char* name, int& z, int min, int max, const std::string& wo,
            bool pflicht = false);
  void Ganz(const JsonWert& o, const char* name, int16_t& z, int min, int max, const std::string& wo,
            bool pflicht = false);
  void Bool(const JsonWert& o, const char* name, bool& b, const std::string& wo);
  void Text(const JsonWert& o, const char* name, std::string& t, const std::string& wo, bool pflicht = false);
  void Farbe(const JsonWert& o, const char* name, RGBFarbe& f, const std::string& wo);

  // A list of numbers; `mitNull` reads null as NaN (a grid cell without value).
  void Zahlen(const JsonWert& liste, std::vector<double>& z, const std::string& wo, bool mitNull = false);
  void Zahlen(const JsonWert& liste, std::vector<float>& z, const std::string& wo);
  // A range [min, max] with min < max.
  void Bereich(const JsonWert& o, const char* name, double& min, double& max, const std::string& wo);

  // The head: format, version and art must match; the origin is read.
  void Kopf(const JsonWert& wurzel, const char* art, DiagrammHerkunft& h);

private:
  const JsonWert* Mitglied(const JsonWert& o, const char* name, JsonWert::Art art, const std::string& wo,
                           bool pflicht);
  std::string fehler_;
};

std::string Pfad(const std::string& wo, const char* name);
std::string Pfad(const std::string& wo, std::size_t index);

// The text through the JSON reader and the head check; null with the reason in `fehler`.
const JsonWert* Wurzel(std::string_view text, JsonErgebnis& gelesen, std::string& fehler);

} // namespace quor::datei
