#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "daen/columns.h"
#include "daen/data.h"
#include "daen/data_sections.h"
#include "db/database.h"
#include "hend/columns.h"
#include "hend/data.h"
#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/place_names.h"
#include "job/schema.h"
#include "open/open.h"
#include "route/selection_set.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "sql/split_statements.h"
#include "support/postgres_server.h"
#include "support/temporary_folder.h"
#include "tanrosen/columns.h"
#include "tanrosen/data.h"

// Every statement that the program makes, with job, project, route, bench mark and book named by texts that
// would be more than a text where a statement took them as they stand.

namespace {

using Lines = std::vector<std::string>;

constexpr std::array<const char*, 7> resultTables = {
    "KansokuSeikaDataSeihyou",  "KansokuSeikaDataDaen",  "DaenHoseiChiHyouData", "KansokuSeikaDataHend",
    "KansokuSeikaDataTanrosen", "KansokuSeikaDataHKSNB", "KansokuKikan"};

const std::string withZero("a\0'b", 4);

using Keys = std::vector<std::string>;

/// The keys; what is longer than a route number is one for jobs, bench marks and books. A server answers
/// slowly: it gets those that differ for its driver.
Keys hostileKeys(bool server) {
  Keys keys = {"'OR''='", "3-1'", "%;--'", "\\'", "?", "{fn x}", std::string(100000, '\'')};
  const Keys more = {"'",  "''",  "R'1", "%",    "_%';",  ";--'", "';DROP",
                     "\"", "a]b", "/*",  ":a@b", "\n\t'", "'||'", "Null"};
  if (!server) keys.insert(keys.end(), more.begin(), more.end());
  return keys;
}

std::string asRoute(const std::string& key) { return key.substr(0, 8); }

/// A job database with every table, asked and filled through the house.
class Job {
 public:
  explicit Job(std::string path) : path_(std::move(path)) {
    const auto database = db::openDatabase(path_);
    database->gather();
    for (const std::string& statement : db::splitStatements(job::schemaSql())) database->execute(statement);
    database->execute("ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN RosenEndFlg TEXT(2)");
    database->close();
  }

  job::JobContext context(const std::string& jobId) const {
    job::JobContext context;
    context.gDbPath = path_;
    context.gJobId = jobId;
    context.gTokyu = 1;
    job::FcSeiReadIni(context.tables);
    job::FcSetNumberFormats(context);
    return context;
  }

  /// Two bench marks of a route, observed twice.
  void observe(const std::string& jobId, const std::string& project, const std::string& route,
               const std::string& benchMark) const {
    const auto database = db::openDatabase(path_);
    const auto records = database->openRecordset("SELECT * FROM KansokuSeikaData", db::Access::Edit);
    for (const bool end : {false, true}) {
      records->addNew();
      records->set("JobId", jobId);
      records->set("事業番号", project);
      records->set("路線番号", route);
      records->set("DataKubun", "0");
      records->set("SaveOrder", end ? 2 : 1);
      records->set("標石番号", end ? "終点" : benchMark);
      records->set("標高", 100.5);
      records->set("観測年月日", "20220511");
      if (end) records->set("RosenEndDataFlg", "-1");
      if (!end) records->set("中数", 1.25);
      records->update();
    }
    records->close();
    database->close();
  }

  /// All records of the result tables, each with its table; what belongs to the job `jobId` apart.
  std::pair<Lines, Lines> results(const std::string& jobId) const {
    std::pair<Lines, Lines> found;
    const auto database = db::openDatabase(path_);
    for (const char* table : resultTables) {
      const auto columns = database->tableDefinition(table);
      const auto records = database->openRecordset(std::string("SELECT * FROM ") + table);
      for (; !records->eof(); records->moveNext()) {
        std::string line = table;
        for (const db::ColumnDefinition& column : columns) line += "|" + records->field(column.name).text();
        (records->field("JobId").text() == jobId ? found.first : found.second).push_back(line);
      }
    }
    std::sort(found.first.begin(), found.first.end());
    std::sort(found.second.begin(), found.second.end());
    return found;
  }

 private:
  std::string path_;
};

class Table : public ui::Grid {
 public:
  explicit Table(int columns, int rows = 2) {
    setCols(columns);
    setRows(rows);
  }
};

/// Everything that the program does with one route of a job, and what it finds in doing so.
class Work {
 public:
  Work(job::JobContext context, const std::string& project, const std::string& route, std::string book)
      : context_(std::move(context)), selection_{project, route, "0", route}, book_(std::move(book)) {}

