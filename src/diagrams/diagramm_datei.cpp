// The origin of a diagram file, its head, and the checked reading of the value tree.
#include "diagrams/diagramm_datei_intern.h"

#include "core/zahlformat.h"

#include <cfloat>
#include <cmath>
#include <cstdio>

namespace quor {

namespace {

std::string Ohne(const std::string& t) {
  const std::size_t a = t.find_first_not_of(' ');
  if (a == std::string::npos) return "";
  return t.substr(a, t.find_last_not_of(' ') - a + 1);
}

std::string MitCAS(const std::string& stoff, const std::string& cas) {
  return cas.empty() ? stoff : stoff + " (" + cas + ")";
}

std::string Normierung(const DiagrammHerkunft& h) {
  switch (h.RefArt) {
  case 10:
    return "konventionelle Normierung";
  case 2:
    return "Bildungsgrößen";
  default:
    return "h = " + SingleText(static_cast<float>(h.hRef)) + ", s = " + SingleText(static_cast<float>(h.sRef)) +
           " bei T = " + SingleText(h.TRef) + " K, p = " + SingleText(h.pRef) + " kPa";
  }
}

std::string Einheiten(const DiagrammHerkunft& h) {
  return "Volumen-Modus " + std::to_string(h.VolumenMode) + ", Energie-Modus " + std::to_string(h.EnergieMode) +
         ", T-Faktor " + SingleText(h.TFaktor) + ", p-Faktor " + SingleText(h.pFaktor);
}

} // namespace

DiagrammHerkunft HerkunftVon(const ProjectState& s) {
  DiagrammHerkunft h;
  h.Stoff = Ohne(s.Stoff.StoffName);
  h.CAS = Ohne(s.Stoff.CASRN);
  h.EOSIndex = s.Modell.EOSIndex;
  if (h.EOSIndex >= 0 && h.EOSIndex < static_cast<int>(s.Tab.EOSNamen.size()))
    h.EOSName = Ohne(s.Tab.EOSNamen[static_cast<std::size_t>(h.EOSIndex)]);
  h.DampfdruckIndex = s.Modell.DampfdruckIndex;
  h.HLVIndex = s.Modell.HLVIndex;
  h.CpIndex = s.Modell.CpIndex;
  h.RefArt = s.Referenz.RefArt;
  h.hRef = s.Referenz.hRef, h.sRef = s.Referenz.sRef;
  h.TRef = s.Referenz.TRef, h.pRef = s.Referenz.pRef;
  h.VolumenMode = s.Einheiten.VolumenMode, h.EnergieMode = s.Einheiten.EnergieMode;
  h.TFaktor = s.Einheiten.TFaktor, h.pFaktor = s.Einheiten.pFaktor;
  return h;
}

std::vector<std::string> HerkunftUnterschiede(const DiagrammHerkunft& d, const DiagrammHerkunft& j) {
  std::vector<std::string> z;
  const auto zeile = [&z](const char* was, const std::string& datei, const std::string& jetzt) {
    if (datei != jetzt) z.push_back(std::string(was) + ": " + datei + ", geladen ist " + jetzt);
  };
  const bool andererStoff = d.CAS.empty() || j.CAS.empty() ? d.Stoff != j.Stoff : d.CAS != j.CAS;
  if (andererStoff) zeile("Stoff", MitCAS(d.Stoff, d.CAS), MitCAS(j.Stoff, j.CAS));
  const auto nummer = [](int16_t i, const std::string& name) {
    return name.empty() ? "Nr. " + std::to_string(i) : name;
  };
  if (d.EOSIndex != j.EOSIndex) zeile("Zustandsgleichung", nummer(d.EOSIndex, d.EOSName), nummer(j.EOSIndex, j.EOSName));
  if (d.DampfdruckIndex != j.DampfdruckIndex || d.HLVIndex != j.HLVIndex || d.CpIndex != j.CpIndex) {
    const auto modelle = [](const DiagrammHerkunft& h) {
      return "Dampfdruck " + std::to_string(h.DampfdruckIndex) + ", delta(LV)h " + std::to_string(h.HLVIndex) +
             ", cp " + std::to_string(h.CpIndex);
    };
    zeile("Modelle", modelle(d), modelle(j));
  }
  zeile("Normierung", Normierung(d), Normierung(j));
  zeile("Einheiten", Einheiten(d), Einheiten(j));
  return z;
}

namespace datei {

std::string FarbText(RGBFarbe f) {
  char t[8];
  std::snprintf(t, sizeof t, "#%02X%02X%02X", f.R, f.G, f.B);
  return t;
}

void SchreibeKopf(JsonSchreiber& j, const char* art, const DiagrammHerkunft& h) {
  j.Feld("format", FormatName);
  j.Feld("version", DiagrammDateiVersion);
  j.Feld("art", art);
  j.Schluessel("herkunft");
  j.BeginObjekt();
  j.Feld("stoff", h.Stoff);
  j.Feld("cas", h.CAS);
  j.Feld("eos", h.EOSIndex);
  j.Feld("eos_name", h.EOSName);
  j.Feld("dampfdruck", h.DampfdruckIndex);
  j.Feld("hlv", h.HLVIndex);
  j.Feld("cp", h.CpIndex);
  j.Feld("ref_art", h.RefArt);
  j.Feld("h_ref", h.hRef);
  j.Feld("s_ref", h.sRef);
  j.Feld("T_ref", h.TRef);
  j.Feld("p_ref", h.pRef);
  j.Feld("volumen_modus", h.VolumenMode);
  j.Feld("energie_modus", h.EnergieMode);
  j.Feld("T_faktor", h.TFaktor);
  j.Feld("p_faktor", h.pFaktor);
  j.EndeObjekt();
}

std::string Pfad(const std::string& wo, const char* name) {
  return wo.empty() ? name : wo + "." + name;
}

std::string Pfad(const std::string& wo, std::size_t index) {
  return wo + "[" + std::to_string(index) + "]";
}

void Leser::Falsch(const std::string& wo, const std::string& was) {
  if (fehler_.empty()) fehler_ = wo.empty() ? was : "Feld " + wo + ": " + was;
}

const JsonWert* Leser::Mitglied(const JsonWert& o, const char* name, JsonWert::Art art, const std::string& wo,
                                bool pflicht) {
  const JsonWert* w = o.Feld(name);
  if (!w || w->art == JsonWert::Art::Null) {
    if (pflicht) Falsch(Pfad(wo, name), "fehlt");
    return nullptr;
  }
  if (w->art != art) {
    Falsch(Pfad(wo, name), "falscher Typ");
    return nullptr;
  }
  return w;
}

const JsonWert* Leser::Objekt(const JsonWert& o, const char* name, const std::string& wo, bool pflicht) {
  return Mitglied(o, name, JsonWert::Art::Objekt, wo, pflicht);
}

const JsonWert* Leser::Liste(const JsonWert& o, const char* name, const std::string& wo, bool pflicht) {
  return Mitglied(o, name, JsonWert::Art::Liste, wo, pflicht);
}

void Leser::Zahl(const JsonWert& o, const char* name, double& z, const std::string& wo, bool pflicht) {
  if (const JsonWert* w = Mitglied(o, name, JsonWert::Art::Zahl, wo, pflicht)) z = w->zahl;
}

void Leser::Zahl(const JsonWert& o, const char* name, float& z, const std::string& wo, bool pflicht) {
  const JsonWert* w = Mitglied(o, name, JsonWert::Art::Zahl, wo, pflicht);
  if (!w) return;
  if (std::fabs(w->zahl) > FLT_MAX) return Falsch(Pfad(wo, name), "Zahl zu groß");
  z = static_cast<float>(w->zahl);
}

void Leser::Ganz(const JsonWert& o, const char* name, int& z, int min, int max, const std::string& wo,
                 bool pflicht) {
  const JsonWert* w = Mitglied(o, name, JsonWert::Art::Zahl, wo, pflicht);
  if (!w) return;
  if (!(w->zahl >= min && w->zahl <= max) || w->zahl != std::floor(w->zahl))
    return Falsch(Pfad(wo, name), "keine ganze Zahl von " + std::to_string(min) + " bis " + std::to_string(max));
  z = static_cast<int>(w->zahl);
}

void Leser::Ganz(const JsonWert& o, const char* name, int16_t& z, int min, int max, const std::string& wo,
                 bool pflicht) {
  int i = z;
  Ganz(o, name, i, min, max, wo, pflicht);
  z = static_cast<int16_t>(i);
}

void Leser::Bool(const JsonWert& o, const char* name, bool& b, const std::string& wo) {
  if (const JsonWert* w = Mitglied(o, name, JsonWert::Art::Bool, wo, false)) b = w->wahr;
}

void Leser::Text(const JsonWert& o, const char* name, std::string& t, const std::string& wo, bool pflicht) {
  if (const JsonWert* w = Mitglied(o, name, JsonWert::Art::Text, wo, pflicht)) t = w->text;
}

void Leser::Farbe(const JsonWert& o, const char* name, RGBFarbe& f, const std::string& wo) {
  const JsonWert* w = Mitglied(o, name, JsonWert::Art::Text, wo, false);
  if (!w) return;
  unsigned r = 0, g = 0, b = 0;
  char rest = 0;
  if (w->text.size() != 7 || std::sscanf(w->text.c_str(), "#%2x%2x%2x%c", &r, &g, &b, &rest) != 3)
    return Falsch(Pfad(wo, name), "keine Farbe #RRGGBB");
  f = {static_cast<uint8_t>(r), static_cast<uint8_t>(g), static_cast<uint8_t>(b)};
}

void Leser::Zahlen(const JsonWert& liste, std::vector<double>& z, const std::string& wo, bool mitNull) {
  z.clear();
  z.reserve(liste.liste.size());
  for (std::size_t i = 0; i < liste.liste.size(); ++i) {
    const JsonWert& w = liste.liste[i];
    if (w.IstZahl()) z.push_back(w.zahl);
    else if (mitNull && w.art == JsonWert::Art::Null) z.push_back(std::nan(""));
    else return Falsch(Pfad(wo, i), "keine Zahl");
  }
}

void Leser::Zahlen(const JsonWert& liste, std::vector<float>& z, const std::string& wo) {
  std::vector<double> d;
  Zahlen(liste, d, wo);
  z.clear();
  z.reserve(d.size());
  for (std::size_t i = 0; i < d.size(); ++i) {
    if (std::fabs(d[i]) > FLT_MAX) return Falsch(Pfad(wo, i), "Zahl zu groß");
    z.push_back(static_cast<float>(d[i]));
  }
}

void Leser::Bereich(const JsonWert& o, const char* name, double& min, double& max, const std::string& wo) {
  const JsonWert* w = Liste(o, name, wo, true);
  if (!w) return;
  std::vector<double> z;
  Zahlen(*w, z, Pfad(wo, name));
  if (!Ok()) return;
  if (z.size() != 2 || !(z[0] < z[1])) return Falsch(Pfad(wo, name), "kein Bereich [min, max] mit min < max");
  min = z[0], max = z[1];
}

void Leser::Kopf(const JsonWert& wurzel, const char* art, DiagrammHerkunft& h) {
  std::string format, artText;
  int version = 0;
  Text(wurzel, "format", format, "", true);
  if (Ok() && format != FormatName) Falsch("", "keine Diagrammdatei dieses Programms");
  Ganz(wurzel, "version", version, 1, 1 << 30, "", true);
  if (Ok() && version > DiagrammDateiVersion)
    Falsch("", "Version " + std::to_string(version) + " ist neuer als dieses Programm (" +
                   std::to_string(DiagrammDateiVersion) + ")");
  Text(wurzel, "art", artText, "", true);
  if (Ok() && artText != art) Falsch("", std::string("keine ") + art + "-Diagrammdatei");
  const JsonWert* o = Objekt(wurzel, "herkunft", "");
  if (!o || !Ok()) return;
  const std::string wo = "herkunft";
  Text(*o, "stoff", h.Stoff, wo);
  Text(*o, "cas", h.CAS, wo);
  Ganz(*o, "eos", h.EOSIndex, -1, 32767, wo);
  Text(*o, "eos_name", h.EOSName, wo);
  Ganz(*o, "dampfdruck", h.DampfdruckIndex, -32768, 32767, wo);
  Ganz(*o, "hlv", h.HLVIndex, -32768, 32767, wo);
  Ganz(*o, "cp", h.CpIndex, -32768, 32767, wo);
  Ganz(*o, "ref_art", h.RefArt, -32768, 32767, wo);
  Zahl(*o, "h_ref", h.hRef, wo);
  Zahl(*o, "s_ref", h.sRef, wo);
  Zahl(*o, "T_ref", h.TRef, wo);
  Zahl(*o, "p_ref", h.pRef, wo);
  Ganz(*o, "volumen_modus", h.VolumenMode, -32768, 32767, wo);
  Ganz(*o, "energie_modus", h.EnergieMode, -32768, 32767, wo);
  Zahl(*o, "T_faktor", h.TFaktor, wo);
  Zahl(*o, "p_faktor", h.pFaktor, wo);
}

const JsonWert* Wurzel(std::string_view text, JsonErgebnis& gelesen, std::string& fehler) {
  gelesen = LeseJson(text);
  if (!gelesen.wert) {
    fehler = "kein gültiger JSON-Text: " + gelesen.fehler;
    return nullptr;
  }
  if (!gelesen.wert->IstObjekt()) {
    fehler = "keine Diagrammdatei dieses Programms";
    return nullptr;
  }
  return &*gelesen.wert;
}

} // namespace datei

} // namespace quor
