#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/drawing.h"
#include "report/measure.h"

namespace report {

/// A bench mark on the way along a route.
struct DiagramPoint {
  double at = 0;      ///< from the first one, km or steps
  std::string name;   ///< its number
  std::string place;  ///< its places; neighbours with the same one share it
  int row = -1;       ///< grid row, −1 for none
  bool ends = false;  ///< a route ends here: no line leads from it to the next one
};

/// A broken line of values, one for each point; a value that is missing leaves a gap, as does the way from
/// one route to the next.
struct DiagramLine {
  std::string name;  ///< in the legend
  std::vector<std::optional<double>> values;
  int decimals = 0;         ///< of a value where it is told
  bool secondAxis = false;  ///< it belongs to the scale on the right
};

/// What a diagram along a route shows.
struct Diagram {
  std::string title;
  std::vector<std::string> remarks;  ///< lines below the title: years, routes
  std::string axis;                  ///< what the scale on the left shows, with its unit
  std::string unit;                  ///< of its values, where they are told
  std::string secondAxis;            ///< the same for the scale on the right; "" for none
  std::string secondUnit;
  bool kilometres = false;  ///< the bench marks stand by their distances, else in equal steps
  bool zeroLine = false;    ///< the scale on the left reaches 0, and a line stands there
  std::vector<DiagramPoint> points;
  std::vector<DiagramLine> lines;
};

/// The places along a route after each section, from 0: the sum of the sections (km). A section without a
/// distance counts as the mean of the others; where none has one, or with `equalSteps`, every section
/// counts 1.
std::vector<double> alongRoute(const std::vector<std::optional<double>>& sections, bool equalSteps);

/// Lays the points of a diagram out along the route, with the sections between them: by their distances (km),
/// or as alongRoute does without.
void layOut(Diagram& diagram, const std::vector<std::optional<double>>& sections);

/// Lays the points out in equal steps.
void layOutEqually(Diagram& diagram);

/// How the points are laid out, in words: "横軸　距離（全長 25.9 km）".
std::string layOutText(const Diagram& diagram);

/// A scale with numbers that are easy to read.
struct Scale {
  double low = 0;
  double high = 1;
  double step = 1;   ///< 1, 2 or 5 times a power of ten
  int decimals = 0;  ///< of the numbers at its ticks
};

/// The scale that takes in `low` to `high` with about `ticks` steps.
Scale scaleFor(double low, double high, int ticks);

/// The diagram as a drawing: scales with ticks, the lines with a mark for each value, below the marks the
/// names of the bench marks upright, below these the places, and a legend where there are several lines. It
/// is 260 mm wide, wider where the names need it. Of no points: a drawing without shapes.
Drawing draw(const Diagram& diagram, const Measure& measure);

}  // namespace report
