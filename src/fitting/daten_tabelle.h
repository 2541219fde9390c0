// The grid of the data editors without a toolkit: rows of numbers in the table's units with an
// inactive mark, the cursor and a rectangular selection, and the editing both editors share:
// stable sorting by a column, active/inactive, deleting rows, clearing cells, the clipboard text of
// the selection and pasting at the cursor (the table grows; the empty line a trailing line break
// gives is dropped), and the counts of measured values per column that enable the editors' buttons.
// The measured-data editor has six columns (T, p, rho(V), rho(L), delta(LV)h, cp), the X-Y editor two.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quor {

struct DatenZeile {
  std::vector<double> Werte; // one value per column; 0 means "no value"
  bool Inaktiv = false;      // kept out of fitting and diagrams, not written to a file
};

// Rows and columns counted from 0 in the data (without the grid's number and mark columns);
// an empty selection has Zeile2 < Zeile1.
struct TabellenAuswahl {
  int Zeile1 = 0, Zeile2 = -1;
  int Spalte1 = 0, Spalte2 = -1;
  bool Leer() const { return Zeile2 < Zeile1 || Spalte2 < Spalte1; }
};

// A value counts as measured from this size on.
constexpr double GemessenAb = 1e-6;

class DatenTabelle {
public:
  explicit DatenTabelle(int spalten);

  int Spalten() const { return spalten_; }
  int Anzahl() const { return static_cast<int>(zeilen_.size()); }
  bool Leer() const { return zeilen_.empty(); }
  const std::vector<DatenZeile>& Zeilen() const { return zeilen_; }
  const DatenZeile& Zeile(int i) const { return zeilen_[static_cast<std::size_t>(i)]; }

  // Replaces all rows (each is brought to the column count, missing values 0); the cursor goes to
  // row 0 and the selection is emptied.
  void Setzen(std::vector<DatenZeile> zeilen);
  // A row at the end; a row inside replaced (index out of range: nothing).
  void Anhaengen(DatenZeile z);
  void Ersetzen(int zeile, DatenZeile z);
  // One cell, as the direct editing of the grid stores it (no unit conversion).
  void SetzeWert(int zeile, int spalte, double wert);

  // The cursor cell (row, column; the row is -1 in an empty table) and the selection.
  int CursorZeile = 0;
  int CursorSpalte = 0;
  TabellenAuswahl Auswahl;

  // Ascending by a column: a bubble sort in place over whole rows, stable, ending early after a
  // sweep without an exchange; the inactive mark travels with its row. False in an empty table
  // (the editor beeps).
  bool Sortieren(int spalte);
  // Toggles the inactive mark of a row; false in an empty table or for a row out of range.
  bool AktivUmschalten(int zeile);
  // Removes the rows von..bis (inclusive, clipped to the table); the cursor stays inside.
  void ZeilenLoeschen(int von, int bis);
  // Sets every cell of the selection to 0; the rows remain.
  void ZellenLeeren(const TabellenAuswahl& a);

  // The selection as the grid's own selection text: cells joined by TAB, rows ended by CR (the last
  // row too, as the grid writes it).
  std::string AuswahlText(const TabellenAuswahl& a) const;
  // Pastes clipboard text at row `zeile`, column `spalte`: lines split at CR (an LF after it is
  // dropped) or at a lone LF, cells at TAB, each read with "," as decimal mark as Basic's Val() reads
  // it; cells beyond the last column are dropped. The table grows by new active rows of zeros when
  // the lines reach beyond its end; afterwards, when the lines reached the last row, that row is
  // dropped if every value of it is 0 (the line a trailing line break gives; a row whose values
  // merely cancel, x = -1 and y = 1, stays). False when the text is empty.
  bool Einfuegen(std::string_view text, int zeile, int spalte);

  // Per column the rows with a value of at least GemessenAb.
  std::vector<int> Gemessen() const;
  // The text of a cell as the grid shows it: Basic's Str() of the value (" 0", " 273.15", "-1.5").
  static std::string ZellText(double wert);

private:
  int spalten_;
  std::vector<DatenZeile> zeilen_;
};

} // namespace quor
