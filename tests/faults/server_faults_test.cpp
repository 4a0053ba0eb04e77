#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "counting.h"
#include "cutting_proxy.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "open/open.h"
#include "save_law.h"
#include "screen_work.h"
#include "support/postgres_server.h"
#include "support/recording_desktop.h"
#include "support/server_tests.h"

// A job on a PostgreSQL server, and what can come between: the connection is cut at any message, the server
// dies and comes back, a record is refused. The law of saves holds, the message names the cause, the grid is
// kept, and a save after it succeeds.

namespace {

using test::CuttingProxy;
using Cut = CuttingProxy::Cut;
using Passed = CuttingProxy::Passed;

test::PostgresServer& server() {
  static test::PostgresServer one(test::PostgresServer::Disk::LeftToTheSystem);
  return one;
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
  return text.replace(text.find(part), part.size(), by);
}

class ServerFaults : public testing::TestWithParam<std::size_t> {
 protected:
  ServerFaults() {
    context_.gDbPath = folder_.write("職場.dsn", replaced(source_, server().folder(), folder_.path()));
    test::RecordingDesktop desktop;
    work().openAndSave(context_, desktop);
    EXPECT_EQ(desktop.takeMessages(), std::vector{test::savedMessage});
    for (const std::string& table : work().tables) counts_.push_back(orders(table).size());
    makeOld();
  }

  /// The data source of the job that all tests of a screen have; each leaves it as it has found it.
  static std::string source() {
    static std::map<std::size_t, std::string> made;
    std::string& source = made[GetParam()];
    if (!source.empty()) return source;
    source = server().newDatabase();
    const test::WorkedJob local;
    const std::string direct = local.folder().write("直接.dsn", source);
    std::ostringstream progress;
    exchange::createJob(direct);
    exchange::copyJob(local.context().gDbPath, direct, true, progress);
    return source;
  }

  const test::ScreenWork& work() const { return test::screenWorks()[GetParam()]; }

  bool savesTwo() const { return work().tables.size() > 1; }

  /// Runs statements on the server itself.
  void execute(const std::string& sql) const {
    const auto database = db::openDatabase(direct_);
    database->execute(sql);
    database->close();
  }

  /// Old records are known by the blank behind their job.
  void makeOld() const {
    for (const std::string& table : work().tables) execute("UPDATE " + table + " SET JobId = '3 '");
  }

  /// The jobs of all records of a table, blanks and all.
  std::vector<std::string> orders(const std::string& table) const {
    std::vector<std::string> found;
    const auto database = db::openDatabase(direct_);
    for (const auto records = database->openRecordset("SELECT JobId FROM " + table); !records->eof();
         records->moveNext())
      found.push_back(records->value(db::Column{0}).text());
    return found;
  }

