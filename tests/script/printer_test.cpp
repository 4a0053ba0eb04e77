#include "script/printer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using script::Reading;

std::string printed(std::string_view name, const Reading& reading) {
  std::ostringstream out;
  script::printReading(out, name, reading);
  return out.str();
}

Reading reading(ui::Kind kind, std::string text = {}) {
  Reading result;
  result.kind = kind;
  result.text = std::move(text);
  return result;
}

TEST(Printer, QuotesWithEscapes) {
  EXPECT_EQ(script::quoted("a\"b\\c\td\ne"), R"("a\"b\\c\td\ne")");
  EXPECT_EQ(script::quoted(""), "\"\"");
}

TEST(Printer, TextsInQuotes) {
  for (const ui::Kind kind : {ui::Kind::Label, ui::Kind::TextBox, ui::Kind::Button, ui::Kind::Frame,
                              ui::Kind::Menu, ui::Kind::MenuItem})
    EXPECT_EQ(printed("x", reading(kind, "保存(&S)")), "x: \"保存(&S)\"\n");
}

TEST(Printer, OptionButtons) {
  Reading option = reading(ui::Kind::OptionButton, "今回");
  EXPECT_EQ(printed("optSeika(0)", option), "optSeika(0): off \"今回\"\n");
  option.on = true;
  EXPECT_EQ(printed("optSeika(0)", option), "optSeika(0): on \"今回\"\n");
}

TEST(Printer, ListsItemByItem) {
  for (const ui::Kind kind : {ui::Kind::ListBox, ui::Kind::ComboBox}) {
    Reading list = reading(kind);
    EXPECT_EQ(printed("cmb", list), "cmb: 0 items, current -1\n");
    list.items = {"R001    ", "a\"b"};
    list.current = 1;
    EXPECT_EQ(printed("cmb", list), "cmb: 2 items, current 1\n  0 \"R001    \"\n  1 \"a\\\"b\"\n");
  }
}

TEST(Printer, TabControls) {
  Reading tab = reading(ui::Kind::TabControl);
  tab.current = 1;
  tab.pages = 2;
  EXPECT_EQ(printed("SSTab1", tab), "SSTab1: page 1 of 2\n");
}

TEST(Printer, GridsRowByRowWithEscapesAndWithoutQuotes) {
  Reading grid = reading(ui::Kind::Grid);
  grid.rows = 2;
  grid.cols = 2;
  grid.row = grid.rowSel = 1;
  grid.colSel = 1;
  const std::string cells[2][2] = {{"水準点", "標高"}, {"a\tb\nc\\d\"e", ""}};
  grid.cell = [&cells](int row, int col) { return cells[row][col]; };
  EXPECT_EQ(printed("Grid1", grid),
            "Grid1: 2 rows, 2 columns, current 1,0 to 1,1\n"
            "0\t水準点\t標高\n"
            "1\ta\\tb\\nc\\\\d\"e\t\n");
}

TEST(Printer, SizesAndScreens) {
  std::ostringstream out;
  script::printSize(out, "Grid1", {8400, 3700});
  script::printScreen(out, "fSHsei", "正標高補正");
  script::printNoScreen(out);
  EXPECT_EQ(out.str(), "Grid1: 8400 x 3700\nscreen: fSHsei \"正標高補正\"\nscreen: none\n");
}

TEST(Printer, MessagesOneALine) {
  std::ostringstream out;
  script::printMessages(out, {});
  script::printMessages(out, {{"FcDBOpen", "a\nb", ui::Icon::Critical},
                              {"", "保存しました", ui::Icon::None},
                              {"題", "", ui::Icon::Information}});
  EXPECT_EQ(out.str(),
            "messages: none\n"
            "message: title=\"FcDBOpen\" icon=critical text=\"a\\nb\"\n"
            "message: title=\"\" icon=none text=\"保存しました\"\n"
            "message: title=\"題\" icon=information text=\"\"\n");
}

TEST(Printer, FindingsOneALine) {
  std::ostringstream out;
  script::printFindings(out, {{ui::Severity::Error, 4, 2, "補正数「x」は\n数値ではありません。", "直す"},
                              {ui::Severity::Warning, -1, -1, "閉合差", ""}});
  EXPECT_EQ(out.str(),
            "check: error 4,2 \"補正数「x」は\\n数値ではありません。\"\ncheck: warning -,- \"閉合差\"\n");
}

TEST(Printer, UnhandledErrorsInOneLine) {
  std::ostringstream out;
  script::printUnhandled(out, "開けません\nC:\\job");
  EXPECT_EQ(out.str(), "unhandled error: 開けません C:\\job\n");
}

}  // namespace
