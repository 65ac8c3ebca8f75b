#include "tests/unit/toolkit/ToolkitTest.h"

namespace toolkit::headless {
namespace {

class ListViewTest : public ToolkitTest {
 protected:
  ListViewTest() {
    list->AddColumn({"NAM", "Test", 4500, platform::Alignment::kLeft});
    list->AddColumn({"VAL", "Value", 1500, platform::Alignment::kRight});
    list->SetBounds({0, 0, 6000, 255 * 4});
  }

  static platform::ListCell Cell(const std::string& text) {
    platform::ListCell cell;
    cell.text = text;
    return cell;
  }

  std::shared_ptr<platform::IForm> form = Shown("FForm");
  std::shared_ptr<platform::IListView> list = form->AddListView("lvw");
};

TEST_F(ListViewTest, KeepsItsColumns) {
  const auto columns = list->Columns();
  ASSERT_EQ(columns.size(), 2U);
  EXPECT_EQ(columns[1].key, "VAL");
  EXPECT_EQ(columns[1].caption, "Value");
  EXPECT_EQ(columns[1].width, 1500);
  EXPECT_EQ(columns[1].alignment, platform::Alignment::kRight);
  ExpectHostError(5, "VAL", [&] { list->AddColumn({"VAL", "again", 1, platform::Alignment::kLeft}); });
}

TEST_F(ListViewTest, KeepsRowsInTheirOrder) {
  for (const char* key : {"12::", "3::", "7::"}) list->AddRow(key);
  EXPECT_EQ(list->RowCount(), 3);
  EXPECT_EQ(list->RowKeys(), (std::vector<std::string>{"12::", "3::", "7::"}));
  EXPECT_TRUE(list->HasRow("3::"));
  EXPECT_FALSE(list->HasRow("4::"));
  ExpectHostError(5, "3::", [&] { list->AddRow("3::"); });
  EXPECT_EQ(list->RowCount(), 3);
}

TEST_F(ListViewTest, KeepsCells) {
  list->AddRow("1::");
  EXPECT_EQ(list->Cell("1::", "VAL").text, "");
  auto cell = Cell("5.3  mA");
  cell.bold = true;
  cell.color = platform::kRed;
  cell.toolTip = "tip";
  cell.tag = 42;
  list->SetCell("1::", "VAL", cell);
  const auto kept = list->Cell("1::", "VAL");
  EXPECT_EQ(kept.text, "5.3  mA");
  EXPECT_TRUE(kept.bold);
  EXPECT_EQ(kept.color, platform::kRed);
  EXPECT_EQ(kept.toolTip, "tip");
  EXPECT_EQ(std::any_cast<int>(kept.tag), 42);
  EXPECT_EQ(list->Cell("1::", "NAM").text, "");
}

TEST_F(ListViewTest, RejectsUnknownRowsAndColumns) {
  list->AddRow("1::");
  ExpectHostError(9, "2::", [&] { list->SetCell("2::", "VAL", Cell("")); });
  ExpectHostError(9, "XYZ", [&] { list->SetCell("1::", "XYZ", Cell("")); });
  ExpectHostError(9, "2::", [&] { static_cast<void>(list->Cell("2::", "VAL")); });
  ExpectHostError(9, "XYZ", [&] { static_cast<void>(list->Cell("1::", "XYZ")); });
  ExpectHostError(9, "2::", [&] { static_cast<void>(list->RowTag("2::")); });
  ExpectHostError(9, "2::", [&] { list->SetRowTag("2::", 1); });
  ExpectHostError(9, "2::", [&] { list->SelectRow("2::"); });
  ExpectHostError(9, "2::", [&] { list->EnsureVisible("2::"); });
}

TEST_F(ListViewTest, KeepsRowTags) {
  list->AddRow("1::");
  EXPECT_FALSE(list->RowTag("1::").has_value());
  list->SetRowTag("1::", std::string("element"));
  EXPECT_EQ(std::any_cast<std::string>(list->RowTag("1::")), "element");
}

TEST_F(ListViewTest, ClearsRowsTagsAndSelection) {
  auto held = std::make_shared<int>(1);
  list->AddRow("1::");
  list->SetRowTag("1::", held);
  list->SelectRow("1::");
  list->ClearRows();
  EXPECT_EQ(list->RowCount(), 0);
  EXPECT_EQ(list->SelectedRow(), "");
  EXPECT_EQ(held.use_count(), 1);
  EXPECT_EQ(list->Columns().size(), 2U);
  list->AddRow("1::");
  EXPECT_FALSE(list->RowTag("1::").has_value());
}

TEST_F(ListViewTest, ReportsThePositionOfAClick) {
  platform::MouseEvent seen;
  On(list->MouseUp(), [&](const platform::MouseEvent& event) { seen = event; });
  list->ClickAt({2, 1, 30, 40});
  EXPECT_EQ(seen.button, 2);
  EXPECT_EQ(seen.shift, 1);
  EXPECT_EQ(seen.x, 30);
  EXPECT_EQ(seen.y, 40);
  list->SetEnabled(false);
  list->ClickAt({1, 0, 0, 0});
  EXPECT_EQ(seen.button, 2);
}

TEST_F(ListViewTest, SelectsTheClickedRow) {
  for (const char* key : {"a", "b", "c", "d", "e"}) list->AddRow(key);
  std::string seen;
  On(list->MouseUp(), [&](const platform::MouseEvent&) { seen = list->SelectedRow(); });
  list->ClickAt({1, 0, 10, 10});
  EXPECT_EQ(seen, "") << "that was a caption";
  list->ClickAt({1, 0, 10, 255});
  EXPECT_EQ(seen, "a");
  list->ClickAt({1, 0, 10, 255 * 3});
  EXPECT_EQ(seen, "c");
  // Three rows fit below the captions.
  list->EnsureVisible("e");
  list->ClickAt({1, 0, 10, 255});
  EXPECT_EQ(seen, "c");
  list->EnsureVisible("a");
  list->ClickAt({1, 0, 10, 255});
  EXPECT_EQ(seen, "a");
  list->ClickAt({1, 0, 10, 255 * 100});
  EXPECT_EQ(seen, "a") << "below the last row";
}

TEST_F(ListViewTest, HoldsManyRows) {
  for (int row = 0; row < 100000; ++row) list->AddRow(std::to_string(row));
  list->SetCell("99999", "VAL", Cell("last"));
  EXPECT_EQ(list->Cell("99999", "VAL").text, "last");
  EXPECT_EQ(list->RowCount(), 100000);
}

}  // namespace
}  // namespace toolkit::headless
