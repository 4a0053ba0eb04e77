#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "counting.h"
#include "intake/command.h"
#include "screen_work.h"
#include "script/session.h"
#include "support/other_program.h"
#include "text/csv.h"

// Files that nobody means well with: tables to take in and operation scripts, made by chance from good ones.
// The law: a table is taken in whole, as many records as are told, or nothing of it, and the reason names the
// place; a script ends in one of the known ways, and in none is the job damaged or an observation changed.

namespace {

using Chance = std::mt19937;

std::size_t below(Chance& chance, std::size_t count) { return chance() % count; }

template <std::size_t N>
std::string anyOf(Chance& chance, const char* const (&all)[N]) {
  return all[below(chance, N)];
}

/// A value that a cell, a box or a field of a file may hold.
std::string hostileText(Chance& chance) {
  static constexpr const char* texts[] = {"",          "-",
                                          "1e400",     "-1e-400",
                                          "nan",       "９９",
                                          "1.5",       "-99999999999999999999",
                                          "'",         "\"\"",
                                          "';--",      "%_",
                                          "2022/2/30", "20220511",
                                          "\xE6\xB0",  "\xFF\xFE",
                                          "１，０",    "0x1p9",
                                          "∞",         "A\tB",
                                          "-1",        "9007199254740993",
                                          "水準点",    "3 "};
  const std::size_t kind = below(chance, 20);
  if (kind == 0) return std::string(1 + below(chance, 40000), 'x');
  if (kind == 1) return std::string(1, '\0') + "b";
  if (kind == 2) return std::to_string(chance());
  return anyOf(chance, texts);
}

/// Flips, inserts, removes or doubles some bytes.
std::string bent(std::string bytes, Chance& chance) {
  static constexpr const char* pieces[] = {"\"", ",", "\r", "\n", "\r\n", "\t", "\xEF\xBB\xBF", "\x82", " "};
  for (std::size_t i = below(chance, 4); i > 0 && !bytes.empty(); --i) {
    const std::size_t at = below(chance, bytes.size());
    switch (below(chance, 4)) {
      case 0:
        bytes[at] = static_cast<char>(chance() & 0xFFU);
        break;
      case 1:
        bytes.insert(at, anyOf(chance, pieces));
        break;
      case 2:
        bytes.erase(at, 1 + below(chance, 5));
        break;
      default:
        bytes.insert(at, bytes.substr(at, 20));
    }
  }
  return bytes;
}

/// A table of the named columns with some rows, hostile here and there.
std::string hostileTable(Chance& chance, const std::vector<std::string>& good,
                         const std::vector<std::string>& headings) {
  std::string bytes;
  for (std::size_t i = 0; i < headings.size(); ++i) bytes += (i == 0 ? "" : ",") + headings[i];
  const bool bad = below(chance, 2) == 0;
  for (std::size_t row = 1 + below(chance, 4); row > 0; --row) {
    bytes += "\r\n";
    for (std::size_t i = 0; i < good.size(); ++i) {
      if (i > 0) bytes += ',';
      const bool hostile = bad && below(chance, 6) == 0;
      text::appendField(bytes, hostile ? hostileText(chance) : good[i], below(chance, 8) == 0);
    }
  }
  return below(chance, 3) == 0 ? bent(bytes, chance) : bytes;
}

class HostileFiles : public testing::Test {
 protected:
  const std::string& path() const { return job_.context().gDbPath; }
  std::string ask(const std::string& sql) const { return test::OtherProgram(path()).ask(sql); }
  long long records() const { return std::stoll(ask("SELECT count(*) FROM KansokuSeikaData")); }

  struct Run {
    int status = 0;
    std::string out;
    std::string errors;
  };

  Run takeIn(const std::vector<std::string>& words) const {
    std::ostringstream out;
    std::ostringstream errors;
    const int status = intake::run(words, out, errors);
    return {status, out.str(), errors.str()};
  }

  /// True where the records were taken in; holds the run against the law.
  bool judge(const Run& run, long long before) {
    ++cases_;
    const std::string words = run.out + run.errors;
    EXPECT_EQ(ask("PRAGMA integrity_check"), "ok");
    EXPECT_TRUE(run.status == 0 || run.status == 1) << run.status << ": " << words;
    const long long added = records() - before;
    if (run.status == 0) {
      EXPECT_NE(run.out.find(std::to_string(added) + " 件を取り込みました。"), std::string::npos)
          << added << ": " << run.out;
    } else {
      EXPECT_EQ(added, 0) << words;
      EXPECT_FALSE(words.empty());
      EXPECT_EQ(words.find("メモリ"), std::string::npos) << words;
    }
    return run.status == 0;
  }

