#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTreeWidget>

#include "OrvikTypeLib/IPicture.h"
#include "host/gui/AddTestsDialog.h"
#include "host/qt/Conversions.h"
#include "tests/system/gui/DesktopTest.h"

namespace desktop_test {
namespace {

using host::bench::CatalogueEntry;
using host::gui::AddTestsDialog;

constexpr int kNameColumn = 1;

CatalogueEntry Entry(std::int32_t id, std::int32_t parent, const std::string& name) {
  CatalogueEntry entry{};
  entry.testId = id;
  entry.parent = parent;
  entry.name = name;
  entry.sequence = id % 100 == 0;
  entry.unit = entry.sequence ? "" : "µA";
  return entry;
}

/// Names differ only at their ends, and the longest are in collapsed groups.
TEST(AddTestsDialogTest, ShowsCompleteNames) {
  const std::string name = "Patient leakage current AC, single patient lead, SFC open neutral";
  AddTestsDialog dialog({Entry(100, 0, "Complete safety test"), Entry(1500, 100, "Applied part tests"),
                         Entry(1100, 1500, "Patient leakage current"), Entry(1120, 1100, name),
                         Entry(1150, 1100, name + ", mains reversed")},
                        nullptr);
  dialog.show();
  auto& tests = *dialog.findChild<QTreeWidget*>("catalogue");
  tests.expandAll();
  const QAbstractItemView& rows = tests;
  ASSERT_GT(rows.sizeHintForColumn(kNameColumn), 500) << "the names are too short to show anything";
  EXPECT_GE(tests.header()->sectionSize(kNameColumn), rows.sizeHintForColumn(kNameColumn));
}

TEST(AddTestsDialogTest, VeryLongName_KeepsItsEndAndHasAToolTip) {
  const std::string name = std::string(2000, 'w') + ", mains reversed";
  AddTestsDialog dialog({Entry(410, 0, name)}, nullptr);
  auto& tests = *dialog.findChild<QTreeWidget*>("catalogue");
  EXPECT_EQ(tests.textElideMode(), Qt::ElideMiddle);
  EXPECT_NE(tests.topLevelItem(0)->toolTip(kNameColumn).indexOf(", mains reversed"), -1);
  EXPECT_LT(dialog.width(), 10000);
}

/// The pictures are the real plug-in's.
class AddTestsPicturesTest : public DesktopTest {};

TEST_F(AddTestsPicturesTest, AreBesideTheNames) {
  AddTestsDialog dialog({Entry(400, 0, "Protective earth"), Entry(410, 400, "With mains cord"),
                         Entry(99999, 400, "Beyond all numbers of tests")},
                        nullptr);
  dialog.ShowPictures([this](std::int32_t id) { return host::bench::PictureOf(*bench_, id); });
  const auto& group = *dialog.findChild<QTreeWidget*>("catalogue")->topLevelItem(0);
  EXPECT_FALSE(group.icon(kNameColumn).isNull());
  const auto expected = host::qt::PictureOf(bench_->PlugIn().Icon(410, 0)->Bitmap());
  ASSERT_FALSE(expected.isNull());
  EXPECT_EQ(group.child(0)->icon(kNameColumn).pixmap(expected.size()).toImage(), expected.toImage());
  EXPECT_TRUE(group.child(1)->icon(kNameColumn).isNull());
}

}  // namespace
}  // namespace desktop_test
