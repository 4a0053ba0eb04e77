#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/files.h"
#include "route/safeguards.h"
#include "support/asking_desktop.h"

// Every question that the program can ask: whoever presses Enter or Esc gives nothing away.

namespace {

struct Case {
  const char* name;
  std::function<bool(ui::Desktop&)> ask;  ///< true where the act goes on

  friend void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
};

const ui::Findings found{{ui::Severity::Error, 1, 1, "誤り", ""}};
const ui::Findings waiting{{ui::Severity::Error, 1, 1, "入力", "", ui::CellMark::NotTaken}};

bool maySaveWith(ui::Desktop& desktop, const ui::Findings& findings) {
  return route::maySaveWith(
      desktop, [&] { return findings; }, [](const ui::Findings&) { return true; });
}

const std::vector<Case> cases{
    {"Unsaved", [](ui::Desktop& d) { return route::mayLose(d, "路線 R1", 3, [] { return true; }); }},
    {"Errors", [](ui::Desktop& d) { return maySaveWith(d, found); }},
    {"Untaken", [](ui::Desktop& d) { return maySaveWith(d, waiting); }},
    {"Fewer",
     [](ui::Desktop& d) {
       return route::mayShrink(d, "路線 R1", {5, 4});
     }},
    {"Others", [](ui::Desktop& d) { return route::mayReplaceOthers(d, "路線 R1", 1); }},
    {"NoNumber", [](ui::Desktop& d) { return route::mayStoreWithoutNumber(d); }},
    {"OtherBook",
     [](ui::Desktop& d) { return route::mayReplaceBook(d, "番号 3 の正標高補正の計算簿", "2022", 12); }},
    {"FiledPicture", [](ui::Desktop& d) { return route::mayReplacePicture(d, "変動図.bmp"); }},
};

class EveryQuestion : public testing::TestWithParam<Case> {};

TEST_P(EveryQuestion, HasASafeAnswerThatStopsTheAct) {
  test::AskingDesktop desktop;
  EXPECT_FALSE(GetParam().ask(desktop));
  ASSERT_EQ(desktop.questions.size(), 1U);
  const ui::Question& question = desktop.questions[0];
  ASSERT_LT(question.safe, question.buttons.size());
  const std::string& safe = question.buttons[question.safe];
  EXPECT_TRUE(safe == "やめる" || safe == "取消") << safe;
  EXPECT_EQ(question.safe + 1, question.buttons.size()) << "it stands last in every question";
}

TEST_P(EveryQuestion, NamesItsConsequence) {
  test::AskingDesktop desktop;
  GetParam().ask(desktop);
  const std::string& text = desktop.questions.at(0).text;
  const auto tells = [&text](const char* words) { return text.find(words) != std::string::npos; };
  EXPECT_TRUE(tells("失われます。") || tells("保存されます。") || tells("このまま保存しますか。")) << text;
}

TEST_P(EveryQuestion, GoesOnByAnyOtherAnswer) {
  test::AskingDesktop desktop;
  GetParam().ask(desktop);
  const std::vector<std::string> buttons = desktop.questions.at(0).buttons;
  for (std::size_t i = 0; i + 1 < buttons.size(); ++i) {
    const bool leavesErrors = std::string(GetParam().name) == "Untaken" && buttons[i] == "計算して保存";
    desktop.answers = {buttons[i], "保存する"};
    EXPECT_TRUE(GetParam().ask(desktop)) << buttons[i];
    EXPECT_EQ(desktop.answers.size(), leavesErrors ? 0U : 1U);
    desktop.answers.clear();
  }
}

TEST_P(EveryQuestion, IsNeverAskedWithoutSafeguards) {
  test::AskingDesktop desktop;
  desktop.asks = false;
  EXPECT_TRUE(GetParam().ask(desktop));
  EXPECT_TRUE(desktop.questions.empty());
}

INSTANTIATE_TEST_SUITE_P(Questions, EveryQuestion, testing::ValuesIn(cases),
                         [](const auto& one) { return one.param.name; });

// A question asked anywhere else would not be looked at above.
TEST(Questions, AreAskedInOnePlaceAlone) {
  std::vector<std::string> asking;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(SOURCE_FOLDER)) {
    if (entry.path().extension() != ".cpp") continue;
    const std::string source = platform::readFile(platform::pathText(entry.path())).value_or("");
    if (source.find("esktop.ask(") != std::string::npos || source.find("esktop().ask(") != std::string::npos)
      asking.push_back(entry.path().filename().string());
  }
  const std::vector<std::string> known{"safeguards.cpp"};
  for (const std::string& file : asking)
    EXPECT_NE(std::find(known.begin(), known.end(), file), known.end()) << file;
}

}  // namespace
