#include "daen/data_sections.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "daen/columns.h"
#include "daen/daen_job.h"
#include "daen/route_maker.h"
#include "support/recording_desktop.h"

namespace {

using Lines = std::vector<std::string>;

class DaenSections : public testing::Test, protected test::DaenGrids {
 protected:
  DaenSections() {
    sections.setDesktop(&desktop);
    list.setDesktop(&desktop);
  }

  bool save() { return daen::FcDaenHoseichiHyouSave(selection, job.context(), sections); }
  std::string row(int at) const { return cells(sections, at, 0, daen::sectionColumnCount - 1); }

  void fill(int at, const Lines& texts) {
    sections.addItem({}, sections.rows() - 1);
    for (std::size_t col = 0; col < texts.size(); ++col)
      sections.setText(at, static_cast<int>(col), texts[col]);
  }

  const Lines columns = {"JobId",        "SaveOrder", "事業番号", "路線番号",
                         "DataKubun",    "自首末地",  "至首末地", "自水準点番号",
                         "至水準点番号", "B1",        "B2",       "B1_B2",
                         "B1plusB2",     "k",         "H",        "CalK"};
  const std::string all = "SELECT * FROM DaenHoseiChiHyouData ORDER BY SaveOrder";
  const route::Selection selection{"1001", "01A00101", "0", ""};
  test::DaenJob job;
  test::RecordingDesktop desktop;
  ui::ListBox list{"LstSanshouDaen", nullptr};
};

TEST_F(DaenSections, SavesEverySectionRowAndReopensIt) {
  fill(1, {"36°10", "36°5.25", "A", "B", "2170.0", "2165.25", "4.75", "4335.25", "3.5", "500.0", "3.5"});
  fill(2, {"36°5.25", "36°", "B", "C", "2165.25", "2160.0", "5.25", "4325.25", "7.15", "512.3", "3.7"});
  EXPECT_TRUE(save());
  EXPECT_TRUE(desktop.messages.empty()) << "the route's save has told it already";
  EXPECT_EQ(job.records(all, columns),
            (Lines{"3|1|1001    |01A00101|0|36°10|36°5.25|A|B|2170|2165.25|4.75|4335.25|3.5|500|3.5",
                   "3|2|1001    |01A00101|0|36°5.25|36°|B|C|2165.25|2160|5.25|4325.25|7.15|512.3|3.7"}));
  const std::string first = row(1);
  const std::string second = row(2);
  sections.setRows(2);
  for (int col = 0; col < sections.cols(); ++col) sections.setText(1, col, "");
  daen::reopenSections(selection, job.context(), sections);
  ASSERT_EQ(sections.rows(), 4);
  EXPECT_EQ(row(1), first);
  EXPECT_EQ(row(2), second);
  EXPECT_EQ(row(3), "||||||||||") << "an empty row at the end";
}

TEST_F(DaenSections, EmptyCellsStayNull) {
  fill(1, {"", "", "A", "B", "", "", "", "", "-1.25"});
  save();
  EXPECT_EQ(job.records(all, columns), Lines{"3|1|1001    |01A00101|0|-|-|A|B|-|-|-|-|-1.25|-|-"});
}

TEST_F(DaenSections, WithoutSectionRowsTheSavedOnesAreDeletedAndNoneAdded) {
  job.section("01A00101", "0", 1, "A", "B", "1");
  job.section("01A00102", "0", 1, "A", "B", "2");
  job.section("01A00101", "4", 1, "A", "B", "3");
  EXPECT_TRUE(save());
  EXPECT_EQ(job.records("SELECT * FROM DaenHoseiChiHyouData ORDER BY k", {"k"}), (Lines{"2", "3"}));
}

// Category 1 knows no family here: the route itself alone.
TEST_F(DaenSections, InCategoryOneTheRouteAloneCounts) {
  job.section("02A00199", "1", 1, "A", "B", "1");
  fill(1, {"", "", "A", "B"});
  daen::FcDaenHoseichiHyouSave({"1001", "01A00101", "1", ""}, job.context(), sections);
  EXPECT_EQ(job.records("SELECT * FROM DaenHoseiChiHyouData ORDER BY 路線番号", {"路線番号"}),
            (Lines{"01A00101", "02A00199"}));
}

TEST_F(DaenSections, ReopeningFormatsNumbersAndLeavesBlanksBlank) {
  job.section("01A00101", "0", 2, "B", "C", "2.345");
  job.section("01A00101", "0", 1, "A", "B", "NULL");
  daen::reopenSections(selection, job.context(), sections);
  ASSERT_EQ(sections.rows(), 4);
  EXPECT_EQ(row(1), "||A|B|||||||");
  EXPECT_EQ(row(2), "||B|C|||||2.35||");
}

TEST_F(DaenSections, ReferencesComeFromOtherRoutesFirstAndThenFromOtherCategories) {
  job.section("01A00101", "4", 1, "A", "B", "4");
  job.section("01A00101", "0", 1, "own", "own", "99");
  job.section("01A00102", "0", 1, "起点", "BM1234567890", "-12.25");
  job.section("01A00103", "0", 1, "C", "D", "NULL");
  job.sql(
      "INSERT INTO DaenHoseiChiHyouData (JobId, 事業番号, 路線番号, DataKubun, k) VALUES"
      " ('3','1002','01A00102','0',55), ('4','1001','01A00102','0',66)");
  list.addItem("old");
  EXPECT_TRUE(daen::FcSetLstSanshouDaen(selection, job.context(), list));
  EXPECT_EQ(list.items(), (Lines{"1001     ;01A00102;起点        ;BM12345678;-12.25",
                                 "1001     ;01A00103;C         ;D         ;",
                                 "1001     ;01A00101;A         ;B         ;4"}));
}

// 9 + 1 + 8 + 1 + 10 + 1 + 10 + 1 = 41 characters stand before the value.
TEST_F(DaenSections, TheReferenceValueBeginsAtCharacter42) {
  job.section("01A00102", "0", 1, "起点", "BM1234567890", "-12.25");
  job.section("01A00103", "0", 1, "C", "D", "NULL");
  daen::FcSetLstSanshouDaen(selection, job.context(), list);
  EXPECT_EQ(daen::referenceOf(list.items()[0]), "-12.25");
  EXPECT_EQ(daen::referenceOf(list.items()[1]), "");
  EXPECT_EQ(daen::referenceOf("too short"), "");
  EXPECT_EQ(daen::referenceRoute("1001     ;01F00101;F102      ;F103      ;2.7"), "01F00101");
  EXPECT_EQ(daen::referenceEnd("1001     ;01F00101;F102      ;F103      ;2.7"), "F103");
  EXPECT_EQ(daen::referenceRoute("short") + daen::referenceEnd("short"), "");
}

TEST_F(DaenSections, ErrorsAreReportedUnderTheProcedure) {
  job.sql("DROP TABLE DaenHoseiChiHyouData");
  EXPECT_FALSE(save());
  EXPECT_FALSE(daen::FcSetLstSanshouDaen(selection, job.context(), list));
  ASSERT_EQ(desktop.messages.size(), 2U);
  EXPECT_EQ(desktop.messages[0].title, "FcDaenHoseichiHyouSave");
  EXPECT_EQ(desktop.messages[1].title, "FcSetLstSanshouDaen");
  EXPECT_THROW(daen::reopenSections(selection, job.context(), sections), db::Error);
}

}  // namespace
