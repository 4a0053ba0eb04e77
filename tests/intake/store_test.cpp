#include "intake/store.h"

#include <gtest/gtest.h>

#include "open/open.h"
#include "support/job_file.h"

namespace {

using test::errorOf;
using test::holds;
using test::JobFile;

class Store : public testing::Test {
 protected:
  Store() { job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"}); }

  intake::Plan planOf(std::string_view text) const {
    const intake::Block block = intake::readBlock(text);
    return intake::planObservations(block, intake::matchByName(block.headings.cells),
                                    {"1", "1001", "R'1", "0"});
  }

  std::vector<std::string> stored() const {
    std::vector<std::string> lines;
    const auto database = db::openDatabase(job_.path());
    const auto found = database->openRecordset("SELECT * FROM KansokuSeikaData ORDER BY SaveOrder");
    for (; !found->eof(); found->moveNext()) {
      std::string line;
      for (const char* column : {"事業番号", "路線番号", "DataKubun", "SaveOrder", "標石番号", "観測年月日",
                                 "距離", "中数", "標高", "RosenEndDataFlg"})
        line += found->field(column).text() + "|";
      lines.push_back(line);
    }
    return lines;
  }

  JobFile job_;
};

TEST_F(Store, WritesWhatTheScreensRead) {
  EXPECT_EQ(intake::storeObservations(
                job_.path(), planOf("標石番号,観測日,距離,中数,標高\nA,2020/1/5,1.5,0.1234,10.500\nB,,,,\n"),
                false),
            2);
  EXPECT_EQ(stored(), (std::vector<std::string>{"1001    |R'1     |0|1|A|2020/01/05|1.5|0.1234|10.500||",
                                                "1001    |R'1     |0|2|B|||||-1|"}));
}

TEST_F(Store, ReplacesARouteOnlyWhenAskedTo) {
  const auto plan = planOf("標石番号\nA\nB\n");
  intake::storeObservations(job_.path(), plan, false);
  job_.observed("OTHER", 1);
  const auto error = errorOf([&] { intake::storeObservations(job_.path(), plan, false); });
  EXPECT_TRUE(holds(error, "すでに 2 件あります。 何も取り込んでいません。")) << error;
  {
    const auto database = db::openDatabase(job_.path());
    const auto there = intake::existingRoutes(*database, plan);
    ASSERT_EQ(there.size(), 1U);
    EXPECT_EQ(there[0].records, 2);
  }
  intake::storeObservations(job_.path(), planOf("標石番号\nC\n"), true);
  EXPECT_EQ(stored().size(), 2U);  // C and the other route
}

TEST_F(Store, KeepsEverythingWhereARecordIsRefused) {
  intake::storeObservations(job_.path(), planOf("標石番号\nA\nB\n"), false);
  job_.sql(
      {"CREATE TRIGGER refuse BEFORE INSERT ON KansokuSeikaData WHEN NEW.標石番号 = 'D' BEGIN "
       "SELECT RAISE(ABORT, 'no'); END"});
  const auto before = stored();
  const auto error =
      errorOf([&] { intake::storeObservations(job_.path(), planOf("標石番号\nC\nD\n"), true); });
  EXPECT_TRUE(holds(error, "3 行目を書き込めません。")) << error;
  EXPECT_EQ(stored(), before);
}

TEST_F(Store, RefusesAPlanWithRefusals) {
  const auto error =
      errorOf([&] { intake::storeObservations(job_.path(), planOf("標石番号,中数\nA,x\n"), false); });
  EXPECT_TRUE(holds(error, "2 行目: 中数「x」は数値ではありません。")) << error;
  EXPECT_TRUE(stored().empty());
}

TEST_F(Store, KnowsTheExecutedJobOnlyWhereThereIsOne) {
  EXPECT_EQ(intake::executedJob(*db::openDatabase(job_.path())), "1");
  job_.sql({"INSERT INTO JobData VALUES ('2', '二', 1, 1)"});
  EXPECT_EQ(intake::executedJob(*db::openDatabase(job_.path())), "");
}

}  // namespace
