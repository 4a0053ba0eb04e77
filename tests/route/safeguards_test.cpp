#include "route/safeguards.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "support/asking_desktop.h"

namespace {

using test::AskingDesktop;

TEST(MayLose, AsksNothingWhereNothingIsUnsavedOrNobodyIsAsked) {
  AskingDesktop desktop;
  bool saved = false;
  const auto save = [&] { return saved = true; };
  EXPECT_TRUE(route::mayLose(desktop, "路線 R1", 0, save));
  desktop.asks = false;
  EXPECT_TRUE(route::mayLose(desktop, "路線 R1", 3, save));
  EXPECT_TRUE(desktop.questions.empty());
  EXPECT_FALSE(saved);
}

TEST(MayLose, SavesGivesUpOrStays) {
  AskingDesktop desktop;
  int saves = 0;
  bool works = true;
  const auto save = [&] { return ++saves, works; };
  desktop.answers = {"取消", "破棄", "保存", "保存"};
  EXPECT_FALSE(route::mayLose(desktop, "路線 R1", 3, save));
  EXPECT_TRUE(route::mayLose(desktop, "路線 R1", 3, save));
  EXPECT_EQ(saves, 0);
  EXPECT_TRUE(route::mayLose(desktop, "路線 R1", 3, save));
  works = false;
  EXPECT_FALSE(route::mayLose(desktop, "路線 R1", 3, save))
      << "a save that failed keeps the work on the screen";
  EXPECT_EQ(saves, 2);
  EXPECT_EQ(desktop.questions[0].text,
            "路線 R1 に、保存していない変更が 3 セルあります。\n破棄すると失われます。");
  EXPECT_EQ(desktop.questions[0].buttons[desktop.questions[0].safe], "取消");
}

ui::Finding error(const char* text) { return {ui::Severity::Error, 2, 2, text, ""}; }
ui::Finding warning(const char* text) { return {ui::Severity::Warning, 1, 1, text, ""}; }
ui::Finding untaken(const char* text) {
  return {ui::Severity::Error, 2, 2, text, "", ui::CellMark::NotTaken};
}

/// What is found on a screen, and what is left of it after a calculation.
struct Screen {
  ui::Findings found;
  ui::Findings left = {};
  bool calculates = true;
  int calculations = 0;

  bool maySave(ui::Desktop& desktop) {
    return route::maySaveWith(
        desktop, [this] { return calculations == 0 ? found : left; },
        [this](const ui::Findings&) { return ++calculations, calculates; });
  }
};

TEST(MaySaveWith, NamesTheErrorsAndNotTheWarnings) {
  AskingDesktop desktop;
  Screen warned{{warning("注意だけ")}};
  EXPECT_TRUE(warned.maySave(desktop));
  EXPECT_TRUE(desktop.questions.empty());
  Screen wrong{{error("補正数「x」は数値ではありません。"), warning("注意")}};
  EXPECT_FALSE(wrong.maySave(desktop)) << "the safe button saves nothing";
  desktop.answers = {"保存する"};
  EXPECT_TRUE(wrong.maySave(desktop));
  EXPECT_EQ(desktop.questions[0].text,
            "点検で誤りが 1 件見つかりました。\n・補正数「x」は数値ではありません。\nこのまま保存しますか。");
}

// Twelve errors: ten are named, 12 − 10 = 2 are counted.
TEST(MaySaveWith, NamesTenErrorsAtMost) {
  AskingDesktop desktop;
  Screen screen{ui::Findings(12, error("誤り"))};
  screen.maySave(desktop);
  EXPECT_NE(desktop.questions[0].text.find("ほか 2 件\n"), std::string::npos);
}

TEST(MaySaveWith, LooksForNothingWhereNobodyIsAsked) {
  AskingDesktop desktop;
  desktop.asks = false;
  EXPECT_TRUE(route::maySaveWith(
      desktop, []() -> ui::Findings { throw std::logic_error("looked"); },
      [](const ui::Findings&) { return false; }));
}

TEST(MaySaveWith, AsksAboutEntriesThatNoCalculationHasTakenUp) {
  AskingDesktop desktop;
  Screen screen{{untaken("A1 は、まだ計算に入っていません。"), error("誤り")}};
  EXPECT_FALSE(screen.maySave(desktop));
  ASSERT_EQ(desktop.questions.size(), 1U);
  EXPECT_EQ(desktop.questions[0].text,
            "まだ計算に入っていない入力が 1 か所あります。\n・A1 は、まだ計算に入っていません。\n"
            "このまま保存すると、計算し直さない値が保存されます。");
  EXPECT_EQ(desktop.questions[0].buttons,
            (std::vector<std::string>{"計算して保存", "このまま保存", "やめる"}));
  EXPECT_EQ(screen.calculations, 0);
}

TEST(MaySaveWith, SavesEntriesAsTheyAreAndAsksAboutTheOtherErrorsAlone) {
  AskingDesktop desktop;
  Screen screen{{untaken("A1"), error("誤り")}};
  desktop.answers = {"このまま保存", "保存する"};
  EXPECT_TRUE(screen.maySave(desktop));
  EXPECT_EQ(screen.calculations, 0);
  EXPECT_EQ(desktop.questions[1].text, "点検で誤りが 1 件見つかりました。\n・誤り\nこのまま保存しますか。");
}

TEST(MaySaveWith, CalculatesAndAsksAboutWhatIsLeft) {
  AskingDesktop desktop;
  desktop.answers = {"計算して保存", "計算して保存", "保存する", "計算して保存"};
  Screen all{{untaken("A1")}};
  EXPECT_TRUE(all.maySave(desktop));
  EXPECT_EQ(all.calculations, 1);
  Screen rest{{untaken("A1")}, {error("誤り")}};
  EXPECT_TRUE(rest.maySave(desktop));
  EXPECT_EQ(desktop.questions.size(), 3U);
  Screen failing{{untaken("A1")}, {}, false};
  EXPECT_FALSE(failing.maySave(desktop)) << "a calculation that failed saves nothing";
}

TEST(MayShrink, AsksOnlyWhereRecordsWouldBeLost) {
  AskingDesktop desktop;
  EXPECT_TRUE(route::mayShrink(desktop, "路線 R1", {5, 5}));
  EXPECT_FALSE(route::mayShrink(desktop, "路線 R1", {53, 10}));
  EXPECT_EQ(desktop.questions[0].text,
            "路線 R1 の保存済みの 53 件が 10 件に減ります。\n減る分は失われます。");
}

}  // namespace
