#include "route/safeguards.h"

#include <gtest/gtest.h>

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

TEST(MaySaveWith, NamesTheErrorsAndNotTheWarnings) {
  AskingDesktop desktop;
  EXPECT_TRUE(route::maySaveWith(desktop, {{ui::Severity::Warning, 1, 1, "注意だけ", ""}}));
  EXPECT_TRUE(desktop.questions.empty());
  const ui::Findings findings{{ui::Severity::Error, 2, 2, "補正数「x」は数値ではありません。", ""},
                              {ui::Severity::Warning, 1, 1, "注意", ""}};
  EXPECT_FALSE(route::maySaveWith(desktop, findings)) << "the safe button saves nothing";
  desktop.answers = {"保存する"};
  EXPECT_TRUE(route::maySaveWith(desktop, findings));
  EXPECT_EQ(desktop.questions[0].text,
            "点検で誤りが 1 件見つかりました。\n・補正数「x」は数値ではありません。\nこのまま保存しますか。");
}

// Twelve errors: ten are named, 12 − 10 = 2 are counted.
TEST(MaySaveWith, NamesTenErrorsAtMost) {
  AskingDesktop desktop;
  ui::Findings findings;
  for (int i = 0; i < 12; ++i) findings.push_back({ui::Severity::Error, i, 0, "誤り", ""});
  route::maySaveWith(desktop, findings);
  EXPECT_NE(desktop.questions[0].text.find("ほか 2 件\n"), std::string::npos);
}

TEST(MayShrink, AsksOnlyWhereRecordsWouldBeLost) {
  AskingDesktop desktop;
  EXPECT_TRUE(route::mayShrink(desktop, "路線 R1", 5, 5));
  EXPECT_FALSE(route::mayShrink(desktop, "路線 R1", 53, 10));
  EXPECT_EQ(desktop.questions[0].text, "路線 R1 の保存済みの 53 件が 10 件に減ります。");
}

}  // namespace
