// The grid model the data editors share: sorting, pasting, counting, deleting and clearing.
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

  DatenTabelle leer(2);
  EXPECT_FALSE(leer.Sortieren(0)) << "an empty table only beeps";
}

TEST(DatenTabelle, PastedLinesWithATrailingBreakAddNoEmptyRowAndReadTheDecimalComma) {
  DatenTabelle t(2);
  ASSERT_TRUE(t.Einfuegen("1,5\t2\r\n3\t-4,25\r\n", 0, 0));
  ASSERT_EQ(t.Anzahl(), 2);
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1.5, 3}));
  EXPECT_EQ(Spalte(t, 1), (std::vector<double>{2, -4.25}));
  EXPECT_FALSE(t.Zeile(1).Inaktiv);

  // Text from a toolkit that ends lines with LF alone, with a blank line at the end, and a cell
  // beyond the last column.
  DatenTabelle u(2);
  ASSERT_TRUE(u.Einfuegen("7\t8\t9\n\n", 0, 0));
  ASSERT_EQ(u.Anzahl(), 1);
  EXPECT_EQ(u.Zeile(0).Werte, (std::vector<double>{7, 8}));

  EXPECT_FALSE(u.Einfuegen("", 0, 0));
  EXPECT_EQ(u.Anzahl(), 1);
}

TEST(DatenTabelle, PastingOntoTheLastRowExtendsTheTableFromTheCursorCell) {
  DatenTabelle t(3);
  t.Setzen({Z({1, 1, 1}), Z({2, 2, 2}, true)});
  // Two lines laid in at the last row, second column: the first overwrites, the second is new.
  ASSERT_TRUE(t.Einfuegen("20\t21\r30\t31\r", 1, 1));
  ASSERT_EQ(t.Anzahl(), 3);
  EXPECT_EQ(t.Zeile(1).Werte, (std::vector<double>{2, 20, 21}));
  EXPECT_TRUE(t.Zeile(1).Inaktiv) << "pasting over a row keeps its mark";
  EXPECT_EQ(t.Zeile(2).Werte, (std::vector<double>{0, 30, 31}));
  EXPECT_FALSE(t.Zeile(2).Inaktiv);
}

TEST(DatenTabelle, ARowOfValuesThatCancelIsKeptAfterPasting) {
  // x = -1, y = 1 sums to 0 but is a point; only a row with no value at all is the empty line.
  DatenTabelle t(2);
  t.Einfuegen("-1\t1\r", 0, 0);
  ASSERT_EQ(t.Anzahl(), 1);
  EXPECT_EQ(t.Zeile(0).Werte, (std::vector<double>{-1, 1}));
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
  EXPECT_GE(t.CursorZeile, 0);
  EXPECT_LT(t.CursorZeile, t.Anzahl());
  // A block reaching past the end is clipped; the last rows go, the cursor stays inside.
  t.ZeilenLoeschen(2, 9);
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 4}));
  EXPECT_EQ(t.CursorZeile, 1);

  TabellenAuswahl a;
  a.Zeile1 = 1;
  a.Zeile2 = 5; // beyond the table: clipped
  a.Spalte1 = 1;
  a.Spalte2 = 1;
  t.ZellenLeeren(a);
  EXPECT_EQ(Spalte(t, 0), (std::vector<double>{1, 4})) << "clearing keeps the rows";
  EXPECT_EQ(Spalte(t, 1), (std::vector<double>{10, 0}));

  t.ZeilenLoeschen(0, 1);
  EXPECT_TRUE(t.Leer());
  EXPECT_EQ(t.CursorZeile, -1);
}

TEST(DatenTabelle, SelectionTextIsTheGridsCellTextWithTabsAndCarriageReturns) {
  DatenTabelle t(2);
  t.Setzen({Z({273.15, -1.5}), Z({0, 12345678})});
  TabellenAuswahl alles{0, 1, 0, 1};
  EXPECT_EQ(t.AuswahlText(alles), " 273.15\t-1.5\r 0\t 1.234568E+07\r");
  // The text pastes back to the same values (the large one at seven digits).
  DatenTabelle u(2);
  u.Einfuegen(t.AuswahlText(alles), 0, 0);
  ASSERT_EQ(u.Anzahl(), 2);
  EXPECT_EQ(Spalte(u, 0), (std::vector<double>{273.15, 0}));
  EXPECT_EQ(Spalte(u, 1), (std::vector<double>{-1.5, 12345680}));
  EXPECT_EQ(t.AuswahlText(TabellenAuswahl{}), "");
}

TEST(DatenTabelle, CellTextIsBasicsStrWithALeadingBlankForNonNegativeValues) {
  EXPECT_EQ(DatenTabelle::ZellText(0), " 0");
  EXPECT_EQ(DatenTabelle::ZellText(0.1), " 0.1");
  EXPECT_EQ(DatenTabelle::ZellText(-2.5e-7), "-2.5E-07");
  EXPECT_EQ(DatenTabelle::ZellText(1e300), " 1E+300") << "beyond the float range the double's text";
}

} // namespace
} // namespace quor
