#pragma once

#include <vector>

#include "report/document.h"
#include "report/measure.h"
#include "report/progress.h"

namespace report {

/// A sheet of paper, upright, in 0.1 mm.
struct Paper {
  double width = 2100;
  double height = 2970;
  bool turned = false;  ///< the operator wants it lying, whether the tables need it or not
};

/// True where the first part of a document needs pages that lie.
bool needsLyingPages(const Document& document, const Paper& paper, const Measure& measure);

/// The pages of a document.
///
/// Every part begins a page, with title, fields and the boxes for 計算者 and 点検者; where it goes on, a line
/// names it and the headings of the table stand again. Each page says which of how many it is. A part stands
/// on upright pages where its tables' columns fit, else on lying ones; where they do not fit there either,
/// letters get smaller, down to 6 points, and then long texts go over several lines. Rows that are kept
/// together are parted only where they are higher than a page.
///
/// `measure` gives the widths of texts. Raises Cancelled.
std::vector<Drawing> paginate(const Document& document, const Paper& paper, const Measure& measure,
                              const Progress& progress = {});

}  // namespace report
