#include "route/result_list.h"

#include <gtest/gtest.h>

#include "support/small_job.h"

namespace {

using Lines = std::vector<std::string>;

/// The results of a job as they are gathered.
class ResultList : public testing::Test {
 protected:
  void saved(const std::string& project, const std::string& route, const std::string& benchMark,
             const std::string& height, const std::string& remark = "") {
    results.push_back({project, route, "0", benchMark, height, remark});
  }

  report::Document list() const { return route::resultList(job.context(), "正標高補正", {}, results); }

  static Lines lines(const report::Table& table) {
    Lines found;
    for (const report::Row& row : table.rows) {
      std::string line;
      for (const std::string& cell : row.cells) line += (&cell == &row.cells[0] ? "" : "|") + cell;
      found.push_back(line);
    }
    return found;
  }
  static const report::Table& table(const report::Document& document, std::size_t item) {
    return std::get<report::Table>(document.parts.at(0).items.at(item));
  }

  test::SmallJob job;
  std::vector<route::Result> results;
};

TEST_F(ResultList, ListsBenchMarksWithTheirPlaces) {
  saved("1001", "01A00101", "A", "10.0000");
  saved("1001", "01A00101", "B", "11.2500");
  saved("1001", "01A00201", "C", "12.5000", "橋");
  job.observed(1, "01A00101", "A", "NULL", "NULL");
  job.sql("UPDATE KansokuSeikaData SET 都道府県 = '長野県', 町村 = '原村'");
  const report::Document document = list();
  EXPECT_EQ(lines(table(document, 0)), (Lines{"1001|01A00101|A|長野県原村|10.0000||",
                                              "1001|01A00101|B||11.2500||", "1001|01A00201|C||12.5000||橋"}));
  EXPECT_TRUE(table(document, 0).rows[1].ruleBelow) << "a rule behind each route";
  EXPECT_EQ(document.parts[0].items.size(), 1U) << "nothing differs";
}

TEST_F(ResultList, NamesABenchMarkOnceAndTellsWhereItsHeightsDiffer) {
  saved("1001", "01A00101", "A", "");
  saved("1001", "01A00101", "B", "11.0001");
  saved("1001", "01A00201", "B", "11.0025");
  saved("1001", "01A00201", "A", "10.5000");
  saved("1001", "01A00301", "A", "10.5000");
  const report::Document document = list();
  EXPECT_EQ(lines(table(document, 0)), (Lines{"1001|01A00201|A||10.5000||", "1001|01A00101|B||11.0001|※|"}));
  // 11.0025 − 11.0001 = 2.4 mm.
  EXPECT_EQ(lines(table(document, 2)), (Lines{"B|1001|01A00101|0|11.0001|", "|1001|01A00201|0|11.0025|2.4"}));
  EXPECT_EQ(table(document, 2).name, "標高の異なる水準点");
}

TEST_F(ResultList, OfNoResultsIsAnEmptyTable) { EXPECT_TRUE(table(list(), 0).rows.empty()); }

TEST_F(ResultList, FindsTheSavedRoutesOfAProjectOrOfAll) {
  const auto store = [this](const char* project, const char* route, const char* category) {
    job.sql("INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES ('3','" +
            std::string(project) + "','" + route + "','" + category + "')");
  };
  store("1002", "01A00101", "0");
  store("1001", "02B00101", "1");
  store("1001", "01B00101", "1");
  store("1001", "01A00101", "0");
  store("1001", "01A00101", "0");
  const std::string& stored = job.context().tables.gTblKansokuSeikaDataSeihyou;
  const auto found = route::savedSelections(job.context(), stored, {});
  ASSERT_EQ(found.size(), 3U) << "each route once, of the family its first one";
  EXPECT_EQ(found[0].rosenBango, "01A00101");
  EXPECT_EQ(found[1].rosenBango, "01B00101");
  EXPECT_EQ(found[2].jigyoBango, "1002");
  EXPECT_EQ(route::savedSelections(job.context(), stored, "1001").size(), 2U);
  EXPECT_EQ(route::savedProjects(job.context(), stored), (Lines{"1001", "1002"}));
}

}  // namespace
