#include "ui/situation.h"

#include <gtest/gtest.h>

#include "support/recording_desktop.h"
#include "ui/grid.h"
#include "ui/range_summary.h"
#include "ui/screen.h"

namespace {

/// A screen with one grid: bench marks A, B on rows 1 and 3, their section on row 2, a route end on row 4.
class OneGrid : public ui::Screen {
 public:
  explicit OneGrid(ui::Desktop& desktop) : Screen("fOne", "一", desktop, 1000, 1000) {
    Grid1.setRows(6);
    Grid1.setCols(3);
    for (int col = 0; col < 3; ++col) Grid1.setColWidth(col, 900);
    Grid1.setText(0, 0, "水準点");
    Grid1.setText(0, 1, "標高");
    Grid1.setText(0, 2, "備考");
    Grid1.setText(1, 0, "A ");
    Grid1.setText(3, 0, "B");
    Grid1.setText(4, 0, "C");
    Grid1.setCellUse([](int, int col) {
      return col == 1 ? ui::CellUse::Number : col == 2 ? ui::CellUse::Text : ui::CellUse::Shown;
    });
  }
  std::string unit(const ui::Grid&, int col) const override { return col == 1 ? "m" : ""; }

  ui::Grid Grid1{"Grid1", this};
};

class SituationTest : public testing::Test {
 protected:
  std::string sum(int top, int left, int bottom, int right) {
    screen_.Grid1.setCurrent(top, left);
    screen_.Grid1.selectTo(bottom, right);
    return ui::summaryText(ui::summarize(screen_.Grid1));
  }

  test::RecordingDesktop desktop_;
  OneGrid screen_{desktop_};
  ui::Grid& grid_ = screen_.Grid1;
};

TEST_F(SituationTest, NamesBenchMarksAndTheSectionsBetweenThem) {
  EXPECT_EQ(screen_.rowName(grid_, 0), "") << "a header";
  EXPECT_EQ(screen_.rowName(grid_, 1), "A");
  EXPECT_EQ(screen_.rowName(grid_, 2), "A → B");
  EXPECT_EQ(screen_.rowName(grid_, 4), "C") << "an end, the next route directly below";
  EXPECT_EQ(screen_.rowName(grid_, 5), "") << "nothing comes after the last one";
}

TEST_F(SituationTest, NamesACellByRowColumnAndUnit) {
  EXPECT_EQ(ui::cellName(screen_, grid_, 2, 1), "A → B  標高 [m]");
  EXPECT_EQ(ui::cellName(screen_, grid_, 5, 2), "備考");
  EXPECT_EQ(ui::cellTakes(grid_, 1, 0), "表示だけのセルです");
  EXPECT_EQ(ui::cellTakes(grid_, 1, 1), "数値を入力できます");
  EXPECT_EQ(ui::cellTakes(grid_, 1, 2), "文字を入力できます");
}

// 10.0005 + 0.25 + (−3.5) + 7 = 13.7505; the remark and the blank cell do not count.
TEST_F(SituationTest, AddsUpTheNumbersOfARange) {
  grid_.setText(1, 1, "10.0005");
  grid_.setText(2, 1, " 0.25");
  grid_.setText(3, 1, "-3.5");
  grid_.setText(4, 1, "7");
  grid_.setText(1, 2, "12 m");
  EXPECT_EQ(sum(1, 1, 5, 2), "件数 4  合計 13.7505  最小 -3.5000  最大 10.0005");
  EXPECT_EQ(sum(5, 1, 1, 1), "件数 4  合計 13.7505  最小 -3.5000  最大 10.0005") << "drawn upwards";
  EXPECT_EQ(sum(5, 1, 5, 2), "") << "no number";
}

// 0.1 added ten times is 1.0, as it reads. −0.7 + 0.2 = −0.5: below zero without a whole part. 1 + (−1.25) =
// −0.25.
TEST_F(SituationTest, SumsAreExact) {
  grid_.setRows(11);
  for (int row = 1; row <= 10; ++row) grid_.setText(row, 1, "0.1");
  EXPECT_EQ(sum(1, 1, 10, 1), "件数 10  合計 1.0  最小 0.1  最大 0.1");
  grid_.setText(1, 1, "-0.7");
  grid_.setText(2, 1, "0.2");
  EXPECT_EQ(sum(1, 1, 2, 1), "件数 2  合計 -0.5  最小 -0.7  最大 0.2");
  grid_.setText(1, 1, "1");
  grid_.setText(2, 1, "-1.25");
  EXPECT_EQ(sum(1, 1, 2, 1), "件数 2  合計 -0.25  最小 -1.25  最大 1.00");
}

TEST_F(SituationTest, HiddenColumnsAndWhatIsNoDecimalDoNotCount) {
  grid_.setText(1, 1, "5");
  grid_.setColWidth(1, 0);
  EXPECT_EQ(sum(1, 0, 1, 2), "");
  grid_.setColWidth(1, 900);
  for (const char* text : {"1E5", "1,234", ".", "-", "1234567890123", "0.0123456789", "2021/08/01"}) {
    grid_.setText(1, 1, text);
    EXPECT_EQ(sum(1, 1, 1, 1), "") << text;
  }
}

}  // namespace
