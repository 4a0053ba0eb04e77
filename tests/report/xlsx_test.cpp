#include "report/xlsx_writer.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "sample_document.h"
#include "support/temporary_folder.h"
#include "support/xlsx_file.h"

namespace {

using namespace report;

/// The document of two bench marks with its first section reckoned: 102.1234 − 101.1234 = 1.0000.
Document reckonedDocument() {
  Document document = test::routeDocument(2, "起点");
  document.check.columns = {{"標高", 0, 1}};
  document.check.cells.push_back({0, 1, Formula::given({0, 2, 1}) - Formula::given({0, 0, 1})});
  return document;
}

class Xlsx : public testing::Test {
 protected:
  /// The file that a document makes, held for as long as the test runs.
  test::XlsxFile written(const Document& document) {
    const std::string path = folder_.path("表.xlsx");
    writeXlsx(document, path);
    bytes_ = *platform::readFile(path);
    return test::XlsxFile(bytes_);
  }

  test::TemporaryFolder folder_;
  std::string bytes_;
};

TEST_F(Xlsx, HasASheetForTheRowsAndOneForTheCheck) {
  Document document = reckonedDocument();
  document.parts[0].items.emplace_back(Table{"閉合差", {{"区間", "", Side::Left, false}}, {{{"A1-A2"}}}});
  const auto file = written(document);
  EXPECT_EQ(file.sheets(), (std::vector<std::string>{"成果表", "検算", "閉合差"}));
  EXPECT_EQ(file.cells(3).at("A5").text, "A1-A2");
}

TEST_F(Xlsx, HoldsNumbersAsNumbersWithTheirDecimals) {
  // Title, one line for the two fields, an empty one, the headings: the rows begin in line 5.
  const auto cells = written(reckonedDocument()).cells(1);
  EXPECT_EQ(cells.at("A1").text, "正標高補正計算");
  EXPECT_EQ(cells.at("A2").text, "作業名: 見本作業");
  EXPECT_EQ(cells.at("C2").text, "路線番号: 01A00101");
  EXPECT_EQ(cells.at("B4").text, "標高(m)");
  EXPECT_EQ(cells.at("A5").text, "A1");
  EXPECT_FALSE(cells.at("A5").isNumber);
  EXPECT_TRUE(cells.at("B5").isNumber);
  EXPECT_EQ(std::stod(cells.at("B5").text), 101.1234);
  EXPECT_EQ(cells.at("B5").format, "0.0000");
  EXPECT_EQ(cells.at("C5").text, "起点");
  EXPECT_EQ(std::stod(cells.at("B6").text), 1);
}

TEST_F(Xlsx, WritesTextsInNumberColumnsAsTheyAre) {
  Document document = test::routeDocument(1);
  auto& rows = std::get<Table>(document.parts[0].items[0]).rows;
  rows[0].cells[1] = "12a";
  rows[1].cells[1] = "2.50E-05";
  rows[0].cells[0] = "007";  // a number of a bench mark is a text
  const auto cells = written(document).cells(1);
  EXPECT_EQ(cells.at("A5").text, "007");
  EXPECT_FALSE(cells.at("A5").isNumber);
  EXPECT_EQ(cells.at("B5").text, "12a");
  EXPECT_EQ(std::stod(cells.at("B6").text), 2.5e-5);
  EXPECT_EQ(cells.at("B6").format, "0.00E+00");
}

TEST_F(Xlsx, ReckonsOnTheSecondSheetWithFormulas) {
  const auto cells = written(reckonedDocument()).cells(2);
  EXPECT_EQ(cells.at("B4").text, "標高");
  EXPECT_EQ(cells.at("C4").text, "標高 差");
  EXPECT_EQ(cells.at("A5").text, "A1");
  EXPECT_EQ(cells.at("B6").formula, "(N(成果表!$B$7)-N(成果表!$B$5))");
  EXPECT_NEAR(std::stod(cells.at("B6").text), 1, 1e-12);
  // Of 15 digits of 1 m there are 14 behind the point; 4 are shown.
  EXPECT_EQ(cells.at("C6").formula, "ROUND(N(成果表!$B$6)-ROUND(ROUND($B$6,14),4),4)");
  EXPECT_EQ(std::stod(cells.at("C6").text), 0);
  EXPECT_EQ(cells.at("B2").formula, "MAX(MAX($C$5:$C$6),-MIN($C$5:$C$6))");
}

TEST_F(Xlsx, ShowsWhatWasTypedOverAsADifference) {
  Document document = reckonedDocument();
  std::get<Table>(document.parts[0].items[0]).rows[1].cells[1] = "1.0025";
  const auto cells = written(document).cells(2);
  EXPECT_DOUBLE_EQ(std::stod(cells.at("C6").text), 0.0025);
  EXPECT_DOUBLE_EQ(std::stod(cells.at("B2").text), 0.0025);
}

TEST_F(Xlsx, PrintsLikeThePage) {
  const std::string sheet = written(reckonedDocument()).xml(1);
  EXPECT_NE(sheet.find("<pane ySplit=\"4\" topLeftCell=\"A5\""), std::string::npos);
  EXPECT_NE(sheet.find("paperSize=\"9\""), std::string::npos);
  EXPECT_NE(sheet.find("fitToHeight=\"0\""), std::string::npos);
  EXPECT_NE(sheet.find("orientation=\"portrait\""), std::string::npos);
  EXPECT_NE(sheet.find("&amp;C&amp;P / &amp;N"), std::string::npos);
}

TEST_F(Xlsx, SaysWhereItCannotBeWritten) {
  EXPECT_THROW(writeXlsx(reckonedDocument(), folder_.path("nowhere/a.xlsx")), text::RuntimeError);
}

TEST_F(Xlsx, StopsWhereTheOperatorCancels) {
  const auto stop = [](std::size_t, std::size_t) { return false; };
  EXPECT_THROW(writeXlsx(reckonedDocument(), folder_.path("a.xlsx"), stop), Cancelled);
}

}  // namespace
