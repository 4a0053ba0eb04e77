#include <gtest/gtest.h>

#include <string>

#include "daen/calculation.h"
#include "daen/route_maker.h"

namespace {

class SectionRow : public testing::Test, protected test::DaenGrids {
 protected:
  void enter(const char* start, const char* end, double correction, const char* reference = "") {
    daen::FcDaenSetGrid2Row(sections, {start, end, "35", "30.5", "36", "15", reference}, {512.3, correction});
  }

  std::string row(int at) const { return cells(sections, at, 0, daen::sectionColumnCount - 1); }
};

// 35 · 60 + 30.5 = 2130.5, 36 · 60 + 15 = 2175; difference −44.5, sum 4305.5; 1.25 + 3.1 = 4.35.
TEST_F(SectionRow, HoldsTheSectionInPlainWordsAndInMinutes) {
  enter("A", "B", 3.1, "1.25");
  EXPECT_EQ(row(1), "35°30.5|36°15|A|B|2130.5|2175.0|-44.5|4305.5|4.35|512.3|3.1");
  EXPECT_EQ(sections.rows(), 3);
  EXPECT_EQ(row(2), "||||||||||");
}

// Minutes with three decimals are shown with two, half away from zero: 2130.125 → 2130.13, −0.125 → −0.13.
TEST_F(SectionRow, MinutesAreShownWithTwoDecimals) {
  daen::FcDaenSetGrid2Row(sections, {"A", "B", "35", "30.125", "35", "30.25", ""}, {500, 0});
  EXPECT_EQ(row(1), "35°30.125|35°30.25|A|B|2130.13|2130.25|-0.13|4260.38|0.0|500.0|0.0");
}

TEST_F(SectionRow, LatitudesAreShownAsTheyWereTyped) {
  daen::FcDaenSetGrid2Row(sections, {"A", "B", " -35", "-30 ", "35.5", "", ""}, {0, -2.5});
  EXPECT_EQ(row(1), "-35°-30|35.5°|A|B|-2130.0|2130.0|-4260.0|0.0|-2.5|0.0|-2.5");
}

TEST_F(SectionRow, CorrectionsAccumulateFromTheReference) {
  enter("A", "B", 3.1, "0.05");
  enter("B", "C", -1.2, "0.05");
  enter("C", "D", 0.4, "0.05");
  EXPECT_EQ(sectionResult(1), "A|B|3.15|512.3|3.1");
  EXPECT_EQ(sectionResult(2), "B|C|1.95|512.3|-1.2");
  EXPECT_EQ(sectionResult(3), "C|D|2.35|512.3|0.4");
  EXPECT_EQ(sections.rows(), 5);
}

// The other rows close up and are summed up anew: B–C −1.2, C–D −1.2 + 0.4, A–B −0.8 + 3.3.
TEST_F(SectionRow, ASectionEnteredAgainStandsLast) {
  enter("A", "B", 3.1);
  enter("B", "C", -1.2);
  enter("C", "D", 0.4);
  enter("A", "B", 3.3);
  EXPECT_EQ(sectionResult(1), "B|C|-1.2|512.3|-1.2");
  EXPECT_EQ(sectionResult(2), "C|D|-0.8|512.3|0.4");
  EXPECT_EQ(sectionResult(3), "A|B|2.5|512.3|3.3");
  EXPECT_EQ(sections.rows(), 5);
}

TEST_F(SectionRow, TheOppositeDirectionIsAnotherSection) {
  enter("A", "B", 3.1);
  enter("B", "A", -3.1);
  EXPECT_EQ(sectionResult(1), "A|B|3.1|512.3|3.1");
  EXPECT_EQ(sectionResult(2), "B|A|0.0|512.3|-3.1");
}

TEST_F(SectionRow, TheOnlySectionMayBeEnteredAgain) {
  enter("A", "B", 3.1);
  enter("A", "B", 3.2, "1");
  EXPECT_EQ(sectionResult(1), "A|B|4.2|512.3|3.2");
  EXPECT_EQ(sections.rows(), 3);
}

}  // namespace
