#include "exchange/check.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files.h"
#include "support/job_file.h"

namespace {

using Lines = std::vector<std::string>;

/// A job to look through.
class Check : public testing::Test {
 protected:
  Lines findings() const { return exchange::checkJob(job_.path()); }
  /// The findings, or the error that the examination ends with.
  Lines told() const {
    Lines found;
    const std::string error = test::errorOf([&] { found = findings(); });
    return error.empty() ? found : Lines{error};
  }

  test::JobFile job_;
};

constexpr const char* route = "KansokuSeikaData: ジョブ「1」 事業「1001」 路線「01A00101」 ";

TEST_F(Check, FindsNothingInAnEmptyJob) { EXPECT_EQ(findings(), Lines{}); }

TEST_F(Check, FindsNothingInARouteInOrder) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101", 2, "'0'", "'-2'");
  job_.observed("01A00101", 3, "'0'", "'-1'");
  job_.observed("01A00101", 4);  // bench marks behind a route end
  EXPECT_EQ(findings(), Lines{});
}

TEST_F(Check, TakesAFamilyNumberedThrough) {
  job_.observed("01B00101", 1, "'1'");
  job_.observed("01B00101", 2, "'1'", "'-1'");
  job_.observed("02B00101", 3, "'1'");
  job_.observed("02B00101", 4, "'1'", "'-1'");
  job_.observed("01B00101", 1, "'2'", "'-1'");  // the same number in another category
  EXPECT_EQ(findings(), Lines{});
}

TEST_F(Check, NamesMissingTablesAndColumns) {
  job_.sql({"DROP TABLE KansokuKikan", "ALTER TABLE JobData DROP COLUMN Tokyu",
            "ALTER TABLE KansokuSeikaDataSeihyou DROP COLUMN RosenEndDataFlg",
            "INSERT INTO KansokuSeikaDataSeihyou (JobId) VALUES ('1')"});
  EXPECT_EQ(findings(), (Lines{"JobData: 列「Tokyu」がありません。",
                               "KansokuSeikaDataSeihyou: 列「RosenEndDataFlg」がありません。",
                               "KansokuKikan: テーブルがありません。"}));
}

TEST_F(Check, NamesOrderNumbersThatAreTexts) {
  job_.sql({"DROP TABLE KansokuSeikaDataHKSNB",
            "CREATE TABLE KansokuSeikaDataHKSNB (JobId TEXT(2), 補正値フラグ TEXT(1), 変動観測簿No TEXT(4), "
            "SaveOrder TEXT(8))"});
  const Lines found = findings();
  EXPECT_EQ(
      std::count(found.begin(), found.end(),
                 "KansokuSeikaDataHKSNB: 列「SaveOrder」が文字列の型（TEXT(8)）です。ほかのプログラムでは "
                 "1、10、2 の順に並ぶことがあります。"),
      1);
}

TEST_F(Check, NamesRecordsWithoutACategory) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101", 2, "NULL");
  job_.observed("01A00101", 3, "' '");
  job_.observed("01A00101", 4, "'0'", "'-1'");
  // Numbers that those two hold are not left out, and they make no route without an end.
  EXPECT_EQ(findings(), (Lines{std::string(route) + "区分「」 SaveOrder 2 の DataKubun が空です。",
                               std::string(route) + "区分「」 SaveOrder 3 の DataKubun が空です。"}));
}

TEST_F(Check, NamesNumbersLeftOut) {
  job_.observed("01A00101", 2);
  job_.observed("01A00101", 4);
  job_.observed("01A00101", 5, "NULL");
  job_.observed("01A00101", 8, "'0'", "'-1'");
  EXPECT_EQ(findings(), (Lines{std::string(route) + "区分「」 SaveOrder 5 の DataKubun が空です。",
                               std::string(route) + "区分「0」 SaveOrder 3 が抜けています。",
                               std::string(route) + "区分「0」 SaveOrder 6～7 が抜けています。"}));
}

TEST_F(Check, NamesNumbersThatAreThereTwice) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101 ", 1);  // the same route: blanks behind it do not count
  job_.observed("01A00101", 2, "'0'", "'-1'");
  EXPECT_EQ(findings(), Lines{std::string(route) + "区分「0」 SaveOrder 1 が 2 件あります。"});
}

