#include "ui/range_summary.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

#include "text/padding.h"
#include "ui/grid.h"

namespace ui {
namespace {

constexpr std::size_t mostWhole = 12;        // digits before the point
constexpr std::size_t mostDecimals = 9;      // digits after it
constexpr std::int64_t one = 1'000'000'000;  // in units of the last of them

/// A decimal number in two parts, both with its sign. Sums of as many as a grid has cells keep in them.
struct Parts {
  std::int64_t whole = 0;
  std::int64_t fraction = 0;  ///< in 10⁻⁹
  int decimals = 0;

  bool operator<(const Parts& other) const {
    return whole != other.whole ? whole < other.whole : fraction < other.fraction;
  }
};

std::optional<std::int64_t> digits(std::string_view text) {
  std::int64_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  return number;
}

std::optional<Parts> read(std::string_view text) {
  text = text::trimmed(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view whole = text.substr(0, point);
  std::string rest(text.substr(std::min(point + 1, text.size())));
  if ((whole.empty() && rest.empty()) || whole.size() > mostWhole || rest.size() > mostDecimals) return {};
  const int decimals = static_cast<int>(rest.size());
  rest.resize(mostDecimals, '0');
  const auto ones = digits(whole);
  const auto fraction = digits(rest);
  if (!ones || !fraction) return {};
  const int sign = negative ? -1 : 1;
  return Parts{sign * *ones, sign * *fraction, decimals};
}

/// Both parts with one sign, the fraction below one.
Parts settled(Parts parts) {
  parts.whole += parts.fraction / one;
  parts.fraction %= one;
  const int apart = parts.whole > 0 && parts.fraction < 0   ? 1
                    : parts.whole < 0 && parts.fraction > 0 ? -1
                                                            : 0;
  parts.whole -= apart;
  parts.fraction += apart * one;
  return parts;
}

std::string shown(const Parts& parts, int decimals) {
  const bool negative = parts.whole < 0 || parts.fraction < 0;
  std::string text = (negative ? "-" : "") + std::to_string(negative ? -parts.whole : parts.whole);
  if (decimals == 0) return text;
  std::string fraction = std::to_string(negative ? -parts.fraction : parts.fraction);
  fraction.insert(0, mostDecimals - fraction.size(), '0');
  return text + "." + fraction.substr(0, static_cast<std::size_t>(decimals));
}

/// Gathers the numbers of cells.
class Gathering {
 public:
  void take(const Parts& number) {
    sum_.whole += number.whole;
    sum_.fraction += number.fraction;
    decimals_ = std::max(decimals_, number.decimals);
    if (count_ == 0 || number < least_) least_ = number;
    if (count_ == 0 || greatest_ < number) greatest_ = number;
    ++count_;
  }

  RangeSummary summary() const {
    if (count_ == 0) return {};
    return {count_, shown(settled(sum_), decimals_), shown(least_, decimals_), shown(greatest_, decimals_)};
  }

 private:
  int count_ = 0;
  int decimals_ = 0;
  Parts sum_;
  Parts least_;
  Parts greatest_;
};

}  // namespace

RangeSummary summarize(const Grid& grid) {
  const auto [top, bottom] = std::minmax({grid.row(), grid.rowSel()});
  const auto [left, right] = std::minmax({grid.col(), grid.colSel()});
  Gathering gathering;
  for (int col = left; col <= right; ++col) {
    if (grid.colWidth(col) <= 0) continue;
    for (int row = top; row <= bottom; ++row)
      if (const auto number = read(grid.text(row, col))) gathering.take(*number);
  }
  return gathering.summary();
}

std::string summaryText(const RangeSummary& summary) {
  if (summary.count == 0) return {};
  return "件数 " + std::to_string(summary.count) + "  合計 " + summary.sum + "  最小 " + summary.least +
         "  最大 " + summary.greatest;
}

}  // namespace ui