  /// Opens, saves and reopens the route in every screen, with `remark` in what is saved. Raises what is
  /// reported: the grids stand on no desktop.
  void run(const std::string& remark) {
    orthometric(remark);
    ellipsoidal(remark);
    variation(remark);
    singleRoute(remark);
    book(remark);
  }

  /// The first bench marks of the grids as they were opened and reopened.
  const Lines& found() const { return found_; }

  /// The items of the lists that routes and books are chosen from.
  Lines listed() {
    Lines items;
    ui::ComboBox projects("a", nullptr);
    ui::ComboBox routes("b", nullptr);
    route::SelectionSet set(context_, context_.tables.gTblKansokuSeikaData, nullptr, projects, routes,
                            route::CategoryRule::WithNull);
    set.fillProjects();
    for (int i = 0; i < projects.count(); ++i)
      if (projects.items()[static_cast<std::size_t>(i)] == selection_.jigyoBango) projects.choose(i);
    set.fillRoutes();
    items = routes.items();
    ui::ListBox books("c", nullptr);
    hksnb::FcHHKSB_GetHksnbNo(context_, hksnb::Kind::Orthometric, books);
    items.insert(items.end(), books.items().begin(), books.items().end());
    hksnb::FcHHKSB_GetRosenNo(context_, hksnb::Kind::Orthometric, books, left_);
    items.insert(items.end(), books.items().begin(), books.items().end());
    return items;
  }

 private:
  void orthometric(const std::string& remark) {
    Table one(seihyou::columnCount);
    seihyou::FcDBOpen(selection_, context_, one);
    found_.push_back(one.text(1, seihyou::colBenchMark));
    one.setText(1, seihyou::colRemark, remark);
    seihyou::FcDbSave(selection_, context_, one);
    Table again(seihyou::columnCount);
    seihyou::FcDBReOpen(selection_, context_, again);
    found_.push_back(again.text(1, seihyou::colBenchMark));
  }

  void ellipsoidal(const std::string& remark) {
    const daen::Formats formats = daen::FcDaenInit(context_.grade());
    Table one(daen::columnCount);
    daen::FcDHseiDBOpen(selection_, context_, formats, one);
    found_.push_back(one.text(1, daen::colBenchMark));
    one.setText(1, daen::colRemark, remark);
    daen::FcDHseiSave(selection_, context_, one);
    Table sections(daen::sectionColumnCount, 3);
    sections.setText(1, daen::secStartBenchMark, remark);
    daen::FcDaenHoseichiHyouSave(selection_, context_, sections);
    Table again(daen::columnCount);
    daen::FcDHseiDBReOpen(selection_, context_, formats, again);
    found_.push_back(again.text(1, daen::colBenchMark));
    Table sectionsAgain(daen::sectionColumnCount);
    daen::reopenSections(selection_, context_, sectionsAgain);
    EXPECT_EQ(sectionsAgain.text(1, daen::secStartBenchMark), remark);
    daen::FcSetLstSanshouDaen(selection_, context_, left_);
  }

  void variation(const std::string& remark) {
    Table one(hend::columnCount);
    hend::FcHendDBOpen(selection_, context_, one);
    found_.push_back(one.text(1, hend::colBenchMark));
    one.setText(1, hend::colRemark, remark);
    hend::FcHendDBSave(selection_, context_, one, "2022/08/19");
    Table again(hend::columnCount);
    std::string date;
    hend::FcHendDBReOpen(selection_, context_, again, date);
    found_.push_back(again.text(1, hend::colBenchMark));
    Table family(hend::columnCount);
    route::Selection category = selection_;
    category.dataKubun = "1";
    hend::FcHendDBOpen(category, context_, family);
  }

  void singleRoute(const std::string& remark) {
    ui::ListBox every("d", nullptr);
    ui::ListBox known("e", nullptr);
    const tanrosen::BenchMarkLists lists{every, known};
    Table one(tanrosen::columnCount);
    tanrosen::FcDBOpen(selection_, context_, one, lists);
    found_.push_back(one.text(1, tanrosen::colBenchMark));
    one.setText(1, tanrosen::colRemark, remark);
    tanrosen::FcDbSave(selection_, context_, one);
    Table again(tanrosen::columnCount);
    tanrosen::FcDBReOpen(selection_, context_, again, lists);
    found_.push_back(again.text(1, tanrosen::colBenchMark));
  }

