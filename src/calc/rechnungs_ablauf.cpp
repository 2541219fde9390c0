#include "calc/rechnungs_ablauf.h"

#include "core/rechen_art.h"

#include <utility>

namespace quor {

namespace {
void Melde(const std::function<void()>& hook) {
  if (hook) hook();
}
} // namespace

RechnungsAblauf::RechnungsAblauf(ProjectState& s, ui::Oberflaeche& ui, Ansicht ansicht)
    : s_(s), ui_(ui), a_(std::move(ansicht)) {}

RechnungsFenster RechnungsAblauf::Fenster() {
  RechnungsFenster f;
  f.CalcInZeigen = a_.CalcInZeigen;
  f.ErgebnisZeigen = [this] { return ErgebnisZeigen(); };
  f.ParinputZeigen = a_.ParinputZeigen;
  f.ParinputSchliessen = a_.ParinputSchliessen;
  f.ProzessZeigen = a_.ProzessZeigen;
  f.ErgebnisNachVorne = a_.ErgebnisNachVorne;
  return f;
}

bool RechnungsAblauf::Menue(const std::string& name, int index) {
  return mnuCalc_Click(s_, ui_, Fenster(), name, index);
}

// What the input dialogs decided goes to the page's calculation.
void RechnungsAblauf::VorgabenUebergeben() {
  RechenKontext& k = seite_->Kontext;
  const BehaelterDaten& b = s_.Rechnung.Behaelter;
  k.TpIstGleichgewicht = s_.Rechnung.TpGleichgewicht;
  k.Behaelter = BehaelterVorgabe{b.m, b.V, b.BehaelterT};
  k.ProzessText = prozessText_;
}

bool RechnungsAblauf::ProzessErgebnisZeigen(const std::string& bericht) {
  s_.RechenArt = art::Polytrope;
  s_.Rechnung.ParinputModus = static_cast<int16_t>(art::Polytrope + ParinputDirekt);
  prozessText_ = bericht;
  return ErgebnisZeigen();
}

bool RechnungsAblauf::ErgebnisZeigen() {
  seite_ = a_.SeiteAnlegen ? a_.SeiteAnlegen() : nullptr;
  if (!seite_) return false;
  VorgabenUebergeben();
  seite_->Form_Load();
  const bool offen = seite_->Sichtbar;
  if (a_.SeiteGeladen) a_.SeiteGeladen(offen);
  if (!offen) seite_ = nullptr;
  return offen;
}

std::string RechnungsAblauf::Berechnen() {
  const bool behaelter = s_.Rechnung.ParinputModus == ParinputBehaelter;
  if (!seite_ || seite_->Entladen) {
    // The PARTIAL vessel opens its page with the first values.
    if (!behaelter) return {};
    return ErgebnisZeigen() ? seite_->Ausgang : "EXIT";
  }
  VorgabenUebergeben();
  seite_->Rechnen();
  Melde(a_.SeiteGerechnet);
  const std::string ausgang = seite_->Ausgang;
  if (ausgang == "EXIT") {
    // The page closes at once; the value dialog stays for a better input.
    Melde(a_.SeiteSchliessen);
    seite_ = nullptr;
  } else if (behaelter) {
    Melde(a_.ErgebnisNachVorne);
  }
  return ausgang;
}

} // namespace quor
