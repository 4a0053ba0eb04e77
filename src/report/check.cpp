#include "report/check.h"

#include <algorithm>
#include <cmath>

#include "text/decimal.h"
#include "text/number.h"

namespace report {
namespace {

/// The decimals to which a number is rounded where its leading digit has `decimals` behind it.
int significantDecimals(double number, int decimals) {
  return number == 0 ? decimals : decimals - static_cast<int>(std::floor(std::log10(std::abs(number))));
}

/// What was reckoned, by column of the check and row.
class Reckoned {
 public:
  explicit Reckoned(std::size_t columns) : values_(columns) {}

  double at(CellPlace cell) const {
    const auto& column = values_[static_cast<std::size_t>(cell.col)];
    const auto row = static_cast<std::size_t>(cell.row);
    return row < column.size() ? column[row] : 0;
  }

  void set(int column, int row, double value) {
    auto& values = values_[static_cast<std::size_t>(column)];
    if (values.size() <= static_cast<std::size_t>(row)) values.resize(static_cast<std::size_t>(row) + 1);
    values[static_cast<std::size_t>(row)] = value;
  }

 private:
  std::vector<std::vector<double>> values_;
};

}  // namespace

Decimals decimalsOf(std::string_view cell) {
  if (!text::isNumeric(cell)) return {};
  const std::size_t exponent = cell.find_first_of("Ee");
  const std::string_view mantissa = cell.substr(0, exponent);
  const std::size_t point = mantissa.find('.');
  const auto behind = point == std::string_view::npos ? std::string_view() : mantissa.substr(point + 1);
  const auto digits =
      std::count_if(behind.begin(), behind.end(), [](char c) { return c >= '0' && c <= '9'; });
  return {static_cast<int>(digits), exponent != std::string_view::npos};
}

double difference(std::string_view shown, double reckoned) {
  const Decimals decimals = decimalsOf(shown);
  const int places = decimals.exponent ? significantDecimals(reckoned, decimals.count) : decimals.count;
  const double units = std::pow(10, places);
  const double apart = text::readNumber(shown) - text::roundHalfAway(text::Decimal(reckoned).value(), units);
  return text::roundHalfAway(apart, units);
}

std::vector<Checked> checked(const std::vector<Table>& tables, const Check& check) {
  Reckoned reckoned(check.columns.size());
  const auto given = [&](CellPlace cell) -> const std::string& {
    static const std::string none;
    const auto sheet = static_cast<std::size_t>(cell.sheet);
    if (sheet >= tables.size() || static_cast<std::size_t>(cell.row) >= tables[sheet].rows.size())
      return none;
    return tables[sheet].rows[static_cast<std::size_t>(cell.row)].cell(static_cast<std::size_t>(cell.col));
  };
  const Cells cells{given, [&](CellPlace cell) { return reckoned.at(cell); }};
  std::vector<Checked> result;
  result.reserve(check.cells.size());
  for (const CheckCell& cell : check.cells) {
    const CheckColumn& column = check.columns[static_cast<std::size_t>(cell.column)];
    const double value = valueOf(cell.formula, cells);
    reckoned.set(cell.column, cell.row, value);
    const bool shown = column.column >= 0;
    result.push_back({value, shown ? difference(given({column.sheet, cell.row, column.column}), value) : 0});
  }
  return result;
}

}  // namespace report
