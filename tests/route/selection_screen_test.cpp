#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/files.h"
#include "route/route_screen.h"
#include "support/recording_desktop.h"
#include "support/small_job.h"
#include "text/error.h"
#include "ui/grid_helpers.h"

namespace {

/// A route correction that only tells what it was asked to do.
class Probe : public route::RouteScreen {
 public:
  Probe(const job::JobContext& context, ui::Desktop& desktop)
      : RouteScreen({.screen = "fProbe",
                     .caption = "試験",
                     .openButton = "CmdDataOpen",
                     .openCaption = "読込(&O)",
                     .reopenButton = "CmdReOpen",
                     .reopenCaption = "再読込(&R)",
                     .menuItem = "mitem",
                     .resultTable = "KansokuSeikaDataSeihyou"},
                    context, desktop, 6000, 4000) {}

  std::vector<std::string> story;
  bool failing = false;   ///< raises an error
  bool stopping = false;  ///< reports that it did not come to its end

 private:
  void Form_Load() override { ui::FcEditSetLstDataKubun(LstDataKubun, LstDataKubun1); }
  void setUpGrids() override { story.push_back("grids"); }
  bool openData(const route::Selection& selection) override { return tell("open", selection); }
  bool reopenData(const route::Selection& selection) override { return tell("reopen", selection); }
  bool saveData(const route::Selection& selection) override {
    tell("save", selection);
    return true;
  }
  std::unique_ptr<SelectionScreen> another(ui::Desktop& desk) const override {
    return std::make_unique<Probe>(context_, desk);
  }
  report::Document tables(const std::string& route) const override { return {route, {}, {{}}, {}}; }
  report::Diagram profile() const override { return {}; }
  int dataPage() const override { return 1; }

  bool tell(const char* what, const route::Selection& selection) {
    if (failing) throw text::RuntimeError(text::ErrorCode::Overflow);
    story.push_back(std::string(what) + " " + selection.jigyoBango + "/" + selection.rosenBango + "/" +
                    selection.dataKubun + "/" + selection.previousRosen);
    return !stopping;
  }
};

class RouteScreens : public testing::Test {
 protected:
  RouteScreens() {
    job.observed(1, "R001", "B1", "10", "1");
    job.observed(2, "R002", "C1", "10", "1");
    job.sql(
        "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES"
        " ('3','1001','R005','2')");
    screen.load();
  }

  void chooseObserved() {
    screen.LstDataKubun.choose(0);
    screen.cmbJIgyoBango1.choose(0);
    screen.cmbRosenBango1.choose(1);
  }

  std::vector<std::string> takeStory() {
    std::vector<std::string> taken;
    taken.swap(screen.story);
    return taken;
  }

  using Story = std::vector<std::string>;

  test::SmallJob job;
  test::RecordingDesktop desktop;
  Probe screen{job.context(), desktop};
};

TEST_F(RouteScreens, OpenWhatWasChosen) {
  chooseObserved();
  screen.openButton.press();
  EXPECT_EQ(takeStory(), (Story{"grids", "open 1001/R002/0/R001"}));
  EXPECT_EQ(screen.lblJigyobango.text(), "1001");
  EXPECT_EQ(screen.lblRosenbango.text(), "R002");
  EXPECT_EQ(screen.lblDatakubun.text(), "0:1往復 本作業、検測、取付");
  EXPECT_EQ(screen.SSTab1.current(), 1);
  EXPECT_EQ(desktop.pointers, (std::vector{ui::Pointer::Hourglass, ui::Pointer::Default}));
}

TEST_F(RouteScreens, OfferTheSavedRoutesOfTheChosenProject) {
  EXPECT_TRUE(screen.savedRoutes().empty());
  screen.LstDataKubun1.choose(2);
  screen.cmbJIgyoBango2.choose(0);
  EXPECT_EQ(screen.savedRoutes(), Story{"R005"});
  EXPECT_EQ(screen.chosenProject(), "1001");
}

TEST_F(RouteScreens, OfferAFamilyOfSavedRoutesOnce) {
  for (const char* route : {"01B00101", "02B00101", "01B00201"})
    job.sql(
        "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES ('3','1001','" +
        std::string(route) + "','1')");
  screen.LstDataKubun1.choose(1);
  screen.cmbJIgyoBango2.choose(0);
  EXPECT_EQ(screen.savedRoutes(), (Story{"01B00101", "01B00201"}));
}

TEST_F(RouteScreens, PutSavedRoutesIntoOneDocumentWithoutOpeningThem) {
  job.sql(
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun) VALUES "
      "('3','1001','R006','2')");
  screen.LstDataKubun1.choose(2);
  screen.cmbJIgyoBango2.choose(0);
  takeStory();
  const report::Document document = screen.savedDocument({0, 1}, {});
  EXPECT_EQ(document.title, "R005");
  EXPECT_EQ(document.parts.size(), 2U);
  EXPECT_TRUE(takeStory().empty()) << "what is open stays as it is";
  EXPECT_EQ(screen.lblRosenbango.text(), "");
  EXPECT_THROW(screen.savedDocument({0, 1}, [](std::size_t, std::size_t) { return false; }),
               report::Cancelled);
}

