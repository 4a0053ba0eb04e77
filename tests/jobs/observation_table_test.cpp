#include "jobs/observation_table.h"

#include <gtest/gtest.h>

#include "support/job_file.h"
#include "text/error.h"

namespace {

using intake::Field;
using jobs::ObservationTable;

class ObservationTableTest : public testing::Test {
 protected:
  ObservationTableTest() { job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"}); }
  ObservationTable table() const { return {job_.path(), "1", folder_.path("settings.txt")}; }

  test::JobFile job_;
  test::TemporaryFolder folder_;
};

constexpr const char* block =
    "事業番号\t路線番号\t標石番号\t距離\t比高差\n1001\tR1\tA\t1.5\t0.25\n\t\tB\t1,x\t0.5\n\t\tC\t\t\n";

TEST_F(ObservationTableTest, ALineIsCorrectedInItsCell) {
  ObservationTable table = this->table();
  table.readText(block);
  EXPECT_EQ(table.lines().size(), 3U);
  EXPECT_EQ(table.refusal(1), "距離「1,x」は数値ではありません。");
  EXPECT_EQ(table.refusal(0), "");
  EXPECT_EQ(table.nextRefused(std::nullopt), 1U);
  EXPECT_EQ(table.nextRefused(1), 1U) << "round the end";
  EXPECT_FALSE(table.canBeStored());
  table.setCell(1, 3, " 1.25 ");
  EXPECT_EQ(table.cell(1, 3), "1.25");
  EXPECT_EQ(table.refusal(1), "");
  EXPECT_FALSE(table.nextRefused(std::nullopt));
  EXPECT_TRUE(table.canBeStored());
  EXPECT_EQ(table.store(false), 3);
}

TEST_F(ObservationTableTest, AColumnIsMatchedByHandAndRemembered) {
  ObservationTable table = this->table();
  table.readText(block);
  EXPECT_FALSE(table.fieldOf(4));
  EXPECT_EQ(table.plan().observations[0].difference, "");
  table.match(4, Field::Difference);
  EXPECT_EQ(table.fieldOf(4), Field::Difference);
  EXPECT_EQ(table.plan().observations[0].difference, "0.25");
  table.match(3, std::nullopt);
  EXPECT_EQ(table.refusal(1), "") << "a column that is left out is not read";

  ObservationTable next = this->table();
  next.readText("標石番号\t比高差\t距離\nA\t1\t2\n");
  EXPECT_EQ(next.fieldOf(1), Field::Difference);
  EXPECT_FALSE(next.fieldOf(2));
}

TEST_F(ObservationTableTest, AFieldHasOneColumn) {
  ObservationTable table = this->table();
  table.readText("標石番号\t点名2\t距離(m)\nA\tB\t1500\n");
  table.match(1, Field::BenchMark);
  EXPECT_FALSE(table.fieldOf(0));
  table.setDefaults("1001", " R1 ", "0");
  EXPECT_EQ(table.plan().observations[0].benchMark, "B");
  table.match(2, Field::Difference);
  EXPECT_EQ(table.plan().observations[0].difference, "1500") << "the heading's unit is that of the field";
}

TEST_F(ObservationTableTest, SaysWhatIsMissingAndWhatIsMade) {
  ObservationTable table = this->table();
  EXPECT_TRUE(table.remarks().empty());
  table.readText("標石番号\nA\nB\n");
  EXPECT_EQ(table.remarks(), (std::vector<std::string>{"見出しに「事業番号」の列がありません。",
                                                       "見出しに「路線番号」の列がありません。"}));
  EXPECT_FALSE(table.canBeStored());
  table.setDefaults("1001", "R1", "2");
  EXPECT_EQ(table.remarks(), (std::vector<std::string>{"事業 1001 路線 R1: 順番を 1 から 2 まで付けます。",
                                                       "事業 1001 路線 R1: 終点の印を「B」に付けます。",
                                                       "事業 1001 路線 R1: 中数のない区間が 1 あります。"}));
  table.store(false);
  ASSERT_EQ(table.existing().size(), 1U);
  EXPECT_EQ(table.existing()[0].records, 2);
  EXPECT_THROW(table.store(false), db::Error);
  EXPECT_EQ(table.store(true), 2);
}

TEST_F(ObservationTableTest, ReadsFilesInBothEncodings) {
  ObservationTable table = this->table();
  table.readFile(folder_.write("a.csv", "\xEF\xBB\xBF標石番号,備考\r\nA,測\r\n"));
  EXPECT_EQ(table.cell(0, 1), "測");
  table.readFile(folder_.write("b.csv", "\x95\x57\x90\xce\x94\xd4\x8d\x86\r\nB\r\n"));  // 標石番号 in CP932
  EXPECT_EQ(table.headings(), std::vector<std::string>{"標石番号"});
  EXPECT_THROW(table.readFile(folder_.write("c.csv", "\x81\xff\xfe")), text::RuntimeError);
  EXPECT_THROW(table.readFile(folder_.path("none.csv")), text::RuntimeError);
  EXPECT_EQ(table.cell(0, 0), "B") << "what cannot be read leaves the table as it was";
}

}  // namespace
