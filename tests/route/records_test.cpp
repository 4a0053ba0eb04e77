#include "route/records.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <utility>
#include <vector>

#include "support/recording_desktop.h"
#include "support/small_job.h"

namespace {

using Lines = std::vector<std::string>;

class ReplaceRecords : public testing::Test {
 protected:
  ReplaceRecords() {
    for (const char* row : {"'R001',1,'old 1'", "'R002',1,'other'", "'R001',2,'old 2'"})
      job.sql(std::string(
                  "INSERT INTO KansokuSeikaDataSeihyou (JobId, 路線番号, SaveOrder, 備考1) VALUES ('3',") +
              row + ")");
  }

  Lines all() const {
    return job.records("SELECT * FROM KansokuSeikaDataSeihyou ORDER BY 路線番号, SaveOrder",
                       {"路線番号", "SaveOrder", "備考1"});
  }

  test::SmallJob job;
  const db::Sql routeOne{"SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R001'"};
};

void add(db::Recordset& records, int order, const char* remark) {
  records.addNew();
  records.set("JobId", "3");
  records.set("路線番号", "R001");
  records.set("SaveOrder", order);
  records.set("備考1", remark);
  records.update();
}

TEST_F(ReplaceRecords, DeletesWhatIsSelectedAndWritesTheNewOnes) {
  route::replaceRecords(job.context().gDbPath, routeOne, [](db::Recordset& records) {
    for (int order = 1; order <= 3; ++order) add(records, order, "new");
  });
  EXPECT_EQ(all(), (Lines{"R001|1|new", "R001|2|new", "R001|3|new", "R002|1|other"}));
}

TEST_F(ReplaceRecords, DeletesAllWhereNothingIsWritten) {
  route::replaceRecords(job.context().gDbPath, routeOne, [](db::Recordset&) {});
  EXPECT_EQ(all(), Lines{"R002|1|other"});
}

TEST_F(ReplaceRecords, KeepsWhatWasDeletedAndWrittenBeforeAnError) {
  const auto write = [](db::Recordset& records) {
    add(records, 1, "new");
    records.addNew();
    records.set("そんな列", 1);
  };
  EXPECT_THROW(route::replaceRecords(job.context().gDbPath, routeOne, write), db::Error);
  EXPECT_EQ(all(), (Lines{"R001|1|new", "R002|1|other"}));
}

TEST_F(ReplaceRecords, KeepsNothingWhereMemoryRunsOut) {
  const Lines before = all();
  const auto write = [](db::Recordset& records) {
    add(records, 1, "new");
    throw std::bad_alloc();
  };
  EXPECT_THROW(route::replaceRecords(job.context().gDbPath, routeOne, write), std::bad_alloc);
  EXPECT_EQ(all(), before);
}

/// Replaces a route in one table, writes to a second one, and fails there where told to.
void saveTwoTables(const test::SmallJob& job, const db::Sql& first, route::Extent extent, bool fails) {
  route::save(job.context().gDbPath, extent, [&](db::Database& database) {
    route::replaceRecords(database, first, [](db::Recordset& records) { add(records, 7, "new"); });
    database.execute("INSERT INTO KansokuKikan (JobId) VALUES ('3')");
    if (fails) database.execute("INSERT INTO そんな表 VALUES (1)");
  });
}

TEST_F(ReplaceRecords, SaveSeveralTablesInOneCommit) {
  saveTwoTables(job, routeOne, route::Extent::AllOrNothing, false);
  EXPECT_EQ(all(), (Lines{"R001|7|new", "R002|1|other"}));
  EXPECT_EQ(job.records("SELECT * FROM KansokuKikan", {"JobId"}), Lines{"3"});
}

TEST_F(ReplaceRecords, OfAllOrNothingAFailureLeavesEveryTableAsItWas) {
  const Lines before = all();
  try {
    saveTwoTables(job, routeOne, route::Extent::AllOrNothing, true);
    FAIL() << "no error was raised";
  } catch (const db::Error& error) {
    EXPECT_NE(std::string(error.what()).find("そんな表"), std::string::npos);
    EXPECT_TRUE(std::string(error.what()).ends_with("保存前の成果はそのまま残っています。"));
  }
  EXPECT_EQ(all(), before);
  EXPECT_TRUE(job.records("SELECT * FROM KansokuKikan", {"JobId"}).empty());
}

TEST_F(ReplaceRecords, AsFarAsItCameAFailureLeavesWhatWasWritten) {
  EXPECT_THROW(saveTwoTables(job, routeOne, route::Extent::AsFarAsItCame, true), db::Error);
  EXPECT_EQ(all(), (Lines{"R001|7|new", "R002|1|other"}));
  EXPECT_EQ(job.records("SELECT * FROM KansokuKikan", {"JobId"}), Lines{"3"});
}

TEST_F(ReplaceRecords, RaisesAnErrorWithoutTheDatabase) {
  EXPECT_THROW(route::replaceRecords(job.folder().path("missing.sqlite"), routeOne, [](db::Recordset&) {}),
               db::Error);
}

TEST(CellValue, IsNullWhereTheCellIsBlank) {
  ui::Grid grid;
  EXPECT_TRUE(route::cellValue(grid, 1, 0).isNull());
  grid.setText(1, 0, "   ");
  EXPECT_TRUE(route::cellValue(grid, 1, 0).isNull());
  grid.setText(1, 0, " 12.345 ");
  EXPECT_EQ(route::cellValue(grid, 1, 0), db::Value(" 12.345 "));
}

TEST(Formatted, LeavesABlankFieldBlank) {
  const text::Pattern heights("###0.000");
  EXPECT_EQ(route::formatted(db::Value(), heights), "");
  EXPECT_EQ(route::formatted("  ", heights), "");
  EXPECT_EQ(route::formatted("12.3455", heights), "12.346");
  EXPECT_EQ(route::formatted(12.3455, heights), "12.346");
  EXPECT_EQ(route::formatted(0.0, heights), "0.000");
}

TEST(ReportSaved, ShowsAPlainBox) {
  test::RecordingDesktop desktop;
  route::reportSaved(desktop);
  EXPECT_EQ(desktop.messages, (std::vector<ui::Message>{{"", "保存しました", ui::Icon::None}}));
}

/// A grid of two columns, number and flag, one row for each pair.
class BenchMarks : public testing::Test {
 protected:
  void lay(const std::vector<std::pair<const char*, const char*>>& rows) {
    grid.setRows(static_cast<int>(rows.size()) + 1);
    for (int row = 1; row < grid.rows(); ++row) {
      grid.setText(row, 0, rows[static_cast<std::size_t>(row) - 1].first);
      grid.setText(row, 1, rows[static_cast<std::size_t>(row) - 1].second);
    }
  }

