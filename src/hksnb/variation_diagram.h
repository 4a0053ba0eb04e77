#pragma once

#include <string>
#include <vector>

#include "hksnb/distances.h"
#include "hksnb/kind.h"
#include "job/grade.h"
#include "report/diagram.h"
#include "ui/grid.h"

namespace hksnb {

/// A stored book that is laid over another one of the same bench marks.
struct BookLayer {
  std::string number;
  const ui::Grid* book = nullptr;
};

/// What the variation diagram of a book shows beside the book itself.
struct DiagramLayers {
  int fixedRow = 0;               ///< grid row of the assumed fixed point; 0 for none
  std::vector<BookLayer> layers;  ///< bench marks are found by their numbers
};

/// The variation amounts (mm) of a book along the route, one line for the book and one for each layer.
///
/// With a fixed point the amount that each line has there is taken off all its amounts. A line that has no
/// amount there cannot be shown so and is left out, which a remark says; where the book itself has none, no
/// fixed point is assumed. `points`: the bench marks of the book, with their distances.
report::Diagram variationDiagram(const ui::Grid& book, Kind kind, job::Grade grade,
                                 const std::vector<BookPoint>& points, const DiagramLayers& with = {});

}  // namespace hksnb
