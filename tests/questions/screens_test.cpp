#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "daen/screen.h"
#include "hend/screen.h"
#include "hksnb/screen.h"
#include "route/selection_screen.h"
#include "seihyou/screen.h"
#include "support/asking_desktop.h"
#include "support/small_job.h"
#include "tanrosen/screen.h"

// What every screen asks before work goes or another's work is written over, on the screens themselves.

namespace {

/// A desk that says yes to whatever the findings ask, so that the other questions are reached. These are kept
/// and answered as an asking desk answers.
class Desk : public test::AskingDesktop {
 public:
  std::size_t ask(const ui::Question& question) override {
    if (question.text.find("計算に入っていない") != std::string::npos) return 1;
    if (question.text.find("点検で誤り") != std::string::npos) return 0;
    return AskingDesktop::ask(question);
  }

  /// The questions since the last call, a text each.
  std::vector<std::string> takeQuestions() {
    std::vector<std::string> texts;
    for (const ui::Question& question : questions) texts.push_back(question.text);
    questions.clear();
    return texts;
  }
};

const std::string unsaved = "路線 R001 に、保存していない変更が 1 セルあります。\n破棄すると失われます。";

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

class RouteQuestions : public testing::TestWithParam<Case> {
 protected:
  RouteQuestions() {
    for (const char* route : {"R001", "R002"})
      for (int order = 1; order <= 3; ++order)
        job_.observed(order, route, "B" + std::to_string(order), order == 1 ? "100" : "NULL", "1.5",
                      order == 3 ? "-1" : "", "'0'", "1");
    screen_->load();
    open();
  }

  void open() {
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen_->find("LstDataKubun"))) categories->choose(0);
    screen_->cmbJIgyoBango1.choose(0);
    screen_->cmbRosenBango1.choose(0);
    screen_->openButton.press();
  }
  void save() { screen_->saveItem.press(); }
  /// The operator changes one cell.
  void change() {
    const ui::History::Act act(&screen_->history(), "試験");
    screen_->Grid1.setText(1, 5, "試験");
  }
  void sql(const std::string& rest) const { job_.sql("UPDATE " + GetParam().table + " SET " + rest); }
  std::vector<std::string> remarks() const {
    return job_.records("SELECT * FROM " + GetParam().table + " WHERE 路線番号 = 'R001' ORDER BY SaveOrder",
                        {"SaveOrder", "備考2"});
  }

  using Texts = std::vector<std::string>;

  test::SmallJob job_;
  Desk desktop_;
  std::unique_ptr<route::SelectionScreen> screen_ = GetParam().make(job_.context(), desktop_);
};

TEST_P(RouteQuestions, EscAndEnterLoseNothing) {
  change();
  screen_->clearItem.press();
  screen_->cmbRosenBango1.choose(1);
  screen_->openButton.press();
  screen_->reopenButton.press();
  screen_->exitItem.press();
  screen_->leave();
  EXPECT_EQ(desktop_.takeQuestions(), Texts(5, unsaved));
  EXPECT_EQ(screen_->Grid1.text(1, 5), "試験");
  EXPECT_EQ(screen_->lblRosenbango.text(), "R001");
  EXPECT_TRUE(screen_->loaded());
  EXPECT_TRUE(remarks().empty());
}

TEST_P(RouteQuestions, NothingIsAskedWhereNothingIsUnsaved) {
  change();
  save();
  screen_->clearItem.press();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
  screen_->leave();
  EXPECT_FALSE(screen_->loaded());
}

// Of three records one gets another remark and one is deleted: 2 differ. The grid still has three.
TEST_P(RouteQuestions, WhatOthersHaveSavedIsNotWrittenOverUnasked) {
  save();
  ASSERT_EQ(remarks().size(), 3U);
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
  sql("備考2 = '別' WHERE SaveOrder = 2 AND 路線番号 = 'R001'");
  job_.sql("DELETE FROM " + GetParam().table + " WHERE SaveOrder = 3");
  const Texts theirs = remarks();
  desktop_.messages.clear();
  save();
  EXPECT_EQ(desktop_.takeQuestions(),
            Texts{"路線 R001 は、読み込んだあとで別に保存されています(2 行が違います)。\n"
                  "保存すると、その内容は失われます。"});
  EXPECT_EQ(remarks(), theirs);
  EXPECT_TRUE(desktop_.takeMessages().empty());
  desktop_.answers = {"保存する"};
  save();
  EXPECT_EQ(remarks().size(), 3U);
  EXPECT_EQ(desktop_.takeQuestions().size(), 1U);
  save();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{}) << "what is there now is the screen's own";
}

