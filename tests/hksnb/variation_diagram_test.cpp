#include "hksnb/variation_diagram.h"

#include <gtest/gtest.h>

#include "hksnb/book_maker.h"
#include "hksnb/book_screen.h"
#include "platform/files.h"

namespace {

using hksnb::Kind;
using Values = std::vector<std::optional<double>>;

const job::Grade first(1);

/// A book of the bench marks A, B, C … with these amounts; "" for none.
void makeBook(ui::Grid& grid, const std::vector<std::string>& amounts, const char* present,
              const char* previous) {
  test::BookMaker maker(grid, Kind::Orthometric);
  for (std::size_t i = 0; i < amounts.size(); ++i) {
    maker.benchMark(std::string(1, static_cast<char>('A' + i)), "", "", i == 0 ? "R1" : "").section();
    grid.setText(static_cast<int>(2 * i + 1), hksnb::colVariation, amounts[i]);
  }
  hksnb::setYears(grid, present, previous);
}

class Variation : public testing::Test {
 protected:
  Variation() {
    makeBook(now, {"1.5", "", "-2.5", "4.0"}, "2022", "2019");
    makeBook(before, {"0.5", "3.0", "-1.0"}, "2019", "2016");
  }

  report::Diagram diagram(const hksnb::DiagramLayers& with) const {
    return hksnb::variationDiagram(now, Kind::Orthometric, first, hksnb::bookPoints(now), with);
  }

  ui::Grid now;
  ui::Grid before;
};

TEST_F(Variation, ShowsTheAmountsWithAGapWhereOneIsMissing) {
  const report::Diagram shown = diagram({});
  ASSERT_EQ(shown.lines.size(), 1U);
  EXPECT_EQ(shown.lines[0].name, "2022 － 2019");
  EXPECT_EQ(shown.lines[0].values, (Values{1.5, std::nullopt, -2.5, 4.0}));
  EXPECT_EQ(shown.points[2].row, 5);
  EXPECT_EQ(shown.points[2].name, "C");
  EXPECT_FALSE(shown.kilometres);
  EXPECT_EQ(shown.remarks, (std::vector<std::string>{"観測成果 2022　平均成果 2019", "路線番号 R1"}));
}

TEST_F(Variation, ShowsAllAgainstTheAssumedFixedPoint) {
  // C moved by −2.5 mm: 1.5 − (−2.5) = 4, itself 0, 4 − (−2.5) = 6.5.
  const report::Diagram shown = diagram({5, {}});
  EXPECT_EQ(shown.lines[0].values, (Values{4.0, std::nullopt, 0.0, 6.5}));
  EXPECT_EQ(shown.remarks.back(), "仮不動点 C");
}

TEST_F(Variation, AssumesNoFixedPointWithoutAnAmount) {
  const report::Diagram shown = diagram({3, {}});
  EXPECT_EQ(shown.lines[0].values, (Values{1.5, std::nullopt, -2.5, 4.0}));
  EXPECT_EQ(shown.remarks.back(), "路線番号 R1");
}

TEST_F(Variation, LaysStoredBooksOverTheOneThatIsShown) {
  const report::Diagram shown = diagram({0, {{"7", &before}}});
  ASSERT_EQ(shown.lines.size(), 2U);
  EXPECT_EQ(shown.lines[1].name, "簿 7（2019 － 2016）");
  EXPECT_EQ(shown.lines[1].values, (Values{0.5, 3.0, -1.0, std::nullopt}));
}

TEST_F(Variation, TakesFromEachLineItsOwnAmountAtTheFixedPoint) {
  // Against A: 1.5 and 0.5 are taken off.
  const report::Diagram shown = diagram({1, {{"7", &before}}});
  EXPECT_EQ(shown.lines[0].values, (Values{0.0, std::nullopt, -4.0, 2.5}));
  EXPECT_EQ(shown.lines[1].values, (Values{0.0, 2.5, -1.5, std::nullopt}));
}

TEST_F(Variation, LeavesALineOutThatHasNoAmountAtTheFixedPoint) {
  const report::Diagram shown = diagram({7, {{"7", &before}}});
  ASSERT_EQ(shown.lines.size(), 1U);
  EXPECT_EQ(shown.lines[0].values.back(), 0.0);
  EXPECT_EQ(shown.remarks.back(), "簿 7（2019 － 2016） は仮不動点の変動量がないため表示していません");
}

/// The marks of a figure with a note that begins so.
std::vector<report::Mark> marksOf(const report::Figure& figure, const std::string& note) {
  std::vector<report::Mark> marks;
  for (const report::Shape& shape : figure.drawing.shapes)
    if (const auto* mark = std::get_if<report::Mark>(&shape))
      if (mark->note.starts_with(note)) marks.push_back(*mark);
  return marks;
}

class BookDiagram : public test::BookScreen {
 protected:
  void type(int row, const char* previous) {
    screen.Grid1.click(row, hksnb::colPrevious);
    for (const char* c = previous; *c != 0; ++c) screen.Grid1.pressKey(static_cast<unsigned char>(*c));
  }

  void storeAs(const char* number) {
    screen.CmdHendryocal.press();
    screen.txtHksnbNo.edit(number);
    screen.CmdExeE2.press();
  }
};

TEST_F(BookDiagram, FollowsTheGrid) {
  newBook();
  EXPECT_TRUE(marksOf(screen.diagram({}), "A ").empty());
  type(1, "9.999");
  screen.CmdHendryocal.press();
  // A stands at 10: 10 − 9.999 = 1 mm.
  ASSERT_EQ(marksOf(screen.diagram({}), "A ").size(), 1U);
  EXPECT_EQ(marksOf(screen.diagram({}), "A ")[0].note, "A  変動量 1.0 mm");
  EXPECT_EQ(marksOf(screen.diagram({}), "A ")[0].row, 1);
}

TEST_F(BookDiagram, OffersTheOtherStoredBooksAndReadsThemOnceStored) {
  newBook();
  type(1, "9.999");
  storeAs("3");
  EXPECT_TRUE(screen.diagramOffer().layers.empty()) << "the book in the grid is not laid over itself";
  type(1, "9.998");
  storeAs("4");
  EXPECT_EQ(screen.diagramOffer().layers, std::vector<std::string>{"3"});
  const auto marks = marksOf(screen.diagram({.layers = {"3"}}), "A ");
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_NE(marks[0].sign, marks[1].sign) << "told apart without colours";
  EXPECT_NE(marks[0].colour, marks[1].colour);
}

TEST_F(BookDiagram, ShowsAStoredBookWhereTheGridHoldsNone) {
  newBook();
  type(1, "9.999");
  storeAs("3");
  test::RecordingDesktop other;
  hksnb::fHHksb fresh{job.context(), other};
  fresh.load();
  EXPECT_TRUE(fresh.diagram({}).drawing.shapes.empty());
  const auto marks = marksOf(fresh.diagram({.layers = {"3"}}), "A ");
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].row, -1) << "no row of the grid to be led to";
}

TEST_F(BookDiagram, IsFiledUnderTheBooksNumber) {
  newBook();
  screen.txtHksnbNo.edit("12");
  EXPECT_EQ(screen.diagramOffer().picture, "成果変動図正標高12.bmp");
}

}  // namespace
