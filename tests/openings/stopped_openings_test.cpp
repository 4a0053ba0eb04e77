#include <gtest/gtest.h>
#include <sqlite3.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "daen/screen.h"
#include "hend/screen.h"
#include "route/selection_screen.h"
#include "seihyou/screen.h"
#include "support/recording_desktop.h"
#include "support/small_job.h"
#include "tanrosen/screen.h"

// An opening that stops halfway leaves a part of a route in the grid. In every route screen and for whatever
// reason: a save then must not take that part for the route.

namespace {

using Messages = std::vector<ui::Message>;

const ui::Message saved{{}, "保存しました", ui::Icon::None};
const ui::Message refused{
    {}, "読込が途中で終わったため保存しません。もう一度読み込んでください。", ui::Icon::None};

/// A screen, where it saves to, and how a route is chosen on it.
struct Case {
  std::string name;
  std::string table;
  std::function<std::unique_ptr<route::SelectionScreen>(const job::JobContext&, ui::Desktop&)> make;

  friend void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }
};

template <class Screen>
Case caseOf(const char* name, const char* table) {
  return {name, table, [](const job::JobContext& context, ui::Desktop& desktop) {
            return std::make_unique<Screen>(context, desktop);
          }};
}

class StoppedOpenings : public testing::TestWithParam<Case> {
 protected:
  StoppedOpenings() {
    observe("R001");
    observe("3-1'");
    screen_->load();
  }

  void observe(const std::string& route) {
    for (int order = 1; order <= 3; ++order)
      job_.observed(order, route == "3-1'" ? "3-1''" : route, "B" + std::to_string(order), "100", "1.5",
                    order == 3 ? "-1" : "");
  }

  /// Chooses the route from the observations and presses the button that opens it. The variation screen lets
  /// errors pass.
  void open(const std::string& route) {
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen_->find("LstDataKubun"))) categories->choose(0);
    screen_->cmbJIgyoBango1.choose(0);
    const auto& routes = screen_->cmbRosenBango1.items();
    for (std::size_t i = 0; i < routes.size(); ++i)
      if (routes[i] == route) screen_->cmbRosenBango1.choose(static_cast<int>(i));
    pressOpen();
  }
  void pressOpen() {
    try {
      screen_->openButton.press();
    } catch (const text::RuntimeError& error) {
      desktop_.message({"passed", error.what(), ui::Icon::Critical});
    }
  }

  Messages save() {
    desktop_.messages.clear();
    screen_->saveItem.press();
    return desktop_.takeMessages();
  }

  std::vector<std::string> records() const {
    return job_.records("SELECT * FROM " + GetParam().table + " ORDER BY 路線番号, SaveOrder",
                        {"路線番号", "SaveOrder", "RosenEndDataFlg"});
  }

  /// Saves a route, has the next opening stopped by `trouble`, and tries to save again.
  void expectKept(const std::function<void()>& trouble) {
    open("R001");
    ASSERT_EQ(save(), Messages{saved});
    const auto before = records();
    ASSERT_EQ(before.size(), 3U);
    trouble();
    desktop_.messages.clear();
    pressOpen();
    EXPECT_FALSE(desktop_.takeMessages().empty());
    EXPECT_EQ(save(), Messages{refused});
    EXPECT_EQ(records(), before);
  }

  /// The trouble is over: the route opens and is saved as ever.
  void expectSavedAgain() {
    pressOpen();
    EXPECT_EQ(save(), Messages{saved});
    EXPECT_EQ(records().size(), 3U);
  }

  test::SmallJob job_;
  test::RecordingDesktop desktop_;
  std::unique_ptr<route::SelectionScreen> screen_ = GetParam().make(job_.context(), desktop_);
};

TEST_P(StoppedOpenings, ByAMissingColumn) {
  expectKept([this] { job_.sql("ALTER TABLE KansokuSeikaData RENAME COLUMN 中数 TO 中数2"); });
  job_.sql("ALTER TABLE KansokuSeikaData RENAME COLUMN 中数2 TO 中数");
  expectSavedAgain();
}

// 16,384 bench marks need 32,768 rows and the header: more than the grid holds.
TEST_P(StoppedOpenings, ByARouteLongerThanTheGrid) {
  expectKept([this] {
    job_.sql(
        "WITH RECURSIVE n(i) AS (SELECT 4 UNION ALL SELECT i + 1 FROM n WHERE i < 16400)"
        " INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 中数)"
        " SELECT '3','1001','R001','0', i, 'BM', 0.001 FROM n");
  });
  job_.sql("DELETE FROM KansokuSeikaData WHERE SaveOrder > 3");
  expectSavedAgain();
}

TEST_P(StoppedOpenings, ByALock) {
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(job_.context().gDbPath.c_str(), &other), SQLITE_OK);
  const auto tell = [other](const char* sql) {
    ASSERT_EQ(sqlite3_exec(other, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(other);
  };
  open("R001");
  ASSERT_EQ(save(), Messages{saved});
  tell("BEGIN EXCLUSIVE");
  pressOpen();
  EXPECT_FALSE(desktop_.takeMessages().empty());
  tell("ROLLBACK");
  EXPECT_EQ(save(), Messages{refused});
  EXPECT_EQ(records().size(), 3U);
  expectSavedAgain();
  sqlite3_close(other);
}

// A save that is stopped at its third record: with safeguards the route saved before stays whole, without
// them its two first records are what there is.
TEST_P(StoppedOpenings, NorDoesAStoppedSaveCutTheRouteWithSafeguards) {
  open("R001");
  ASSERT_EQ(save(), Messages{saved});
  const auto before = records();
  job_.sql("CREATE TRIGGER refuse BEFORE INSERT ON " + GetParam().table +
           " WHEN NEW.SaveOrder = 3 BEGIN SELECT RAISE(ABORT, 'refused'); END");
  desktop_.guarded = true;
  const Messages told = save();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_NE(told[0].text.find("保存前の成果はそのまま残っています。"), std::string::npos);
  EXPECT_EQ(records(), before);
  desktop_.guarded = false;
  EXPECT_EQ(save().size(), 1U);
  EXPECT_EQ(records().size(), 2U);
}

TEST_P(StoppedOpenings, AQuoteInANameIsNone) {
  open("3-1'");
  EXPECT_TRUE(desktop_.takeMessages().empty());
  EXPECT_EQ(screen_->Grid1.text(1, 0), "B1");
  EXPECT_EQ(save(), Messages{saved});
  EXPECT_EQ(records().size(), 3U);
}

TEST_P(StoppedOpenings, ARouteWithoutRecordsIsNone) {
  open("R001");
  ASSERT_EQ(save(), Messages{saved});
  job_.sql("DELETE FROM KansokuSeikaData");
  pressOpen();
  EXPECT_TRUE(desktop_.takeMessages().empty());
  EXPECT_EQ(save(), Messages{saved});
  EXPECT_TRUE(records().empty());
}

INSTANTIATE_TEST_SUITE_P(Screens, StoppedOpenings,
                         testing::Values(caseOf<seihyou::fSHsei>("Orthometric", "KansokuSeikaDataSeihyou"),
                                         caseOf<daen::fDHsei>("Ellipsoidal", "KansokuSeikaDataDaen"),
                                         caseOf<hend::fHHsei>("Variation", "KansokuSeikaDataHend"),
                                         caseOf<tanrosen::fTHsei>("SingleRoute", "KansokuSeikaDataTanrosen")),
                         [](const auto& one) { return one.param.name; });

}  // namespace
