#include <algorithm>

#include "sample_job.h"

namespace {

struct Table {
  const char* name;
  std::vector<std::string> columns;
};

std::vector<std::string> columnsOf(const std::string& table) {
  std::vector<std::string> names;
  for (const auto& column : test::usualJob().database().tableDefinition(table)) names.push_back(column.name);
  return names;
}

const std::vector<Table>& tables() {
  static const std::vector<Table> all{
      {"JobData", {"JobId", "Tokyu", "JikkouFlg"}},
      {"A_ExePath", {"Exe_Dir"}},
      {"KansokuSeikaData",
       {"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder", "RosenEndDataFlg", "標石番号",
        "観測年月日", "中数", "前回観測日", "前回中数", "標高", "距離", "都道府県", "郡市", "町村"}},
      {"EditTextData", {"JobId"}},
      {"KansokuData", {"JobId"}},
      {"ComKansokushameiMst", {"JobId"}},
      {"ComShiyouKIkaimeiMst", {"JobId"}},
      {"ComShiyouHyoushakuMeiMst", {"JobId"}},
      {"HendHoseiChiHyouData", {"JobId"}},
      {"KansokuSeikaDataSeihyou",
       {"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder", "水準点番号", "標高", "備考1", "備考2",
        "RosenEndDataFlg", "中数", "正標高補正数", "正標高結果"}},
      {"KansokuSeikaDataDaen",
       {"JobId", "SaveOrder", "事業番号", "路線番号", "標石番号", "距離", "楕円補正値", "標高",
        "楕円補正結果", "備考1", "備考2", "DataKubun", "RosenEndDataFlg"}},
      {"DaenHoseiChiHyouData",
       {"JobId", "SaveOrder", "事業番号", "路線番号", "自首末地", "至首末地", "自水準点番号", "至水準点番号",
        "B1", "B2", "B1_B2", "B1plusB2", "k", "H", "CalK", "DataKubun"}},
      {"KansokuSeikaDataHend",
       {"JobId",
        "SaveOrder",
        "事業番号",
        "路線番号",
        "標石番号",
        "基準観測日",
        "DataKubun",
        "RosenEndDataFlg",
        "新観測年月日",
        "新観測比高",
        "旧測年月日",
        "旧観測比高",
        "比高差",
        "新_旧経過日数",
        "日毎比高変化",
        "基準_新経過日数",
        "変動補正量",
        "変動補正結果",
        "備考1",
        "備考2",
        "新設点BrankFlg",
        "新設点Flg",
        "新設点用変動補正量",
        "新設点用新観測比高",
        "新設点用旧測年月日",
        "新設点用旧観測比高",
        "新設点用比高差",
        "新設点用新_旧経過日数",
        "新設点用基準_新経過日数",
        "新設点用日毎比高変化",
        "新設点用変動補正結果",
        "新設点用平均_新観測年月日"}},
      {"KansokuSeikaDataTanrosen",
       {"JobId", "事業番号", "路線番号", "DataKubun", "SaveOrder", "水準点番号", "距離", "標高",
        "単路線補正数", "単路線補正結果", "備考1", "備考2", "RosenEndDataFlg", "中数"}},
      {"KansokuSeikaDataHKSNB",
       {"JobId",        "SaveOrder",    "事業番号",     "路線番号",       "変動観測簿No", "補正値フラグ",
        "都道府県",     "郡市",         "町村",         "水準点番号",     "観測比高",     "今回観測成果",
        "前回観測成果", "今回中数",     "正標高補正値", "正標高補正結果", "変動量",       "備考1",
        "備考2",        "今回観測日付", "前回観測日付"}},
      {"KansokuKikan",
       {"JobId", "観測簿種類", "変動観測簿No", "新観測年月From", "新観測年月To", "旧観測年月From",
        "旧観測年月To"}}};
  return all;
}

TEST(Schema, HasEveryTableWithItsColumns) {
  for (const Table& table : tables()) {
    const auto columns = columnsOf(table.name);
    for (const std::string& name : table.columns)
      EXPECT_EQ(1, std::count(columns.begin(), columns.end(), name)) << table.name << "." << name;
  }
}

// Periods are inserted without a list of columns.
TEST(Schema, PeriodsHaveSevenColumnsInTheirOrder) {
  EXPECT_EQ(tables().back().columns, columnsOf("KansokuKikan"));
}

// The program adds the column itself.
TEST(Schema, BooksHaveNoRouteEndMarkYet) {
  const auto columns = columnsOf("KansokuSeikaDataHKSNB");
  EXPECT_EQ(0, std::count(columns.begin(), columns.end(), "RosenEndFlg"));
  EXPECT_EQ(21U, columns.size());
}

// A book reads remarks from the results that are joined to the observations: they must not be hidden by
// columns of the same name.
TEST(Schema, ObservationsHaveNoRemarkColumnsOfResults) {
  const auto columns = columnsOf("KansokuSeikaData");
  EXPECT_EQ(0, std::count(columns.begin(), columns.end(), "備考1"));
  EXPECT_EQ(0, std::count(columns.begin(), columns.end(), "備考2"));
}

TEST(Schema, ResultTablesAreEmpty) {
  for (const char* table :
       {"KansokuSeikaDataSeihyou", "KansokuSeikaDataDaen", "KansokuSeikaDataHend", "HendHoseiChiHyouData",
        "KansokuSeikaDataTanrosen", "KansokuSeikaDataHKSNB", "KansokuKikan"})
    EXPECT_EQ(0, test::usualJob().number(std::string("SELECT COUNT(*) FROM ") + table)) << table;
}

}  // namespace
