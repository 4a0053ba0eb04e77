#include "hend/tables.h"

#include "hend/columns.h"
#include "route/grid_table.h"
#include "route/profile.h"
#include "text/date.h"
#include "text/padding.h"

namespace hend {

report::Document tables(const ui::Grid& grid, std::string_view referenceDate, job::Grade grade,
                        const std::string& route) {
  using report::Side;
  const std::vector<report::Column> columns = {
      {"水準点", "", Side::Left, false},       {"新観測年月日", "", Side::Middle, false},
      {"新観測比高", "m", Side::Point, false}, {"旧観測年月日", "", Side::Middle, false},
      {"旧観測比高", "m", Side::Point, false}, {"比高差", "m", Side::Point, false},
      {"新－旧", "日", Side::Point, false},    {"比高変化", "m/日", Side::Point, false},
      {"基－新", "日", Side::Point, false},    {"変動補正量", "m", Side::Point, false},
      {"基準日比高", "m", Side::Point, false}, {"備考", "", Side::Left, true},
      {"データ形式", "", Side::Middle, false}};
  const std::vector<int> places = {
      colBenchMark, colNewDate,       colNewHeight,  colOldDate, colOldHeight, colDifference, colDaysNewOld,
      colRate,      colDaysReference, colCorrection, colResult,  colRemark,    colCategory};
  report::Document document;
  document.title = "変動補正計算";
  document.parts = route::gridParts({grid, columns, colBenchMark, colMark, -1, places}, route);
  if (!text::trimmed(referenceDate).empty())
    for (report::Part& part : document.parts)
      part.fields.push_back({"基準日", std::string(text::trimmed(referenceDate))});
  document.check = checkFormulas(grid, referenceDate, grade);
  return document;
}

report::Diagram profile(const ui::Grid& grid, job::Grade grade) {
  route::ProfileLook look;
  look.endCol = colMark;
  look.heightCol = colNewHeight;
  look.sums = true;
  look.correctionCol = colCorrection;
  look.correctionOnSection = true;
  look.correctionFactor = 1000;  // m to mm
  look.heightName = "比高の累計";
  look.correctionName = "変動補正量";
  look.decimals = grade.isFirst() ? 4 : 3;
  return route::profileOf(grid, look);
}

}  // namespace hend
