#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "counting.h"
#include "screen_work.h"
#include "support/database_test.h"
#include "support/recording_desktop.h"
#include "text/error.h"

// Jobs as no program of ours makes them: damaged files, tables of another shape, values that nobody expects.
// The law: whatever is in the job, the program goes on and says what it cannot do; with safeguards each table
// that a save writes holds all of its old records or none of them, and all of them where "saved" was not
// told.

namespace {

class OddJobs : public testing::Test {
 protected:
  OddJobs() {
    for (const test::ScreenWork& work : test::screenWorks()) {
      test::RecordingDesktop desktop;
      work.openAndSave(job_.context(), desktop);
      EXPECT_EQ(desktop.takeMessages(), std::vector{test::savedMessage}) << work.name;
    }
    test::OtherProgram other(path());
    for (const test::ScreenWork& work : test::screenWorks())
      if (work.name != "Orthometric")  // its records are what the book is made of
        for (const std::string& table : work.tables) other.run("UPDATE " + table + " SET JobId = '3 '");
    std::filesystem::copy_file(path(), original_);
  }

  std::string path() const { return job_.context().gDbPath; }

  void restore() const {
    std::filesystem::remove(path() + "-journal");
    std::filesystem::copy_file(original_, path(), std::filesystem::copy_options::overwrite_existing);
  }

  /// Works in a screen with safeguards; true where it has told "saved". What it raises would end the program
  /// with these words, which are the operator's language.
  bool saves(const test::ScreenWork& work) {
    test::RecordingDesktop desktop;
    desktop.guarded = true;
    ++cases_;
    try {
      work.openAndSave(job_.context(), desktop);
    } catch (const text::RuntimeError& error) {
      EXPECT_NE(std::string(error.what()), "") << work.name;
      return false;
    }
    return std::find(desktop.messages.begin(), desktop.messages.end(), test::savedMessage) !=
           desktop.messages.end();
  }

  /// Works in every screen on the job as `change` makes it of the original.
  void workInAll(const std::string& change) {
    for (const test::ScreenWork& work : test::screenWorks()) {
      restore();
      test::OtherProgram(path()).run(change);
      const std::vector<Count> before = counts(work);
      const bool told = saves(work);
      const std::vector<Count> after = counts(work);
      for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_TRUE(after[i].old == "0" || after[i].old == before[i].old)
            << work.name << ": " << change << ": " << after[i].old << " old records";
        EXPECT_TRUE(told || after[i] == before[i]) << work.name << ": " << change << ": " << after[i].all;
      }
    }
  }

  /// How many records a table holds; "-" where that cannot be asked.
  struct Count {
    std::string all = "-";
    std::string old = "-";

    bool operator==(const Count& other) const = default;
  };

  /// For each table of the work.
  std::vector<Count> counts(const test::ScreenWork& work) const {
    std::vector<Count> found;
    test::OtherProgram other(path());
    for (const std::string& table : work.tables) {
      Count& count = found.emplace_back();
      try {
        const std::string all = other.ask("SELECT count(*) FROM " + table);
        count = {all, other.ask("SELECT count(*) FROM " + table + " WHERE length(JobId) = 2")};
      } catch (const std::runtime_error&) {
        // There is no such table any more.
      }
    }
    return found;
  }

  /// The columns of a table.
  std::vector<std::string> columnsOf(const std::string& table) const {
    std::vector<std::string> names;
    const auto database = db::openDatabase(path());
    for (const db::ColumnDefinition& column : database->tableDefinition(table)) names.push_back(column.name);
    return names;
  }

  test::WorkedJob job_;
  std::string original_ = job_.folder().path("original");
  std::mt19937 chance_{20261122};
  int cases_ = 0;
};

