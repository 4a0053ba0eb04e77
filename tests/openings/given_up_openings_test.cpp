#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "daen/screen.h"
#include "hend/screen.h"
#include "route/selection_screen.h"
#include "seihyou/screen.h"
#include "support/impatient_desktop.h"
#include "support/small_job.h"
#include "tanrosen/screen.h"
#include "ui/find.h"

// An operator gives an opening up while it reads: in every route screen what was open before is open again,
// to the last cell, and can be saved and taken back as if nothing had been.

namespace {

const ui::Message saved{{}, "保存しました", ui::Icon::None};

struct Case {
  std::string name;
  std::function<std::unique_ptr<route::SelectionScreen>(const job::JobContext&, ui::Desktop&)> make;

  friend void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
};

template <class Screen>
Case caseOf(const char* name) {
  return {name, [](const job::JobContext& context, ui::Desktop& desktop) {
            return std::make_unique<Screen>(context, desktop);
          }};
}

class GivenUpOpenings : public testing::TestWithParam<Case> {
 protected:
  GivenUpOpenings() {
    for (const char* route : {"R001", "S002"})
      for (int order = 1; order <= 4; ++order)
        job_.observed(order, route, route + std::to_string(order), "100", "1.5", order == 4 ? "-1" : "");
    test::RecordingDesktop desk;
    const auto before = GetParam().make(job_.context(), desk);
    before->load();
    chooseObserved(*before, "S002");
    before->openButton.press();
    before->saveItem.press();
    screen_->load();
  }

  static void choose(ui::ComboBox& projects, ui::ComboBox& routes, const std::string& route) {
    projects.choose(0);
    for (std::size_t i = 0; i < routes.items().size(); ++i)
      if (routes.items()[i].starts_with(route)) routes.choose(static_cast<int>(i));
  }
  void chooseObserved(route::SelectionScreen& screen, const std::string& route) {
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen.find("LstDataKubun"))) categories->choose(0);
    choose(screen.cmbJIgyoBango1, screen.cmbRosenBango1, route);
  }
  void chooseSaved(const std::string& route) {
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen_->find("LstDataKubun1"))) categories->choose(0);
    choose(screen_->cmbJIgyoBango2, screen_->cmbRosenBango2, route);
  }

  /// Opens the first route, types into two entries and takes the second back, so that there is something on
  /// both sides.
  void work() {
    chooseObserved(*screen_, "R001");
    screen_->openButton.press();
    ui::Grid& grid = screen_->Grid1;
    for (const char32_t key : {U'7', U'8'}) {
      const auto entry = ui::nextEntry(grid, ui::Way::Forward);
      if (!entry) return;  // the ellipsoidal correction types into boxes
      grid.click(entry->row, entry->col);
      grid.pressKey(key);
    }
    screen_->history().undo();
    ASSERT_NE(screen_->history().undoName(), "");
    ASSERT_NE(screen_->history().redoName(), "");
  }

  /// Gives up at each record in turn, then lets the opening come to its end.
  void expectAllAsBefore(ui::Button& button) {
    const auto before = test::shownOn(*screen_);
    desktop_.works.clear();
    int patience = 0;
    do {
      desktop_.patience = patience++;
      button.press();
      if (desktop_.pieces > desktop_.patience) {
        ASSERT_EQ(test::shownOn(*screen_), before) << patience;
      }
    } while (desktop_.pieces > desktop_.patience && patience < 100);
    EXPECT_GE(patience, 5) << "four records were read";
    EXPECT_EQ(desktop_.works.front(), "読み込んでいます");
    EXPECT_EQ(desktop_.takeMessages(), std::vector<ui::Message>{});
    EXPECT_NE(test::shownOn(*screen_), before) << "at last it was opened";
  }

  test::SmallJob job_;
  test::ImpatientDesktop desktop_;
  std::unique_ptr<route::SelectionScreen> screen_ = GetParam().make(job_.context(), desktop_);
};

TEST_P(GivenUpOpenings, OfObservationsLeaveWhatWasOpen) {
  work();
  chooseObserved(*screen_, "S002");
  expectAllAsBefore(screen_->openButton);
  EXPECT_EQ(screen_->Grid1.text(1, 0), "S0021");
}

TEST_P(GivenUpOpenings, OfSavedResultsLeaveWhatWasOpen) {
  work();
  chooseSaved("S002");
  expectAllAsBefore(screen_->reopenButton);
  EXPECT_EQ(screen_->Grid1.text(1, 0), "S0021");
}

/// What was open is whole: it is saved, and the acts before go back to its opening.
TEST_P(GivenUpOpenings, LeaveARouteThatCanBeSavedAndTakenBack) {
  work();
  chooseObserved(*screen_, "S002");
  desktop_.patience = 2;
  screen_->openButton.press();
  if (!screen_->history().undoName().empty()) {
    EXPECT_EQ(screen_->history().redo(), "入力");
    EXPECT_EQ(screen_->history().undo(), "入力");
    EXPECT_EQ(screen_->history().undo(), "入力");
  }
  EXPECT_EQ(screen_->history().undo(), "");
  EXPECT_EQ(screen_->lblRosenbango.text(), "R001");
  screen_->saveItem.press();
  EXPECT_EQ(desktop_.takeMessages(), std::vector<ui::Message>{saved});
}

TEST_P(GivenUpOpenings, AreNoOthersWhereNobodyGivesUp) {
  test::RecordingDesktop plain;
  const auto other = GetParam().make(job_.context(), plain);
  other->load();
  for (route::SelectionScreen* screen : {other.get(), screen_.get()}) {
    chooseObserved(*screen, "S002");
    screen->openButton.press();
  }
  EXPECT_EQ(test::shownOn(*screen_), test::shownOn(*other));
}

INSTANTIATE_TEST_SUITE_P(Screens, GivenUpOpenings,
                         testing::Values(caseOf<seihyou::fSHsei>("Orthometric"),
                                         caseOf<daen::fDHsei>("Ellipsoidal"),
                                         caseOf<hend::fHHsei>("Variation"),
                                         caseOf<tanrosen::fTHsei>("SingleRoute")),
                         [](const auto& one) { return one.param.name; });

}  // namespace