TEST_P(RouteQuestions, WhatOthersHaveSavedOfAnotherRouteIsNothingToThisOne) {
  save();
  job_.sql("INSERT INTO " + GetParam().table +
           " (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES ('3','1001','R002','0',1)");
  save();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
}

// Four records are there, three bench marks in the grid.
TEST_P(RouteQuestions, RecordsDoNotBecomeFewerUnasked) {
  save();
  job_.sql("INSERT INTO " + GetParam().table +
           " (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES ('3','1001','R001','0',4)");
  open();
  save();
  EXPECT_EQ(desktop_.takeQuestions(),
            Texts{"路線 R001 の保存済みの 4 件が 3 件に減ります。\n減る分は失われます。"});
  EXPECT_EQ(remarks().size(), 4U);
}

TEST_P(RouteQuestions, NothingMoreIsReadWithoutSafeguards) {
  desktop_.asks = false;
  save();
  sql("備考2 = '別'");
  job_.sql("INSERT INTO " + GetParam().table +
           " (JobId, 事業番号, 路線番号, DataKubun, SaveOrder) VALUES ('3','1001','R001','0',4)");
  save();
  change();
  screen_->clearItem.press();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
  EXPECT_EQ(remarks().size(), 3U);
}

// The saved records cannot be read: the operator is told, and nothing is lost.
TEST_P(RouteQuestions, ASavedTableThatCannotBeReadIsTold) {
  job_.sql("DROP TABLE " + GetParam().table);
  change();
  desktop_.messages.clear();
  save();
  EXPECT_EQ(desktop_.takeMessages().size(), 1U);
  desktop_.answers = {"保存"};
  screen_->leave();
  EXPECT_TRUE(screen_->loaded());
  EXPECT_EQ(screen_->Grid1.text(1, 5), "試験");
}

TEST_P(RouteQuestions, AJobThatAnotherProgramHoldsIsToldInTheStatusLine) {
  EXPECT_EQ(screen_->situation().notice, "");
  const auto other = db::openDatabase(job_.context().gDbPath);
  other->gather();
  open();
  EXPECT_EQ(screen_->situation().notice, "ほかのプログラムがジョブを使用中です。今は保存できません。");
  desktop_.asks = false;
  open();
  EXPECT_EQ(screen_->situation().notice, "") << "nothing is looked at without safeguards";
  other->discard();
}

INSTANTIATE_TEST_SUITE_P(Screens, RouteQuestions,
                         testing::Values(caseOf<seihyou::fSHsei>("Orthometric", "KansokuSeikaDataSeihyou"),
                                         caseOf<daen::fDHsei>("Ellipsoidal", "KansokuSeikaDataDaen"),
                                         caseOf<hend::fHHsei>("Variation", "KansokuSeikaDataHend"),
                                         caseOf<tanrosen::fTHsei>("SingleRoute", "KansokuSeikaDataTanrosen")),
                         [](const auto& one) { return one.param.name; });

/// The screen of the book with one stored book, number 1, over a route of two bench marks.
class BookQuestions : public testing::Test {
 protected:
  BookQuestions() {
    for (int order = 1; order <= 2; ++order) {
      const std::string name = "B" + std::to_string(order);
      job_.observed(order, "R001", name, order == 1 ? "100" : "NULL", "1.5", order == 2 ? "-1" : "");
      job_.sql(
          "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder,"
          " 水準点番号, 標高, 正標高補正数, 正標高結果) VALUES ('3','1001','R001','0'," +
          std::to_string(order) + ",'" + name + "',100,0,100)");
    }
    screen_.load();
    screen_.LstRosenNo1.choose(0);
    screen_.CmdExeC3.press();
    screen_.CmdExeC2.press();
    screen_.txtHksnbNo.edit("1");
    screen_.CmdExeE2.press();
  }

