#include "shell/program.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "shell/calculations.h"
#include "shell/menu.h"
#include "support/start_desk.h"

namespace {

using Appearance = std::vector<std::string>;

class ProgramRun : public testing::Test {
 protected:
  shell::SeikMenu& menu() {
    auto* menu = dynamic_cast<shell::SeikMenu*>(program.screen());
    if (menu == nullptr) throw std::runtime_error("the menu is not open");
    return *menu;
  }

  Appearance takeAppearance() {
    Appearance taken;
    taken.swap(desk.desktop.appearance);
    return taken;
  }

  test::StartDesk desk;
  shell::Program program{desk.commandLine(), desk.desktop};
};

TEST_F(ProgramRun, BeginsWithTheMenu) {
  EXPECT_EQ(program.screen(), nullptr);
  program.start();
  EXPECT_EQ(program.screen()->name(), "SeikMenu");
  EXPECT_EQ(takeAppearance(), Appearance{"+SeikMenu"});
  EXPECT_EQ(program.context().gJobId, "9");
}

TEST_F(ProgramRun, EnablesTheCalculationsThatTheHouseHas) {
  program.start();
  const ui::Button* buttons[] = {&menu().Command1, &menu().Command2, &menu().Command4, &menu().Command5,
                                 &menu().Command6};
  for (std::size_t n = 0; n < 5; ++n)
    EXPECT_EQ(buttons[n]->enabled(), static_cast<bool>(shell::calculations()[n])) << n;
  EXPECT_TRUE(menu().Command1.enabled());
}

TEST_F(ProgramRun, HasOneScreenOpenAtATime) {
  program.start();
  menu().Command1.press();
  EXPECT_EQ(program.screen()->name(), "fSHsei");
  EXPECT_TRUE(program.screen()->loaded());
  EXPECT_EQ(takeAppearance(), (Appearance{"+SeikMenu", "-SeikMenu", "+fSHsei"}));
  program.sweep();
  program.screen()->unload();
  EXPECT_EQ(takeAppearance(), (Appearance{"-fSHsei", "+SeikMenu"}));
  program.sweep();
  EXPECT_EQ(program.screen()->name(), "SeikMenu");
  EXPECT_EQ(desk.desktop.shown, program.screen());
}

TEST_F(ProgramRun, OpensEveryCalculationItHas) {
  const char* names[] = {"fSHsei", "fDHsei", "fHHsei", "fTHsei", "fHHksb"};
  const char* buttons[] = {"Command1", "Command2", "Command4", "Command5", "Command6"};
  program.start();
  for (std::size_t n = 0; n < 5; ++n) {
    if (!shell::calculations()[n]) continue;
    dynamic_cast<ui::Button&>(*menu().find(buttons[n])).press();
    EXPECT_EQ(program.screen()->name(), names[n]);
    program.screen()->unload();
    program.sweep();
    EXPECT_EQ(program.screen()->name(), "SeikMenu");
  }
}

TEST_F(ProgramRun, ReadsTheJobAnewUponReturnToTheMenu) {
  desk.select("A1");
  program.start();
  menu().Command1.press();
  program.sweep();
  desk.select("B2");
  desk.sql("UPDATE A_ExePath SET Exe_Dir = 'D:\\new\\'");
  EXPECT_EQ(program.context().gJobId, "A");
  program.screen()->unload();
  EXPECT_EQ(program.context().gJobId, "B");
  EXPECT_EQ(program.context().gTokyu, 2);
  EXPECT_EQ(program.context().gFmt[1].text(), "###0.000");
  EXPECT_EQ(program.context().gExeDir, "D:\\new\\");
}

TEST_F(ProgramRun, KeepsTheJobWhereTheReturnFindsNoNewOne) {
  program.start();
  menu().Command1.press();
  program.sweep();
  desk.sql("DELETE FROM JobData");
  desk.sql("DELETE FROM A_ExePath");
  program.screen()->unload();
  EXPECT_EQ(program.context().gJobId, "9");
  EXPECT_EQ(program.context().gExeDir, "C:\\測量\\");
}

TEST_F(ProgramRun, StopsWhereTheDatabaseIsGoneUponReturn) {
  desk.select("A1");
  program.start();
  menu().Command1.press();
  program.sweep();
  platform::removeFile(desk.dbPath());
  EXPECT_THROW(program.screen()->unload(), db::Error);
  EXPECT_EQ(program.screen(), nullptr);
}

TEST_F(ProgramRun, EndsUponTheWayBack) {
  program.start();
  menu().Command3.press();
  EXPECT_EQ(program.screen(), nullptr);
  EXPECT_EQ(takeAppearance(), (Appearance{"+SeikMenu", "-SeikMenu"}));
  program.sweep();
}

TEST_F(ProgramRun, EndsUponTheMenusCloseBox) {
  program.start();
  program.screen()->unload();
  EXPECT_EQ(program.screen(), nullptr);
}

TEST_F(ProgramRun, LetsAFailedStartPass) {
  platform::removeFile(desk.dbPath());
  EXPECT_THROW(program.start(), db::Error);
  EXPECT_EQ(program.screen(), nullptr);
  EXPECT_TRUE(desk.desktop.appearance.empty());
}

}  // namespace
