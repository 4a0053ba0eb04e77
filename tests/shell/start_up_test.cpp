#include "shell/start_up.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "support/start_desk.h"

namespace {

using namespace std::string_literals;
using Messages = std::vector<ui::Message>;

class StartUp : public testing::Test {
 protected:
  /// Starts up and ends the connection that start-up keeps.
  void start() { shell::startUp(desk.commandLine(), desk.desktop, context)->close(); }

  /// Starts up with this job-selection file.
  void startWith(std::string_view bytes) {
    desk.select(bytes);
    start();
  }

  /// The message of a type mismatch that is about the job-selection file.
  Messages selectionFault(const std::string& what) const {
    return {
        {"", "型が一致しません。「" + desk.programFolder() + "\\JobSel.txt」の1行目" + what, ui::Icon::None}};
  }

  void expectJob(const std::string& jobId, int tokyu) const {
    EXPECT_EQ(context.gJobId, jobId);
    EXPECT_EQ(context.gTokyu, tokyu);
  }

  test::StartDesk desk;
  job::JobContext context;
};

TEST_F(StartUp, FindsEverythingOut) {
  start();
  EXPECT_EQ(context.gDbPath, desk.dbPath());
  EXPECT_EQ(context.gAppPath, desk.programFolder() + "\\");
  expectJob("9", 2);
  EXPECT_EQ(context.tables.gTblKansokuSeikaData, "KansokuSeikaData");
  EXPECT_EQ(context.tables.gTblKansokuData, "KansokuData");
  EXPECT_EQ(context.gFmt[1].text(), "###0.000");
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, KeepsTheDatabaseOpen) {
  const auto gDb = shell::startUp(desk.commandLine(), desk.desktop, context);
  EXPECT_FALSE(gDb->openRecordset("SELECT * FROM JobData")->eof());
}

TEST_F(StartUp, SetsTheFormatsByTheGradeItHasFound) {
  startWith("31");
  EXPECT_EQ(context.gFmt[1].text(), "###0.0000");
  EXPECT_EQ(context.gFmt[4].text(), "##0.0");
  startWith("32");
  EXPECT_EQ(context.gFmt[4].text(), "###0");
}

TEST_F(StartUp, TakesTheWholeCommandLineAsItStands) {
  const shell::CommandLine commandLine{" \"a b.sqlite\" ", desk.programFolder()};
  shell::FcGetCommandLine(commandLine, context);
  EXPECT_EQ(context.gDbPath, " \"a b.sqlite\" ");
}

// The job-selection file.

TEST_F(StartUp, TakesTheFirstAndTheLastCharacterOfTheSelectionFile) {
  startWith("A12");
  expectJob("A", 2);
  startWith("3 1級水準測量 1");
  expectJob("3", 1);
  startWith("測量1");
  expectJob("測", 1);
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, DoesNotAskTheJobTableWhereThereIsASelectionFile) {
  startWith("A12");
  expectJob("A", 2);  // the table marks job "9"
  desk.sql("DROP TABLE JobData");
  start();
  expectJob("A", 2);
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, ReadsTheFirstLineOnlyWhateverItsEnd) {
  startWith("A12\r\nB21\r\n");
  expectJob("A", 2);
  startWith("C3\nB21");
  expectJob("C", 3);
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, TakesASingleDigitAsJobAndGrade) {
  startWith("1");
  expectJob("1", 1);
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, ReportsASingleLetterAndKeepsTheGrade) {
  startWith("A");
  expectJob("A", 0);
  EXPECT_EQ(desk.desktop.messages, selectionFault("の最後の「A」は等級の数字ではありません。"));
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");  // and goes on
}

TEST_F(StartUp, ReportsAnEmptyFirstLine) {
  context.gJobId = "8";
  context.gTokyu = 1;
  for (const char* bytes : {"", "\n", "\r\nA1"}) {
    startWith(bytes);
    expectJob("", 1);
    EXPECT_EQ(desk.desktop.takeMessages(), selectionFault("が空です。"));
  }
}

TEST_F(StartUp, ReportsALastCharacterThatIsNoDigit) {
  context.gTokyu = 1;
  for (const auto& [bytes, last] : std::vector<std::pair<const char*, std::string>>{
           {"A1B", "B"}, {"A1 ", " "}, {"A-", "-"}, {"A１", "１"}, {"A1級", "級"}}) {
    startWith(bytes);
    expectJob("A", 1);
    EXPECT_EQ(desk.desktop.takeMessages(),
              selectionFault("の最後の「" + last + "」は等級の数字ではありません。"));
  }
}

TEST_F(StartUp, OutlivesABinarySelectionFile) {
  startWith("\x00\xFF\xFE\x80"s);
  expectJob("\x00"s, 0);
  EXPECT_EQ(desk.desktop.takeMessages(), selectionFault("の最後の「\x80」は等級の数字ではありません。"));
  startWith("\x90\xE0\x02"s + "5");
  expectJob("\x90", 5);
}

// What the name leads to is there, and reading it fails with an input error.
TEST_F(StartUp, ReportsASelectionFileThatCannotBeRead) {
  if (!std::filesystem::exists("/proc/self/mem")) GTEST_SKIP() << "no file here that cannot be read";
  std::filesystem::create_symlink("/proc/self/mem", desk.programFolder() + "/JobSel.txt");
  start();
  expectJob("", 0);  // the job table is not asked instead
  EXPECT_EQ(desk.desktop.messages, (Messages{{"",
                                              "「" + desk.programFolder() +
                                                  "\\JobSel.txt」があるのに読めません。読む権限があるか、"
                                                  "ほかのプログラムが使っていないかを確かめてください。",
                                              ui::Icon::None}}));
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
}

TEST_F(StartUp, TakesAFolderOfThatNameForNoFile) {
  platform::makeFolder(desk.programFolder() + "\\JobSel.txt");
  start();
  expectJob("9", 2);
}

// The job table.

TEST_F(StartUp, TakesTheJobThatWasChosenForThisRun) {
  shell::CommandLine commandLine = desk.commandLine();
  commandLine.chosen = shell::ChosenJob{"7", 1};
  shell::startUp(commandLine, desk.desktop, context)->close();
  expectJob("7", 1);
  desk.select("52");
  shell::startUp(commandLine, desk.desktop, context)->close();
  expectJob("5", 2);
}

TEST_F(StartUp, TakesTheFirstJobMarkedForExecution) {
  desk.sql("INSERT INTO JobData VALUES ('5', 3, 1)");
  start();
  expectJob("9", 2);
}

TEST_F(StartUp, TakesJobsAndGradesOfAnyColumnType) {
  desk.sql("DROP TABLE JobData");
  desk.sql("CREATE TABLE JobData (JObID INTEGER, TOKYU TEXT, jikkouflg TEXT)");
  desk.sql("INSERT INTO JobData VALUES (12, '1', '1')");
  start();
  expectJob("12", 1);
}

TEST_F(StartUp, GoesOnWithoutAJobMarkedForExecution) {
  desk.sql("UPDATE JobData SET JikkouFlg = 0");
  start();
  expectJob("", 0);
  EXPECT_EQ(context.gFmt[1].text(), "###0.000");
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
  EXPECT_TRUE(desk.desktop.messages.empty());
}

TEST_F(StartUp, KeepsTheJobOfTheLastStartWithoutANewOne) {
  start();
  desk.sql("DELETE FROM JobData");
  start();
  expectJob("9", 2);
}

TEST_F(StartUp, ReportsAMissingJobTableAndGoesOn) {
  desk.sql("DROP TABLE JobData");
  start();
  expectJob("", 0);
  ASSERT_EQ(desk.desktop.messages.size(), 1U);
  EXPECT_EQ(desk.desktop.messages[0].title, "");
  EXPECT_EQ(desk.desktop.messages[0].icon, ui::Icon::None);
  EXPECT_NE(desk.desktop.messages[0].text.find("JobData"), std::string::npos);
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
}

TEST_F(StartUp, ReportsAGradeThatIsNoNumber) {
  desk.sql("UPDATE JobData SET Tokyu = '一級'");
  start();
  expectJob("9", 0);
  EXPECT_EQ(
      desk.desktop.messages,
      (Messages{{"", "型が一致しません。JobData の Tokyu「一級」は等級ではありません。", ui::Icon::None}}));
}

TEST_F(StartUp, ReportsAGradeBeyond16Bits) {
  desk.sql("UPDATE JobData SET Tokyu = 40000");
  start();
  expectJob("9", 0);
  EXPECT_EQ(desk.desktop.messages,
            (Messages{{"", "オーバーフローしました。JobData の Tokyu「40000」は等級ではありません。",
                       ui::Icon::None}}));
}

// The data folder.

TEST_F(StartUp, KeepsTheDataFolderWithoutANewOne) {
  desk.sql("DELETE FROM A_ExePath");
  start();
  EXPECT_EQ(context.gExeDir, "");
  context.gExeDir = "D:\\before\\";
  start();
  EXPECT_EQ(context.gExeDir, "D:\\before\\");
  desk.sql("INSERT INTO A_ExePath VALUES (NULL)");
  start();
  EXPECT_EQ(context.gExeDir, "D:\\before\\");
}

TEST_F(StartUp, TakesTheDataFolderOfTheFirstRowAsItStands) {
  desk.sql("DELETE FROM A_ExePath");
  desk.sql("INSERT INTO A_ExePath VALUES (' data ')");
  desk.sql("INSERT INTO A_ExePath VALUES ('second')");
  start();
  EXPECT_EQ(context.gExeDir, " data ");
}

TEST_F(StartUp, StopsWithoutTheTableOfTheDataFolder) {
  desk.sql("DROP TABLE A_ExePath");
  try {
    start();
    FAIL() << "no error was raised";
  } catch (const db::Error& error) {
    EXPECT_NE(std::string(error.what()).find("A_ExePath"), std::string::npos);
  }
  expectJob("9", 2);  // everything before has been found out
  EXPECT_EQ(context.gExeDir, "");
  EXPECT_TRUE(desk.desktop.messages.empty());
}

// Databases that cannot be opened.

TEST_F(StartUp, StopsWithoutTheDatabaseAfterTheStepsBefore) {
  platform::removeFile(desk.dbPath());
  desk.select("A11");
  EXPECT_THROW(start(), db::Error);
  EXPECT_EQ(context.gDbPath, desk.dbPath());
  EXPECT_EQ(context.gAppPath, desk.programFolder() + "\\");
  expectJob("A", 1);
  EXPECT_EQ(context.tables.gTblKansokuData, "KansokuData");
  EXPECT_EQ(context.gFmt[1].text(), "###0.0000");
  EXPECT_EQ(context.gExeDir, "");
  EXPECT_TRUE(desk.desktop.messages.empty());
  EXPECT_FALSE(platform::isFile(desk.dbPath()));
}

TEST_F(StartUp, ReportsTheJobTablesDatabaseBeforeItStops) {
  platform::removeFile(desk.dbPath());
  EXPECT_THROW(start(), db::Error);
  ASSERT_EQ(desk.desktop.messages.size(), 1U);
  EXPECT_EQ(desk.desktop.messages[0].icon, ui::Icon::None);
  EXPECT_EQ(context.tables.gTblKansokuData, "KansokuData");
}

TEST_F(StartUp, StopsOnAPathThatIsNoDatabase) {
  desk.select("A11");
  const std::string bytes = platform::readFile(desk.dbPath()).value();
  for (const std::string& path :
       {""s, desk.folder.path(), desk.folder.write("text.txt", "成果表データではありません。\n"),
        desk.folder.write("cut.sqlite", bytes.substr(0, 1000)), desk.folder.path("no/such.sqlite")}) {
    const shell::CommandLine commandLine{path, desk.programFolder()};
    EXPECT_THROW(shell::startUp(commandLine, desk.desktop, context), db::Error) << path;
  }
}

}  // namespace
