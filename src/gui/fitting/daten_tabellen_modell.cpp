#include "gui/fitting/daten_tabellen_modell.h"

#include "fitting/tprho_editor.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <climits>

namespace quor::ui {

namespace {

const QColor Weiss(255, 255, 255);
const QColor Kopfgrau(236, 236, 236);
const QColor Inaktivgrau(140, 140, 140);

} // namespace

bool NummernTaste(const QString& text) {
  if (text.isEmpty()) return true;
  const char16_t c = text.at(0).unicode();
  if (c < 0x20 || c == 0x7f) return true; // Enter, Esc, Tab, Backspace, Del
  return c < 0x80 && frmTpRhoEdit::ZahlTaste(static_cast<char>(c));
}

// ----- the model -----

DatenTabellenModell::DatenTabellenModell(const DatenTabelle& tabelle, QStringList koepfe, Logik logik,
                                         QObject* eltern)
    : QAbstractTableModel(eltern), t_(tabelle), koepfe_(std::move(koepfe)), logik_(std::move(logik)) {}

void DatenTabellenModell::Neu() {
  beginResetModel();
  endResetModel();
}

int DatenTabellenModell::rowCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : std::max(t_.Anzahl(), 1); // an empty table has its "leere Liste" row
}

int DatenTabellenModell::columnCount(const QModelIndex& eltern) const {
  return eltern.isValid() ? 0 : ErsteDatenSpalte + t_.Spalten();
}

QVariant DatenTabellenModell::Text(int zeile, int spalte) const {
  if (t_.Leer()) return spalte == NummerSpalte ? QString::fromUtf8(frmTpRhoEdit::LeereListe) : QString();
  if (spalte == NummerSpalte) return QString::number(zeile + 1);
  if (spalte == MarkSpalte) return QVariant();
  return QString::fromStdString(DatenTabelle::ZellText(t_.Zeile(zeile).Werte[spalte - ErsteDatenSpalte]));
}

QVariant DatenTabellenModell::data(const QModelIndex& index, int rolle) const {
  if (!index.isValid()) return QVariant();
  const int zeile = index.row(), spalte = index.column();
  const bool daten = !t_.Leer() && spalte >= ErsteDatenSpalte;
  switch (rolle) {
  case Qt::DisplayRole:
    return Text(zeile, spalte);
  case Qt::EditRole:
    return daten ? Text(zeile, spalte).toString().trimmed() : QVariant();
  case Qt::CheckStateRole:
    if (t_.Leer() || spalte != MarkSpalte) return QVariant();
    return t_.Zeile(zeile).Inaktiv ? Qt::Checked : Qt::Unchecked;
  case Qt::TextAlignmentRole:
    return static_cast<int>(t_.Leer() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
  case Qt::BackgroundRole: {
    if (!daten) return Kopfgrau;
    const std::optional<QColor> f = logik_.Farbe ? logik_.Farbe(spalte - ErsteDatenSpalte) : std::nullopt;
    return f.value_or(Weiss);
  }
  case Qt::ForegroundRole:
    return daten && t_.Zeile(zeile).Inaktiv ? QVariant(Inaktivgrau) : QVariant();
  default:
    return QVariant();
  }
}

bool DatenTabellenModell::setData(const QModelIndex& index, const QVariant& wert, int rolle) {
  if (!index.isValid() || t_.Leer()) return false;
  const int zeile = index.row(), spalte = index.column();
  if (rolle == Qt::CheckStateRole && spalte == MarkSpalte && logik_.AktivUmschalten) {
    logik_.AktivUmschalten(zeile);
  } else if (rolle == Qt::EditRole && spalte >= ErsteDatenSpalte && logik_.ZelleEingabe) {
    logik_.ZelleEingabe(zeile, spalte - ErsteDatenSpalte, wert.toString().toStdString());
  } else {
    return false;
  }
  // A cell or a mark changes no row count: the cells are read anew without a reset, which would
  // pull the editor away under the view's commit.
  emit dataChanged(this->index(0, 0), this->index(rowCount() - 1, columnCount() - 1));
  return true;
}

Qt::ItemFlags DatenTabellenModell::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (t_.Leer()) return f;
  if (index.column() == MarkSpalte) f |= Qt::ItemIsUserCheckable;
  if (index.column() >= ErsteDatenSpalte) f |= Qt::ItemIsEditable;
  return f;
}

QVariant DatenTabellenModell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
  if (richtung != Qt::Horizontal || abschnitt < 0 || abschnitt >= koepfe_.size()) return QVariant();
  if (rolle == Qt::DisplayRole) return koepfe_.at(abschnitt);
  if (rolle == Qt::ToolTipRole && abschnitt == MarkSpalte) {
    const SteuerText* t = TpRhoText("aus");
    return t && t->ToolTip ? QString::fromUtf8(t->ToolTip) : QVariant();
  }
  return QVariant();
}