  void type() {
    screen_.Grid1.click(1, 9);
    screen_.Grid1.pressKey(U'9');
  }
  std::vector<std::string> stored() const {
    return job_.records("SELECT * FROM KansokuSeikaDataHKSNB ORDER BY 変動観測簿No, SaveOrder",
                        {"変動観測簿No", "水準点番号", "備考1"});
  }

  using Texts = std::vector<std::string>;

  test::SmallJob job_;
  Desk desktop_;
  hksnb::fHHksb screen_{job_.context(), desktop_};
};

TEST_F(BookQuestions, EscAndEnterLoseNothing) {
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
  type();
  screen_.CmdExeC2.press();
  screen_.Command1.press();
  screen_.m1item.press();
  screen_.leave();
  EXPECT_EQ(desktop_.takeQuestions(),
            Texts(4, "計算簿 1 に、保存していない変更が 1 セルあります。\n破棄すると失われます。"));
  EXPECT_EQ(screen_.Grid1.text(1, 9), "9");
  EXPECT_TRUE(screen_.loaded());
}

TEST_F(BookQuestions, MonthsThatWereChangedAreNotLostUnasked) {
  screen_.txtNewMonTo.edit("12");
  screen_.CmdExeC2.press();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{}) << "a new book goes by what the boxes hold";
  screen_.txtNewMonTo.edit("11");
  screen_.txtNewYearTo.edit("2021");
  screen_.leave();
  EXPECT_EQ(desktop_.takeQuestions(),
            Texts{"新しい計算簿 に、保存していない変更が 2 セルあります。\n破棄すると失われます。"});
}

TEST_F(BookQuestions, ABookOfAnotherNumberIsNotWrittenOverUnasked) {
  screen_.CmdExeC2.press();  // a new book; number 1 is another one
  const auto before = stored();
  screen_.CmdExeE2.press();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{"番号 1 の正標高補正の計算簿はすでにあります(水準点 2 点)。\n"
                                            "保存すると、その計算簿は失われます。"});
  EXPECT_EQ(stored(), before);
  screen_.txtHksnbNo.edit("2");
  screen_.CmdExeE2.press();
  EXPECT_EQ(desktop_.takeQuestions(), Texts{});
  EXPECT_EQ(stored().size(), 4U);
}

TEST_F(BookQuestions, ABookWithoutANumberIsNotStoredUnasked) {
  screen_.txtHksnbNo.edit("");
  screen_.CmdExeE2.press();
  ASSERT_EQ(desktop_.takeQuestions().size(), 1U);
  EXPECT_EQ(stored().size(), 2U);
  desktop_.answers = {"保存する"};
  screen_.CmdExeE2.press();
  EXPECT_EQ(stored().size(), 4U);
}

TEST_F(BookQuestions, WhatOthersHaveStoredIsNotWrittenOverUnasked) {
  job_.sql("UPDATE KansokuSeikaDataHKSNB SET 備考1 = '別' WHERE SaveOrder = 1");
  screen_.CmdExeE2.press();
  EXPECT_EQ(desktop_.takeQuestions(),
            Texts{"計算簿 1 は、読み込んだあとで別に保存されています(1 行が違います)。\n"
                  "保存すると、その内容は失われます。"});
  EXPECT_EQ(stored()[0], "1|B1|別");
  desktop_.answers = {"保存する"};
  screen_.CmdExeE2.press();
  EXPECT_EQ(stored()[0], "1|B1|-");
}

TEST_F(BookQuestions, AJobThatAnotherProgramHoldsIsToldInTheStatusLine) {
  const auto other = db::openDatabase(job_.context().gDbPath);
  other->gather();
  screen_.CmdExeC2.press();
  EXPECT_EQ(screen_.situation().notice, "ほかのプログラムがジョブを使用中です。今は保存できません。");
  other->discard();
  screen_.CmdExeC2.press();
  EXPECT_EQ(screen_.situation().notice, "");
}

}  // namespace
