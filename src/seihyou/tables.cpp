#include "seihyou/tables.h"

#include "route/grid_table.h"
#include "route/heading.h"
#include "route/profile.h"
#include "seihyou/check_formulas.h"
#include "seihyou/columns.h"

namespace seihyou {

report::Document tables(const ui::Grid& grid, job::Grade grade, const std::string& route) {
  using report::Side;
  const std::vector<report::Column> columns = {
      {"水準点", "", Side::Left, false},
      {"標高", "m", Side::Point, false},
      {"正標高補正数", route::correctionUnit(grade), Side::Point, false},
      {"補正結果", "m", Side::Point, false},
      {"備考", "", Side::Left, true}};
  report::Document document;
  document.title = "正標高補正計算";
  document.parts = route::gridParts({grid, columns, colBenchMark, colFlag, colRoute}, route);
  document.check = checkFormulas(grid, grade);
  return document;
}

report::Diagram profile(const ui::Grid& grid, job::Grade grade) {
  route::ProfileLook look;
  look.endCol = colFlag;
  look.heightCol = colResult;
  look.correctionCol = colCorrection;
  look.correctionOnSection = true;
  look.heightName = "補正結果";
  look.correctionName = "正標高補正数";
  look.correctionUnit = route::correctionUnit(grade);
  look.decimals = grade.isFirst() ? 4 : 3;
  return route::profileOf(grid, look);
}

}  // namespace seihyou
