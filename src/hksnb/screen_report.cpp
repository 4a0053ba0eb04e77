#include <utility>

#include "hksnb/data.h"
#include "hksnb/distances.h"
#include "hksnb/reference_dates.h"
#include "hksnb/screen.h"
#include "hksnb/tables.h"
#include "hksnb/variation_diagram.h"
#include "report/diagram.h"
#include "report/measure.h"
#include "route/heading.h"
#include "route/picture_paste.h"
#include "text/padding.h"

// What of the book is printed and exported.

namespace hksnb {
namespace {

/// "2022年5月 ～ 2022年11月"; "" where no year is known, as of a book without observation dates.
std::string periodText(const Period& period) {
  const auto month = [](const std::string& year, const std::string& number) {
    return year + "年" + (number.empty() ? "" : number + "月");
  };
  if (text::trimmed(period.yearFrom).empty() || period.yearFrom == "9999") return {};
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
  add("旧観測",
      periodText({txtOldYearFr.text(), txtOldMonFr.text(), txtOldYearTo.text(), txtOldMonTo.text()}));
  add("観測成果年度", txtKansokuNen.text());
  add("平均成果年度", txtHeikinNen.text());
  const std::vector<BookPoint>& points = remembered_.points(Grid1);
  report::Document document =
      tables(Grid1, kind_, context_.grade(), points, fields, referenceDates(points, context_));
  document.fields = route::routeHeading(context_, {}, {});
  if (auto picture = route::filedPicture(context_, pictureName()))
    document.parts.back().items.emplace_back(std::move(*picture));
  return document;
}

std::string fHHksb::pictureName() const {
  return std::string(diagramTitle(kind_)) + txtHksnbNo.text() + ".bmp";
}

/// The stored books of the kind in the grid, without the one that is shown.
std::vector<std::string> fHHksb::otherBooks() const {
  ui::ListBox books{"books", nullptr};
  FcHHKSB_GetHksnbNo(context_, kind_, books);
  std::vector<std::string> numbers;
  for (const std::string& number : books.items())
    if (number != watch_.number()) numbers.push_back(number);
  return numbers;
}

report::DiagramOffer fHHksb::diagramOffer() const {
  return {.fixedPoint = true, .layerName = "簿", .layers = otherBooks(), .picture = pictureName()};
}

/// Where the grid holds no book yet, the first stored one that is wished for takes its place.
report::Figure fHHksb::diagram(const report::DiagramWish& wish) const {
  DiagramLayers with{wish.fixedRow, {}};
  for (const std::string& number : wish.layers)
    with.layers.push_back({number, &remembered_.book(kind_, number)});
  const ui::Grid* book = &Grid1;
  if (bookPoints(Grid1).empty() && !with.layers.empty()) {
    book = with.layers.front().book;
    with.layers.erase(with.layers.begin());
  }
  std::vector<BookPoint> points =
      book == &Grid1 ? remembered_.points(Grid1) : measuredPoints(*book, context_);
  report::Diagram diagram = variationDiagram(*book, kind_, context_.grade(), points, with);
  if (book != &Grid1)
    for (report::DiagramPoint& point : diagram.points) point.row = -1;
  if (wish.equalSteps) report::layOutEqually(diagram);
  diagram.remarks.push_back(report::layOutText(diagram));
  return {diagram.title, report::draw(diagram, report::fixedPitch)};
}

void fHHksb::fileDiagram(const std::string& picture) {
  route::filePicture(desktop(), context_, picture, pictureName());
}

}  // namespace hksnb
