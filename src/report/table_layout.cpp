#include "report/table_layout.h"

#include <algorithm>
#include <numeric>

#include "text/padding.h"

namespace report {
namespace {

constexpr double side = 12;         // room at both sides of a cell, 0.1 mm
constexpr double above = 5;         // room above and below the lines of a row, 0.1 mm
constexpr double leastText = 6;     // a column whose texts wrap is at least so wide, in characters
constexpr double mostText = 20;     // and is not made wider than this before others fit
constexpr double leastLetters = 2;  // the narrowest a column is ever squeezed to
constexpr double mostAir = 1.5;     // what a column gets beyond its need, in characters
constexpr double baseline = 1.02;   // of a line, from its top, in heights of a character: in its middle
const Pen thin{1, {90, 90, 90}, Dash::Solid};

/// The width of a number up to its decimal point.
double upToPoint(std::string_view number, const Measure& measure) {
  return measure(number.substr(0, std::min(number.find('.'), number.size())));
}

}  // namespace

std::vector<std::string> wrapped(const std::string& text, double width, const Measure& measure) {
  std::vector<std::string> lines(1);
  double used = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    text::nextCharacter(text, at);
    const std::string_view character = std::string_view(text).substr(start, at - start);
    const double needed = measure(character);
    if (!lines.back().empty() && (used + needed > width + 1e-9 || character == "\n")) {
      lines.emplace_back();
      used = 0;
    }
    if (character == "\n") continue;
    lines.back() += character;
    used += needed;
  }
  return lines;
}

double TableLayout::Extent::natural() const { return std::max({heading, text, whole + fraction}); }

TableLayout::TableLayout(const Table& table, const Measure& measure) : table_(table), measure_(measure) {
  measureTable();
}

void TableLayout::measureTable() {
  extents_.resize(table_.columns.size());
  for (std::size_t i = 0; i < extents_.size(); ++i) {
    const Column& column = table_.columns[i];
    Extent& extent = extents_[i];
    extent.heading = std::max(measure_(column.heading), column.unit.empty() ? 0 : measure_(column.unit) + 1);
    for (const Row& row : table_.rows) {
      const std::string& cell = row.cell(i);
      const double width = measure_(cell);
      if (column.side == Side::Point) {
        const double whole = upToPoint(cell, measure_);
        extent.whole = std::max(extent.whole, whole);
        extent.fraction = std::max(extent.fraction, width - whole);
      }
      extent.text = std::max(extent.text, width);
    }
  }
}

/// The narrowest that a column may be, 0.1 mm.
double TableLayout::least(std::size_t column, bool squeeze) const {
  const double natural = extents_[column].natural();
  double letters = natural;
  if (table_.columns[column].wraps)
    letters = std::min(natural, std::max(leastText, extents_[column].heading));
  if (squeeze) letters = std::min(natural, std::max(leastLetters, extents_[column].heading));
  return letters * size_ + 2 * side;
}

bool TableLayout::fit(double size, double width, bool squeeze) {
  size_ = size;
  squeezed_ = squeeze;
  widths_.clear();
  for (std::size_t i = 0; i < extents_.size(); ++i) widths_.push_back(least(i, squeeze));
  const double room = width - this->width();
  if (room < 0) return false;
  share(room, squeeze);
  return true;
}

/// What is left over goes to the columns that could be wider; then every column gets some air, and those with
/// wrapping texts take all the rest.
void TableLayout::share(double room, bool squeeze) {
  double wanted = 0;
  const auto missing = [&](std::size_t i) {
    const bool wraps = table_.columns[i].wraps;
    const double natural =
        wraps ? std::clamp(extents_[i].natural(), leastText, mostText) : extents_[i].natural();
    return squeeze || wraps ? std::max(0.0, natural * size_ + 2 * side - widths_[i]) : 0;
  };
  std::vector<double> more;
  for (std::size_t i = 0; i < widths_.size(); ++i) wanted += more.emplace_back(missing(i));
  const double given = wanted > 0 ? std::min(1.0, room / wanted) : 0;
  for (std::size_t i = 0; i < widths_.size(); ++i) widths_[i] += more[i] * given;
  room -= wanted * given;
  const double wider = std::min(mostAir * size_, room / 2 / static_cast<double>(widths_.size()));
  for (double& width : widths_) width += wider;
  room -= wider * static_cast<double>(widths_.size());
  for (std::size_t i = 0; i < widths_.size(); ++i)
    if (table_.columns[i].wraps) return void(widths_[i] += room);
}

