#include "hksnb/reference_dates.h"

#include <algorithm>
#include <set>
#include <utility>

#include "db/database.h"
#include "db/sql.h"
#include "open/open.h"
#include "text/date.h"
#include "text/padding.h"

namespace hksnb {
namespace {

/// The date of a route, "" for none. All bench marks of a route are saved with the same one.
std::string routeDate(db::Database& database, const job::JobContext& context, const std::string& project,
                      const std::string& route) {
  const auto records = database.openRecordset(
      "SELECT 基準観測日 FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataHend) +
      " WHERE JobId = " + db::sqlValue(context.gJobId) + " AND 事業番号 = " + db::sqlValue(project) +
      " AND 路線番号 = " + db::sqlValue(route) + " ORDER BY SaveOrder");
  std::string words;
  if (!records->eof()) words = text::trimmed(records->field("基準観測日").text());
  records->close();
  const auto date = text::Date::parse(words);
  return date ? date->text() : words;
}

}  // namespace

std::vector<std::string> referenceDates(const std::vector<BookPoint>& points,
                                        const job::JobContext& context) {
  std::vector<std::string> dates;
  try {
    const auto database = db::openDatabase(context.gDbPath);
    std::set<std::pair<std::string, std::string>> seen;
    for (const BookPoint& point : points) {
      if (!seen.emplace(point.project, point.route).second) continue;
      std::string date = routeDate(*database, context, point.project, point.route);
      if (!date.empty() && std::find(dates.begin(), dates.end(), date) == dates.end())
        dates.push_back(std::move(date));
    }
    database->close();
  } catch (const db::Error&) {
    dates.clear();
  }
  return dates;
}

}  // namespace hksnb
