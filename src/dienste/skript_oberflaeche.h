// A user interface without a display: it records every message, question and printer call and
// answers from queues filled beforehand. Tests drive dialog logic through it; the command-line
// program uses it to collect the messages it prints.
#pragma once

#include "dienste/oberflaeche.h"

#include <deque>
#include <functional>

namespace quor::ui {

struct Aufzeichnung {
  std::string art; // "Meldung", "Frage", "Eingabe", "DateiOeffnen", "DateiSpeichern", "Hilfe", "Prozess"
  std::string text;
  std::string titel;
  Symbol symbol = Symbol::Keins;
};

// Records the printer's calls as readable lines ("Text 72 100 QUOR", "Schrift COURIER 10", ...).
class SkriptDrucker : public Drucker {
public:
  bool StartDokument(const std::string& dokumentName) override;
  void Schrift(const std::string& name, double groesse, bool fett) override;
  double TextBreite(const std::string& text) override;
  double ZeilenHoehe() override;
  void Position(double x, double y) override;
  double X() const override { return x_; }
  double Y() const override { return y_; }
  void DruckeText(const std::string& text) override;
  void Linie(double x1, double y1, double x2, double y2) override;
  void NeueSeite() override;
  void EndeDokument() override;
  double SeitenBreite() const override { return seitenBreite; }
  double SeitenHoehe() const override { return seitenHoehe; }

  bool verfuegbar = true; // false: StartDokument fails as with a cancelled print dialog
  double seitenBreite = 510, seitenHoehe = 757; // A4 with margins of 15 mm
  std::vector<std::string> protokoll;
  std::vector<std::string> texte; // the printed texts only, in order

private:
  double x_ = 0, y_ = 0, groesse_ = 10;
};

class SkriptOberflaeche : public Oberflaeche {
public:
  void Meldung(const std::string& text, const std::string& titel, Symbol symbol) override;
  Antwort Frage(const std::string& text, const std::string& titel, Knoepfe knoepfe, Antwort vorgabe) override;
  std::optional<std::string> Eingabe(const std::string& prompt, const std::string& titel,
                                     const std::string& vorgabe) override;
  std::optional<std::string> DateiOeffnen(const DateiDialog& dialog) override;
  std::optional<std::string> DateiSpeichern(const DateiDialog& dialog) override;
  void ZwischenablageSetzen(const std::string& text) override { zwischenablage = text; }
  std::string ZwischenablageText() override { return zwischenablage; }
  Drucker& Druck() override { return drucker; }
  ProzessStatus StarteProzess(const ProzessAuftrag& auftrag) override;
  void Hilfe(int thema) override;

  // Messages only (art "Meldung"), for assertions.
  std::vector<Aufzeichnung> Meldungen() const;
  // The last recorded entry of any kind; an empty record when nothing was recorded.
  Aufzeichnung Letzte() const;

  std::vector<Aufzeichnung> protokoll;
  // Answers in order; an empty queue answers with the question's default button.
  std::deque<Antwort> antworten;
  // Input box answers; an empty queue answers with the proposed value.
  std::deque<std::optional<std::string>> eingaben;
  // File dialog answers; an empty queue cancels.
  std::deque<std::optional<std::string>> dateien;
  std::vector<DateiDialog> dateiDialoge;
  std::string zwischenablage;
  SkriptDrucker drucker;
  std::vector<ProzessAuftrag> prozesse;
  // Runs instead of a child process; without it every start fails.
  std::function<ProzessStatus(const ProzessAuftrag&)> prozessAusfuehren;
  std::vector<int> hilfeThemen;
};

} // namespace quor::ui
