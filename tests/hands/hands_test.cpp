#include <gtest/gtest.h>

#include <QApplication>
#include <memory>
#include <sstream>

#include "hands/window_hands.h"
#include "platform/files.h"
#include "qt/offscreen.h"
#include "script/headless.h"
#include "script/runner.h"
#include "seihyou/screen.h"
#include "support/small_job.h"
#include "text/error.h"

namespace {

/// A program of one screen.
class OneScreen : public script::Subject {
 public:
  OneScreen(const job::JobContext& context, ui::Desktop& desktop)
      : desktop_(desktop), screen_(std::make_unique<seihyou::fSHsei>(context, desktop)) {
    screen_->whenUnloaded([this](ui::Screen& gone) {
      desktop_.hide(gone);
      gone_ = std::move(screen_);
    });
  }
  ~OneScreen() override {
    if (screen_) desktop_.hide(*screen_);
  }
  OneScreen(const OneScreen&) = delete;
  OneScreen& operator=(const OneScreen&) = delete;

  void start() override {
    screen_->load();
    desktop_.show(*screen_);
  }
  ui::Screen* screen() override { return screen_.get(); }
  void sweep() override { gone_.reset(); }
  seihyou::fSHsei& form() { return *screen_; }

 private:
  ui::Desktop& desktop_;
  std::unique_ptr<seihyou::fSHsei> screen_;
  std::unique_ptr<seihyou::fSHsei> gone_;
};

std::unique_ptr<script::Hands> windowHands() {
  test::chooseOffscreen();
  static int argc = 1;
  static char name[] = "hands_test";
  static char* argv[] = {name, nullptr};
  return hands::windowHands(argc, argv);
}

/// What a run of the script prints, with its exit status at the end.
std::string transcript(script::Hands& hands, const test::SmallJob& job, const std::string& lines,
                       const std::function<void(seihyou::fSHsei&)>& prepare = {}) {
  OneScreen program(job.context(), hands.desktop());
  if (prepare) prepare(program.form());
  std::istringstream in(lines);
  std::ostringstream out;
  std::ostringstream errors;
  const auto ending = script::Runner(program, hands, out, errors).run(in);
  return out.str() + errors.str() + "ending " + std::to_string(static_cast<int>(ending));
}

/// The route A – B – C with two sections: 1.5 m up, 0.25 m down.
struct RouteOfTwoSections : test::SmallJob {
  RouteOfTwoSections() {
    observed(1, "R1", "A", "10.0", "1.5");
    observed(2, "R1", "B", "NULL", "-0.25");
    observed(3, "R1", "C", "NULL", "NULL", "-1");
  }
};

void expectTheSame(const std::string& lines, const std::function<void(seihyou::fSHsei&)>& prepare = {}) {
  const RouteOfTwoSections forHeadless;
  const std::string wanted = transcript(*script::headlessHands(), forHeadless, lines, prepare);
  const RouteOfTwoSections forWindow;
  EXPECT_EQ(transcript(*windowHands(), forWindow, lines, prepare), wanted);
}

constexpr const char* openRoute =
    "select LstDataKubun #0\nselect cmbJIgyoBango1 #0\nselect cmbRosenBango1 #0\nclick CmdDataOpen\n";

TEST(WindowHands, PrintWhatHeadlessHandsPrint) {
  expectTheSame(
      std::string(openRoute) +
      "show SSTab1\nshow Grid1\ncell Grid1 2 2\nkey Grid1 12{Enter}\nkey Grid1 -3{BackSpace}4{Enter}\n"
      "cell Grid1 1 4\nkey Grid1 備考𠮷\nshow Grid1\nshow lblDatakubun\nshow LstDataKubun\n"
      "show cmbRosenBango1\nshow mitem(1)\nclick mitem(1)\nmessages\nclick mitem(0)\nshow Grid1\n");
}

TEST(WindowHands, PrintTheSameSizes) {
  expectTheSame(
      "size Grid1\nsize SSTab1\nresize 12345 7001\nsize Grid1\nsize SSTab1\nresize 5000 4000\nsize Grid1\n"
      "resize 5001 4001\nsize SSTab1\nsize CmdDataOpen\nsize LstDataKubun\n");
}

TEST(WindowHands, CloseTheScreen) { expectTheSame("screen\nclose\nscreen\nmessages\n"); }

TEST(WindowHands, PassOnAnErrorThatNothingTraps) {
  expectTheSame("click CmdDataOpen\nscreen\n", [](seihyou::fSHsei& form) {
    form.openButton.onClick.handle([] { throw text::RuntimeError(text::ErrorCode::Overflow); });
  });
}

TEST(WindowHands, ReadMessageBoxesFromTheBoxes) {
  expectTheSame("click CmdDataOpen\nclick CmdReOpen\nmessages\nmessages\n", [](seihyou::fSHsei& form) {
    form.openButton.onClick.handle([&form] {
      form.desktop().message({"題", "文 <b>太</b>\n二行", ui::Icon::Critical});
    });
    form.reopenButton.onClick.handle([&form] {
      form.desktop().message({{}, "保存", ui::Icon::Information});
    });
  });
}

TEST(WindowHands, TakePictures) {
  const RouteOfTwoSections job;
  const std::string file = job.folder().path("画面.png");
  EXPECT_EQ(transcript(*windowHands(), job, "shot \"" + file + "\"\n"), "ending 0");
  EXPECT_TRUE(platform::isFile(file));
}

TEST(WindowHands, SayWhenAPictureCannotBeWritten) {
  const RouteOfTwoSections job;
  EXPECT_TRUE(transcript(*windowHands(), job, "shot /nowhere/x.png\n").ends_with("ending 2"));
}

}  // namespace
