#include <gtest/gtest.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

#include "every_route.h"
#include "platform/files.h"
#include "report/exporting.h"
#include "report/xlsx_book.h"
#include "text/csv.h"
#include "text/number.h"

namespace {

// Every so many of the routes that a screen shows, and of the projects that it has saved, is looked at.
constexpr int shownStep = 12;
constexpr int savedStep = 5;

using Cells = std::vector<std::string>;

bool isThere() { return std::system("soffice --version >/dev/null 2>&1") == 0; }

/// Says that formulas are reckoned anew when a book is opened, whoever made it.
constexpr const char* settings = R"(<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Calc/Formula/Load">
<prop oor:name="OOXMLRecalcMode" oor:op="fuse"><value>0</value></prop></item>
</oor:items>
)";

/// The sheets of spreadsheet files as another program opens, recalculates and shows them.
class Opened {
 public:
  explicit Opened(const test::TemporaryFolder& folder) : folder_(folder) {
    platform::makeFolder(folder.path("profile"));
    platform::makeFolder(folder.path("profile/user"));
    platform::makeFolder(folder.path("sheets"));
    platform::writeFile(folder.path("profile/user/registrymodifications.xcu"), settings);
  }

  /// Opens all books of the folder at once; every sheet becomes a CSV file, cells as they are shown.
  bool open() const {
    const std::string command =
        "soffice '-env:UserInstallation=file://" + folder_.path("profile") + "' --headless --convert-to " +
        "'csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,true,true,false,false,-1' --outdir '" +
        folder_.path("sheets") + "' '" + folder_.path() + "'/*.xlsx >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
  }

  std::vector<Cells> sheet(const std::string& book, const std::string& name) const {
    const std::string bytes =
        platform::readFile(folder_.path("sheets/" + book + "-" + name + ".csv")).value_or("");
    text::CsvReader reader(bytes);
    std::vector<Cells> rows;
    for (std::vector<text::CsvField> record; reader.next(record);) {
      Cells& row = rows.emplace_back();
      for (const text::CsvField& field : record) row.push_back(field.bytes);
    }
    return rows;
  }

 private:
  const test::TemporaryFolder& folder_;
};

/// A book with a formula beside a result that is none of it.
void writeWrongResult(const std::string& path) {
  report::XlsxBook book(path);
  worksheet_write_formula_num(book.addSheet("wrong"), 0, 0, "=1+1", nullptr, 5);
  book.finish();
}

/// A cell of a sheet; "" beyond its end.
std::string cellAt(const std::vector<Cells>& sheet, std::size_t row, std::size_t col) {
  return row < sheet.size() && col < sheet[row].size() ? sheet[row][col] : "";
}

/// How many differences the sheet 検算 shows, all of which have to be 0.
int checkDifferences(const std::vector<Cells>& sheet) {
  std::set<std::size_t> columns;
  int count = 0;
  for (const Cells& row : sheet) {
    for (std::size_t col = 0; col < row.size(); ++col) {
      if (row[col].ends_with(" 差")) {
        columns.insert(col);
      } else if (columns.contains(col) && !row[col].empty()) {
        EXPECT_TRUE(text::isNumeric(row[col]) && text::readNumber(row[col]) == 0)
            << row[0] << ": " << row[col];
        ++count;
      }
    }
  }
  return count;
}

/// The lowest rows of the first sheet are these.
void checkCells(const std::vector<Cells>& sheet, const std::vector<Cells>& rows) {
  ASSERT_GE(sheet.size(), rows.size());
  const std::size_t above = sheet.size() - rows.size();
  for (std::size_t row = 0; row < rows.size(); ++row)
    for (std::size_t col = 0; col < rows[row].size(); ++col)
      EXPECT_EQ(cellAt(sheet, above + row, col), rows[row][col]) << row << "," << col;
}

/// Leaves out the empty rows at the end, which no spreadsheet keeps.
std::vector<Cells> withoutEmptyEnd(std::vector<Cells> rows) {
  const auto blank = [](const Cells& row) {
    return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return cell.empty(); });
  };
  while (!rows.empty() && blank(rows.back())) rows.pop_back();
  return rows;
}

std::vector<Cells> rowsOf(const ui::Grid& grid) {
  std::vector<Cells> rows;
  for (int row = 1; row < grid.rows(); ++row) rows.push_back(test::visibleCells(grid, row));
  return withoutEmptyEnd(std::move(rows));
}

std::vector<Cells> rowsOf(const report::Document& document) {
  std::vector<Cells> rows;
  const std::vector<report::Table> tables = gathered(document);
  for (const report::Row& row : tables.at(0).rows) rows.push_back(row.cells);
  return withoutEmptyEnd(std::move(rows));
}

/// Exports what is shown and what is saved, and keeps the rows that their first sheets have to show.
class Books {
 public:
  explicit Books(const test::TemporaryFolder& folder) : folder_(folder) {}

  void write(int grade, unsigned seed) {
    test::EveryRoute routes(grade, seed);
    routes.alsoSaved([this](const report::SavedResults& saved) {
      if (seenSaved_++ % savedStep != 0) return;
      const report::Document document = test::savedDocument(saved);
      families_ += document.parts.size() > 1 ? 1 : 0;
      add(document, rowsOf(document));
    });
    routes.visit([this](const auto& look) {
      if (seen_[look.name.substr(0, look.name.find(' '))]++ % shownStep == 0)
        add(look.source.document(), rowsOf(look.grid));
    });
  }

  const std::map<std::string, std::vector<Cells>>& rows() const { return rows_; }
  int families() const { return families_; }

 private:
  void add(const report::Document& document, std::vector<Cells> rows) {
    const std::string name = "b" + std::to_string(rows_.size());
    report::exportDocument(document, folder_.path(name + ".xlsx"), {});
    rows_[name] = std::move(rows);
  }

  const test::TemporaryFolder& folder_;
  std::map<std::string, std::vector<Cells>> rows_;
  std::map<std::string, int> seen_;  // by screen
  int seenSaved_ = 0;
  int families_ = 0;
};

TEST(Spreadsheet, RecalculatedElsewhereShowsTheGridAndNoDifference) {
  if (!isThere()) GTEST_SKIP() << "soffice is not there (libreoffice-calc-nogui)";
  test::TemporaryFolder folder;
  Books books(folder);
  for (const int grade : {1, 2}) books.write(grade, 6);
  writeWrongResult(folder.path("wrong.xlsx"));
  const Opened opened(folder);
  ASSERT_TRUE(opened.open());
  ASSERT_EQ(cellAt(opened.sheet("wrong", "wrong"), 0, 0), "2") << "formulas were not reckoned anew";
  int differences = 0;
  for (const auto& [name, rows] : books.rows()) {
    SCOPED_TRACE(name);
    checkCells(opened.sheet(name, "成果表"), rows);
    differences += checkDifferences(opened.sheet(name, "検算"));
  }
  EXPECT_GE(books.rows().size(), 50U);
  EXPECT_GE(books.families(), 4);
  EXPECT_GT(differences, 1000);
}

}  // namespace
