#include "hksnb/distances.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include "db/database.h"
#include "db/sql.h"
#include "hksnb/columns.h"
#include "open/open.h"
#include "text/padding.h"

namespace hksnb {
namespace {

/// A route, and the bench marks at both ends of a section of it in the order of their names.
using SectionKey = std::array<std::string, 4>;

SectionKey keyOf(const std::string& project, const std::string& route, std::string a, std::string b) {
  if (b < a) std::swap(a, b);
  return {project, route, std::move(a), std::move(b)};
}

std::string trimmedText(const db::Value& value) { return std::string(text::trimmed(value.text())); }

/// Reads the distances of one route.
void readRoute(db::Database& database, const job::JobContext& context, const std::string& project,
               const std::string& route, std::map<SectionKey, double>& distances) {
  const auto records = database.openRecordset(
      "SELECT 標石番号,距離 FROM " + db::sqlName(context.tables.gTblKansokuSeikaData) +
      " WHERE JobId = " + db::sqlValue(context.gJobId) + " AND 事業番号 = " + db::sqlValue(project) +
      " AND 路線番号 = " + db::sqlValue(route) + " AND DataKubun = '0' ORDER BY SaveOrder");
  std::string before;
  std::optional<double> distance;
  for (; !records->eof(); records->moveNext()) {
    const std::string benchMark = trimmedText(records->field("標石番号"));
    if (distance) distances.emplace(keyOf(project, route, before, benchMark), *distance);
    const db::Value value = records->field("距離");
    const bool blank = value.isNull() || trimmedText(value).empty();
    distance = blank ? std::nullopt : std::optional(value.number());
    before = benchMark;
  }
  records->close();
}

std::map<SectionKey, double> readDistances(const std::vector<BookPoint>& points,
                                           const job::JobContext& context) {
  std::map<SectionKey, double> distances;
  std::set<std::pair<std::string, std::string>> routes;
  for (const BookPoint& point : points) routes.emplace(point.project, point.route);
  const auto database = db::openDatabase(context.gDbPath);
  for (const auto& [project, route] : routes) readRoute(*database, context, project, route, distances);
  database->close();
  return distances;
}

}  // namespace

std::vector<BookPoint> bookPoints(const ui::Grid& Grid1) {
  std::array<std::string, placeColumns> names;
  std::vector<BookPoint> points;
  for (int row = 1; row < Grid1.rows(); row += 2) {
    if (Grid1.text(row, colBenchMark).empty()) continue;
    for (int col = 0; col < placeColumns; ++col)
      if (!Grid1.text(row, col).empty()) names[static_cast<std::size_t>(col)] = Grid1.text(row, col);
    points.push_back({row, std::string(text::trimmed(names[colProject])),
                      std::string(text::trimmed(names[colRoute])),
                      names[colPrefecture] + names[colCounty] + names[colTown], std::nullopt});
  }
  return points;
}

std::vector<BookPoint> measuredPoints(const ui::Grid& Grid1, const job::JobContext& context) {
  std::vector<BookPoint> points = bookPoints(Grid1);
  try {
    const std::map<SectionKey, double> distances = readDistances(points, context);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
      const auto found =
          distances.find(keyOf(points[i].project, points[i].route,
                               std::string(text::trimmed(Grid1.text(points[i].row, colBenchMark))),
                               std::string(text::trimmed(Grid1.text(points[i + 1].row, colBenchMark)))));
      if (found != distances.end()) points[i].distance = found->second;
    }
  } catch (const db::Error&) {  // the observations are not there: no distances
  }
  return points;
}

}  // namespace hksnb
