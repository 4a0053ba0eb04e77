#include <cmath>

#include "text/date.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/grid.h"

// What the texts of a grid are to be.

namespace ui {
namespace {

/// Degrees, "°" and minutes; the minutes may be left out, as a latitude box may be left empty.
bool isLatitude(std::string_view text) {
  constexpr std::string_view sign = "°";
  constexpr double mostDegrees = 90;
  constexpr double minutesInDegree = 60;
  const std::size_t at = text.find(sign);
  if (at == std::string_view::npos) return false;
  const std::string_view degrees = text.substr(0, at);
  const std::string_view minutes = text.substr(at + sign.size());
  if (!text::isNumeric(degrees) || !(text::trimmed(minutes).empty() || text::isNumeric(minutes)))
    return false;
  const double whole = text::readNumber(degrees);
  const double part = text::readNumber(minutes);
  return std::abs(part) < minutesInDegree && std::abs(whole + part / minutesInDegree) <= mostDegrees;
}

}  // namespace

std::string Grid::problem(int row, int col) const {
  const std::string& cell = text(row, col);
  if (row < fixedRows_ || text::trimmed(cell).empty()) return {};
  switch (content(col)) {
    case Content::Number:
      return text::isNumeric(cell) ? std::string() : "数値ではありません";
    case Content::Date:
      return text::Date::parse(cell) ? std::string() : "日付ではありません";
    case Content::Latitude:
      return isLatitude(cell) ? std::string() : "緯度ではありません";
    case Content::Anything:
      break;
  }
  return {};
}

}  // namespace ui
