#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_job.h"
#include "hksnb/data.h"
#include "open/open.h"
#include "support/recording_desktop.h"

namespace {

using hksnb::Kind;
using hksnb::RouteItem;
using hksnb::Status;
using Lines = std::vector<std::string>;

class BookLists : public testing::Test {
 protected:
  BookLists() {
    for (ui::ListBox* list : {&available, &chosen, &numbers}) list->setDesktop(&desktop);
  }

  std::vector<std::string> columns() const {
    const auto database = db::openDatabase(job.context().gDbPath);
    std::vector<std::string> lines;
    for (const auto& column : database->tableDefinition("KansokuSeikaDataHKSNB"))
      lines.push_back(column.name + " " + column.type);
    return lines;
  }

  test::BookJob job;
  test::RecordingDesktop desktop;
  ui::ListBox available{"LstRosenNo1", nullptr};
  ui::ListBox chosen{"LstRosenNo2", nullptr};
  ui::ListBox numbers{"LstHksnbNo", nullptr};
};

TEST_F(BookLists, AnOlderBookTableGainsTheRouteEndMarkOnce) {
  EXPECT_EQ(columns().size(), 21U);
  EXPECT_EQ(hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop), Status::Done);
  const auto after = columns();
  ASSERT_EQ(after.size(), 22U);
  EXPECT_EQ(after.back(), "RosenEndFlg TEXT(2)");
  EXPECT_EQ(hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop), Status::Done);
  EXPECT_EQ(columns(), after);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(BookLists, AMarkInOtherLettersCounts) {
  job.sql("ALTER TABLE KansokuSeikaDataHKSNB ADD COLUMN ROSENENDFLG TEXT(2)");
  EXPECT_EQ(hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop), Status::Done);
  EXPECT_EQ(columns().size(), 22U);
}

TEST_F(BookLists, AMissingBookTableIsReportedUnderTheProcedure) {
  job.sql("DROP TABLE KansokuSeikaDataHKSNB");
  EXPECT_EQ(hksnb::FcHHKSB_AddRosenEndFlg(job.context(), desktop), Status::Failed);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_AddRosenEndFlg");
  EXPECT_EQ(desktop.messages[0].icon, ui::Icon::Critical);
}

TEST(RouteItemText, HasEighteenCharactersAndComesBack) {
  EXPECT_EQ((RouteItem{"1001", "01A00101"}.text()), "1001     ;01A00101");
  EXPECT_EQ((RouteItem{"1001", "R1"}.text()), "1001     ;R1      ");
  EXPECT_EQ((RouteItem{"事業1234567890", "路線1234567"}.text()), "事業1234567;路線123456");
  const RouteItem back = RouteItem::read("1001     ;R1      ");
  EXPECT_EQ(back.project, "1001");
  EXPECT_EQ(back.route, "R1");
}

TEST_F(BookLists, OnlyRoutesWithASavedCorrectionOfTheKindAreOffered) {
  job.orthometric(1, "01A00101", "A", "1", "1", "1");
  job.orthometric(2, "01A00101", "B", "1", "1", "1");
  job.ellipsoidal(1, "01F00201", "A", "1", "1", "1");
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES "
      "('4','1001','X','0'),"
      " ('3','1001','Y','1'), ('3','1001','Z',NULL)");
  available.addItem("old");
  chosen.addItem("old");
  EXPECT_EQ(hksnb::FcHHKSB_GetRosenNo(job.context(), Kind::Orthometric, available, chosen), Status::Done);
  EXPECT_EQ(available.items(), Lines{"1001     ;01A00101"});
  EXPECT_EQ(chosen.count(), 0);
  hksnb::FcHHKSB_GetRosenNo(job.context(), Kind::Ellipsoidal, available, chosen);
  EXPECT_EQ(available.items(), Lines{"1001     ;01F00201"});
}

// Texts: "01A00301" of project 2 stands behind all of project 1001, and "R10" before "R2".
TEST_F(BookLists, RoutesStandInTheirOrderAsTextsEachOnce) {
  job.orthometric(1, "R2", "A", "1", "1", "1");
  job.orthometric(1, "R10", "A", "1", "1", "1");
  job.orthometric(1, "R2      ", "B", "1", "1", "1");
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES"
      " ('3','2','01A00301','0'), ('3','1001    ','01A00301','0'), ('3','1001','01A00301','0')");
  hksnb::FcHHKSB_GetRosenNo(job.context(), Kind::Orthometric, available, chosen);
  EXPECT_EQ(available.items(),
            (Lines{"1001     ;01A00301", "1001     ;R10     ", "1001     ;R2      ", "2        ;01A00301"}));
}

TEST_F(BookLists, ANumberWithBlanksBehindItIsNoOtherNumber) {
  job.sql(
      "INSERT INTO KansokuSeikaDataHKSNB (JobId, 変動観測簿No, 補正値フラグ) VALUES ('3','2','0'),"
      " ('3','2  ','0')");
  hksnb::FcHHKSB_GetHksnbNo(job.context(), Kind::Orthometric, numbers);
  EXPECT_EQ(numbers.items(), Lines{"2"});
}

TEST_F(BookLists, WithoutSavedCorrectionsTheRouteListIsEmpty) {
  job.observed(1, "01A00101", "A", "1", "1");
  EXPECT_EQ(hksnb::FcHHKSB_GetRosenNo(job.context(), Kind::Orthometric, available, chosen), Status::Done);
  EXPECT_EQ(available.count(), 0);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(BookLists, NumbersAreThoseOfTheJobAndTheKindEachOnceInOrder) {
  job.sql(
      "INSERT INTO KansokuSeikaDataHKSNB (JobId, 変動観測簿No, 補正値フラグ) VALUES ('3','2','0'), "
      "('3','1','0'),"
      " ('3','2','0'), ('3','7','1'), ('4','9','0')");
  EXPECT_EQ(hksnb::FcHHKSB_GetHksnbNo(job.context(), Kind::Orthometric, numbers), Status::Done);
  EXPECT_EQ(numbers.items(), (Lines{"1", "2"}));
  hksnb::FcHHKSB_GetHksnbNo(job.context(), Kind::Ellipsoidal, numbers);
  EXPECT_EQ(numbers.items(), Lines{"7"});
}

TEST_F(BookLists, ErrorsAreReportedUnderTheirProcedures) {
  job.sql("DROP TABLE KansokuSeikaDataSeihyou");
  job.sql("DROP TABLE KansokuSeikaDataHKSNB");
  EXPECT_EQ(hksnb::FcHHKSB_GetRosenNo(job.context(), Kind::Orthometric, available, chosen), Status::Failed);
  EXPECT_EQ(hksnb::FcHHKSB_GetHksnbNo(job.context(), Kind::Orthometric, numbers), Status::Failed);
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].title, "FcHHKSB_GetRosenNo");
  EXPECT_EQ(desktop.messages[1].title, "FcHHKSB_GetHksnbNo");
}

}  // namespace