  void book(const std::string& remark) {
    for (const hksnb::Kind kind : {hksnb::Kind::Orthometric, hksnb::Kind::Ellipsoidal}) {
      Table one(hksnb::columnCount);
      hksnb::Period period;
      hksnb::PlaceNames places;
      hksnb::FcHHKSB_SetGrid1FromSeikaData(context_, kind, {{selection_.jigyoBango, selection_.rosenBango}},
                                           period, places, one);
      found_.push_back(one.text(1, hksnb::colBenchMark));
      one.setText(1, hksnb::colRemark, remark);
      hksnb::FcHHKSB_HKSNBSave(context_, kind, book_, {"20'2", "'5", "';--", "7"}, one);
      Table again(hksnb::columnCount);
      hksnb::BookBoxes boxes;
      hksnb::FcHHKSB_Reopen(context_, kind, book_, boxes, again);
      found_.push_back(again.text(1, hksnb::colBenchMark));
      EXPECT_EQ(boxes.present.yearFrom, "20'2");
    }
  }

  job::JobContext context_;
  route::Selection selection_;
  std::string book_;
  Lines found_;
  ui::ListBox left_{"f", nullptr};
};

class HostileKeys : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (std::string(GetParam()) == "PostgresServer") {
      if (test::PostgresServer::programs().empty())
        GTEST_SKIP() << "SKIPPED: no PostgreSQL server here (Debian: postgresql)";
      server_ = std::make_unique<test::PostgresServer>();
      path_ = folder_.write("job.dsn", server_->newDatabase());
      return;
    }
    path_ = folder_.path("job.sqlite");
    db::createDatabase(path_)->close();
    if (std::string(GetParam()) == "SqliteOverOdbc")
      path_ = folder_.write("job.dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + path_ + "\n");
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<test::PostgresServer> server_;
  std::string path_;
};

TEST_P(HostileKeys, AreFoundAndNothingElseIsTouched) {
  const Job job(path_);
  Keys keys = hostileKeys(server_ != nullptr);
  if (path_.ends_with(".sqlite")) keys.push_back(withZero);
  job.observe("3", "1001", "R001", "A");
  Work(job.context("3"), "1001", "R001", "1").run("前");
  for (const std::string& key : keys) {
    const std::string route = asRoute(key);
    SCOPED_TRACE(route);
    job.observe("3", route, route, key);
    job.observe(key, "1001", "R001", key);
    job.observe(key, route, route, key);
    Work(job.context("3"), route, route, key).run("隣");
    Work(job.context(key), "1001", "R001", "1").run("隣");
    const auto before = job.results(key);

    Work work(job.context(key), route, route, key);
    work.run("新");
    EXPECT_EQ(work.found(), Lines(12, key));
    const auto after = job.results(key);
    EXPECT_EQ(after.second, before.second);
    Lines kept;  // what the job's other route has stays too
    std::set_intersection(before.first.begin(), before.first.end(), after.first.begin(), after.first.end(),
                          std::back_inserter(kept));
    EXPECT_EQ(kept, before.first);
    const Lines listed = work.listed();
    for (const std::string& item : {route, key})
      EXPECT_NE(std::find(listed.begin(), listed.end(), item), listed.end());

    work.run("再");  // replaces its own records and none besides
    EXPECT_EQ(job.results(key).second, before.second);
    EXPECT_EQ(job.results(key).first.size(), after.first.size());
  }
}

INSTANTIATE_TEST_SUITE_P(Engines, HostileKeys,
                         testing::Values("SqliteFile", "SqliteOverOdbc", "PostgresServer"),
                         [](const auto& one) { return std::string(one.param); });

class EnginesBehindDrivers : public HostileKeys {};

// A driver ends a text at its first character of code 0: the key would be that of somebody else.
TEST_P(EnginesBehindDrivers, RefuseKeysWithACharacterOfCodeZero) {
  const Job job(path_);
  for (const char* jobId : {"a", "3"}) {
    job.observe(jobId, "1001", "R001", "A");
    Work(job.context(jobId), "1001", "R001", "1").run("前");
  }
  const auto before = job.results("3");
  EXPECT_THROW(job.observe(withZero, "1001", "R001", "A"), db::Error);
  EXPECT_THROW(Work(job.context(withZero), "1001", "R001", "1").run("新"), db::Error);
  EXPECT_EQ(job.results("3"), before);
}

INSTANTIATE_TEST_SUITE_P(Engines, EnginesBehindDrivers, testing::Values("SqliteOverOdbc", "PostgresServer"),
                         [](const auto& one) { return std::string(one.param); });

}  // namespace
