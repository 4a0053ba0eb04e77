#include "shell/menu.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "shell/calculations.h"
#include "support/start_desk.h"

namespace {

class Menu : public testing::Test {
 protected:
  shell::SeikMenu menuWith(const std::array<bool, 5>& available) {
    return {commandLine, desk.desktop, context, [this](std::size_t n) { opened.push_back(n); }, available};
  }

  static std::vector<ui::Button*> buttons(shell::SeikMenu& menu) {
    return {&menu.Command1, &menu.Command2, &menu.Command4, &menu.Command5, &menu.Command6};
  }

  test::StartDesk desk;
  shell::CommandLine commandLine = desk.commandLine();
  job::JobContext context;
  std::vector<std::size_t> opened;
};

TEST_F(Menu, NamesItsButtonsInTheirOrder) {
  shell::SeikMenu menu = menuWith({});
  EXPECT_EQ(menu.name(), "SeikMenu");
  EXPECT_EQ(menu.caption(), "成果表データ作成メニュー");
  const char* names[] = {"Command1", "Command2", "Command4", "Command5", "Command6"};
  const char* captions[] = {"実行(&A)", "実行(&B)", "実行(&C)", "実行(&D)", "実行(&E)"};
  for (std::size_t n = 0; n < 5; ++n) {
    EXPECT_EQ(buttons(menu)[n]->name(), names[n]);
    EXPECT_EQ(buttons(menu)[n]->text(), captions[n]);
  }
  EXPECT_EQ(menu.Command3.text(), "戻る(&U)");
}

TEST_F(Menu, LeavesButtonsWithoutACalculationDisabled) {
  shell::SeikMenu menu = menuWith({true, false, true, false, true});
  for (ui::Button* button : buttons(menu)) button->press();
  EXPECT_EQ(opened, (std::vector<std::size_t>{0, 2, 4}));
  EXPECT_TRUE(menu.Command3.enabled());
}

TEST_F(Menu, StartsUpWhenItLoads) {
  shell::SeikMenu menu = menuWith({});
  EXPECT_EQ(context.gJobId, "");
  menu.load();
  EXPECT_EQ(context.gJobId, "9");
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
}

TEST_F(Menu, LetsAFailedStartPass) {
  platform::removeFile(desk.dbPath());
  desk.select("A1");
  shell::SeikMenu menu = menuWith({});
  EXPECT_THROW(menu.load(), db::Error);
}

TEST_F(Menu, UnloadsUponTheWayBack) {
  shell::SeikMenu menu = menuWith({});
  menu.load();
  menu.Command3.press();
  EXPECT_FALSE(menu.loaded());
}

}  // namespace
