#include "core/befehls_register.h"

#include <algorithm>

namespace quor {

const char* const ToolbarName = "Toolbar1";

namespace {
constexpr double Schwelle = 1e-6;
} // namespace

std::string BefehlsSchluessel(const std::string& name, int index) {
  return index < 0 ? name : name + "(" + std::to_string(index) + ")";
}

RahmenZustand ZustandVon(const ProjectState& s) {
  const MenueFreigaben& f = s.Projekt.Freigaben;
  if (f.Stoff) return f.Modell ? RahmenZustand::ModelleGetestet : RahmenZustand::StoffGewaehlt;
  return s.Datenbank.DatenbankGeladen ? RahmenZustand::DatenbankOhneStoff : RahmenZustand::KeineDatenbank;
}

bool BedarfErfuellt(const ProjectState& s, unsigned bedarf) {
  const MenueFreigaben& f = s.Projekt.Freigaben;
  const bool kritisch = s.Stoff.TKrit > Schwelle && s.Stoff.pKrit > Schwelle;
  if ((bedarf & BrauchtDatenbank) && !s.Datenbank.DatenbankGeladen) return false;
  if ((bedarf & BrauchtStoff) && !f.Stoff) return false;
  if ((bedarf & BrauchtModell) && !(f.Stoff && f.Modell)) return false;
  if ((bedarf & BrauchtKritischenPunkt) && !(f.KritischerPunkt && kritisch)) return false;
  if ((bedarf & BrauchtDiagramme) && !(f.Stoff && f.Diagramme)) return false;
  if ((bedarf & BrauchtSaettigung) && !f.Saettigung) return false;
  if ((bedarf & BrauchtExpDaten) && !f.ExpDaten) return false;
  return true;
}

BefehlsZeile ZeileVon(const MenuePosten& p, int rang, unsigned bedarf) {
  BefehlsZeile z;
  z.name = p.name;
  z.index = p.index;
  z.text = p.text;
  z.eltern = p.eltern;
  z.elternIndex = p.elternIndex;
  z.rang = rang;
  z.bedarf = bedarf;
  return z;
}

void BefehlsRegister::Registriere(BefehlsZeile zeile) {
  if (!zeile.name.empty()) {
    if (BefehlsZeile* alt = Zeile(zeile.name, zeile.index)) {
      *alt = std::move(zeile);
      return;
    }
  }
  if (!zeile.name.empty()) stelle_[zeile.Schluessel()] = zeilen_.size();
  zeilen_.push_back(std::move(zeile));
}

BefehlsZeile* BefehlsRegister::Zeile(const std::string& name, int index) {
  const auto it = stelle_.find(BefehlsSchluessel(name, index));
  return it == stelle_.end() ? nullptr : &zeilen_[it->second];
}

const BefehlsZeile* BefehlsRegister::Finde(const std::string& name, int index) const {
  return const_cast<BefehlsRegister*>(this)->Zeile(name, index);
}

bool BefehlsRegister::Handler(const std::string& name, int index, BefehlsHandler handler) {
  BefehlsZeile* z = Zeile(name, index);
  if (!z) return false;
  z->handler = std::move(handler);
  z->gebaut = true;
  return true;
}

void BefehlsRegister::SetzeGebaut(const std::string& name, int index, bool gebaut) {
  if (BefehlsZeile* z = Zeile(name, index)) z->gebaut = gebaut;
}

void BefehlsRegister::SetzeText(const std::string& name, int index, const std::string& text) {
  if (BefehlsZeile* z = Zeile(name, index)) z->text = text;
}

bool BefehlsRegister::IstMenue(const std::string& name, int index) const {
  return std::any_of(zeilen_.begin(), zeilen_.end(), [&](const BefehlsZeile& z) {
    return !name.empty() && z.eltern == name && z.elternIndex == index;
  });
}

std::vector<const BefehlsZeile*> BefehlsRegister::Kinder(const std::string& eltern, int elternIndex) const {
  std::vector<const BefehlsZeile*> kinder;
  for (const BefehlsZeile& z : zeilen_)
    if (!z.versteckt && z.eltern == eltern && z.elternIndex == elternIndex) kinder.push_back(&z);
  std::stable_sort(kinder.begin(), kinder.end(),
                   [](const BefehlsZeile* a, const BefehlsZeile* b) { return a->rang < b->rang; });
  return kinder;
}

bool BefehlsRegister::Gebaut(const std::string& name, int index) const {
  const BefehlsZeile* z = Finde(name, index);
  if (!z || z->Trenner()) return false;
  if (!z->zielName.empty()) return Gebaut(z->zielName, z->zielIndex); // a button: by its target
  return z->gebaut;
}

bool BefehlsRegister::BedarfErfuellt(const ProjectState& s, const std::string& name, int index) const {
  const BefehlsZeile* z = Finde(name, index);
  if (!z) return false;
  return quor::BedarfErfuellt(s, z->bedarf) && (!z->verfuegbar || z->verfuegbar(s));
}

bool BefehlsRegister::Freigegeben(const ProjectState& s, const std::string& name, int index) const {
  return Gebaut(name, index) && BedarfErfuellt(s, name, index);
}

bool BefehlsRegister::Ausfuehren(const ProjectState& s, const std::string& name, int index) const {
  if (!Freigegeben(s, name, index)) return false;
  return Ausloesen(name, index);
}

bool BefehlsRegister::Ausloesen(const std::string& name, int index) const {
  const BefehlsZeile* z = Finde(name, index);
  if (!z) return false;
  if (z->handler) {
    // A copy: the handler may register or replace rows while it runs.
    const BefehlsHandler handler = z->handler;
    handler(index);
    return true;
  }
  return !z->zielName.empty() && Ausloesen(z->zielName, z->zielIndex);
}

} // namespace quor
