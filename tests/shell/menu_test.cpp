#include "shell/menu.h"

#include <gtest/gtest.h>

#include <vector>

#include "shell/calculations.h"
#include "support/start_desk.h"

namespace {

class Menu : public testing::Test {
 protected:
  shell::SeikMenu menu() {
    return {commandLine, desk.desktop, context, [this](std::size_t n) { opened.push_back(n); }};
  }

  static std::vector<ui::Button*> buttons(shell::SeikMenu& one) {
    return {&one.Command1, &one.Command2, &one.Command4, &one.Command5, &one.Command6};
  }

  test::StartDesk desk;
  shell::CommandLine commandLine = desk.commandLine();
  job::JobContext context;
  std::vector<std::size_t> opened;
};

TEST_F(Menu, NamesItsButtonsInTheirOrder) {
  shell::SeikMenu one = menu();
  EXPECT_EQ(one.name(), "SeikMenu");
  EXPECT_EQ(one.caption(), "成果表データ作成メニュー");
  const char* names[] = {"Command1", "Command2", "Command4", "Command5", "Command6"};
  const char* captions[] = {"実行(&A)", "実行(&B)", "実行(&C)", "実行(&D)", "実行(&E)"};
  for (std::size_t n = 0; n < 5; ++n) {
    EXPECT_EQ(buttons(one)[n]->name(), names[n]);
    EXPECT_EQ(buttons(one)[n]->text(), captions[n]);
  }
  EXPECT_EQ(one.Command3.text(), "戻る(&U)");
}

TEST_F(Menu, OpensTheCalculationsInTheOrderOfTheirButtons) {
  shell::SeikMenu one = menu();
  for (ui::Button* button : buttons(one)) button->press();
  EXPECT_EQ(opened, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

TEST_F(Menu, StartsUpWhenItLoads) {
  shell::SeikMenu one = menu();
  EXPECT_EQ(context.gJobId, "");
  one.load();
  EXPECT_EQ(context.gJobId, "9");
  EXPECT_EQ(context.gExeDir, "C:\\測量\\");
}

TEST_F(Menu, LetsAFailedStartPass) {
  platform::removeFile(desk.dbPath());
  desk.select("A1");
  shell::SeikMenu one = menu();
  EXPECT_THROW(one.load(), db::Error);
}

TEST_F(Menu, UnloadsUponTheWayBack) {
  shell::SeikMenu one = menu();
  one.load();
  one.Command3.press();
  EXPECT_FALSE(one.loaded());
}

}  // namespace
