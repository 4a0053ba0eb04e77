#include "support/database_test.h"
#include "survey_schema.h"

// The SQL texts as the screens put them together, blanks and letter case and all.

namespace {

using test::DatabaseTest;
using Texts = std::vector<std::string>;

class SurveySql : public DatabaseTest {
 protected:
  void SetUp() override {
    make(test::surveySchema);
    database_ = open();
  }

  Texts get(const std::string& sql, const std::string& column) { return texts(*database_, sql, column); }

  std::unique_ptr<db::Database> database_;
};

TEST_F(SurveySql, StartUp) {
  EXPECT_EQ(get("SELECT * FROM JobData WHERE JikkouFlg = 1", "JobId"), Texts{"1"});
  EXPECT_EQ(get("SELECT * FROM A_ExePath", "Exe_Dir"), Texts{"C:\\data\\"});
  const auto records =
      database_->openRecordset("SELECT * FROM JobData WHERE JikkouFlg = 1", db::Access::Edit);
  EXPECT_EQ(records->field("Tokyu"), db::Value(1.0));
}

TEST_F(SurveySql, ObservationsOfCategoryZeroLeaveNullOut) {
  EXPECT_EQ(get(" SELECT * FROM KansokuSeikaData WHERE JobId ='1' AND 事業番号 ='2024    ' AND 路線番号 "
                "='10230101' AND "
                "(DataKubun = '0' OR DataKubun = Null) ORDER BY SaveOrder",
                "標石番号"),
            (Texts{"BM1", "BM2"}));
}

TEST_F(SurveySql, RoutesOfAFamilyShareCharactersThreeToSix) {
  EXPECT_EQ(get(" SELECT * FROM KansokuSeikaData WHERE JobId ='1' AND 事業番号 ='2024    ' AND "
                "MID(路線番号,3,4) ='2301' AND "
                "DataKubun = '1' ORDER BY SaveOrder",
                "標石番号"),
            (Texts{"C1", "C2"}));
}

TEST_F(SurveySql, StartHeight) {
  EXPECT_EQ(get("SELECT 標高 FROM KansokuSeikaDataSeihyou WHERE 水準点番号 = 'BM2' AND RosenEndDataFlg = "
                "'-1' AND 事業番号 = "
                "'2024    ' AND 路線番号 = '10230101' AND DataKubun ='0' AND JobId = '1'",
                "標高"),
            Texts{"11.6"});
}

TEST_F(SurveySql, OrthometricReopen) {
  const std::string sql =
      " SELECT KansokuSeikaDataSeihyou.*,KansokuSeikaData.標高 AS 観測標高 FROM KansokuSeikaDataSeihyou LEFT "
      "JOIN  "
      "KansokuSeikaData ON (KansokuSeikaData.JobId = KansokuSeikaDataSeihyou.JobId) AND  "
      "(KansokuSeikaData.DataKubun = "
      "KansokuSeikaDataSeihyou.DataKubun) AND  (KansokuSeikaData.SaveOrder = "
      "KansokuSeikaDataSeihyou.SaveOrder)  AND  "
      "(KansokuSeikaData.事業番号 = KansokuSeikaDataSeihyou.事業番号)  AND (KansokuSeikaData.路線番号 = "
      "KansokuSeikaDataSeihyou.路線番号) AND (KansokuSeikaData.標石番号 = "
      "KansokuSeikaDataSeihyou.水準点番号) WHERE "
      "KansokuSeikaDataSeihyou.JobId ='1' AND KansokuSeikaDataSeihyou.事業番号 ='2024    '";
  const std::string order = " ORDER BY KansokuSeikaDataSeihyou.SaveOrder";
  const std::string zero =
      " AND KansokuSeikaDataSeihyou.路線番号 ='10230101' AND (KansokuSeikaDataSeihyou.DataKubun = '0' OR "
      "KansokuSeikaDataSeihyou.DataKubun = Null)";
  EXPECT_EQ(get(sql + zero + order, "観測標高"), (Texts{"10", "11.5"}));
  EXPECT_EQ(get(sql + zero + order, "標高"), (Texts{"10.1", "11.6"}));
  EXPECT_EQ(get(sql +
                    " AND MID(KansokuSeikaDataSeihyou.路線番号,3,4) ='2301' AND "
                    "KansokuSeikaDataSeihyou.DataKubun = '1'" +
                    order,
                "標高"),
            Texts{});
}

TEST_F(SurveySql, EllipsoidalLoadAndReopen) {
  EXPECT_EQ(get(" SELECT * FROM KansokuSeikaData WHERE  JobId ='1' AND 事業番号 ='2024    ' AND 路線番号 "
                "='10230101' AND "
                "(DataKubun = '0' OR DataKubun = Null) ORDER BY DataKubun,SaveOrder",
                "標石番号"),
            (Texts{"BM1", "BM2"}));
  EXPECT_EQ(get(" SELECT * FROM KansokuSeikaDataDaen WHERE  JobId ='1' AND 事業番号 ='2024    ' AND 路線番号 "
                "='10230101' AND "
                "DataKubun = '0'",
                "楕円補正結果"),
            Texts{"10.0003"});
  EXPECT_EQ(get(" SELECT * FROM DaenHoseiChiHyouData WHERE  JobId ='1' AND DaenHoseiChiHyouData.事業番号 "
                "='2024    ' AND "
                "DaenHoseiChiHyouData.路線番号 ='10230101' AND DaenHoseiChiHyouData.DataKubun='0' ORDER BY "
                "DaenHoseiChiHyouData.SaveOrder",
                "k"),
            (Texts{"0.1", "0.2"}));
}

TEST_F(SurveySql, ReferenceValuesOfOtherRoutesAndCategories) {
  EXPECT_EQ(get(" SELECT * FROM DaenHoseiChiHyouData WHERE JobId ='1' AND 事業番号 ='2024    ' AND 路線番号 "
                "<>'10230101'",
                "k"),
            Texts{"0.4"});
  EXPECT_EQ(get(" SELECT * FROM DaenHoseiChiHyouData WHERE JobId ='1' AND 事業番号 ='2024    ' AND 路線番号 "
                "='10230101' AND "
                "DataKubun <>'0'",
                "k"),
            Texts{"0.3"});
}

TEST_F(SurveySql, SingleRouteReopenReadsBothHeights) {
  const auto records = database_->openRecordset(
      " SELECT A.*,B.標高 FROM KansokuSeikaDataTanrosen A LEFT JOIN KansokuSeikaData B ON A.JobId = B.JobId "
      "AND A.事業番号 = "
      "B.事業番号 AND A.路線番号 = B.路線番号 AND A.SaveOrder = B.SaveOrder WHERE A.JobId ='1' AND "
      "A.事業番号 ='2024    ' AND "
      "A.路線番号 ='10230101' AND (A.DataKubun = '0' OR A.DataKubun = Null) ORDER BY A.SaveOrder");
  EXPECT_EQ(records->field("標高"), db::Value(10.2));
  EXPECT_EQ(records->field("A.標高"), db::Value(10.2));
  EXPECT_EQ(records->field("B.標高"), db::Value(10.0));
  records->moveNext();
  EXPECT_TRUE(records->field("B.標高").isNull());
}

TEST_F(SurveySql, BookOfBothKinds) {
  const auto book = [this](const std::string& values, const std::string& table,
                           const std::string& benchMark) {
    return get(
        " SELECT DISTINCTROW KansokuSeikaData.*, HOSEI.標高 AS 正標高," + values +
            " HOSEI.備考1, HOSEI.備考2 FROM KansokuSeikaData LEFT JOIN  " + table +
            " AS HOSEI ON (KansokuSeikaData.JobId = HOSEI.JobId) AND  (KansokuSeikaData.DataKubun = "
            "HOSEI.DataKubun) "
            "AND  (KansokuSeikaData.SaveOrder = HOSEI.SaveOrder)  AND  (KansokuSeikaData.事業番号 = "
            "HOSEI.事業番号)  AND (KansokuSeikaData.路線番号 = HOSEI.路線番号) AND "
            "(KansokuSeikaData.標石番号 = HOSEI." +
            benchMark +
            ") WHERE KansokuSeikaData.JobId ='1' AND KansokuSeikaData.事業番号 = '2024' AND "
            "KansokuSeikaData.路線番号 = "
            "'10230101' AND (KansokuSeikaData.DataKubun ='0' OR KansokuSeikaData.DataKubun = Null) ORDER BY "
            "KansokuSeikaData.SaveOrder",
        "補正値");
  };
  EXPECT_EQ(book(" HOSEI.正標高補正数 AS 補正値, HOSEI.正標高結果 AS 補正結果,", "KansokuSeikaDataSeihyou",
                 "水準点番号"),
            (Texts{"2", ""}));
  EXPECT_EQ(book(" HOSEI.楕円補正値 AS 補正値, HOSEI.楕円補正結果 AS 補正結果,", "KansokuSeikaDataDaen",
                 "標石番号"),
            (Texts{"0.3", ""}));
}

TEST_F(SurveySql, Lists) {
  EXPECT_EQ(get(" SELECT DISTINCT 事業番号,路線番号 FROM KansokuSeikaDataSeihyou WHERE JobId = '1' AND "
                "(DataKubun = '0' OR "
                "DataKubun = NULL)",
                "路線番号"),
            Texts{"10230101"});
  EXPECT_EQ(get("SELECT Distinct 変動観測簿No FROM KansokuSeikaDataHKSNB WHERE JObId = '1' AND 補正値フラグ "
                "= '0' ORDER BY "
                "変動観測簿No",
                "変動観測簿no"),
            Texts{"5"});
  EXPECT_EQ(get("SELECT DISTINCT 路線番号 FROM KansokuSeikaData WHERE JobId = '1' AND 事業番号 = '2024' AND "
                "DataKubun = '1' "
                "ORDER BY 路線番号",
                "路線番号"),
            (Texts{"AA2301XX", "AA9901XX", "BB2301"}));
}

TEST_F(SurveySql, BookIsUpgradedOnce) {
  database_->execute("ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN RosenEndFlg TEXT(2)");
  EXPECT_EQ(database_->tableDefinition("KansokuSeikaDataHKSNB").back().name, "RosenEndFlg");
  EXPECT_EQ(database_->tableDefinition("KansokuSeikaDataHKSNB").back().type, "TEXT(2)");
}

TEST_F(SurveySql, SavingABookWithItsPeriods) {
  for (int round = 0; round < 2; ++round) {
    const auto database = open();
    const auto records = database->openRecordset(
        "SELECT * FROM KansokuSeikaDataHKSNB WHERE JobId ='1' AND 補正値フラグ = '0' AND 変動観測簿No ='5'",
        db::Access::Edit);
    for (; !records->eof(); records->moveNext()) records->remove();
    records->addNew();
    records->set("JobId", "1");
    records->set("補正値フラグ", "0");
    records->set("変動観測簿No", "5");
    records->update();
    database->execute("DELETE FROM KansokuKikan WHERE JobId = '1' AND 観測簿種類 ='1' AND 変動観測簿No ='5'");
    database->execute("INSERT INTO KansokuKikan VALUES('1','1','5','202401','202412',' ',' ')");
    database->close();
  }
  EXPECT_EQ(ask("SELECT count(*) FROM KansokuSeikaDataHKSNB WHERE 変動観測簿No='5'"), "1");
  EXPECT_EQ(ask("SELECT count(*) FROM KansokuSeikaDataHKSNB"), "2");
  EXPECT_EQ(get("SELECT * FROM KansokuKikan WHERE JobId = '1' AND 観測簿種類 ='1' AND 変動観測簿No ='5'",
                "旧観測年月From"),
            Texts{" "});
}

TEST_F(SurveySql, SavesSelectTheirRecordsWithoutNull) {
  for (const char* sql : {"select * from KansokuSeikaDataDaen WHERE JobID ='1' AND 事業番号 ='2024    ' AND "
                          "路線番号 ='10230101' AND DataKubun = '0'",
                          "SELECT * FROM KansokuSeikaDataTanrosen WHERE JobId ='1' AND 事業番号 ='2024    ' "
                          "AND MID(路線番号,3,4) ='2301' AND "
                          "DataKubun = '0' ",
                          "SELECT * FROM KansokuSeikaData WHERE JobId ='1' AND DataKubun = '0'"}) {
    const auto records = database_->openRecordset(sql, db::Access::Edit);
    EXPECT_FALSE(records->eof()) << sql;
    for (; !records->eof(); records->moveNext()) records->remove();
  }
  database_->close();
  EXPECT_EQ(
      ask("SELECT count(*) FROM KansokuSeikaDataDaen") + ask("SELECT count(*) FROM KansokuSeikaDataTanrosen"),
      "00");
  EXPECT_EQ(ask("SELECT count(*) FROM KansokuSeikaData WHERE DataKubun IS NULL"), "1");
}

}  // namespace
