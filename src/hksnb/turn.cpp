#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "hksnb/calculation.h"
#include "hksnb/columns.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/error_trap.h"

namespace hksnb {
namespace {

/// A book is turned within a table of rows 0 to 1000.
constexpr int mostRows = 1001;

using Row = std::array<std::string, colRemark + 1>;

/// The rows of the first and the last bench mark.
struct Span {
  int first;
  int last;
};

/// The lowest row of a bench mark; 0 where there is none of that number.
int rowOf(const ui::Grid& grid, std::string_view number) {
  const std::string_view wanted = text::trimmed(number);
  if (wanted.empty()) return 0;
  for (int row = grid.rows() - 1; row >= 1; --row)
    if (text::trimmed(grid.text(row, colBenchMark)) == wanted) return row;
  return 0;
}

std::optional<Span> spanBetween(const ui::Grid& grid, std::string_view startNo, std::string_view endNo) {
  const auto [first, last] = std::minmax({rowOf(grid, startNo), rowOf(grid, endNo)});
  if (first == 0 || first == last) return std::nullopt;
  return Span{first, last};
}

class Turn {
 public:
  Turn(ui::Grid& grid, Span span, Kind kind, const text::Pattern& heights)
      : grid_(grid), span_(span), kind_(kind), heights_(heights), table_(copy(grid)) {}

  /// `places`: of all bench marks of the grid, in the order before the turn.
  void run(std::vector<Place> places) {
    std::reverse(places.begin() + span_.first / 2, places.begin() + span_.last / 2 + 1);
    for (int row = span_.first; row <= span_.last; ++row) move(row);
    for (int row = span_.first + 1; row < span_.last; row += 2) changeSigns(row);
    if (kind_ == Kind::Orthometric) {
      sumUp(colHeight);
      sumUp(colPresent);
    }
    showPlaces(places);
  }

 private:
  static std::vector<Row> copy(const ui::Grid& grid) {
    if (grid.rows() > mostRows) throw text::RuntimeError(text::ErrorCode::Subscript);
    std::vector<Row> table(static_cast<std::size_t>(grid.rows()));
    for (std::size_t row = 0; row < table.size(); ++row)
      for (std::size_t col = 0; col < table[row].size(); ++col)
        table[row][col] = grid.text(static_cast<int>(row), static_cast<int>(col));
    return table;
  }

  const Row& before(int row) const { return table_[static_cast<std::size_t>(row)]; }

  /// The row that comes to stand on `row` in the span.
  int mirrored(int row) const { return span_.first + span_.last - row; }

  void move(int row) {
    const Row& from = before(mirrored(row));
    for (int col = placeColumns; col <= colRemark; ++col)
      grid_.setText(row, col, from[static_cast<std::size_t>(col)]);
  }

  void changeSigns(int row) {
    changeSign(row, colHeight);
    changeSign(row, colCorrection);
    if (kind_ == Kind::Orthometric) changeSign(row, colPresent);
  }

  void changeSign(int row, int col) {
    if (!isBlank(row, col)) grid_.setText(row, col, heights_.format(-text::readNumber(grid_.text(row, col))));
  }

  /// The nearest bench mark from `row` upwards that has a height in the column; the first of the grid where
  /// none has.
  int heightAtOrAbove(int row, int col) const {
    while (row > 1 && isBlank(row, col)) row -= 2;
    return row;
  }

  /// Heights along the new order. One that was blank stays so, and the sum goes on past it.
  void sumUp(int col) {
    const int start = span_.first == 1 ? 1 : heightAtOrAbove(span_.first - 2, col);
    double height = text::readNumber(grid_.text(start, col));
    for (int row = start + 2; row <= span_.last; row += 2) {
      height += text::readNumber(grid_.text(row - 1, col));
      if (row < span_.first || isBlank(row, col)) continue;
      grid_.setText(row, col, heights_.format(height));
      height = text::readNumber(grid_.text(row, col));
    }
  }

  bool isBlank(int row, int col) const { return text::trimmed(grid_.text(row, col)).empty(); }

  /// Down to the bench mark below the span, the last whose neighbour is another.
  void showPlaces(const std::vector<Place>& places) {
    const std::size_t end = std::min(static_cast<std::size_t>(span_.last) / 2 + 2, places.size());
    for (std::size_t at = static_cast<std::size_t>(span_.first) / 2; at < end; ++at) {
      const Place shown = shownBelow(at == 0 ? Place() : places[at - 1], places[at]);
      for (std::size_t col = 0; col < shown.size(); ++col)
        grid_.setText(static_cast<int>(2 * at + 1), static_cast<int>(col), shown[col]);
    }
  }

  ui::Grid& grid_;
  const Span span_;
  const Kind kind_;
  const text::Pattern& heights_;
  const std::vector<Row> table_;  // the grid before the turn
};

}  // namespace

void HKsnbSetFcSortToGrid1(ui::Grid& Grid1, const PlaceNames& places, std::string_view startNo,
                           std::string_view endNo, Kind kind, job::Grade grade) {
  ui::trapped(Grid1.desktop(), "HKsnbSetFcSortToGrid1", [&] {
    const auto span = spanBetween(Grid1, startNo, endNo);
    if (span) Turn(Grid1, *span, kind, FcHHKSB_DefToColNo(grade).heights).run(places.inOrder(Grid1));
  });
}

}  // namespace hksnb
