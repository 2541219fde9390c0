#include "dienste/datei_filter.h"

#include <gtest/gtest.h>

namespace quor::ui {
namespace {

TEST(DateiFilter, ListFiltersBecomeToolkitFilters) {
  EXPECT_EQ(ToolkitFilter("Ergebnis-Datei (*.LST)|*.LST"), "Ergebnis-Datei (*.LST *.lst)");
  EXPECT_EQ(ToolkitFilter("QUOR-Projektdatei (*.QC6)|*.QC6|Alle Dateien|*.*"),
            "QUOR-Projektdatei (*.QC6 *.qc6);;Alle Dateien (*.*)");
  EXPECT_EQ(ToolkitFilter("Datenbank|*.Q06;*.Q07"), "Datenbank (*.Q06 *.q06 *.Q07 *.q07)");
  EXPECT_EQ(ToolkitFilter(""), "");
}

TEST(DateiFilter, DefaultExtensionOnlyWhenTheNameHasNone) {
  EXPECT_EQ(MitStandardEndung("projekt", ".QC6"), "projekt.QC6");
  EXPECT_EQ(MitStandardEndung("a.b/projekt", ".QC6"), "a.b/projekt.QC6");
  EXPECT_EQ(MitStandardEndung("projekt.qc6", ".QC6"), "projekt.qc6");
  EXPECT_EQ(MitStandardEndung("liste", "LST"), "liste.LST");
  EXPECT_EQ(MitStandardEndung("", ".QC6"), "");
}

} // namespace
} // namespace quor::ui
