#include "hksnb/variation_diagram.h"

#include <map>
#include <optional>
#include <utility>

#include "hksnb/columns.h"
#include "hksnb/grid_set_up.h"
#include "text/number.h"
#include "text/padding.h"

namespace hksnb {
namespace {

std::optional<double> amount(const ui::Grid& book, int row) {
  const std::string& cell = book.text(row, colVariation);
  return text::trimmed(cell).empty() ? std::nullopt : std::optional(text::readNumber(cell));
}

std::string benchMark(const ui::Grid& book, int row) {
  return std::string(text::trimmed(book.text(row, colBenchMark)));
}

/// "2022 － 2019"; "" where the book names no years.
std::string yearsOf(const ui::Grid& book) {
  const std::string present = yearOf(book, colPresent);
  const std::string previous = yearOf(book, colPrevious);
  return present.empty() && previous.empty() ? "" : present + " － " + previous;
}

/// The amounts of a book by the numbers of its bench marks, the first one of each.
std::map<std::string, double> amountsOf(const ui::Grid& book) {
  std::map<std::string, double> amounts;
  for (int row = 1; row < book.rows(); row += 2)
    if (const auto value = amount(book, row)) amounts.emplace(benchMark(book, row), *value);
  return amounts;
}

std::optional<double> amountAt(const std::map<std::string, double>& amounts, const std::string& name) {
  const auto found = amounts.find(name);
  return found == amounts.end() ? std::nullopt : std::optional(found->second);
}

/// Makes the diagram of one book.
class VariationDiagram {
 public:
  VariationDiagram(const ui::Grid& book, job::Grade grade, const std::vector<BookPoint>& points)
      : book_(book), decimals_(grade.isFirst() ? 1 : 0), points_(points) {}

  report::Diagram make(const DiagramLayers& with) {
    diagram_.axis = "変動量(mm)";
    diagram_.unit = std::string("mm");
    diagram_.zeroLine = true;
    if (with.fixedRow > 0) fixed_ = amount(book_, with.fixedRow);
    if (fixed_) fixedName_ = benchMark(book_, with.fixedRow);
    points();
    remarks();
    ownLine();
    for (const BookLayer& layer : with.layers) line(layer);
    return std::move(diagram_);
  }

 private:
  void points() {
    std::vector<std::optional<double>> sections;
    for (const BookPoint& point : points_) {
      diagram_.points.push_back({0, benchMark(book_, point.row), point.place, point.row});
      sections.push_back(point.distance);
    }
    if (!sections.empty()) sections.pop_back();
    report::layOut(diagram_, sections);
  }

  void remarks() {
    if (!yearsOf(book_).empty())
      diagram_.remarks.push_back("観測成果 " + yearOf(book_, colPresent) + "　平均成果 " +
                                 yearOf(book_, colPrevious));
    std::string routes;
    const BookPoint* before = nullptr;
    for (const BookPoint& point : points_) {
      if (before == nullptr || before->route != point.route)
        routes += (routes.empty() ? "" : "、") + point.route;
      before = &point;
    }
    diagram_.remarks.push_back("路線番号 " + routes);
    if (fixed_) diagram_.remarks.push_back("仮不動点 " + fixedName_);
  }

  /// The amounts as they stand on the rows: a bench mark may be named twice.
  void ownLine() {
    report::DiagramLine line{yearsOf(book_), {}, decimals_, false};
    if (line.name.empty()) line.name = "変動量";
    for (const BookPoint& point : points_) line.values.push_back(against(amount(book_, point.row), fixed_));
    diagram_.lines.push_back(std::move(line));
  }

  void line(const BookLayer& layer) {
    const std::map<std::string, double> amounts = amountsOf(*layer.book);
    const std::string years = yearsOf(*layer.book);
    report::DiagramLine line{
        "簿 " + layer.number + (years.empty() ? "" : "（" + years + "）"), {}, decimals_, false};
    const std::optional<double> fixed = fixed_ ? amountAt(amounts, fixedName_) : std::nullopt;
    if (fixed_ && !fixed)
      return diagram_.remarks.push_back(line.name + " は仮不動点の変動量がないため表示していません");
    for (const report::DiagramPoint& point : diagram_.points)
      line.values.push_back(against(amountAt(amounts, point.name), fixed));
    diagram_.lines.push_back(std::move(line));
  }

  static std::optional<double> against(std::optional<double> value, std::optional<double> fixed) {
    return value && fixed ? std::optional(*value - *fixed) : value;
  }

  const ui::Grid& book_;
  const int decimals_;
  const std::vector<BookPoint>& points_;
  report::Diagram diagram_;
  std::optional<double> fixed_;  // the book's amount at the fixed point
  std::string fixedName_;
};

}  // namespace

report::Diagram variationDiagram(const ui::Grid& book, Kind kind, job::Grade grade,
                                 const std::vector<BookPoint>& points, const DiagramLayers& with) {
  report::Diagram diagram = VariationDiagram(book, grade, points).make(with);
  diagram.title = kind == Kind::Orthometric ? "変動図（正標高補正）" : "変動図（楕円補正）";
  return diagram;
}

}  // namespace hksnb
