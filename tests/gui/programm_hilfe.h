// Shared by the widget tests of the frame: a program with its frame on a program directory, the
// database opened through the menu; for the calculations methane chosen with its default models, the
// windows of a calculation, and typing into the value dialog.
#pragma once

#include "dienste/skript_oberflaeche.h"
#include "gui/calc/rechnung_steuerung.h"
#include "gui/substance/stoff_wahl_fenster.h"
#include "gui_hilfe.h"
#include "zeigt_logik.h"

#include <QComboBox>
#include <QListWidget>

#include <memory>

namespace quor::ui::test {

struct Programm {
  ProjectState s;
  SkriptOberflaeche ui;
  std::unique_ptr<mdiQUOR> fenster;

  explicit Programm(const std::string& verzeichnis = QUOR_PROGRAMM_VERZEICHNIS,
                    const std::string& kommandozeile = "") {
    App();
    s.Datenbank.ProgrammVerzeichnis = verzeichnis;
    fenster = std::make_unique<mdiQUOR>(s, ui);
    fenster->Starten(kommandozeile);
    fenster->resize(1280, 1000);
    fenster->show();
  }

  // The .Q07 entry of the data menu, the scripted file dialog answering with the directory's database.
  StoffWahlFenster* DatenbankOeffnen() {
    ui.dateien.push_back(s.Datenbank.ProgrammVerzeichnis + "/QUOR.Q07");
    fenster->Befehl("mnuData_OpenBank", 0)->trigger();
    return fenster->StoffWahl();
  }

  // The frame at its first size on a screen of 1280 x 800 with the substance of that list name
  // taken (Enter in the list) with its default models.
  void StoffWaehlen(const char* stoff) {
    fenster->resize(1180, 740);
    QListWidget* liste = DatenbankOeffnen()->Liste();
    // A row shows number, formula and name.
    for (int i = 0; i < liste->count(); ++i)
      if (liste->item(i)->text().trimmed().endsWith(QString(" ") + stoff)) {
        liste->setCurrentRow(i);
        break;
      }
    Taste(liste, Qt::Key_Return);
    EXPECT_EQ(s.Stoff.StoffName, stoff);
    ui.protokoll.clear();
  }
};

struct RechnungsRahmen : Programm {
  RechnungsRahmen() {
    // Enter in the list takes its first substance, methane, with Peng/Robinson and GLOBAL.
    Taste(DatenbankOeffnen()->Liste(), Qt::Key_Return);
    EXPECT_EQ(s.Stoff.StoffName, "Methan");
    ui.protokoll.clear(); // the file dialog of the database
  }

  RechnungSteuerung& R() { return *fenster->Rechnung(); }
  ErgebnisFenster* Seite() { return R().Seite(); }

  // A menu entry of the calculations; false when it is not enabled.
  bool Menue(const char* name, int index) {
    QAction* a = fenster->Befehl(name, index);
    if (!a || !a->isEnabled()) return false;
    a->trigger();
    QApplication::processEvents();
    return true;
  }

  // Types the values into the value dialog's fields and calculates.
  void Eingeben(const std::vector<QString>& werte) {
    ParinputFenster* p = R().Parinput();
    ASSERT_NE(p, nullptr);
    ASSERT_EQ(p->Anzahl(), static_cast<int>(werte.size()));
    for (std::size_t i = 0; i < werte.size(); ++i) {
      p->Feld(static_cast<int>(i))->selectAll();
      Tippen(p->Feld(static_cast<int>(i)), werte[i]);
    }
    p->OK()->click();
    QApplication::processEvents();
  }
};

} // namespace quor::ui::test
