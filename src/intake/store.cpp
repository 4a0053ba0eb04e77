#include "intake/store.h"

#include <array>

#include "db/literal.h"
#include "exchange/table_writer.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "text/number.h"
#include "text/padding.h"

namespace intake {
namespace {

constexpr const char* table = "KansokuSeikaData";
constexpr std::size_t keyWidth = 8;  // project and route numbers are stored padded to it

/// A column that is written, and the member of an observation that it takes.
struct Target {
  const char* column;
  std::string Observation::*member;
};

constexpr std::array<Target, 11> targets = {{{"標石番号", &Observation::benchMark},
                                             {"都道府県", &Observation::prefecture},
                                             {"郡市", &Observation::county},
                                             {"町村", &Observation::town},
                                             {"観測年月日", &Observation::date},
                                             {"距離", &Observation::distance},
                                             {"中数", &Observation::difference},
                                             {"前回観測日", &Observation::formerDate},
                                             {"前回中数", &Observation::formerDifference},
                                             {"標高", &Observation::height},
                                             {"備考", &Observation::remark}}};

std::vector<std::string> columnNames() {
  std::vector<std::string> names{"JobId",     "事業番号",  "路線番号",
                                 "DataKubun", "SaveOrder", "RosenEndDataFlg"};
  for (const Target& target : targets) names.emplace_back(target.column);
  return names;
}

/// Lays observations out as records, each value in the kind that its column is declared to hold.
class Records {
 public:
  Records(const Plan& plan, const std::vector<db::ColumnDefinition>& columns) : plan_(plan) {
    for (const Target& target : targets) {
      const db::ColumnDefinition* const column = exchange::findColumn(columns, target.column);
      numbers_.push_back(column != nullptr && exchange::kindOf(column->type) == exchange::Kind::Number);
    }
  }

  exchange::Row row(const Observation& one) const {
    exchange::Row row{plan_.jobId,  text::padded(one.project, keyWidth), text::padded(one.route, keyWidth),
                      one.category, static_cast<double>(one.order),      valueOf(one.end, false)};
    for (std::size_t i = 0; i < targets.size(); ++i)
      row.push_back(valueOf(one.*targets[i].member, numbers_[i]));
    return row;
  }

 private:
  static db::Value valueOf(const std::string& words, bool number) {
    if (words.empty()) return {};
    return number ? db::Value(text::readNumber(words)) : db::Value(words);
  }

  const Plan& plan_;
  std::vector<bool> numbers_;  // of targets
};

std::string where(const Plan& plan, const PlannedRoute& route) {
  return std::string(" FROM ") + table + " WHERE JobId = " + db::literal(plan.jobId) +
         " AND 事業番号 = " + db::literal(text::padded(route.project, keyWidth)) +
         " AND 路線番号 = " + db::literal(text::padded(route.route, keyWidth)) +
         " AND DataKubun = " + db::literal(route.category);
}

std::string named(const PlannedRoute& route) {
  return "事業 " + route.project + " 路線 " + route.route + "（区分 " + route.category + "）";
}

void removeRoute(db::Database& database, const Plan& plan, const PlannedRoute& route) {
  const auto records = database.openRecordset("SELECT *" + where(plan, route), db::Access::Edit);
  for (; !records->eof(); records->moveNext()) records->remove();
  records->close();
}

void requireStorable(db::Database& database, const Plan& plan, bool replace) {
  if (!plan.refusals.empty())
    throw db::Error(std::to_string(plan.refusals.front().line) + " 行目: " + plan.refusals.front().why);
  if (plan.jobId.empty()) throw db::Error("取り込むジョブが決まっていません。");
  if (plan.observations.empty()) throw db::Error("取り込む観測がありません。");
  if (replace) return;
  for (const ExistingRoute& there : existingRoutes(database, plan))
    throw db::Error(named(there.route) + " の観測がすでに " + std::to_string(there.records) +
                    " 件あります。");
}

void writeAll(db::Database& database, const Plan& plan, bool replace) {
  database.gather();
  if (replace)
    for (const ExistingRoute& there : existingRoutes(database, plan))
      removeRoute(database, plan, there.route);
  const Records records(plan, database.tableDefinition(table));
  exchange::TableWriter writer(database, table, columnNames());
  for (const Observation& one : plan.observations) {
    try {
      writer.add(records.row(one));
    } catch (const std::exception& error) {
      throw db::Error(std::to_string(one.line) + " 行目を書き込めません。" + error.what());
    }
  }
}

}  // namespace

std::vector<ExistingRoute> existingRoutes(db::Database& database, const Plan& plan) {
  std::vector<ExistingRoute> there;
  for (const PlannedRoute& route : plan.routes) {
    const auto count = database.openRecordset("SELECT COUNT(*)" + where(plan, route));
    const auto records = static_cast<std::int64_t>(count->value(db::Column{0}).number());
    if (records > 0) there.push_back({route, records});
  }
  return there;
}

std::string executedJob(db::Database& database) {
  const auto jobs = database.openRecordset("SELECT JobId FROM JobData WHERE JikkouFlg = 1");
  if (jobs->eof()) return {};
  const std::string job(text::trimmed(jobs->field("JobId").text()));
  jobs->moveNext();
  return jobs->eof() ? job : std::string();
}

std::int64_t storeObservations(const std::string& path, const Plan& plan, bool replace) {
  const auto database = db::openDatabase(path);
  try {
    requireStorable(*database, plan, replace);
    writeAll(*database, plan, replace);
  } catch (const std::exception& error) {
    database->discard();
    throw db::Error(std::string(error.what()) + " 何も取り込んでいません。");
  }
  database->close();
  return static_cast<std::int64_t>(plan.observations.size());
}

std::vector<std::string> described(const Plan& plan) {
  std::vector<std::string> lines;
  lines.push_back("路線 " + std::to_string(plan.routes.size()) + "、水準点 " +
                  std::to_string(plan.observations.size()) + "、取り込めない箇所 " +
                  std::to_string(plan.refusals.size()));
  for (const PlannedRoute& route : plan.routes)
    lines.push_back(named(route) + ": 水準点 " + std::to_string(route.benchMarks));
  for (const std::string& remark : plan.remarks) lines.push_back(remark);
  for (const Refusal& refusal : plan.refusals)
    lines.push_back(std::to_string(refusal.line) + " 行目: " + refusal.why);
  return lines;
}

}  // namespace intake