// Column 1 takes text on every row, figures on row 2 alone.
TEST_F(RouteScreens, LeadToTheFirstEntry) {
  screen.Grid1.setRows(4);
  screen.Grid1.setCols(3);
  screen.Grid1.setCellUse([](int row, int col) {
    return col != 1 ? ui::CellUse::Shown : row == 2 ? ui::CellUse::Number : ui::CellUse::Text;
  });
  screen.Grid1.setCurrent(3, 2);
  chooseObserved();
  screen.openButton.press();
  EXPECT_EQ(screen.Grid1.row(), 2);
  EXPECT_EQ(screen.Grid1.col(), 1);
  screen.Grid1.setCurrent(3, 2);
  screen.reopenButton.press();
  EXPECT_EQ(screen.Grid1.row(), 2);
  EXPECT_EQ(screen.Grid1.col(), 1);
}

TEST_F(RouteScreens, ReopenFromTheirOwnSecondSet) {
  screen.LstDataKubun1.choose(2);
  screen.cmbJIgyoBango2.choose(0);
  screen.cmbRosenBango2.choose(0);
  screen.reopenButton.press();
  EXPECT_EQ(takeStory(), (Story{"grids", "reopen 1001/R005/2/"}));
  EXPECT_EQ(screen.cmbJIgyoBango1.count(), 0);
}

TEST_F(RouteScreens, SaveUnderTheKeysOfTheLabelsWhateverIsChosenSince) {
  chooseObserved();
  screen.openButton.press();
  screen.cmbRosenBango1.choose(0);
  takeStory();
  screen.saveItem.press();
  EXPECT_EQ(takeStory(), Story{"save 1001/R002/0/"});
}

TEST_F(RouteScreens, SaveNothingBeforeARouteIsOpenAndAfterClear) {
  screen.saveItem.press();
  EXPECT_EQ(takeStory(), Story{});
  chooseObserved();
  screen.openButton.press();
  screen.clearItem.press();
  EXPECT_EQ(screen.lblRosenbango.text(), "");
  takeStory();
  screen.saveItem.press();
  EXPECT_EQ(takeStory(), Story{});
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RouteScreens, SaveNothingAfterAnOpeningThatEndedWithAnError) {
  const std::vector<ui::Message> refusal = {
      {{}, "読込が途中で終わったため保存しません。もう一度読み込んでください。", ui::Icon::None}};
  chooseObserved();
  for (bool* trouble : {&screen.failing, &screen.stopping}) {
    *trouble = true;
    screen.openButton.press();
    *trouble = false;
    desktop.messages.clear();
    takeStory();
    screen.saveItem.press();
    screen.saveItem.press();
    EXPECT_EQ(takeStory(), Story{});
    EXPECT_EQ(desktop.takeMessages(), (std::vector{refusal[0], refusal[0]}));
  }
  screen.openButton.press();  // now it succeeds
  takeStory();
  screen.saveItem.press();
  EXPECT_EQ(takeStory(), Story{"save 1001/R002/0/"});
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RouteScreens, ClearEndsTheRefusal) {
  chooseObserved();
  screen.stopping = true;
  screen.openButton.press();
  screen.clearItem.press();
  screen.lblJigyobango.setText("1001");
  screen.lblRosenbango.setText("R009");
  screen.lblDatakubun.setText("0");
  takeStory();
  screen.saveItem.press();
  EXPECT_EQ(takeStory(), Story{"save 1001/R009/0/"});
  EXPECT_TRUE(desktop.messages.empty());
}

TEST_F(RouteScreens, ReportErrorsUnderControlAndEvent) {
  chooseObserved();
  screen.openButton.press();
  desktop.pointers.clear();
  screen.failing = true;
  screen.openButton.press();
  screen.LstDataKubun1.choose(2);
  screen.reopenButton.press();
  const char* overflow = "オーバーフローしました。";
  EXPECT_EQ(desktop.messages, (std::vector<ui::Message>{{"CmdDataOpen_Click", overflow, ui::Icon::Critical},
                                                        {"CmdReOpen_Click", overflow, ui::Icon::Critical}}));
  EXPECT_EQ(desktop.pointers.back(), ui::Pointer::Default);
}

TEST_F(RouteScreens, ReportADatabaseThatIsGone) {
  platform::removeFile(job.context().gDbPath);
  screen.LstDataKubun.choose(0);
  ASSERT_EQ(desktop.messages.size(), 1U);
  EXPECT_EQ(desktop.messages[0].title, "LstDataKubun_Click");
  EXPECT_EQ(desktop.messages[0].icon, ui::Icon::Critical);
}

TEST_F(RouteScreens, EndFromTheirMenu) {
  screen.exitItem.press();
  EXPECT_FALSE(screen.loaded());
}

}  // namespace
