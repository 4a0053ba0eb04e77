#include <gtest/gtest.h>

#include "hksnb/book_job.h"
#include "hksnb/screen.h"
#include "support/impatient_desktop.h"

namespace {

/// An operator gives up the making or reopening of a book while it reads: the book before stands there again.
class GivenUpBook : public testing::Test {
 protected:
  GivenUpBook() {
    job_.twoRoutes();
    screen_.load();
    screen_.LstRosenNo1.choose(0);
    screen_.CmdExeC3.press();
    screen_.CmdExeC2.press();
    screen_.Grid1.click(1, 9);
    screen_.Grid1.pressKey(U'9');
  }

  void expectAllAsBefore(ui::Button& button) {
    const auto before = test::shownOn(screen_);
    int patience = 0;
    do {
      desktop_.patience = patience++;
      button.press();
      if (desktop_.pieces > desktop_.patience) {
        ASSERT_EQ(test::shownOn(screen_), before) << patience;
      }
    } while (desktop_.pieces > desktop_.patience && patience < 100);
    EXPECT_GE(patience, 4) << "three records were read";
    EXPECT_TRUE(desktop_.takeMessages().empty());
    EXPECT_NE(test::shownOn(screen_), before) << "at last it was laid out";
  }

  test::BookJob job_;
  test::ImpatientDesktop desktop_;
  hksnb::fHHksb screen_{job_.context(), desktop_};
};

TEST_F(GivenUpBook, MadeAnewLeavesTheBookBefore) { expectAllAsBefore(screen_.CmdExeC2); }

}  // namespace