  std::string walk() const {
    std::string visits;
    route::forEachBenchMark(grid, 1, [&](int row, int sectionRow) {
      visits += std::to_string(row) + ":" + std::to_string(sectionRow) + " ";
    });
    return visits;
  }

  ui::Grid grid;
};

TEST_F(BenchMarks, ComeWithTheirSectionRows) {
  lay({{"B1", ""}, {"", ""}, {"B2", ""}, {"", ""}, {"B3", "-1"}});
  EXPECT_EQ(walk(), "1:2 3:4 5:0 ");
}

TEST_F(BenchMarks, BehindARouteEndStandDirectlyBelowIt) {
  lay({{"B1", ""}, {"", ""}, {"B2", "-1"}, {"C1", ""}, {"", ""}, {"C2", "-1"}});
  EXPECT_EQ(walk(), "1:2 3:0 4:5 6:0 ");
}

TEST_F(BenchMarks, AtARouteEndHaveNoSectionThoughAnEmptyRowStandsBelow) {
  lay({{"B1", "-1"}, {"", ""}, {"C1", ""}, {"", ""}});
  EXPECT_EQ(walk(), "1:0 3:4 ");
}

TEST_F(BenchMarks, WithoutANumberArePassedOver) {
  lay({{"B1", ""}, {"", ""}, {"  ", ""}, {"", ""}, {"B3", ""}});
  EXPECT_EQ(walk(), "1:2 5:0 ");
}

TEST_F(BenchMarks, AreNoneInAnEmptyGrid) {
  EXPECT_EQ(walk(), "");
  grid.setRows(1);
  EXPECT_EQ(walk(), "");
}

TEST(CountBenchMarks, CountsThoseWithANumberOfAllRoutesOrTheFirst) {
  ui::Grid grid;
  grid.setCols(2);
  grid.setRows(9);
  EXPECT_EQ(route::countBenchMarks(grid, 1), 0U);
  for (const auto& [row, name] :
       std::vector<std::pair<int, const char*>>{{1, "A"}, {3, "B"}, {5, "B"}, {7, "C"}})
    grid.setText(row, 0, name);
  grid.setText(3, 1, "-1");
  grid.setText(7, 1, "-1");
  EXPECT_EQ(route::countBenchMarks(grid, 1), 4U);
  EXPECT_EQ(route::countBenchMarks(grid, 1, true), 2U);
}

TEST(PairMean, ComesWithTheSecondOfEachPair) {
  route::PairMean mean(10000);
  EXPECT_FALSE(mean.add(12.3456));
  EXPECT_TRUE(mean.add(12.3458));
  EXPECT_DOUBLE_EQ(mean.mean(), 12.3457);  // (12.3456 + 12.3458) / 2
  EXPECT_FALSE(mean.add(20.0));
  EXPECT_TRUE(mean.add(21.0));
  EXPECT_DOUBLE_EQ(mean.mean(), 20.5);
}

TEST(PairMean, IsRoundedToTheUnitHalvesUpwards) {
  route::PairMean tenths(10000);
  tenths.add(2.0);
  tenths.add(2.0625);
  // 4.0625 / 2 = 2.03125 m = 20312.5 units; + 0.5 = 20313 → 2.0313 m
  EXPECT_DOUBLE_EQ(tenths.mean(), 2.0313);
  route::PairMean millimetres(1000);
  millimetres.add(1.0);
  millimetres.add(1.125);
  // 2.125 / 2 = 1.0625 m = 1062.5 units; + 0.5 = 1063 → 1.063 m
  EXPECT_DOUBLE_EQ(millimetres.mean(), 1.063);
  millimetres.add(2.0);
  millimetres.add(2.0008);
  // 4.0008 / 2 = 2.0004 m = 2000.4 units; + 0.5 = 2000.9, cut to 2000
  EXPECT_DOUBLE_EQ(millimetres.mean(), 2.0);
  millimetres.add(-1.0);
  millimetres.add(-1.125);
  // −1062.5 units; + 0.5 = −1062 → −1.062 m
  EXPECT_DOUBLE_EQ(millimetres.mean(), -1.062);
}

TEST(PairMean, RoundsAHalfUpwardsAsItReads) {
  route::PairMean mean(10000);
  mean.add(1.0);
  mean.add(1.0001);
  // (1.0000 + 1.0001) / 2 = 1.00005; × 10000 + 0.5 would be 10000.999999999998 in doubles.
  EXPECT_EQ(mean.mean(), 1.0001);
}

TEST(PairMean, NeverReachesOverARouteEnd) {
  route::PairMean mean(1000);
  EXPECT_FALSE(mean.add(10));
  mean.restart();
  EXPECT_FALSE(mean.add(20));
  EXPECT_TRUE(mean.add(30));
  EXPECT_DOUBLE_EQ(mean.mean(), 25);
}

}  // namespace
