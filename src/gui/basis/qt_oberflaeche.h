// The Qt implementation of the user-interface services.
#pragma once

#include "dienste/oberflaeche.h"

#include <QPointer>

#include <memory>

class QWidget;

namespace quor::ui {

class QtDrucker;
class HilfeFenster;

class QtOberflaeche : public Oberflaeche {
public:
  // `eltern` is the window the dialogs are modal to (may be null); `hilfeVerzeichnis` holds the
  // help pages, one HTML file per topic number.
  QtOberflaeche(QWidget* eltern, std::string hilfeVerzeichnis);
  ~QtOberflaeche() override;

  void SetzeEltern(QWidget* eltern) { eltern_ = eltern; }

  void Meldung(const std::string& text, const std::string& titel, Symbol symbol) override;
  Antwort Frage(const std::string& text, const std::string& titel, Knoepfe knoepfe, Antwort vorgabe) override;
  std::optional<std::string> Eingabe(const std::string& prompt, const std::string& titel,
                                     const std::string& vorgabe) override;
  std::optional<std::string> DateiOeffnen(const DateiDialog& dialog) override;
  std::optional<std::string> DateiSpeichern(const DateiDialog& dialog) override;
  void ZwischenablageSetzen(const std::string& text) override;
  std::string ZwischenablageText() override;
  Drucker& Druck() override;
  ProzessStatus StarteProzess(const ProzessAuftrag& auftrag) override;
  // Opens the help window of the program on the topic's page (topic 0: the contents).
  void Hilfe(int thema) override;
  // The help window once it was opened, else null.
  HilfeFenster* Hilfefenster() const;

private:
  QWidget* eltern_;
  std::string hilfeVerzeichnis_;
  std::unique_ptr<QtDrucker> drucker_;
  QPointer<HilfeFenster> hilfe_; // owned by its parent window, or by this without one
};

} // namespace quor::ui
