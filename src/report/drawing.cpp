#include "report/drawing.h"

#include <utility>

namespace report {
namespace {

/// Adds moved and scaled shapes to a sheet.
class Placing {
 public:
  Placing(Drawing& sheet, Point at, double scale) : sheet_(sheet), at_(at), scale_(scale) {}

  void operator()(const Line& line) const {
    Line placed{{}, line.pen};
    placed.points.reserve(line.points.size());
    for (const Point& point : line.points) placed.points.push_back(moved(point));
    placed.pen.width *= scale_;
    sheet_.shapes.emplace_back(std::move(placed));
  }
  void operator()(const Area& area) const { sheet_.shapes.emplace_back(Area{moved(area.box), area.fill}); }
  void operator()(const Picture& picture) const {
    sheet_.shapes.emplace_back(Picture{moved(picture.box), picture.bytes});
  }
  template <class Sized>
  void operator()(const Sized& sized) const {
    Sized placed = sized;
    placed.at = moved(sized.at);
    placed.size *= scale_;
    sheet_.shapes.emplace_back(std::move(placed));
  }

 private:
  Point moved(Point point) const { return {at_.x + point.x * scale_, at_.y + point.y * scale_}; }
  Box moved(const Box& box) const { return {moved(box.at), box.width * scale_, box.height * scale_}; }

  Drawing& sheet_;
  Point at_;
  double scale_;
};

}  // namespace

void place(Drawing& sheet, const Drawing& drawing, Point at, double scale) {
  const Placing placing(sheet, at, scale);
  for (const Shape& shape : drawing.shapes) std::visit(placing, shape);
}

void outline(Drawing& sheet, const Box& box, const Pen& pen) {
  const Point far{box.at.x + box.width, box.at.y + box.height};
  sheet.shapes.emplace_back(Line{{box.at, {far.x, box.at.y}, far, {box.at.x, far.y}, box.at}, pen});
}

void rule(Drawing& sheet, Point from, Point to, const Pen& pen) {
  sheet.shapes.emplace_back(Line{{from, to}, pen});
}

}  // namespace report
