// The heights a surface is drawn with when some of its cells could not be computed.
#include "diagrams/diagramm_bild.h"

#include <gtest/gtest.h>

namespace quor {
namespace {

// Three rows of four columns, heights 10 * row + column.
Flaeche3D Gitter() {
  Flaeche3D f;
  f.X = {0, 1, 2, 3};
  f.Y = {0, 1, 2};
  for (int j = 0; j < 3; ++j)
    for (int i = 0; i < 4; ++i)
      f.Z.push_back(10 * j + i);
  f.AchseZ = {-5, 50, "Z"};
  return f;
}

TEST(FlaechenHoehen, InvalidCellsTakeTheNearestValidHeightOfTheirRow) {
  Flaeche3D f = Gitter();
  EXPECT_EQ(AnzeigeHoehen(f), f.Z); // no mask: every cell as it is

  f.Gueltig.assign(12, true);
  f.Gueltig[ZellIndex(f, 0, 0)] = false; // only a right neighbour
  f.Gueltig[ZellIndex(f, 0, 2)] = false; // neighbours 1 and 3 equally near: the left one
  f.Gueltig[ZellIndex(f, 1, 2)] = false;
  f.Gueltig[ZellIndex(f, 1, 3)] = false; // nearest valid is two cells to the left
  for (int i = 0; i < 4; ++i)
    f.Gueltig[ZellIndex(f, 2, i)] = false; // a row without any
  f.Z[ZellIndex(f, 1, 3)] = -1e30;         // an invalid cell's value is never drawn
  EXPECT_EQ(AnzeigeHoehen(f), (std::vector<double>{1, 1, 1, 3, 10, 11, 11, 11, 1, 1, 1, 1}));

  f.Gueltig.assign(12, false); // nothing valid: the floor of the Z axis
  EXPECT_EQ(AnzeigeHoehen(f), std::vector<double>(12, -5));

  f.Gueltig.assign(11, true); // a mask of the wrong size: an inconsistent grid isn't drawn
  EXPECT_FALSE(FlaecheStimmig(f));
  EXPECT_TRUE(AnzeigeHoehen(f).empty());
}

} // namespace
} // namespace quor
