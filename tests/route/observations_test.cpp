#include "route/observations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/small_job.h"

namespace {

using Lines = std::vector<std::string>;

const route::Selection mainRoute{"1001", "R001", "0", ""};
const route::Selection family{"1001", "01A00102", "1", ""};

TEST(RouteKeys, NameJobProjectAndRoute) {
  const test::SmallJob job;
  EXPECT_EQ(route::routeKeys(job.context(), mainRoute),
            " WHERE JobId ='3' AND 事業番号 ='1001' AND 路線番号 ='R001    '");
  EXPECT_EQ(route::routeKeys(job.context(), family, db::Sql("A.")),
            " WHERE A.JobId ='3' AND A.事業番号 ='1001' AND MID(A.路線番号,3,4) ='A001'");
}

TEST(ObservationsSql, NamesNullInCategoryZero) {
  const test::SmallJob job;
  EXPECT_EQ(route::observationsSql(job.context(), mainRoute),
            " SELECT * FROM KansokuSeikaData WHERE JobId ='3' AND 事業番号 ='1001' AND 路線番号 ='R001    '"
            " AND (DataKubun = '0' OR DataKubun = Null) ORDER BY SaveOrder");
  EXPECT_EQ(route::observationsSql(job.context(), family),
            " SELECT * FROM KansokuSeikaData WHERE JobId ='3' AND 事業番号 ='1001'"
            " AND MID(路線番号,3,4) ='A001' AND DataKubun = '1' ORDER BY SaveOrder");
}

TEST(SavedRecordsSql, LeavesRecordsWithoutACategoryUntouched) {
  const test::SmallJob job;
  EXPECT_EQ(route::savedRecordsSql(job.context(), mainRoute, "KansokuSeikaDataSeihyou"),
            "SELECT * FROM KansokuSeikaDataSeihyou WHERE JobId ='3' AND 事業番号 ='1001'"
            " AND 路線番号 ='R001    ' AND DataKubun = '0'");
}

TEST(ReadRecords, FindsTheRouteUnderEitherSpelling) {
  const test::SmallJob job;
  job.observed(2, "R001    ", "B2", "NULL", "1.5");
  job.observed(1, "R001", "B1", "10.25", "-0.5");
  job.observed(3, "R002", "C1", "20", "1");
  job.observed(4, "R001", "B3", "30", "1", "", "NULL");
  job.observed(5, "R001", "B4", "30", "1", "", "'1'");
  Lines found;
  const db::Sql sql = route::observationsSql(job.context(), mainRoute);
  route::readRecords(job.context().gDbPath, sql, [&](db::Database&, db::Recordset& records) {
    const db::Column number = records.column("標石番号");
    for (; !records.eof(); records.moveNext()) found.push_back(route::fieldText(records, number));
  });
  EXPECT_EQ(found, (Lines{"B1", "B2"}));
}

TEST(ReadRecords, FindsTheWholeFamilyInCategoryOne) {
  const test::SmallJob job;
  job.observed(1, "01A00101", "B1", "10", "1", "", "'1'");
  job.observed(2, "99A00199", "B2", "10", "1", "", "'1'");
  job.observed(3, "01A00201", "C1", "10", "1", "", "'1'");
  int count = 0;
  const db::Sql sql = route::observationsSql(job.context(), family);
  route::readRecords(job.context().gDbPath, sql, [&](db::Database&, db::Recordset& records) {
    for (; !records.eof(); records.moveNext()) ++count;
  });
  EXPECT_EQ(count, 2);
}

struct Layer {
  int room;
  int laid = 0;
  bool add() { return ++laid < room; }
};

TEST(LayRecords, GoesToTheEndOrUntilTheGridIsFull) {
  const test::SmallJob job;
  for (int order = 1; order <= 4; ++order) job.observed(order, "R001", "B", "10", "1");
  const db::Sql sql = route::observationsSql(job.context(), mainRoute);
  for (const auto& [room, laid] : std::vector<std::pair<int, int>>{{100, 4}, {3, 3}}) {
    Layer layer{room};
    route::readRecords(job.context().gDbPath, sql,
                       [&](db::Database&, db::Recordset& records) { route::layRecords(records, layer); });
    EXPECT_EQ(layer.laid, laid);
  }
}

TEST(BeginRecord, SetsTheKeysWithTheRouteOfTheRowOrOfTheSelection) {
  const test::SmallJob job;
  const db::Sql sql = route::savedRecordsSql(job.context(), mainRoute, "KansokuSeikaDataSeihyou");
  route::replaceRecords(job.context().gDbPath, sql, [&](db::Recordset& records) {
    route::beginRecord(records, job.context(), mainRoute, "  ", 1);
    records.update();
    route::beginRecord(records, job.context(), mainRoute, "R009", 2);
    records.update();
  });
  EXPECT_EQ(job.records("SELECT * FROM KansokuSeikaDataSeihyou ORDER BY SaveOrder",
                        {"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder", "標高"}),
            (Lines{"3|1001|R001    |0|1|-", "3|1001|R009    |0|2|-"}));
}

TEST(SectionValue, IsNullWithoutASectionRow) {
  ui::Grid grid;
  grid.setText(0, 1, "中数");
  grid.setText(1, 1, "1.5");
  EXPECT_EQ(route::sectionValue(grid, 1, 1), db::Value("1.5"));
  EXPECT_TRUE(route::sectionValue(grid, 0, 1).isNull());
  grid.setText(1, 1, " ");
  EXPECT_TRUE(route::sectionValue(grid, 1, 1).isNull());
}

class RunningHeights : public testing::Test {
 protected:
  /// Comes to a bench mark and leaves it again.
  std::string pass(const char* flag, const db::Value& difference) {
    std::string shown = heights.reach(flag);
    heights.leave(flag, difference);
    return shown;
  }