double TableLayout::width() const { return std::accumulate(widths_.begin(), widths_.end(), 0.0); }

double TableLayout::rowHeight(std::size_t lines) const {
  return static_cast<double>(lines) * lineHeight() + 2 * above;
}

std::vector<std::vector<std::string>> TableLayout::lines(const Row& row) const {
  std::vector<std::vector<std::string>> result;
  result.reserve(widths_.size());
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    if (table_.columns[i].wraps || squeezed_)
      result.push_back(wrapped(row.cell(i), (widths_[i] - 2 * side) / size_, measure_));
    else
      result.push_back({row.cell(i)});
  }
  return result;
}

void TableLayout::drawHead(Drawing& page, Point at) const {
  page.shapes.emplace_back(Area{{at, width(), headHeight()}, {232, 236, 240}});
  Point corner = at;
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    const Column& column = table_.columns[i];
    const double lower = column.unit.empty() ? lineHeight() / 2 : 0;
    drawText(page, {corner.x, corner.y + above + lower}, i, column.heading, Side::Middle);
    if (!column.unit.empty())
      drawText(page, {corner.x, corner.y + above + lineHeight()}, i, "(" + column.unit + ")", Side::Middle);
    corner.x += widths_[i];
  }
  outline(page, {at, width(), headHeight()}, Pen{2.5, black, Dash::Solid});
}

void TableLayout::drawRow(Drawing& page, Point at, const std::vector<std::vector<std::string>>& lines,
                          std::size_t first, std::size_t last) const {
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    const bool whole = lines[i].size() == 1;
    for (std::size_t line = first; line < std::min(last, lines[i].size()); ++line) {
      const double down = above + static_cast<double>(line - first) * lineHeight();
      const Side stands =
          whole || table_.columns[i].side != Side::Point ? table_.columns[i].side : Side::Left;
      drawText(page, {at.x, at.y + down}, i, lines[i][line], stands);
    }
    at.x += widths_[i];
  }
}

/// Where the decimal points of a column stand, from its left side: the numbers as a whole stand in its
/// middle.
double TableLayout::pointPlace(std::size_t column) const {
  const Extent& extent = extents_[column];
  return widths_[column] / 2 + (extent.whole - extent.fraction) / 2 * size_;
}

void TableLayout::drawText(Drawing& page, Point at, std::size_t column, const std::string& text,
                           Side stands) const {
  if (text.empty()) return;
  Words words{{at.x + side, at.y + baseline * size_}, text, size_, Anchor::Left};
  if (stands == Side::Middle) words.at.x = at.x + widths_[column] / 2;
  if (stands == Side::Middle) words.anchor = Anchor::Middle;
  if (stands == Side::Right) words.at.x = at.x + widths_[column] - side;
  if (stands == Side::Right) words.anchor = Anchor::Right;
  if (stands == Side::Point) words.at.x = at.x + pointPlace(column) - upToPoint(text, measure_) * size_;
  page.shapes.emplace_back(std::move(words));
}

void TableLayout::drawSides(Drawing& page, Point at, double height) const {
  double x = at.x;
  rule(page, {x, at.y}, {x, at.y + height}, Pen{2.5, black, Dash::Solid});
  for (std::size_t i = 0; i < widths_.size(); ++i) {
    x += widths_[i];
    const bool edge = i + 1 == widths_.size();
    rule(page, {x, at.y}, {x, at.y + height}, edge ? Pen{2.5, black, Dash::Solid} : thin);
  }
}

}  // namespace report
