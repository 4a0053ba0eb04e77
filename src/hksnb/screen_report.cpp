#include <array>

#include "hksnb/distances.h"
#include "hksnb/screen.h"
#include "hksnb/tables.h"
#include "report/diagram.h"
#include "report/measure.h"
#include "route/heading.h"
#include "text/padding.h"

// What of the book is printed and exported.

namespace hksnb {
namespace {

/// "2022年5月 ～ 2022年11月"; "" where no year is known.
std::string periodText(const Period& period) {
  const auto month = [](const std::string& year, const std::string& number) {
    return year + "年" + (number.empty() ? "" : number + "月");
  };
  if (text::trimmed(period.yearFrom).empty()) return {};
  return month(period.yearFrom, period.monthFrom) + " ～ " + month(period.yearTo, period.monthTo);
}

}  // namespace

report::Document fHHksb::document() const {
  std::vector<report::Field> fields;
  const auto add = [&fields](const char* name, const std::string& words) {
    if (!text::trimmed(words).empty()) fields.push_back({name, words});
  };
  add("簿の番号", txtHksnbNo.text());
  add("補正", std::string(correctionName(kind_)));
  add("新観測", periodText(presentPeriod()));
  add("観測成果年度", txtKansokuNen.text());
  add("平均成果年度", txtHeikinNen.text());
  report::Document document = tables(Grid1, kind_, context_.grade(), measuredPoints(Grid1, context_), fields);
  document.fields = route::routeHeading(context_, {}, {});
  return document;
}

report::Figure fHHksb::diagram() const {
  const report::Diagram diagram =
      variationDiagram(Grid1, kind_, context_.grade(), measuredPoints(Grid1, context_));
  return {diagram.title, report::draw(diagram, report::fixedPitch)};
}

}  // namespace hksnb
