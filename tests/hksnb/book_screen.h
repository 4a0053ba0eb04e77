#pragma once

#include <gtest/gtest.h>

#include <string>

#include "hksnb/book_job.h"
#include "hksnb/book_maker.h"
#include "hksnb/screen.h"
#include "support/recording_desktop.h"

namespace test {

/// The screen of the variation book, loaded on a job with two routes.
class BookScreen : public testing::Test {
 protected:
  BookScreen() {
    job.twoRoutes();
    job.orthometric(1, "01A00201", "C", "13.1", "1", "13.1");
    screen.load();
  }

  void chooseRoute(int index) {
    screen.LstRosenNo1.choose(index);
    screen.CmdExeC3.press();
  }

  /// A new orthometric book over both routes.
  void newBook() {
    chooseRoute(0);
    chooseRoute(0);
    screen.CmdExeC2.press();
  }

  void keys(const char32_t* codes) {
    for (; *codes != 0; ++codes) screen.Grid1.pressKey(*codes);
  }

  const std::string& cell(int row, int col) const { return screen.Grid1.text(row, col); }

  BookJob job;
  RecordingDesktop desktop;
  hksnb::fHHksb screen{job.context(), desktop};
};

}  // namespace test
