#include "hksnb/tables.h"

#include <utility>

#include "hksnb/columns.h"
#include "route/grid_table.h"
#include "route/heading.h"
#include "text/number.h"

namespace hksnb {
namespace {

using report::Formula;
using report::Side;

// The columns of the check.
enum CheckColumn : int { height, present, variation };

Formula given(int row, int col) { return Formula::given(route::cellPlace(row, col)); }

/// The walks of an orthometric book, and the amounts of any.
report::Check checkFormulas(const ui::Grid& grid, Kind kind) {
  report::Check check;
  check.columns = {{"観測比高", 0, colHeight}, {"観測成果", 0, colPresent}, {"変動量", 0, colVariation}};
  for (int row = 1; row < grid.rows(); row += 2) {
    const auto add = [&](int column, int col, const Formula& formula) {
      if (!grid.text(row, col).empty()) check.cells.push_back({column, row - 1, formula});
    };
    if (kind == Kind::Orthometric && row > 1) {
      add(height, colHeight, given(row - 2, colHeight) + given(row - 1, colHeight));
      add(present, colPresent, given(row - 2, colPresent) + given(row - 1, colPresent));
    }
    add(variation, colVariation, (given(row, colPresent) - given(row, colPrevious)) * 1000);
  }
  return check;
}

/// The columns of the public form.
report::Table publicForm(const ui::Grid& grid, const std::vector<BookPoint>& points) {
  report::Table table{"変動計算簿",
                      {{"路線番号", "", Side::Left, false},
                       {"地区", "", Side::Left, false},
                       {"水準点番号", "", Side::Left, false},
                       {"距離", "km", Side::Point, false},
                       {"結果 Ⅰ", "m", Side::Point, false},
                       {"旧年度成果 Ⅱ", "m", Side::Point, false},
                       {"変動量 Ⅰ－Ⅱ", "mm", Side::Point, false},
                       {"備考", "", Side::Left, true}},
                      {}};
  const BookPoint* before = nullptr;
  for (const BookPoint& point : points) {
    const bool sameRoute = before != nullptr && before->route == point.route;
    const bool samePlace = before != nullptr && before->place == point.place;
    const auto cell = [&](int col) { return grid.text(point.row, col); };
    table.rows.push_back({{sameRoute ? "" : point.route, samePlace ? "" : point.place, cell(colBenchMark),
                           point.distance ? text::numberText(*point.distance) : "", cell(colPresent),
                           cell(colPrevious), cell(colVariation), cell(colRemark)},
                          false,
                          &point == &points.back()});
    before = &point;
  }
  return table;
}

/// The heading of the public form: with the reference dates, where there are any.
std::vector<report::Field> formFields(std::vector<report::Field> fields,
                                      const std::vector<std::string>& referenceDates) {
  std::string dates;
  for (const std::string& date : referenceDates) dates += (dates.empty() ? "" : "、") + date;
  if (!dates.empty()) fields.push_back({"基準日", dates});
  return fields;
}

}  // namespace

report::Document tables(const ui::Grid& Grid1, Kind kind, job::Grade grade,
                        const std::vector<BookPoint>& points, const std::vector<report::Field>& fields,
                        const std::vector<std::string>& referenceDates) {
  std::vector<report::Column> columns = {
      {"事業番号", "", Side::Left, false},
      {"路線番号", "", Side::Left, false},
      {"都道府県", "", Side::Left, false},
      {"郡市", "", Side::Left, false},
      {"町村", "", Side::Left, false},
      {"水準点番号", "", Side::Left, false},
      {"観測比高", "m", Side::Point, false},
      {std::string(correctionName(kind)), route::correctionUnit(grade), Side::Point, false},
      {Grid1.text(0, colPresent), "m", Side::Point, false},
      {Grid1.text(0, colPrevious), "m", Side::Point, false},
      {"変動量", "mm", Side::Point, false},
      {"備考", "", Side::Left, true}};
  report::Document document;
  document.title = "変動量計算簿";
  report::Part book{"", fields, {}};
  book.items.emplace_back(route::gridTable({Grid1, std::move(columns), colBenchMark, colEndMark, colRoute}));
  document.parts.push_back(std::move(book));
  if (!points.empty())
    document.parts.push_back({"変動計算簿", formFields(fields, referenceDates), {publicForm(Grid1, points)}});
  document.check = checkFormulas(Grid1, kind);
  return document;
}

}  // namespace hksnb
