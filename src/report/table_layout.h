#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/document.h"
#include "report/measure.h"

namespace report {

/// A text in lines that are at most `width` wide each, in heights of a full-width character; always one line
/// at least, and one character in each.
std::vector<std::string> wrapped(const std::string& text, double width, const Measure& measure);

/// The columns of a table on paper: how wide each is, and where the texts stand in it.
class TableLayout {
 public:
  /// `measure` must outlive the layout.
  TableLayout(const Table& table, const Measure& measure);

  /// Lays the columns out for letters of `size` (0.1 mm) in `width` (0.1 mm). With `squeeze` long texts go
  /// over several lines in every column, so that it always fits. Returns false where it does not fit.
  bool fit(double size, double width, bool squeeze);

  double size() const { return size_; }
  double lineHeight() const { return size_ * 1.3; }
  /// Of a whole row of `lines` lines, with the room above and below.
  double rowHeight(std::size_t lines) const;
  /// Headings and units.
  double headHeight() const { return rowHeight(2); }
  double width() const;

  /// The cells of a row, each in its lines.
  std::vector<std::vector<std::string>> lines(const Row& row) const;

  /// Draws the headings with their upper left corner at `at`.
  void drawHead(Drawing& page, Point at) const;
  /// Draws the lines `first` to `last` − 1 of a row's cells.
  void drawRow(Drawing& page, Point at, const std::vector<std::vector<std::string>>& lines, std::size_t first,
               std::size_t last) const;
  /// Draws the lines between the columns, and at both sides.
  void drawSides(Drawing& page, Point at, double height) const;

 private:
  struct Extent {
    double heading = 0;   // in heights of a character, like all here
    double text = 0;      // the longest text
    double whole = 0;     // the longest number up to its point
    double fraction = 0;  // the longest rest behind it
    double natural() const;
  };

  void measureTable();
  double least(std::size_t column, bool squeeze) const;
  void share(double room, bool squeeze);
  void drawText(Drawing& page, Point at, std::size_t column, const std::string& text, Side side) const;
  double pointPlace(std::size_t column) const;

  const Table& table_;
  const Measure& measure_;
  std::vector<Extent> extents_;
  std::vector<double> widths_;  // 0.1 mm
  double size_ = 0;
  bool squeezed_ = false;
};

}  // namespace report
