#include "hksnb/saved_results.h"

#include <array>
#include <map>
#include <utility>

#include "db/database.h"
#include "db/sql.h"
#include "hksnb/columns.h"
#include "hksnb/distances.h"
#include "hksnb/period.h"
#include "open/open.h"
#include "text/number.h"
#include "text/padding.h"

namespace hksnb {
namespace {

/// Project, route and bench mark.
using Key = std::array<std::string, 3>;

constexpr std::string_view noMonth = "999999";  // of a period that no date has reached

class Reader {
 public:
  Reader(db::Database& database, const job::JobContext& context, Kind kind)
      : database_(database), context_(context), kind_(kind), months_(Period{}) {}

  void route(const std::string& project, const std::string& route) {
    results(project, route);
    const auto dates = database_.openRecordset(select("観測年月日", context_.tables.gTblKansokuSeikaData) +
                                               of(project, route));
    for (; !dates->eof(); dates->moveNext())
      months_.add(text::trimmed(db::FcNullToBlank(dates->field("観測年月日"))));
    dates->close();
  }

  const std::vector<double>& of(const Key& benchMark) { return results_[benchMark]; }
  Period months() const { return months_.period(); }

 private:
  static db::Sql select(db::SourceText columns, const std::string& table) {
    return db::Sql("SELECT ") + columns + " FROM " + db::sqlName(table);
  }

  db::Sql of(const std::string& project, const std::string& route) const {
    return " WHERE JobId = " + db::sqlValue(context_.gJobId) + " AND 事業番号 = " + db::sqlValue(project) +
           " AND 路線番号 = " + db::sqlValue(route) + " AND DataKubun = '0'";
  }

  void results(const std::string& project, const std::string& route) {
    const bool orthometric = kind_ == Kind::Orthometric;
    const char* const name = orthometric ? "水準点番号" : "標石番号";
    const char* const result = orthometric ? "正標高結果" : "楕円補正結果";
    const auto records = database_.openRecordset(
        (orthometric ? select("水準点番号,正標高結果", correctionTable(context_, kind_))
                     : select("標石番号,楕円補正結果", correctionTable(context_, kind_))) +
        of(project, route));
    for (; !records->eof(); records->moveNext()) {
      const std::string height = db::FcNullToBlank(records->field(result));
      if (text::isNumeric(height))
        results_[{project, route, std::string(text::trimmed(db::FcNullToBlank(records->field(name))))}]
            .push_back(text::readNumber(height));
    }
    records->close();
  }

  db::Database& database_;
  const job::JobContext& context_;
  const Kind kind_;
  std::map<Key, std::vector<double>> results_;
  GrowingPeriod months_;
};

}  // namespace

SavedResults savedResults(const ui::Grid& Grid1, Kind kind, const job::JobContext& context) {
  SavedResults saved;
  try {
    const std::vector<BookPoint> points = bookPoints(Grid1);
    const auto database = db::openDatabase(context.gDbPath);
    Reader reader(*database, context, kind);
    std::map<std::pair<std::string, std::string>, bool> read;
    for (const BookPoint& point : points)
      if (!std::exchange(read[{point.project, point.route}], true)) reader.route(point.project, point.route);
    for (const BookPoint& point : points)
      saved.results.push_back(reader.of(
          {point.project, point.route, std::string(text::trimmed(Grid1.text(point.row, colBenchMark)))}));
    if (reader.months().from() != noMonth) {
      saved.firstMonth = reader.months().from();
      saved.lastMonth = reader.months().to();
    }
    database->close();
  } catch (const db::Error&) {
    return {};
  }
  return saved;
}

}  // namespace hksnb
