#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

// A drawing as plain values, for paper, pictures and windows alike. Lengths are in 0.1 mm on paper, counted
// from the upper left corner to the right and down.

namespace report {

/// A place on a drawing.
struct Point {
  double x = 0;
  double y = 0;

  bool operator==(const Point&) const = default;
};

/// A rectangle; `at` is its upper left corner.
struct Box {
  Point at;
  double width = 0;
  double height = 0;

  bool operator==(const Box&) const = default;
};

struct Colour {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  bool operator==(const Colour&) const = default;
};

inline constexpr Colour black{};
inline constexpr Colour grey{130, 130, 130};

enum class Dash { Solid, Dashed, Dotted };

/// How a line is drawn.
struct Pen {
  double width = 1.5;
  Colour colour = black;
  Dash dash = Dash::Solid;

  bool operator==(const Pen&) const = default;
};

/// A broken line through two points or more.
struct Line {
  std::vector<Point> points;
  Pen pen;

  bool operator==(const Line&) const = default;
};

/// A filled rectangle without an outline.
struct Area {
  Box box;
  Colour fill;

  bool operator==(const Area&) const = default;
};

/// The shapes of marks; no two of them look alike in black and white.
enum class Sign { Disc, Circle, Square, Triangle, Diamond, Cross };

/// A mark, and what it stands for.
struct Mark {
  Point at;  ///< its centre
  Sign sign = Sign::Disc;
  double size = 18;  ///< its height
  Colour colour = black;
  int row = -1;           ///< grid row that it shows, −1 for none
  std::string note = {};  ///< what a pointer on it is told

  bool operator==(const Mark&) const = default;
};

/// Which end of a text stands at its place.
enum class Anchor { Left, Middle, Right };

/// One line of text. It stands with its baseline at `at`; an upright one runs from the bottom to the top.
struct Words {
  Point at;
  std::string text;
  double size = 30;  ///< height of a full-width character
  Anchor anchor = Anchor::Left;
  bool upright = false;
  bool bold = false;
  Colour colour = black;

  bool operator==(const Words&) const = default;
};

/// A picture, as large as its box allows without changing its proportions.
struct Picture {
  Box box;
  std::shared_ptr<const std::string> bytes;  ///< a whole picture file (BMP or PNG)

  bool operator==(const Picture&) const = default;
};

using Shape = std::variant<Line, Area, Mark, Words, Picture>;

/// Shapes on a sheet, later ones above earlier ones.
struct Drawing {
  double width = 0;
  double height = 0;
  std::vector<Shape> shapes;
};

/// Adds the shapes of `drawing` to `sheet`, everything (line widths and letters too) `scale` times as large,
/// with its upper left corner at `at`.
void place(Drawing& sheet, const Drawing& drawing, Point at, double scale = 1);

/// Adds the outline of a rectangle.
void outline(Drawing& sheet, const Box& box, const Pen& pen);

/// Adds a straight line.
void rule(Drawing& sheet, Point from, Point to, const Pen& pen);

}  // namespace report