// ----- the cell editor -----

QWidget* ZahlDelegate::createEditor(QWidget* eltern, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
  QWidget* editor = QStyledItemDelegate::createEditor(eltern, option, index);
  if (auto* zeile = qobject_cast<QLineEdit*>(editor)) zeile->setAlignment(Qt::AlignRight);
  return editor;
}

bool ZahlDelegate::eventFilter(QObject* objekt, QEvent* ereignis) {
  if (ereignis->type() == QEvent::KeyPress && !NummernTaste(static_cast<QKeyEvent*>(ereignis)->text()))
    return true;
  return QStyledItemDelegate::eventFilter(objekt, ereignis);
}

// ----- the view -----

DatenTabellenAnsicht::DatenTabellenAnsicht(DatenTabelle& tabelle, DatenTabellenModell* modell,
                                           QWidget* eltern)
    : QTableView(eltern), t_(tabelle), modell_(modell) {
  setModel(modell);
  setItemDelegate(new ZahlDelegate(this));
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
  horizontalHeader()->setMinimumSectionSize(30);
  setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::AnyKeyPressed);
  setSelectionMode(QAbstractItemView::ContiguousSelection);
  setCornerButtonEnabled(false);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& jetzt, const QModelIndex&) {
            if (!zeigt_ && jetzt.isValid() && !modell_->Leer() && ZeileGewaehlt) ZeileGewaehlt(jetzt.row());
          });
  Neu();
}

void DatenTabellenAnsicht::AuswahlSchreiben() {
  if (modell_->Leer()) {
    t_.Auswahl = TabellenAuswahl{};
    return;
  }
  const QModelIndex c = currentIndex();
  if (c.isValid()) {
    t_.CursorZeile = c.row();
    t_.CursorSpalte = std::max(c.column() - ErsteDatenSpalte, 0);
  }
  TabellenAuswahl a;
  const QModelIndexList liste = selectionModel()->selectedIndexes();
  if (!liste.isEmpty()) {
    int z1 = INT_MAX, z2 = -1, s1 = INT_MAX, s2 = -1;
    for (const QModelIndex& i : liste) {
      z1 = std::min(z1, i.row());
      z2 = std::max(z2, i.row());
      s1 = std::min(s1, i.column());
      s2 = std::max(s2, i.column());
    }
    a.Zeile1 = z1;
    a.Zeile2 = z2;
    // The number and mark columns stand for their rows' data.
    a.Spalte1 = s2 < ErsteDatenSpalte ? 0 : std::max(s1 - ErsteDatenSpalte, 0);
    a.Spalte2 = s2 < ErsteDatenSpalte ? t_.Spalten() - 1 : s2 - ErsteDatenSpalte;
  }
  t_.Auswahl = a;
}

void DatenTabellenAnsicht::Neu() {
  zeigt_ = true;
  modell_->Neu();
  clearSpans();
  if (modell_->Leer()) {
    setSpan(0, 0, 1, modell_->columnCount());
  } else {
    // The cursor cell, and the selection as far as the logic kept it (a command that moves rows
    // empties it); without one the cursor cell is the selection.
    const int zeile = std::clamp(t_.CursorZeile, 0, t_.Anzahl() - 1);
    const int spalte = std::clamp(t_.CursorSpalte, 0, t_.Spalten() - 1) + ErsteDatenSpalte;
    const TabellenAuswahl& a = t_.Auswahl;
    const int z1 = std::max(a.Zeile1, 0), z2 = std::min(a.Zeile2, t_.Anzahl() - 1);
    const int s1 = std::max(a.Spalte1, 0), s2 = std::min(a.Spalte2, t_.Spalten() - 1);
    if (z1 <= z2 && s1 <= s2) {
      selectionModel()->setCurrentIndex(modell_->index(zeile, spalte), QItemSelectionModel::NoUpdate);
      selectionModel()->select(QItemSelection(modell_->index(z1, s1 + ErsteDatenSpalte),
                                              modell_->index(z2, s2 + ErsteDatenSpalte)),
                               QItemSelectionModel::ClearAndSelect);
    } else {
      setCurrentIndex(modell_->index(zeile, spalte));
    }
  }
  zeigt_ = false;
}

void DatenTabellenAnsicht::keyPressEvent(QKeyEvent* ereignis) {
  std::function<void()>* befehl = nullptr;
  if (ereignis->matches(QKeySequence::Copy))
    befehl = &Kopieren;
  else if (ereignis->matches(QKeySequence::Paste))
    befehl = &Einfuegen;
  else if (ereignis->key() == Qt::Key_Delete && ereignis->modifiers() == Qt::NoModifier)
    befehl = &Leeren;
  if (!befehl) {
    QTableView::keyPressEvent(ereignis);
    return;
  }
  AuswahlSchreiben();
  if (*befehl) (*befehl)();
  ereignis->accept();
}

} // namespace quor::ui
