// The grid model the data editors share: sorting, pasting, counting, deleting, clearing and the
// text of a selection.
#include "fitting/daten_tabelle.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

DatenZeile Z(std::vector<double> werte, bool inaktiv = false) {
  return DatenZeile{std::move(werte), inaktiv};
}

std::vector<double> Spalte(const DatenTabelle& t, int j) {
  std::vector<double> s;
  for (const DatenZeile& z : t.Zeilen())
    s.push_back(z.Werte[static_cast<std::size_t>(j)]);
  return s;
}

TEST(DatenTabelle, SortingIsStableAndTheInactiveMarkTravelsWithItsRow) {
  DatenTabelle t(2);
  // Three rows share the key 2; their second column tells their original order.
  t.Setzen({Z({3, 10}), Z({2, 11}, true), Z({1, 12}), Z({2, 13}), Z({2, 14}, true)});
  ASSERT_TRUE(t.Sortieren(0));
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 2, 2, 2, 3}));
  EXPECT_EQ(Spalte(t, 1), (std::vector<double>{12, 11, 13, 14, 10}));
  std::vector<bool> inaktiv;
  for (const DatenZeile& z : t.Zeilen())
    inaktiv.push_back(z.Inaktiv);
  EXPECT_EQ(inaktiv, (std::vector<bool>{false, true, false, true, false}));
  EXPECT_FALSE(DatenTabelle(2).Sortieren(0)) << "an empty table only beeps";
}

// A trailing line break (CR LF, or LF alone with a blank line) adds no empty row, while a row whose
// values merely cancel stays; "," is the decimal mark; cells beyond the last column are dropped.
// Lines laid in at the last row extend the table from the cursor cell.
TEST(DatenTabelle, PastingAddsNoEmptyRowForATrailingBreakAndExtendsTheTableFromTheCursor) {
  DatenTabelle t(2);
  ASSERT_TRUE(t.Einfuegen("2\t3,25\r\n-1,5\t1,5\r\n", 0, 0));
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{2, -1.5}));
  EXPECT_EQ(Spalte(t, 1), (std::vector<double>{3.25, 1.5}));

  DatenTabelle u(2);
  ASSERT_TRUE(u.Einfuegen("7\t8\t9\n\n", 0, 0));
  ASSERT_EQ(u.Anzahl(), 1);
  EXPECT_EQ(u.Zeile(0).Werte, (std::vector<double>{7, 8}));
  EXPECT_FALSE(u.Einfuegen("", 0, 0));
  EXPECT_EQ(u.Anzahl(), 1);

  DatenTabelle v(3);
  v.Setzen({Z({1, 1, 1}), Z({2, 2, 2}, true)});
  ASSERT_TRUE(v.Einfuegen("20\t21\r30\t31\r", 1, 1));
  ASSERT_EQ(v.Anzahl(), 3);
  EXPECT_EQ(v.Zeile(1).Werte, (std::vector<double>{2, 20, 21}));
  EXPECT_TRUE(v.Zeile(1).Inaktiv) << "pasting over a row keeps its mark";
  EXPECT_EQ(v.Zeile(2).Werte, (std::vector<double>{0, 30, 31}));
  EXPECT_FALSE(v.Zeile(2).Inaktiv);
}

TEST(DatenTabelle, CountsPerColumnTakeOnlyValuesFromTheMeasuredLimitOn) {
  DatenTabelle t(3);
  t.Setzen({Z({300, 1e-6, 0}), Z({310, 9e-7, -5}), Z({320, 2, 0}, true)});
  // Inactive rows are counted too; the limit itself counts, values below it and negatives do not.
  EXPECT_EQ(t.Gemessen(), (std::vector<int>{3, 2, 0}));
}

TEST(DatenTabelle, DeletingABlockAndClearingASelection) {
  DatenTabelle t(2);
  t.Setzen({Z({1, 10}), Z({2, 20}), Z({3, 30}), Z({4, 40}), Z({5, 50})});
  t.CursorZeile = 4;
  t.ZeilenLoeschen(1, 2);
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 4, 5}));
  // A block reaching past the end is clipped; the last rows go, the cursor stays inside.
  t.ZeilenLoeschen(2, 9);
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 4}));
  EXPECT_EQ(t.CursorZeile, 1);

  t.ZellenLeeren(TabellenAuswahl{1, 5, 1, 1}); // rows beyond the table are clipped
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 4})) << "clearing keeps the rows";
  EXPECT_EQ(Spalte(t, 1), (std::vector<double>{10, 0}));

  t.ZeilenLoeschen(0, 1);
  EXPECT_TRUE(t.Leer());
  EXPECT_EQ(t.CursorZeile, -1);
}

// A cell's text is Basic's Str() with a leading blank for non-negative values; the selection joins
// cells by TAB and ends each row with CR, and pastes back to the same values.
TEST(DatenTabelle, SelectionTextIsTheGridsCellTextWithTabsAndCarriageReturns) {
  EXPECT_EQ(DatenTabelle::ZellText(0.1), " 0.1");
  EXPECT_EQ(DatenTabelle::ZellText(-2.5e-7), "-2.5E-07");
  EXPECT_EQ(DatenTabelle::ZellText(1e300), " 1E+300") << "beyond the float range the double's text";

  DatenTabelle t(2);
  t.Setzen({Z({273.15, -1.5}), Z({0, 12345678})});
  const TabellenAuswahl alles{0, 1, 0, 1};
  EXPECT_EQ(t.AuswahlText(alles), " 273.15\t-1.5\r 0\t 1.234568E+07\r");
  EXPECT_EQ(t.AuswahlText(TabellenAuswahl{}), "");
  DatenTabelle u(2);
  u.Einfuegen(t.AuswahlText(alles), 0, 0);
  EXPECT_EQ(Spalte(u, 0), (std::vector<double>{273.15, 0}));
  EXPECT_EQ(Spalte(u, 1), (std::vector<double>{-1.5, 12345680})) << "the large one at seven digits";
}

} // namespace
} // namespace quor
