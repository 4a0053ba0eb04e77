#include "ui/controls.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_desktop.h"
#include "text/error.h"

namespace {

/// Counts the notices of one control.
class Watcher : public ui::ControlObserver {
 public:
  explicit Watcher(ui::Control& control) { control.observe(this); }
  void changed(ui::Control&) override { ++count; }
  int count = 0;
};

TEST(Control, StandsAloneWithoutAScreen) {
  const ui::Label label("lbl", nullptr, "標高");
  EXPECT_EQ(label.name(), "lbl");
  EXPECT_EQ(label.kind(), ui::Kind::Label);
  EXPECT_EQ(label.desktop(), nullptr);
  EXPECT_EQ(label.tab(), nullptr);
  EXPECT_TRUE(label.enabled());
}

TEST(Control, KnowsItsKind) {
  EXPECT_EQ(ui::Frame("f", nullptr).kind(), ui::Kind::Frame);
  EXPECT_EQ(ui::Menu("m", nullptr, "ファイル(&F)").kind(), ui::Kind::Menu);
  EXPECT_EQ(ui::MenuItem("mitem(0)", nullptr, "クリア(&C)").kind(), ui::Kind::MenuItem);
  EXPECT_EQ(ui::Button("b", nullptr, "実行(&A)").kind(), ui::Kind::Button);
  EXPECT_EQ(ui::OptionButton("o", nullptr, "正標高").kind(), ui::Kind::OptionButton);
  EXPECT_EQ(ui::TextBox("t", nullptr).kind(), ui::Kind::TextBox);
  EXPECT_EQ(ui::ListBox("l", nullptr).kind(), ui::Kind::ListBox);
  EXPECT_EQ(ui::ComboBox("c", nullptr).kind(), ui::Kind::ComboBox);
  EXPECT_EQ(ui::TabControl("s", nullptr, 2).kind(), ui::Kind::TabControl);
}

TEST(Control, TellsItsObserverOfRealChangesOnly) {
  ui::Label label("lbl", nullptr, "1");
  Watcher watcher(label);
  label.setText("1");
  label.setEnabled(true);
  label.move({});
  EXPECT_EQ(watcher.count, 0);
  label.setText("2");
  label.setEnabled(false);
  label.move({15, 30, 1440, 720});
  EXPECT_EQ(watcher.count, 3);
  label.observe(nullptr);
  label.setText("3");
  EXPECT_EQ(watcher.count, 3);
}

TEST(Control, KeepsItsPlaceWhenItsSizeChanges) {
  ui::Label label("lbl", nullptr);
  label.move({15, 30, 100, 200});
  label.setSize(1440, 720);
  EXPECT_EQ(label.box(), (ui::Box{15, 30, 1440, 720}));
}

TEST(Button, IsPressedUnlessItIsDisabled) {
  ui::Button button("b", nullptr, "実行(&A)");
  button.press();  // without a handler nothing happens
  int presses = 0;
  button.onClick.handle([&] { ++presses; });
  button.press();
  button.setEnabled(false);
  button.press();
  button.setEnabled(true);
  button.press();
  EXPECT_EQ(presses, 2);
}

TEST(OptionButton, TurnsTheOthersOfItsGroupOff) {
  ui::OptionButton first("optSeika(0)", nullptr, "前回");
  ui::OptionButton second("optSeika(1)", nullptr, "平均");
  ui::OptionButton stranger("optSeika2(0)", nullptr, "他");
  ui::OptionButton::group({&first, &second});
  int clicks = 0;
  second.onClick.handle([&] {
    ++clicks;
    EXPECT_TRUE(second.on());
    EXPECT_FALSE(first.on());
  });
  first.setOn(true);
  stranger.setOn(true);
  second.press();
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(stranger.on());
  second.setOn(false);
  EXPECT_FALSE(first.on());
  first.setOn(true);
  EXPECT_FALSE(second.on());
  EXPECT_EQ(clicks, 1);
}

TEST(OptionButton, StaysAsItIsWhileDisabled) {
  ui::OptionButton button("o", nullptr, "前回");
  button.setEnabled(false);
  button.press();
  EXPECT_FALSE(button.on());
}

TEST(TextBox, RunsOnChangeUponEveryRealChange) {
  ui::TextBox box("txt", nullptr);
  std::vector<std::string> seen;
  box.onChange.handle([&] { seen.push_back(box.text()); });
  box.setText("3");
  box.setText("3");
  box.edit("35");
  box.edit("35");
  box.edit("");
  EXPECT_EQ(seen, (std::vector<std::string>{"3", "35", ""}));
}

TEST(TextBox, RunsOnChangeThroughItsBaseToo) {
  ui::TextBox box("txt", nullptr);
  int changes = 0;
  box.onChange.handle([&] { ++changes; });
  static_cast<ui::TextControl&>(box).setText("1");
  EXPECT_EQ(changes, 1);
}

TEST(TextBox, IsNotEditedWhileDisabled) {
  ui::TextBox box("txt", nullptr);
  box.setEnabled(false);
  box.edit("1");
  EXPECT_EQ(box.text(), "");
  box.setText("2");  // the program may
  EXPECT_EQ(box.text(), "2");
}

class Items : public testing::Test {
 protected:
  Items() {
    for (const char* item : {"R001", "R002", "R003"}) list.addItem(item);
    list.onClick.handle([this] { ++clicks; });
  }
  ui::ComboBox list{"cmb", nullptr};
  int clicks = 0;
};

TEST_F(Items, BeginWithoutAChoice) {
  EXPECT_EQ(list.count(), 3);
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(list.text(), "");
}

TEST_F(Items, AreChosenByTheOperatorWithAnEventAlwaysAndByTheProgramWithoutOne) {
  list.choose(1);
  EXPECT_EQ(list.text(), "R002");
  list.choose(1);
  EXPECT_EQ(clicks, 2);
  list.setListIndex(2);
  EXPECT_EQ(list.text(), "R003");
  list.setListIndex(-1);
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(clicks, 2);
}

TEST_F(Items, AreNotChosenWhileDisabled) {
  list.setEnabled(false);
  list.choose(1);
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(Items, ThatAreNotThereAreASubscriptError) {
  for (const int index : {-1, 3}) {
    EXPECT_THROW(list.choose(index), text::RuntimeError);
    EXPECT_THROW(list.removeItem(index), text::RuntimeError);
  }
  for (const int index : {-2, 3}) EXPECT_THROW(list.setListIndex(index), text::RuntimeError);
  EXPECT_EQ(list.count(), 3);
}

TEST_F(Items, KeepTheChoiceOnItsItemWhenOthersGo) {
  list.setListIndex(1);
  list.removeItem(0);
  EXPECT_EQ(list.text(), "R002");
  list.removeItem(1);
  EXPECT_EQ(list.text(), "R002");
  list.removeItem(0);
  EXPECT_EQ(list.listIndex(), -1);
  EXPECT_EQ(list.count(), 0);
}

TEST_F(Items, AreClearedWithTheirChoice) {
  list.setListIndex(1);
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.listIndex(), -1);
}

TEST(TabControl, TellsWhenAnotherPageHasComeToTheFront) {
  ui::TabControl tab("SSTab1", nullptr, 3);
  std::vector<int> pages;
  tab.onChange.handle([&] { pages.push_back(tab.current()); });
  tab.setCurrent(2);
  tab.setCurrent(2);
  tab.setCurrent(0);
  EXPECT_EQ(pages, (std::vector<int>{2, 0}));
}

TEST(TabControl, BringsAPageToTheFront) {
  ui::TabControl tab("SSTab1", nullptr, 2);
  ui::Label label("lbl", nullptr);
  tab.put(1, {&label});
  EXPECT_EQ(label.tab(), &tab);
  EXPECT_EQ(label.page(), 1);
  EXPECT_EQ(tab.current(), 0);
  Watcher watcher(tab);
  tab.setCurrent(0);
  tab.setCurrent(1);
  EXPECT_EQ(tab.current(), 1);
  EXPECT_EQ(watcher.count, 1);
  for (const int page : {-1, 2}) EXPECT_THROW(tab.setCurrent(page), text::RuntimeError);
}

TEST(Hourglass, OfTwoTheLastToGoTakesItAway) {
  using enum ui::Pointer;
  test::RecordingDesktop desktop;
  {
    const ui::Hourglass load(desktop);
    { const ui::Hourglass recalculation(desktop); }
    EXPECT_EQ(desktop.pointers, std::vector{Hourglass}) << "the load goes on";
  }
  EXPECT_EQ(desktop.pointers, (std::vector{Hourglass, Default}));
}

TEST(Hourglass, LastsAsLongAsItsObjectAlsoThroughAnError) {
  test::RecordingDesktop desktop;
  using enum ui::Pointer;
  {
    const ui::Hourglass wait(desktop);
    EXPECT_EQ(desktop.pointers, std::vector{Hourglass});
  }
  try {
    const ui::Hourglass wait(desktop);
    throw text::RuntimeError(text::ErrorCode::Overflow);
  } catch (const text::RuntimeError&) {
  }
  EXPECT_EQ(desktop.pointers, (std::vector{Hourglass, Default, Hourglass, Default}));
}

TEST(FcSetMousePointer, TakesThePointerCodes) {
  test::RecordingDesktop desktop;
  ui::FcSetMousePointer(desktop, ui::Pointer(11));
  ui::FcSetMousePointer(desktop, ui::Pointer(0));
  EXPECT_EQ(desktop.pointers, (std::vector{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

}  // namespace
