#include "route/saved_watch.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "support/asking_desktop.h"
#include "support/small_job.h"

namespace {

/// Route R001 with three saved records, and what a screen that has opened it would put in their place.
class SavedWatches : public testing::Test {
 protected:
  SavedWatches() {
    for (const char* order : {"1", "2", "3"}) insert(order);
    parts[0].writes = 3;
    watch.look(path(), parts);
  }

  void insert(const std::string& order) const {
    job.sql("INSERT INTO KansokuSeikaDataSeihyou (JobId, 路線番号, SaveOrder, 標高) VALUES ('3','R001'," +
            order + ",10)");
  }
  const std::string& path() const { return job.context().gDbPath; }
  bool maySave() { return watch.maySave(desktop, path(), parts); }

  test::SmallJob job;
  test::AskingDesktop desktop;
  route::SavedParts parts{{"路線 R001", "KansokuSeikaDataSeihyou",
                           db::Sql("SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R001'")}};
  route::SavedWatch watch;
};

TEST_F(SavedWatches, AskNothingWhileNobodyElseSaves) {
  EXPECT_TRUE(maySave());
  EXPECT_TRUE(desktop.questions.empty());
}

// One record changed, one added: 2 differ.
TEST_F(SavedWatches, TellHowManyRecordsSomebodyElseHasChanged) {
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = 11 WHERE SaveOrder = 2");
  insert("4");
  parts[0].writes = 4;
  EXPECT_FALSE(maySave());
  ASSERT_EQ(desktop.questions.size(), 1U);
  EXPECT_EQ(desktop.questions[0].text,
            "路線 R001 は、読み込んだあとで別に保存されています(2 行が違います)。\n"
            "保存すると、その内容は失われます。");
  desktop.answers = {"保存する"};
  EXPECT_TRUE(maySave()) << "the answer before was no: he is asked again";
  EXPECT_EQ(desktop.questions.size(), 2U);
}

TEST_F(SavedWatches, AskNothingWithoutSafeguards) {
  job.sql("DELETE FROM KansokuSeikaDataSeihyou");
  job.sql("DROP TABLE KansokuSeikaDataSeihyou");
  desktop.asks = false;
  EXPECT_TRUE(maySave());
}

TEST_F(SavedWatches, AskBeforeRecordsBecomeFewer) {
  parts[0].writes = 2;
  EXPECT_FALSE(maySave());
  ASSERT_EQ(desktop.questions.size(), 1U);
  EXPECT_EQ(desktop.questions[0].text,
            "路線 R001 の保存済みの 3 件が 2 件に減ります。\n減る分は失われます。");
}

TEST_F(SavedWatches, KnowNothingOfOthersBeforeALook) {
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = 11");
  watch.forget();
  EXPECT_TRUE(maySave());
  watch.look(path(), parts);
  EXPECT_TRUE(maySave());
  EXPECT_TRUE(desktop.questions.empty());
}

TEST_F(SavedWatches, TellWhereNothingCanBeSavedAtPresent) {
  EXPECT_EQ(watch.notice(), "");
  {
    const auto other = db::openDatabase(path());
    other->gather();
    watch.look(path(), parts);
    EXPECT_EQ(watch.notice(), "ほかのプログラムがジョブを使用中です。今は保存できません。");
    other->discard();
  }
  watch.look(path(), parts);
  EXPECT_EQ(watch.notice(), "");
}

/// A desk on which something happens while a question stands.
class BusyDesktop : public test::AskingDesktop {
 public:
  std::function<void()> meanwhile;

  std::size_t ask(const ui::Question& question) override {
    if (meanwhile) std::exchange(meanwhile, {})();
    return AskingDesktop::ask(question);
  }
};

// First record 2 is another one, then while that is asked about record 3 too: 1 and 1 differ.
TEST_F(SavedWatches, AskAnewAboutWhatIsSavedWhileTheyAsk) {
  BusyDesktop busy;
  busy.answers = {"保存する", "保存する"};
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = 11 WHERE SaveOrder = 2");
  busy.meanwhile = [this] { job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = 12 WHERE SaveOrder = 3"); };
  EXPECT_TRUE(watch.maySave(busy, path(), parts));
  ASSERT_EQ(busy.questions.size(), 2U);
  EXPECT_EQ(busy.questions[0].text, busy.questions[1].text);
  EXPECT_NE(busy.questions[1].text.find("(1 行が違います)"), std::string::npos);
}

// What is looked at behind a save is known for the next one, or nothing is: no error follows "saved".
TEST_F(SavedWatches, LookBehindASaveWithoutAWord) {
  insert("4");
  parts[0].writes = 4;
  watch.lookBehind(desktop, path(), parts);
  EXPECT_TRUE(maySave());
  watch.lookBehind(desktop, job.folder().path("nowhere"), parts);
  insert("5");
  parts[0].writes = 5;
  EXPECT_TRUE(maySave());
  EXPECT_TRUE(desktop.questions.empty());
}

}  // namespace