TEST_F(Check, NamesNumbersThatAreNone) {
  job_.observed("01A00101", 1, "'0'", "'-1'");
  job_.sql(
      {"INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
       "('1','1001','01A00101','0',NULL)",
       "INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
       "('1','1001','01A00101','0',1.5)"});
  EXPECT_EQ(findings(), (Lines{std::string(route) + "区分「0」 SaveOrder が空です。",
                               std::string(route) + "区分「0」 SaveOrder「1.5」は整数ではありません。"}));
}

TEST_F(Check, NamesRoutesWithoutAnEnd) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101", 2, "'0'", "'-2'");
  job_.observed("01A00201", 1, "'0'", "'-1 '");
  EXPECT_EQ(findings(), Lines{std::string(route) + "区分「0」 路線の終わり (-1) がありません。"});
}

TEST_F(Check, LooksThroughTheResultsToo) {
  job_.sql(
      {"INSERT INTO KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
       "('1','1001','01A00101','0',1)",
       "INSERT INTO DaenHoseiChiHyouData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
       "('1','1001','01A00101','0',1)",
       "INSERT INTO DaenHoseiChiHyouData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
       "('1','1001','01A00101','0',3)"});
  const std::string keys = ": ジョブ「1」 事業「1001」 路線「01A00101」 区分「0」 ";
  EXPECT_EQ(findings(), (Lines{"DaenHoseiChiHyouData" + keys + "SaveOrder 2 が抜けています。",
                               "KansokuSeikaDataTanrosen" + keys + "路線の終わり (-1) がありません。"}));
}

// Results keep the numbers of the observations they come from, and sections end where routes end.
TEST_F(Check, TakesWhatObservationsLeaveOut) {
  job_.observed("01A00101", 1);
  job_.observed("01A00101", 2, "NULL");
  job_.observed("01A00101", 3, "'0'", "'-1'");
  for (const int order : {1, 3})
    job_.sql(
        {"INSERT INTO KansokuSeikaDataDaen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, "
         "RosenEndDataFlg) "
         "VALUES ('1','1001','01A00101','0'," +
             std::to_string(order) + ",'-1')",
         "INSERT INTO KansokuData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES "
         "('1','1001','01A00501','0'," +
             std::to_string(order) + ")"});
  EXPECT_EQ(findings(), Lines{std::string(route) + "区分「」 SaveOrder 2 の DataKubun が空です。"});
}

TEST_F(Check, NumbersBooksThroughAllTheirRoutes) {
  const auto row = [this](const std::string& book, const std::string& kind, int order) {
    job_.sql(
        {"INSERT INTO KansokuSeikaDataHKSNB (JobId, 変動観測簿No, 補正値フラグ, 路線番号, SaveOrder) VALUES "
         "('1','" +
         book + "','" + kind + "','" + std::to_string(order) + "'," + std::to_string(order) + ")"});
  };
  row("1", "0", 1);
  row("1", "0", 2);
  row("1", "1", 1);
  row("2", "0", 1);
  row("2", "0", 3);
  EXPECT_EQ(findings(), Lines{"KansokuSeikaDataHKSNB: ジョブ「1」 補正値フラグ「0」 観測簿「2」 "
                              "SaveOrder 2 が抜けています。"});
}

/// A page of SQLite's file that holds records is overwritten: bytes, from the middle of the file on.
TEST_F(Check, TellsADamagedFile) {
  for (int i = 1; i <= 200; ++i) job_.observed("01A00101", i, "'0'", i == 200 ? "'-1'" : "NULL");
  EXPECT_EQ(findings(), Lines{});
  const std::string whole = *platform::readFile(job_.path());
  std::string bytes = whole;
  std::fill(bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size()) / 2,
            bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size()) / 2 + 8192, '\x5A');
  platform::writeFile(job_.path(), bytes);
  const Lines found = told();
  ASSERT_FALSE(found.empty());
  for (const std::string& words : found) EXPECT_TRUE(test::holds(words, "は壊れています: ")) << words;
  platform::writeFile(job_.path(), whole.substr(0, whole.size() / 2));
  EXPECT_TRUE(test::holds(told().at(0), "は壊れています: "));
}

}  // namespace
