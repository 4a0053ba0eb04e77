#pragma once

#include <array>
#include <cstdint>

#include "text/pattern.h"

namespace job {

/// The survey grade of a job with all that hangs on it: the unit of corrections and the number patterns.
///
/// First grade (1) works in 0.1 mm and shows heights with four decimals; every other grade works in mm and
/// shows three.
class Grade {
 public:
  explicit Grade(std::int16_t tokyu) : tokyu_(tokyu) {}

  std::int16_t tokyu() const { return tokyu_; }
  bool isFirst() const { return tokyu_ == 1; }

  /// Correction units in a metre: 10000 (0.1 mm) for first grade, 1000 (mm) otherwise.
  double factor() const { return isFirst() ? 10000.0 : 1000.0; }

  /// Heights and height differences in m: "###0.0000" for first grade, "###0.000" otherwise.
  const text::Pattern& heights() const;

 private:
  std::int16_t tokyu_;
};

/// The shared number formats gFmt1 … gFmt13, counted from 1.
class NumberFormats {
 public:
  /// The formats of a grade.
  explicit NumberFormats(Grade grade);

  /// Format `slot` (1 … 13). Raises Subscript for any other number.
  const text::Pattern& operator[](int slot) const;

 private:
  std::array<const text::Pattern*, 13> slots_{};
};

}  // namespace job
