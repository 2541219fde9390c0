// The page's own menu (mnuHaupt) for a right click on an empty place of the diagram.
#include "core/rahmen.h"
#include "diagrams/diagramm_befehle.h"
#include "dienste/oberflaeche.h"
#include "gui/diagrams/graph2d_fenster.h"
#include "gui/diagrams/menue_hilfen.h"

#include <QMenu>

#include <algorithm>

namespace quor::ui {

std::unique_ptr<QMenu> Graph2DFenster::HauptMenue(int kurve) {
  auto m = std::make_unique<QMenu>(this);
  m->setObjectName("mnuHaupt");
  connect(MenueEintrag(m.get(), "Koordinatenbereich ...", "mnuCoord"), &QAction::triggered, this,
          &Graph2DFenster::Koordinatenbereich);
  QMenu* einfuegen = m->addMenu("Einfügen");
  einfuegen->setObjectName("mnuInsert");
  EinfuegeMenue(einfuegen);
  QMenu* loeschen = m->addMenu("Löschen");
  loeschen->setObjectName("mnuDel");
  LoeschMenue(loeschen);
  m->addSeparator();
  connect(MenueEintrag(m.get(), "Legende zeigen", "mnuAddLegend"), &QAction::triggered, this, [this] {
    logik_.mnuAddLegend();
    Zeige();
  });
  const auto& belegt = logik_.KurveBelegt();
  bool beschriftet = false;
  for (int i = 0; i < MaxKurven; ++i)
    beschriftet =
        beschriftet || (belegt[static_cast<std::size_t>(i)] && logik_.Kurve(i).ParameterBeschriften);
  QAction* parameter = MenueEintrag(m.get(), "Kurvenparameter an Kurven schreiben", "mnuParameterBeschriften");
  parameter->setCheckable(true);
  parameter->setChecked(beschriftet);
  connect(parameter, &QAction::triggered, this, [this](bool an) {
    logik_.ParameterBeschriften(an);
    Zeige();
  });
  ZwischenablageMenue(m.get(), kurve);
  m->addSeparator();
  QMenu* datei = m->addMenu("Datei");
  datei->setObjectName("mnuDatei");
  DateiMenue(datei);
  return m;
}

// The entries of the insert menu, with its submenus of the T, p and v marks.
void Graph2DFenster::EinfuegeMenue(QMenu* m) {
  const std::vector<MenuePosten>& posten = EinfuegePosten();
  const auto fuellen = [this, &posten](QMenu* menue, const std::string& eltern, int elternIndex,
                                       const auto& selbst) -> void {
    for (const MenuePosten& p : posten) {
      if (eltern != p.eltern || elternIndex != p.elternIndex) continue;
      if (std::string(p.text) == "-") {
        menue->addSeparator();
        continue;
      }
      const bool untermenue = std::any_of(posten.begin(), posten.end(), [&p](const MenuePosten& k) {
        return std::string(k.eltern) == p.name && k.elternIndex == p.index;
      });
      if (untermenue) {
        QMenu* unter = menue->addMenu(QString::fromUtf8(p.text));
        unter->setObjectName(p.name);
        selbst(unter, p.name, p.index, selbst);
        continue;
      }
      connect(MenueEintrag(menue, QString::fromUtf8(p.text), p.name, p.index), &QAction::triggered, this,
              [this, name = std::string(p.name), index = p.index] { Einfuegen(name, index); });
    }
  };
  fuellen(m, "mnuInsert", -1, fuellen);
  m->addSeparator();
  connect(MenueEintrag(m, "Hilfe zu Markierungen und Prozesslinien", "mnuInsertHilfe"), &QAction::triggered, this,
          [this] { ui_.Hilfe(HilfeEinfuegungen); });
}

void Graph2DFenster::LoeschMenue(QMenu* m) {
  connect(MenueEintrag(m, "alles", "mnuDelTotal"), &QAction::triggered, this, [this] {
    logik_.mnuDelTotal();
    Zeige();
  });
  m->addSeparator();
  for (int i = 0; i < MaxKurven; ++i) {
    if (!logik_.KurveBelegt()[static_cast<std::size_t>(i)]) continue;
    const QString text = QString("Kurve %1:  ").arg(i + 1) + MenueKurz(logik_.Kurve(i).Legende);
    connect(MenueEintrag(m, text, "mnuSubDelKurv", i), &QAction::triggered, this, [this, i] {
      logik_.mnuSubDelKurv(i);
      Zeige();
    });
  }
  const auto& saetze = logik_.PunktSaetze();
  for (int i = 0; i < static_cast<int>(saetze.size()); ++i) {
    const QString text =
        QString("Punktsatz %1:  ").arg(i + 1) + MenueKurz(saetze[static_cast<std::size_t>(i)].Legende);
    connect(MenueEintrag(m, text, "mnuSubDelPointSet", i), &QAction::triggered, this, [this, i] {
      logik_.mnuSubDelPointSet(i);
      Zeige();
    });
  }
  m->addSeparator();
  connect(MenueEintrag(m, "Beschriftungen", "mnuDelLabels"), &QAction::triggered, this, [this] {
    logik_.mnuDelLabels();
    Zeige();
  });
  connect(MenueEintrag(m, "Legende", "mnuDelLegend"), &QAction::triggered, this, [this] {
    logik_.mnuDelLegend();
    Zeige();
  });
}

// The curve under the mouse, or a submenu of the curves on show, goes to the clipboard as text.
void Graph2DFenster::ZwischenablageMenue(QMenu* m, int kurve) {
  const auto kopieren = [this](int slot) { ui_.ZwischenablageSetzen(logik_.KurveAlsText(slot)); };
  if (kurve >= 0) {
    connect(MenueEintrag(m, QString("Kurve %1 in die Zwischenablage").arg(kurve + 1), "mnuKurveKopieren", kurve),
            &QAction::triggered, this, [kopieren, kurve] { kopieren(kurve); });
    return;
  }
  QMenu* liste = m->addMenu("Kurve in die Zwischenablage");
  liste->setObjectName("mnuKurveKopieren");
  for (int i = 0; i < MaxKurven; ++i) {
    if (!logik_.KurveBelegt()[static_cast<std::size_t>(i)]) continue;
    const QString text = QString("Kurve %1:  ").arg(i + 1) + MenueKurz(logik_.Kurve(i).Legende);
    connect(MenueEintrag(liste, text, "mnuKurveKopieren", i), &QAction::triggered, this,
            [kopieren, i] { kopieren(i); });
  }
  liste->setEnabled(!liste->isEmpty());
}

} // namespace quor::ui