  test::WorkedJob job_;
  Chance chance_{20261122};
  long long cases_ = 0;
};

TEST_F(HostileFiles, ATableOfRecordsIsTakenInWholeOrNotAtAll) {
  const std::vector<std::string> good{"8", "1001", "R8", "1", "A", "100.5", "1.2345", "-1", "20220511"};
  const std::vector<std::string> headings{"JobId", "事業番号", "路線番号",        "SaveOrder", "標石番号",
                                          "標高",  "中数",     "RosenEndDataFlg", "観測年月日"};
  int taken = 0;
  for (int i = test::share(300, 20000); i > 0 && !HasFailure(); --i) {
    const std::string bytes = hostileTable(chance_, good, headings);
    SCOPED_TRACE(bytes);
    const std::string file = job_.folder().write("表.csv", bytes);
    const long long before = records();
    if (judge(takeIn({"import-csv", path(), "KansokuSeikaData", file, "--encoding",
                      below(chance_, 2) == 0 ? "utf-8" : "cp932"}),
              before))
      ++taken;
    if (before > 200) job_.sql("DELETE FROM KansokuSeikaData WHERE JobId <> '3'");
  }
  EXPECT_GT(taken, 0);
  EXPECT_LT(taken, cases_);
  test::tellCount("cases", cases_);
}

TEST_F(HostileFiles, ObservationsAreTakenInWholeOrNotAtAll) {
  const std::vector<std::string> good{"1001", "R9", "1", "A", "100.5", "1.2345", "0.5", "20220511"};
  const std::vector<std::string> headings{"事業番号", "路線番号", "順番", "標石番号",
                                          "標高",     "中数",     "距離", "観測年月日"};
  int taken = 0;
  for (int i = test::share(300, 20000); i > 0 && !HasFailure(); --i) {
    job_.sql("DELETE FROM KansokuSeikaData WHERE 路線番号 <> 'R001'");
    const std::string bytes = hostileTable(chance_, good, headings);
    SCOPED_TRACE(bytes);
    const std::string file = job_.folder().write("観測.csv", bytes);
    if (judge(takeIn({"import-observations", path(), file, "--job", "3"}), records())) ++taken;
  }
  EXPECT_GT(taken, 0);
  EXPECT_LT(taken, cases_);
  test::tellCount("cases", cases_);
}

/// A step of an operator who means no good. `grid` has the table of the screen.
std::string hostileStep(Chance& chance) {
  static constexpr const char* steps[] = {"key Grid1 ", "paste Grid1 ", "find Grid1 ", "enter txtHksnbNo "};
  static constexpr const char* plain[] = {
      "undo Grid1",       "redo Grid1",         "show Grid1",           "checks",
      "messages",         "click cmdCalc",      "click mitem(1)",       "click CmdExeE2",
      "click CmdDaenCal", "copy Grid1 1 0 4 4", "delete Grid1 1 1 4 4", "close"};
  static constexpr const char* keys[] = {"{Enter}", "{BackSpace 5}", "5{Enter}", "-3{Enter}"};
  const auto cell = [&chance] {
    return std::to_string(below(chance, 14)) + " " + std::to_string(below(chance, 14));
  };
  switch (below(chance, 6)) {
    case 0:
      return anyOf(chance, plain);
    case 1:
      return "cell Grid1 " + cell();
    case 2:
      return "edit Grid1 " + cell() + " 7";
    case 3:
      return "key Grid1 " + anyOf(chance, keys);
    case 4:
      return "cell Grid1 2 2\nkey Grid1 " + std::to_string(below(chance, 99)) + "{Enter}";
    default: {
      std::string text = hostileText(chance);
      std::erase_if(text, [](char c) { return c == '"' || c == '\\' || c == '{' || c == '\t'; });
      return anyOf(chance, steps) + "\"" + text + "\"";
    }
  }
}

/// A day in one of the screens, with steps that nobody would take.
std::string hostileScript(Chance& chance) {
  static constexpr const char* days[] = {
      "click Command1\nselect LstDataKubun #0\nselect cmbJIgyoBango1 #0\nselect cmbRosenBango1 #0\nclick "
      "CmdDataOpen\n",
      "click Command2\nselect LstDataKubun #0\nselect cmbJIgyoBango1 #0\nselect cmbRosenBango1 #0\nclick "
      "CmdKanSeiDataOpen\n",
      "click Command4\nselect cmbJIgyoBango1 #0\nselect cmbRosenBango1 #0\nclick CmdHendDataOpen\n",
      "click Command5\nselect LstDataKubun #0\nselect cmbJIgyoBango1 #0\nselect cmbRosenBango1 #0\nclick "
      "CmdDataOpen\n",
      "click Command6\nselect LstRosenNo1 #0\nclick CmdExeC3\nclick CmdExeC2\n"};
  std::string script = anyOf(chance, days);
  for (std::size_t steps = 1 + below(chance, 12); steps > 0; --steps) script += hostileStep(chance) + "\n";
  return below(chance, 6) == 0 ? bent(script, chance) : script;
}

TEST_F(HostileFiles, AScriptEndsInAKnownWayAndDamagesNothing) {
  constexpr int done = 0;
  constexpr int badLine = 2;
  job_.sql("INSERT INTO JobData VALUES ('3', '試験', 1, 1)");
  const std::string digest =
      "SELECT group_concat(標石番号 || 標高 || 中数 || coalesce(RosenEndDataFlg, '')) FROM KansokuSeikaData";
  const std::string before = ask(digest);
  std::vector<int> endings(3);
  for (int i = test::share(100, 10000); i > 0 && !HasFailure(); --i) {
    const std::string script = hostileScript(chance_);
    SCOPED_TRACE(script);
    std::istringstream in(script);
    std::ostringstream out;
    std::ostringstream errors;
    std::vector<std::string> words{"--program-folder", job_.folder().path(), "-", path()};
    if (below(chance_, 2) == 0) words.insert(words.begin(), "--safeguards");
    const int status = script::runSession(words, {}, {in, out, errors});
    ++cases_;
    ASSERT_TRUE(status >= done && status <= badLine) << status << errors.str();
    ++endings[static_cast<std::size_t>(status)];
    EXPECT_EQ(status == badLine, !errors.str().empty()) << errors.str();
    EXPECT_EQ(ask("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(ask(digest), before);
  }
  EXPECT_GT(endings[done], 0);
  EXPECT_GT(endings[badLine], 0);
  test::tellCount("cases", cases_);
}

}  // namespace