  /// The server may still be at work for somebody whose connection is gone.
  void awaitQuiet() const {
    for (int i = 0; i < 500; ++i) {
      const auto database = db::openDatabase(direct_);
      const auto others = database->openRecordset(
          "SELECT COUNT(*) FROM pg_stat_activity WHERE datname = current_database() AND pid <> "
          "pg_backend_pid() AND backend_type = 'client backend'");
      if (others->value(db::Column{0}).number() == 0) return;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    FAIL() << "somebody is still at work";
  }

  test::TableStates states() const {
    awaitQuiet();
    test::TableStates found;
    for (std::size_t i = 0; i < counts_.size(); ++i) {
      const std::vector<std::string> jobs = orders(work().tables[i]);
      const auto olds = static_cast<std::size_t>(std::count(jobs.begin(), jobs.end(), "3 "));
      if (jobs.size() == counts_[i] && (olds == 0 || olds == counts_[i]))
        found.emplace_back(olds == 0 ? "new" : "old");
      else
        found.push_back(std::to_string(olds) + " old of " + std::to_string(jobs.size()));
    }
    return found;
  }

  struct Outcome {
    std::vector<ui::Message> told;
    test::TableStates states;
  };

  /// Opens, saves with `begin` just before, looks at what has come of it after `mend`, and saves once more.
  Outcome save(bool guarded, const std::function<void()>& begin, const std::function<void()>& mend) {
    test::RecordingDesktop desktop;
    desktop.guarded = guarded;
    const auto screen = work().choose(context_, desktop);
    screen->open();
    const std::string cells = screen->cells();
    EXPECT_TRUE(desktop.takeMessages().empty());
    begin();
    screen->save();
    mend();
    const Outcome outcome{desktop.takeMessages(), states()};
    EXPECT_EQ(screen->cells(), cells);
    makeOld();
    screen->save();
    EXPECT_EQ(desktop.takeMessages(), std::vector{test::savedMessage});
    EXPECT_EQ(states(), test::TableStates(counts_.size(), "new"));
    makeOld();
    return outcome;
  }

  /// How many messages a save is made of.
  std::int64_t messages(bool guarded) {
    std::int64_t count = 0;
    save(
        guarded, [&] { proxy_.arm({1000000}); },
        [&] {
          count = proxy_.count();
          proxy_.disarm();
        });
    return count;
  }

  /// Cuts a save there and judges it.
  void cutSave(
      const Cut& cut, bool guarded, const std::function<void()>& mend = [] {}) {
    bool struck = false;
    const Outcome outcome = save(
        guarded, [&] { proxy_.arm(cut); },
        [&] {
          struck = proxy_.disarm();
          mend();
        });
    const std::string where = "message " + std::to_string(cut.at) + (guarded ? ", with safeguards" : "");
    test::judge(outcome.states, outcome.told, guarded, where);
    const std::string& last = outcome.told.back().text;
    EXPECT_TRUE(outcome.told.back() == test::savedMessage || tellsLoss(last)) << where << ": " << last;
    if (struck) ++cuts_;
  }

  /// True for the words by which the way to the server is told to be the cause.
  static bool tellsLoss(const std::string& text) {
    const std::vector<std::string> words{"との接続が切れました", "に接続できません",
                                         "保存されたかどうか分かりません"};
    return std::any_of(words.begin(), words.end(),
                       [&text](const std::string& one) { return text.find(one) != std::string::npos; });
  }

  /// Where a save of so many messages is cut: everywhere, or at a few places, most of them about its commit.
  std::vector<std::int64_t> places(std::int64_t count, int some) {
    std::vector<std::int64_t> chosen;
    if (test::isLong())
      for (std::int64_t at = 1; at <= count; ++at) chosen.push_back(at);
    for (int i = 0; i < some && !test::isLong(); ++i)
      chosen.push_back(1 + static_cast<std::int64_t>(chance_() % static_cast<std::uint64_t>(count)));
    return chosen;
  }

  /// The message that asks for the commit, and its answers, are the last of a save without safeguards.
  std::vector<Cut> cutsOf(std::int64_t count, bool guarded) {
    std::vector<Cut> cuts;
    for (const std::int64_t at : places(count, 1))
      for (const Passed passed : {Passed::Nothing, Passed::Half, Passed::Whole})
        if (test::isLong() || chance_() % 3 == 0) cuts.push_back({at, passed});
    if (!guarded && (test::isLong() || savesTwo()))
      for (std::int64_t at = count - 2; at <= count; ++at) cuts.push_back({at, Passed::Whole, at == count});
    return cuts;
  }

  test::SmallJob local_;
  test::TemporaryFolder folder_;
  std::string source_ = source();
  std::string direct_ = folder_.write("直接.dsn", source_);
  job::JobContext context_ = local_.context();
  CuttingProxy proxy_{server().folder(), folder_.path()};
  std::vector<std::size_t> counts_;
  std::mt19937 chance_{20261122U + static_cast<unsigned>(GetParam())};
  int cuts_ = 0;
};

TEST_P(ServerFaults, NoCutConnectionCostsASavedRecord) {
  for (const bool guarded : {false, true})
    for (const Cut& cut : cutsOf(messages(guarded), guarded)) cutSave(cut, guarded);
  test::tellCount("cuts", cuts_);
}

TEST_P(ServerFaults, NoDyingServerCostsASavedRecord) {
  const int deaths = test::share(work().name == "Book" ? 1 : 0, 20);
  for (const bool guarded : {false, true})
    for (int i = 0; i < deaths; ++i) {
      const auto count = static_cast<std::uint64_t>(messages(guarded));
      const auto at = static_cast<std::int64_t>(guarded ? chance_() % count : count - chance_() % 40);
      const auto die = [] { server().stopAtOnce(); };
      cutSave({std::max<std::int64_t>(at, 1), Passed::Nothing, true, die}, guarded,
              [] { server().startAgain(); });
    }
  test::tellCount("deaths", cuts_);
}

/// Without safeguards what came before the refused record stays, as far as it came.
TEST_P(ServerFaults, ARefusedRecordCostsNoneWithSafeguards) {
  if (!test::isLong() && !savesTwo()) return;  // a share
  constexpr int refused = 3;
  server().run(source_,
               "CREATE OR REPLACE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN IF "
               "NEW.\"SaveOrder\" = " +
                   std::to_string(refused) + " THEN RAISE EXCEPTION 'no third'; END IF; RETURN NEW; END $$");
  const std::string& table = work().tables.front();
  for (const bool guarded : {false, true}) {
    const Outcome outcome = save(
        guarded,
        [&] {
          server().run(source_, "CREATE TRIGGER refuse BEFORE INSERT ON \"" + table +
                                    "\" FOR EACH ROW EXECUTE FUNCTION refuse()");
        },
        [&] { server().run(source_, "DROP TRIGGER refuse ON \"" + table + "\""); });
    const std::string& last = outcome.told.back().text;
    EXPECT_EQ(outcome.told.size(), 1U) << last;
    EXPECT_NE(last.find("no third"), std::string::npos) << last;
    EXPECT_EQ(last.find("保存前の成果はそのまま残っています") != std::string::npos, guarded) << last;
    EXPECT_EQ(outcome.states.front(), guarded ? "old" : "0 old of " + std::to_string(refused - 1)) << last;
  }
}

INSTANTIATE_TEST_SUITE_P(Screens, ServerFaults, testing::Range<std::size_t>(0, 5),
                         [](const auto& one) { return test::screenWorks()[one.param].name; });

}  // namespace

int main(int argc, char** argv) { return test::runServerTests(argc, argv); }
