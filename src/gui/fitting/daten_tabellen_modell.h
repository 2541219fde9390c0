// The grid of the data editors in Qt: a table model over the logic's DatenTabelle (column 0 the row
// number, column 1 the inactive mark as a check box, then the data columns) and the table view with
// the editors' keys. Every change goes through the editor's logic: a cell's text on Enter, the mark,
// Ctrl+C, Ctrl+V and Del; the view writes the selection and the current cell into the table before
// each command and reads everything anew after it.
#pragma once

#include "fitting/daten_tabelle.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QTableView>

#include <functional>
#include <optional>
#include <string>

namespace quor::ui {

// Columns of the grid in front of the data.
constexpr int NummerSpalte = 0, MarkSpalte = 1, ErsteDatenSpalte = 2;

// A key that a number field passes on: what a number needs, and the control keys (Enter, Esc, Tab,
// Backspace, Del) that carry no printable text.
bool NummernTaste(const QString& text);

class DatenTabellenModell : public QAbstractTableModel {
  Q_OBJECT

public:
  // What the model asks of the editor's logic; rows and columns counted in the data.
  struct Logik {
    std::function<void(int zeile, int spalte, const std::string& text)> ZelleEingabe;
    std::function<void(int zeile)> AktivUmschalten;
    std::function<std::optional<QColor>(int spalte)> Farbe; // a highlighted column, else white
  };

  // `koepfe`: the heads of the number and mark columns, then one per data column.
  DatenTabellenModell(const DatenTabelle& tabelle, QStringList koepfe, Logik logik,
                      QObject* eltern = nullptr);

  // The logic has changed the table: every cell is read anew.
  void Neu();
  bool Leer() const { return t_.Leer(); }

  int rowCount(const QModelIndex& eltern = QModelIndex()) const override;
  int columnCount(const QModelIndex& eltern = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int rolle) const override;
  bool setData(const QModelIndex& index, const QVariant& wert, int rolle) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;

private:
  QVariant Text(int zeile, int spalte) const;

  const DatenTabelle& t_;
  QStringList koepfe_;
  Logik logik_;
};

// The editor of a data cell: a line that takes only the keys of a number; Enter commits.
class ZahlDelegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* eltern, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;

protected:
  bool eventFilter(QObject* objekt, QEvent* ereignis) override;
};

class DatenTabellenAnsicht : public QTableView {
  Q_OBJECT

public:
  DatenTabellenAnsicht(DatenTabelle& tabelle, DatenTabellenModell* modell, QWidget* eltern = nullptr);

  // The selection (its bounding rectangle in the data columns; the number and mark columns stand for
  // whole rows) and the current cell into the table's Auswahl and cursor.
  void AuswahlSchreiben();
  // After the logic's command: the model read anew, the logic's cursor cell current again.
  void Neu();

  // Ctrl+C, Ctrl+V and Del, each after the selection was written.
  std::function<void()> Kopieren, Einfuegen, Leeren;
  // The current cell moved to another row by the user.
  std::function<void(int zeile)> ZeileGewaehlt;

protected:
  void keyPressEvent(QKeyEvent* ereignis) override;

private:
  DatenTabelle& t_;
  DatenTabellenModell* modell_;
  bool zeigt_ = false; // the view itself is moving the current cell
};

} // namespace quor::ui
