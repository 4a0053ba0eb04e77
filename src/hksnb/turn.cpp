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
using Place = std::array<std::string, placeColumns>;

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
  if (first == 0) return std::nullopt;
  return Span{first, last};
}

class Turn {
 public:
  Turn(ui::Grid& grid, Span span, Kind kind, const text::Pattern& heights)
      : grid_(grid), span_(span), kind_(kind), heights_(heights), table_(copy(grid)) {}

  void run() {
    const std::vector<Place> places = placesInOrder();
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
    const std::string& value = grid_.text(row, col);
    if (!text::trimmed(value).empty()) grid_.setText(row, col, heights_.format(-text::readNumber(value)));
  }

  /// Heights along the new order. One that was blank stays so, and the sum goes on past it.
  void sumUp(int col) {
    double height = text::readNumber(grid_.text(span_.first, col));
    for (int row = span_.first + 2; row <= span_.last; row += 2) {
      height += text::readNumber(grid_.text(row - 1, col));
      if (text::trimmed(grid_.text(row, col)).empty()) continue;
      grid_.setText(row, col, heights_.format(height));
      height = text::readNumber(grid_.text(row, col));
    }
  }

  /// Where each bench mark stands, spelt out, in the order after the turn. The one below the span is the last
  /// whose neighbour is another.
  std::vector<Place> placesInOrder() const {
    std::vector<Place> places;
    Place place;
    const int end = std::min(span_.last + 2, grid_.rows() - 1);
    for (int row = 1; row <= end; row += 2) {
      for (std::size_t col = 0; col < place.size(); ++col)
        if (!text::trimmed(before(row)[col]).empty()) place[col] = before(row)[col];
      places.push_back(place);
    }
    std::reverse(places.begin() + span_.first / 2, places.begin() + span_.last / 2 + 1);
    return places;
  }

  void showPlaces(const std::vector<Place>& places) {
    for (std::size_t at = static_cast<std::size_t>(span_.first) / 2; at < places.size(); ++at) {
      const Place above = at == 0 ? Place() : places[at - 1];
      for (std::size_t col = 0; col < above.size(); ++col)
        grid_.setText(static_cast<int>(2 * at + 1), static_cast<int>(col),
                      places[at][col] == above[col] ? std::string() : places[at][col]);
    }
  }

  ui::Grid& grid_;
  const Span span_;
  const Kind kind_;
  const text::Pattern& heights_;
  const std::vector<Row> table_;  // the grid before the turn
};

}  // namespace

void HKsnbSetFcSortToGrid1(ui::Grid& Grid1, std::string_view startNo, std::string_view endNo, Kind kind,
                           job::Grade grade) {
  ui::trapped(Grid1.desktop(), "HKsnbSetFcSortToGrid1", [&] {
    const auto span = spanBetween(Grid1, startNo, endNo);
    if (span) Turn(Grid1, *span, kind, FcHHKSB_DefToColNo(grade).heights).run();
  });
}

}  // namespace hksnb
