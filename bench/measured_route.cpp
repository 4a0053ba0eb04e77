#include "measured_route.h"

#include <memory>

#include "open/open.h"
#include "shell/start_up.h"

namespace bench {
namespace {

/// The job context of the measuring job, found out as start-up does it.
job::JobContext started(const Job& job) {
  QuietDesktop desktop;
  job::JobContext context;
  shell::startUp({job.path, "/nonexistent"}, desktop, context)->close();
  return context;
}

route::Selection onlyRoute(const job::JobContext& context) {
  const auto database = db::openDatabase(context.gDbPath);
  const auto records = database->openRecordset("SELECT * FROM " + context.tables.gTblKansokuSeikaData +
                                               " WHERE JobId = '" + context.gJobId + "'");
  return {records->field("事業番号").text(),
          records->field("路線番号").text(),
          records->field("DataKubun").text(),
          {}};
}

}  // namespace

MeasuredRoute::MeasuredRoute(const Job& job, int columns)
    : context(started(job)), selection(onlyRoute(context)), columns_(columns) {
  grid.setDesktop(&desktop);
  clear();
}

void MeasuredRoute::clear() {
  grid.setRows(2);
  grid.setCols(columns_);
  grid.clearText();
}

std::string MeasuredRoute::keys(std::string_view prefix) const {
  const std::string before(prefix);
  return " WHERE " + before + "JobId = '" + context.gJobId + "' AND " + before + "事業番号 = '" +
         selection.jigyoBango + "' AND " + before + "路線番号 = '" + selection.rosenBango + "' AND " +
         before + "DataKubun = '" + selection.dataKubun + "'";
}

std::function<void()> bareReading(const Job& job, const std::string& sql) {
  return [open = job.bare, sql] { open()->readAll(sql); };
}

std::function<void()> bareReplacing(const Job& job, const std::string& table, const std::string& conditions) {
  const auto records = std::make_shared<Records>(job.bare()->records("SELECT * FROM " + table + conditions));
  return [open = job.bare, table, conditions, records] { open()->replace(table, conditions, *records); };
}

}  // namespace bench
