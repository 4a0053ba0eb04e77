#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "hksnb/book_maker.h"
#include "hksnb/calculation.h"
#include "hksnb/filling.h"
#include "text/number.h"

namespace {

using hksnb::Kind;

/// Small whole numbers in a fixed order.
class Numbers {
 public:
  explicit Numbers(std::uint32_t seed) : state_(seed) {}

  int below(int limit) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<int>((state_ >> 8U) % static_cast<std::uint32_t>(limit));
  }
  std::string text(int limit, double unit) { return text::numberText((below(2 * limit + 1) - limit) * unit); }

 private:
  std::uint32_t state_;
};

hksnb::Observation observation(Numbers& numbers, int index) {
  hksnb::Observation made;
  made.place = {"1001", "R" + std::to_string(index / 7), "長野県", "諏訪郡",
                numbers.below(5) == 0 ? "" : "町" + std::to_string(index / 5)};
  made.benchMark = "P" + std::to_string(index);
  made.height = numbers.below(4) == 0 ? "" : "100";
  made.meanDifference = numbers.below(6) == 0 ? "" : numbers.text(9000, 0.001);
  made.correction = numbers.below(6) == 0 ? "" : numbers.text(30, 1);
  made.result = "100";
  made.remark1 = numbers.below(3) == 0 ? "備考" + std::to_string(index) : "";
  made.remark2 = numbers.below(3) == 0 ? "区間" + std::to_string(index) : "";
  return made;
}

hksnb::PlaceNames fill(ui::Grid& grid, Kind kind, job::Grade grade, Numbers& numbers, int benchMarks) {
  FcHHKSB_InitGrid1(grid, kind);
  hksnb::Filling filling(grid, kind, grade);
  for (int i = 0; i < benchMarks; ++i) filling.add(observation(numbers, i));
  filling.finish();
  for (int row = 1; row < grid.rows(); row += 2)
    if (numbers.below(2) == 0) grid.setText(row, hksnb::colPrevious, "99.5");
  return filling.places();
}

/// Everything as before the two turns; a correction that was turned has taken the heights pattern.
void expectTheSame(const ui::Grid& before, const ui::Grid& after) {
  ASSERT_EQ(before.rows(), after.rows());
  for (int row = 0; row < before.rows(); ++row)
    for (int col = 0; col < before.cols(); ++col) {
      const std::string& was = before.text(row, col);
      const std::string& is = after.text(row, col);
      if (col == hksnb::colCorrection && row > 0 && !was.empty())
        ASSERT_EQ(text::readNumber(was), text::readNumber(is)) << row;
      else
        ASSERT_EQ(was, is) << row << "," << col;
    }
}

TEST(TurnProperty, TurningASpanTwiceGivesTheBookBack) {
  Numbers numbers(20240501);
  for (int round = 0; round < 300; ++round) {
    const Kind kind = round % 2 == 0 ? Kind::Orthometric : Kind::Ellipsoidal;
    const job::Grade grade(static_cast<std::int16_t>(1 + round % 3));
    const int benchMarks = 1 + numbers.below(30);
    ui::Grid before;
    const std::uint32_t seed = static_cast<std::uint32_t>(round);
    Numbers same(seed);
    fill(before, kind, grade, same, benchMarks);
    ui::Grid after;
    Numbers again(seed);
    const hksnb::PlaceNames places = fill(after, kind, grade, again, benchMarks);
    const std::string start = "P" + std::to_string(numbers.below(benchMarks));
    const std::string end = "P" + std::to_string(numbers.below(benchMarks));
    hksnb::HKsnbSetFcSortToGrid1(after, places, start, end, kind, grade);
    hksnb::HKsnbSetFcSortToGrid1(after, places, start, end, kind, grade);
    expectTheSame(before, after);
  }
}

}  // namespace
