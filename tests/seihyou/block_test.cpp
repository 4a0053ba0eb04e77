#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "seihyou/calculation.h"
#include "seihyou/grid_maker.h"

namespace {

const job::Grade first(1);

/// Numbers without pattern, the same for the same seed.
class Numbers {
 public:
  explicit Numbers(std::uint32_t seed) : state_(seed) {}
  int below(int limit) {
    state_ = state_ * 1664525U + 1013904223U;
    return static_cast<int>((state_ >> 8U) % static_cast<std::uint32_t>(limit));
  }

 private:
  std::uint32_t state_;
};

std::string metres(int tenthsOfMillimetre) {
  return job::Grade(1).heights().format(tenthsOfMillimetre / 1e4);
}

/// Routes of up to eight bench marks, some of them repeated ("-2").
void lay(ui::Grid& grid, std::uint32_t seed) {
  Numbers numbers(seed);
  test::GridMaker maker(grid);
  for (int route = 0; route < 3; ++route) {
    const int marks = 2 + numbers.below(7);
    for (int mark = 0; mark < marks; ++mark) {
      const std::string name = "R" + std::to_string(route) + "-" + std::to_string(mark);
      const bool repeated = mark > 0 && numbers.below(4) == 0;
      maker.benchMark(name, metres(100000 + numbers.below(1000)), repeated ? "-2" : "");
      maker.section(repeated ? std::string() : metres(numbers.below(40000) - 20000));
    }
    maker.benchMark("E" + std::to_string(route), {}, "-1");
  }
}

std::string texts(const ui::Grid& grid) {
  std::string all;
  for (int row = 0; row < grid.rows(); ++row) {
    for (int col = 0; col < grid.cols(); ++col) all += grid.text(row, col) + "|";
    all += "\n";
  }
  return all;
}

TEST(ABlockOfCorrections, ComesToWhatTypingEachWithEnterComesTo) {
  for (std::uint32_t seed = 1; seed <= 300; ++seed) {
    ui::Grid typed;
    ui::Grid pasted;
    lay(typed, seed);
    lay(pasted, seed);
    Numbers numbers(seed + 1000);
    std::vector<int> rows;
    for (int row = 1; row < typed.rows(); ++row) {
      if (!seihyou::isCorrectionCell(typed, row, seihyou::colCorrection) || numbers.below(3) == 0) continue;
      const std::string correction = std::to_string(numbers.below(41) - 20);
      typed.setText(row, seihyou::colCorrection, correction);
      seihyou::FcCalcSeihyou(typed, row, first);
      pasted.setText(row, seihyou::colCorrection, correction);
      rows.push_back(row);
    }
    seihyou::calculateRoutes(pasted, rows, first);
    ASSERT_EQ(texts(pasted), texts(typed)) << "seed " << seed;
  }
}

}  // namespace
