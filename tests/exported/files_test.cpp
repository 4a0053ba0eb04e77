#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>

#include "every_route.h"
#include "platform/files.h"
#include "qt/page_writer.h"
#include "report/csv_writer.h"
#include "report/exporting.h"
#include "support/xlsx_file.h"
#include "text/csv.h"
#include "text/number.h"

namespace {

using Cells = std::vector<std::string>;

/// The records of a CSV file behind its headings.
std::vector<Cells> csvRows(std::string_view csv) {
  csv.remove_prefix(platform::utf8Mark.size());
  text::CsvReader reader(csv);
  std::vector<Cells> rows;
  for (std::vector<text::CsvField> record; reader.next(record);) {
    Cells& row = rows.emplace_back();
    for (const text::CsvField& field : record) row.push_back(field.bytes);
  }
  rows.erase(rows.begin());
  return rows;
}

std::vector<Cells> gridRows(const ui::Grid& grid) {
  std::vector<Cells> rows;
  for (int row = 1; row < grid.rows(); ++row) rows.push_back(test::visibleCells(grid, row));
  return rows;
}

/// What a spreadsheet cell shows: a number in the decimals of its format.
std::string shown(const test::XlsxCell& cell) {
  if (!cell.isNumber) return cell.text;
  const std::size_t point = cell.format.find('.');
  const bool exponent = cell.format.find('E') != std::string::npos;
  const std::size_t end = exponent ? cell.format.find('E') : cell.format.size();
  const int decimals = point == std::string::npos ? 0 : static_cast<int>(end - point - 1);
  std::array<char, 64> digits{};
  std::snprintf(digits.data(), digits.size(), exponent ? "%.*E" : "%.*f", decimals, std::stod(cell.text));
  return digits.data();
}

std::string withoutBlanks(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at)
    if (std::isspace(static_cast<unsigned char>(text[at])) == 0) result += text[at];
  return result;
}

/// The lines of a PDF file as they stand on its pages, without blanks.
Cells pdfLines(const std::string& path) {
  const std::string command = "pdftotext -layout '" + path + "' -";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string all;
  std::array<char, 4096> block{};
  for (std::size_t got = 0; (got = fread(block.data(), 1, block.size(), pipe.get())) > 0;)
    all.append(block.data(), got);
  Cells lines;
  std::istringstream stream(all);
  for (std::string line; std::getline(stream, line);) lines.push_back(withoutBlanks(line));
  return lines;
}

class Files : public testing::TestWithParam<int> {
 protected:
  test::TemporaryFolder folder_;
};

TEST_P(Files, CsvHoldsTheGridCellByCell) {
  test::EveryRoute routes(GetParam(), 1);
  const int visited = routes.visit([](const auto& shown) {
    SCOPED_TRACE(shown.name);
    EXPECT_EQ(csvRows(report::csvOf(shown.source.document(), platform::Encoding::Utf8)),
              gridRows(shown.grid));
  });
  EXPECT_GE(visited, 50);
}

TEST_P(Files, SpreadsheetHoldsTheGridCellByCell) {
  test::EveryRoute routes(GetParam(), 2);
  const std::string path = folder_.path("成果.xlsx");
  routes.visit([&](const auto& look) {
    SCOPED_TRACE(look.name);
    const report::Document document = look.source.document();
    report::exportDocument(document, path, {});
    const std::string bytes = *platform::readFile(path);
    const auto cells = test::XlsxFile(bytes).cells(1);
    const auto rows = gridRows(look.grid);
    const std::size_t fields =
        document.fields.size() + (document.parts.size() == 1 ? document.parts[0].fields.size() : 0);
    const std::size_t first = 2 + (fields + 1) / 2 + 2;  // title, fields, an empty line, headings
    for (std::size_t row = 0; row < rows.size(); ++row) {
      for (std::size_t col = 0; col < rows[row].size(); ++col) {
        const auto found = cells.find(static_cast<char>('A' + col) + std::to_string(first + row));
        EXPECT_EQ(found == cells.end() ? "" : shown(found->second), rows[row][col]) << row << "," << col;
      }
    }
  });
}

TEST_P(Files, PagesShowTheGridRowByRow) {
  if (std::system("pdftotext -v >/dev/null 2>&1") != 0)
    GTEST_SKIP() << "pdftotext is not there (poppler-utils)";
  test::EveryRoute routes(GetParam(), 3);
  const std::string path = folder_.path("成果.pdf");
  const int visited = routes.visit([&](const auto& look) {
    SCOPED_TRACE(look.name);
    report::exportDocument(look.source.document(), path, {.pageWriter = [] { return qt::pageWriter(); }});
    const Cells lines = pdfLines(path);
    auto line = lines.begin();
    for (const Cells& row : gridRows(look.grid)) {
      std::string wanted;
      for (const std::string& cell : row) wanted += withoutBlanks(cell);
      if (wanted.empty()) continue;
      line = std::find(line, lines.end(), wanted);
      ASSERT_NE(line, lines.end()) << wanted;
      ++line;
    }
  });
  EXPECT_GE(visited, 50);
}

INSTANTIATE_TEST_SUITE_P(Grades, Files, testing::Values(1, 2));

}  // namespace
