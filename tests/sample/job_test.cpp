#include <algorithm>
#include <chrono>
#include <filesystem>

#include "platform/files.h"
#include "sample_job.h"

namespace {

using test::SampleJob;
using test::usualJob;

std::string everything(const SampleJob& job) {
  std::string all;
  for (const char* table :
       {"JobData", "EditTextData", "ComKansokushameiMst", "ComShiyouKIkaimeiMst", "ComShiyouHyoushakuMeiMst",
        "KansokuSeikaData", "KansokuData", "DaenHoseiChiHyouData"}) {
    const std::size_t columns = job.database().tableDefinition(table).size();
    all += std::string(table) + "\n" + job.dump(std::string("SELECT * FROM ") + table, columns);
  }
  return all;
}

TEST(SampleJob, TwoRunsGiveEqualTables) {
  const SampleJob again;
  const std::string first = everything(usualJob());
  EXPECT_LT(200'000U, first.size());
  EXPECT_TRUE(first == everything(again));
}

TEST(SampleJob, HasAFirstGradeJobForExecutionAndAnotherOne) {
  EXPECT_EQ("1|1|1|\n2|2|0|\n",
            usualJob().dump("SELECT JobId, Tokyu, JikkouFlg FROM JobData ORDER BY JobId", 3));
}

TEST(SampleJob, DataFolderIsAbsoluteWithBackslashes) {
  std::string folder = usualJob().folder().path("data");
  std::replace(folder.begin(), folder.end(), '/', '\\');
  EXPECT_EQ(folder + "\\", usualJob().text("SELECT Exe_Dir FROM A_ExePath"));
  EXPECT_TRUE(std::filesystem::is_directory(usualJob().folder().path("data/map_app")));
}

TEST(SampleJob, AnotherGradeIsExecutedWithItsOwnDecimals) {
  const SampleJob job({"--grade", "3"});
  EXPECT_EQ("1|1|0|\n2|3|1|\n", job.dump("SELECT JobId, Tokyu, JikkouFlg FROM JobData ORDER BY JobId", 3));
  EXPECT_EQ("7.967", job.text("SELECT 標高 FROM KansokuSeikaData WHERE JobId = '2' AND 標石番号 = 'D101'"));
}

TEST(SampleJob, RefusesToWriteOverADatabase) {
  const test::TemporaryFolder folder;
  folder.write("job.sqlite", "precious");
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(1, sample::run({folder.path()}, "", out, err));
  EXPECT_EQ("ジョブデータベースが既にあります。上書きしません: " + folder.path("job.sqlite") + "\n",
            err.str());
  EXPECT_EQ("", out.str());
  EXPECT_EQ(8U, std::filesystem::file_size(folder.path("job.sqlite")));
}

TEST(SampleJob, MakesTheFolderWhereItIsMissing) {
  const test::TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(0, sample::run({folder.path("新しい/見本"), "--benchmarks", "2"}, "", out, err)) << err.str();
  EXPECT_TRUE(platform::isFile(folder.path("新しい/見本/job.sqlite")));
}

TEST(SampleJob, AFolderThatCannotBeMadeIsAnError) {
  const test::TemporaryFolder folder;
  const std::string file = folder.write("file", "");
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(1, sample::run({file + "/below"}, "", out, err));
  EXPECT_NE("", err.str());
}

TEST(SampleJob, TakesThePictureToolAlong) {
  const test::TemporaryFolder folder;
  folder.write("PicturePaste", "tool");
  std::ostringstream out;
  ASSERT_EQ(0, sample::run({folder.path("job"), "--benchmarks", "2"}, folder.path(), out, out));
  EXPECT_EQ(4U, std::filesystem::file_size(folder.path("job/data/map_app/PicturePaste.exe")));
}

TEST(SampleJob, ExtraStatementsChangeTheFinishedDatabase) {
  const test::TemporaryFolder folder;
  const std::string sql = folder.write(
      "extra.sql",
      "-- one more\nUPDATE JobData SET JikkouFlg = 0;\nDELETE FROM A_ExePath WHERE Exe_Dir <> ';';\n");
  const SampleJob job({"--sql", sql});
  EXPECT_EQ(0, job.number("SELECT SUM(JikkouFlg) FROM JobData"));
  EXPECT_EQ("(none)", job.text("SELECT Exe_Dir FROM A_ExePath"));
}

TEST(SampleJob, AWrongStatementLeavesNoDatabase) {
  const test::TemporaryFolder folder;
  const std::string sql = folder.write("extra.sql", "UPDATE Missing SET a = 1;");
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(1, sample::run({folder.path("job"), "--sql", sql}, "", out, err));
  EXPECT_NE(std::string::npos, err.str().find("Missing"));
  EXPECT_FALSE(std::filesystem::exists(folder.path("job/job.sqlite")));
}

TEST(SampleJob, AMissingStatementFileIsFoundBeforeAnythingIsMade) {
  const test::TemporaryFolder folder;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(1, sample::run({folder.path("job"), "--sql", folder.path("no.sql")}, "", out, err));
  EXPECT_EQ("SQLファイルを読み込めません: " + folder.path("no.sql") + "\n", err.str());
  EXPECT_FALSE(std::filesystem::exists(folder.path("job")));
}

TEST(MeasuringJob, IsOneRouteWithKnownPointsAndAnEpochBefore) {
  const SampleJob job({"--benchmarks", "16000"});
  const std::string route = "JobId = '1' AND 事業番号 = '9001' AND 路線番号 = '01N00101' AND DataKubun = '0'";
  EXPECT_EQ(16000, job.count("1 = 1"));
  EXPECT_EQ(16000, job.count(route));
  EXPECT_EQ(16000, job.number("SELECT COUNT(DISTINCT 標石番号) FROM KansokuSeikaData"));
  EXPECT_EQ(501, job.count("標高 IS NOT NULL"));  // 0, 32, …, 15968 are 500; and the end
  EXPECT_EQ(1, job.count("RosenEndDataFlg = '-1' AND SaveOrder = 16000 AND 標高 IS NOT NULL"));
  EXPECT_EQ(15999, job.count("中数 IS NOT NULL AND 距離 IS NOT NULL AND 前回中数 IS NOT NULL"));
  EXPECT_EQ(16000, job.count("観測年月日 IS NOT NULL AND 前回観測日 IS NOT NULL"));
  EXPECT_EQ("1|1|1|\n", job.dump("SELECT JobId, Tokyu, JikkouFlg FROM JobData", 3));
}

// 16000 results joined to their observations: through the index some hundredths of a second, without it half
// a minute.
TEST(MeasuringJob, JoinsResultsThroughTheIndex) {
  const SampleJob job({"--benchmarks", "16000"});
  job.database().execute(
      "INSERT INTO KansokuSeikaDataTanrosen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder)"
      " SELECT JobId, 事業番号, 路線番号, DataKubun, SaveOrder FROM KansokuSeikaData");
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(16000, job.number("SELECT COUNT(*) FROM KansokuSeikaDataTanrosen A LEFT JOIN KansokuSeikaData B"
                              " ON A.JobId = B.JobId AND A.事業番号 = B.事業番号 AND A.路線番号 = B.路線番号"
                              " AND A.SaveOrder = B.SaveOrder WHERE A.JobId ='1' AND A.事業番号 ='9001    '"
                              " AND A.路線番号 ='01N00101' AND (A.DataKubun = '0' OR A.DataKubun = Null)"));
  EXPECT_GT(std::chrono::seconds(5), std::chrono::steady_clock::now() - start);
}

TEST(MeasuringJob, ShortOnesKnowTheirEndsOnly) {
  const SampleJob job({"--benchmarks", "63", "--grade", "2"});
  EXPECT_EQ(2, job.count("標高 IS NOT NULL"));
  EXPECT_EQ(63, job.count("1 = 1"));
  EXPECT_EQ("2", job.text("SELECT Tokyu FROM JobData"));
  EXPECT_EQ(900, job.number("SELECT 標高 FROM KansokuSeikaData WHERE SaveOrder = 1"));
}

TEST(MeasuringJob, LongerThanAnyScreenHolds) {
  const SampleJob job({"--benchmarks", "40000"});
  EXPECT_EQ(40000, job.count("標石番号 IS NOT NULL"));
}

}  // namespace
