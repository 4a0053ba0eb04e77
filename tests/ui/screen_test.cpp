#include "ui/screen.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_desktop.h"
#include "text/error.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace {

/// A screen that remembers what happened to it.
class Probe : public ui::Screen {
 public:
  explicit Probe(ui::Desktop& desktop) : Screen("fProbe", "試験", desktop, 6000, 4000) {
    on(button.onClick, "CmdTry_Click", [this] {
      story += "click ";
      throw text::RuntimeError(text::ErrorCode::TypeMismatch);
    });
  }

  ui::Button button{"CmdTry", this, "試す(&T)"};
  ui::Grid Grid1{"Grid1", this};
  ui::Label label{"lblJigyobango", this};
  std::string story;

 private:
  void Form_Load() override { story += "load "; }
  void Form_Resize() override {
    story += "resize:" + std::to_string(static_cast<int>(width())) + "x" +
             std::to_string(static_cast<int>(height())) + " ";
  }
  void Form_Unload() override { story += "unload "; }
};

TEST(Screen, LoadsThenLaysItselfOut) {
  test::RecordingDesktop desktop;
  Probe screen(desktop);
  EXPECT_FALSE(screen.loaded());
  screen.load();
  EXPECT_TRUE(screen.loaded());
  screen.resize(8000, 5000);
  EXPECT_EQ(screen.story, "load resize:6000x4000 resize:8000x5000 ");
}

TEST(Screen, UnloadsOnceAndTellsWhoOpenedIt) {
  test::RecordingDesktop desktop;
  Probe screen(desktop);
  int told = 0;
  screen.whenUnloaded([&](ui::Screen& gone) {
    EXPECT_EQ(&gone, &screen);
    EXPECT_FALSE(gone.loaded());
    ++told;
  });
  screen.unload();  // never loaded: nothing to end
  screen.load();
  screen.unload();
  screen.unload();
  EXPECT_EQ(screen.story, "load resize:6000x4000 unload ");
  EXPECT_EQ(told, 1);
}

TEST(Screen, KnowsItsControlsByName) {
  test::RecordingDesktop desktop;
  Probe screen(desktop);
  EXPECT_EQ(screen.find("Grid1"), &screen.Grid1);
  EXPECT_EQ(screen.find("CmdTry"), &screen.button);
  EXPECT_EQ(screen.find("grid1"), nullptr);
  EXPECT_EQ(screen.find(""), nullptr);
  EXPECT_EQ(screen.controls(), (std::vector<ui::Control*>{&screen.button, &screen.Grid1, &screen.label}));
  EXPECT_EQ(screen.Grid1.desktop(), &desktop);
}

TEST(Screen, TrapsTheErrorsOfAnEventUnderControlAndEvent) {
  test::RecordingDesktop desktop;
  Probe screen(desktop);
  screen.button.press();
  EXPECT_EQ(screen.story, "click ");
  EXPECT_EQ(desktop.messages,
            (std::vector<ui::Message>{{"CmdTry_Click", "型が一致しません。", ui::Icon::Critical}}));
}

TEST(Screen, HasANameACaptionAndASize) {
  test::RecordingDesktop desktop;
  const Probe screen(desktop);
  EXPECT_EQ(screen.name(), "fProbe");
  EXPECT_EQ(screen.caption(), "試験");
  EXPECT_EQ(screen.width(), 6000);
  EXPECT_EQ(screen.height(), 4000);
}

}  // namespace
