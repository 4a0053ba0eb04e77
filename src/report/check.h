#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <vector>

#include "report/document.h"

namespace report {

/// How many digits behind the point a cell shows, and whether they are those of a number with an exponent.
struct Decimals {
  int count = 0;
  bool exponent = false;

  auto operator<=>(const Decimals&) const = default;
};

/// The decimals of a cell that holds a number; none for any other.
Decimals decimalsOf(std::string_view cell);

/// What a cell shows less what was reckoned for it, to the decimals that it shows. A blank cell counts as 0.
double difference(std::string_view shown, double reckoned);

/// A cell of a document's check as it comes out.
struct Checked {
  double reckoned = 0;
  double difference = 0;  ///< 0 for a number on the way, which no cell shows
};

/// The cells of a document's check in their order. `tables` are those that it gathers.
std::vector<Checked> checked(const std::vector<Table>& tables, const Check& check);

}  // namespace report
