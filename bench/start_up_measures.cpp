#include <memory>

#include "bare_sqlite.h"
#include "db/database.h"
#include "opened.h"
#include "shell/program.h"

namespace bench {

route::Selection onlyRoute(const job::JobContext& context) {
  const auto database = db::openDatabase(context.gDbPath);
  const auto records = database->openRecordset("SELECT * FROM " + context.tables.gTblKansokuSeikaData +
                                               " WHERE JobId = '" + context.gJobId + "'");
  return {records->field("事業番号").text(),
          records->field("路線番号").text(),
          records->field("DataKubun").text(),
          {}};
}

std::vector<Measure> startUpMeasures(const Job& job) {
  const auto program = [job] {
    QuietDesktop desktop;
    shell::Program seikahyou({job.path, "/nonexistent"}, desktop);
    seikahyou.start();
  };
  const auto bare = [job] {
    BareSqlite database(job.path);
    database.readAll("SELECT * FROM JobData WHERE JikkouFlg = 1");
  };
  return {{"start-up to menu", 10, {}, program, bare}};
}

}  // namespace bench