  const text::Pattern pattern{"###0.000"};
  route::RunningHeights heights{pattern, 1000};
};

TEST_F(RunningHeights, AddMeanDifferencesToTheStartHeight) {
  EXPECT_TRUE(heights.atStart());
  heights.begin(10.25);
  EXPECT_EQ(pass("", 1.5), "10.250");
  EXPECT_FALSE(heights.atStart());
  EXPECT_EQ(pass("", "-0.1234"), "11.750");      // 10.25 + 1.5
  EXPECT_EQ(pass("", db::Value()), "11.627");    // 11.75 − 0.1234 = 11.6266
  EXPECT_EQ(pass("-1", db::Value()), "11.627");  // a blank difference counts as 0
  EXPECT_TRUE(heights.atStart());
}

TEST_F(RunningHeights, BeginBlankWhereTheStartHeightIsBlank) {
  heights.begin(db::Value());
  EXPECT_EQ(pass("", 1.5), "");
  EXPECT_EQ(pass("", 1.0), "1.500");  // it counts as 0
}

TEST_F(RunningHeights, StartAnewBehindARouteEnd) {
  heights.begin(10.0);
  pass("", 1.0);
  EXPECT_EQ(pass("-1", 99.0), "11.000");
  EXPECT_TRUE(heights.atStart());
  heights.begin(50.0);
  EXPECT_EQ(pass("", 0.5), "50.000");
  EXPECT_EQ(pass("", 0.5), "50.500");
}

TEST_F(RunningHeights, ShowTheMeanOfAPairAtTheBenchMarkBehindIt) {
  heights.begin(10.0);
  EXPECT_EQ(pass("", 1.0), "10.000");
  EXPECT_EQ(pass("-2", 2.0), "11.000");
  EXPECT_EQ(pass("-2", 4.0), "13.000");
  EXPECT_EQ(pass("", 1.0), "12.000");  // (11 + 13) / 2 in place of 17
  EXPECT_EQ(pass("", 1.0), "18.000");  // the sum went on: 10 + 1 + 2 + 4 + 1
}

TEST_F(RunningHeights, ForgetHalfAPairAtARouteEnd) {
  heights.begin(10.0);
  pass("-2", 1.0);
  pass("-1", db::Value());
  heights.begin(20.0);
  EXPECT_EQ(pass("-2", 1.0), "20.000");
  EXPECT_EQ(pass("", 1.0), "21.000");
}

}  // namespace