std::string readAll(const std::string& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

/// Flips bits, cuts the end off, swaps two pages or empties one.
std::string damaged(std::string bytes, std::mt19937& chance) {
  constexpr std::size_t page = 4096;
  const auto below = [&chance](std::size_t count) { return chance() % count; };
  const std::size_t pages = bytes.size() / page;
  const std::size_t first = below(pages) * page;
  const std::size_t second = below(pages) * page;
  switch (below(4)) {
    case 0:
      for (std::size_t flips = 1 + below(8); flips > 0; --flips) {
        char& byte = bytes[below(bytes.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << below(8)));
      }
      return bytes;
    case 1:
      return bytes.substr(0, below(bytes.size()));
    case 2:
      std::swap_ranges(bytes.begin() + static_cast<std::ptrdiff_t>(first),
                       bytes.begin() + static_cast<std::ptrdiff_t>(first + page),
                       bytes.begin() + static_cast<std::ptrdiff_t>(second));
      return bytes;
    default:
      return bytes.replace(first, page, page, '\0');
  }
}

TEST_F(OddJobs, DamagedFilesEndInWords) {
  const std::string whole = readAll(original_);
  for (int i = test::share(40, 4000); i > 0; --i) {
    const test::ScreenWork& work = test::screenWorks()[static_cast<std::size_t>(i) % 5];
    std::filesystem::remove(path() + "-journal");
    std::ofstream(path(), std::ios::binary) << damaged(whole, chance_);
    saves(work);
  }
  test::tellCount("cases", cases_);
}

TEST_F(OddJobs, TablesOfAnotherShapeCostNoRecord) {
  std::vector<std::string> changes;
  for (const char* table :
       {"KansokuSeikaData", "KansokuSeikaDataSeihyou", "KansokuSeikaDataDaen", "KansokuSeikaDataHend",
        "KansokuSeikaDataTanrosen", "KansokuSeikaDataHKSNB", "KansokuKikan"}) {
    const std::string name = table;
    const std::string keep = "CREATE TABLE other AS SELECT * FROM " + name + "; DROP TABLE " + name + "; ";
    changes.push_back(keep);
    changes.push_back(keep + "CREATE VIEW " + name + " AS SELECT * FROM other");
    changes.push_back("ALTER TABLE " + name + " ADD COLUMN 社内 TEXT NOT NULL DEFAULT ''");
    changes.push_back("CREATE TRIGGER t BEFORE INSERT ON " + name + " BEGIN SELECT RAISE(ABORT, 'no'); END");
    changes.push_back("CREATE TRIGGER t BEFORE DELETE ON " + name +
                      " BEGIN SELECT RAISE(ROLLBACK, 'no'); END");
    for (const std::string& column : columnsOf(name)) {
      if (column == "JobId") continue;
      changes.push_back("ALTER TABLE " + name + " RENAME COLUMN " + column + " TO 別の名");
      std::string columns;
      for (const std::string& one : columnsOf(name))
        columns +=
            (columns.empty() ? "" : ",") + (one == column ? "CAST(" + one + " AS BLOB) AS " + one : one);
      changes.push_back(keep + "CREATE TABLE " + name + " AS SELECT " + columns + " FROM other");
    }
  }
  std::shuffle(changes.begin(), changes.end(), chance_);
  changes.resize(static_cast<std::size_t>(test::share(8, static_cast<int>(changes.size()))));
  for (const std::string& change : changes) workInAll(change);
  test::tellCount("cases", cases_);
}

/// A value as an SQL literal.
std::string hostileValue(std::mt19937& chance) {
  static constexpr std::array values{"NULL",
                                     "''",
                                     "'   '",
                                     "-1",
                                     "32768",
                                     "9223372036854775807",
                                     "1e308",
                                     "-9e999",
                                     "'1e400'",
                                     "x'00FF27'",
                                     "'''; --'",
                                     "'２０２２'",
                                     "'-2'",
                                     "'-1'",
                                     "'2022/13/45'",
                                     "'99999999'",
                                     "char(0,39)",
                                     "'%_'",
                                     "zeroblob(5000)",
                                     "printf('%.*c', 70000, 'x')",
                                     "CAST(x'E38182FF' AS TEXT)",
                                     "0.1 + 0.2"};
  return values[chance() % values.size()];
}

TEST_F(OddJobs, HostileValuesCostNoRecord) {
  const std::vector<std::string> columns = columnsOf("KansokuSeikaData");
  for (int i = test::share(10, 1000); i > 0; --i) {
    const std::string& column = columns[chance_() % columns.size()];
    if (column == "JobId") continue;
    workInAll("UPDATE KansokuSeikaData SET " + column + " = " + hostileValue(chance_) +
              " WHERE SaveOrder = " + std::to_string(1 + chance_() % 6));
  }
  test::tellCount("cases", cases_);
}

}  // namespace
