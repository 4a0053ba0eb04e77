#include "script/session.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <utility>

#include <sstream>
#include <stdexcept>

#include "script/headless.h"
#include "support/temporary_folder.h"

namespace {

using script::Options;
using script::parseOptions;

/// What a run left on its streams.
struct Outcome {
  int status = 0;
  std::string out;
  std::string errors;
};

Outcome run(const std::vector<std::string>& words, const std::string& input = {},
            const script::WindowHandsMaker& windows = {}) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream errors;
  const int status = script::runSession(words, windows, {in, out, errors});
  return {status, out.str(), errors.str()};
}

TEST(ParseOptions, ScriptAndDatabase) {
  EXPECT_EQ(parseOptions({"a.txt", "job.sqlite"}),
            (Options{false, false, std::nullopt, "a.txt", "job.sqlite"}));
  EXPECT_EQ(parseOptions({"--safeguards", "a", "b"}), (Options{false, true, std::nullopt, "a", "b"}));
  EXPECT_EQ(parseOptions({"-", ""}), (Options{false, false, std::nullopt, "-", ""}));
  EXPECT_EQ(parseOptions({"--window", "--program-folder", "--x", "a", "--window"}),
            (Options{true, false, "--x", "a", "--window"}));
}

TEST(ParseOptions, ARecordOfAScriptOrOfAPerson) {
  EXPECT_EQ(parseOptions({"--record", "r.txt", "a", "b"}),
            (Options{false, false, std::nullopt, "a", "b", "r.txt"}));
  EXPECT_EQ(parseOptions({"--record", "r.txt", "job.sqlite"}),
            (Options{false, false, std::nullopt, "", "job.sqlite", "r.txt"}));
  EXPECT_FALSE(parseOptions({"--record", "", "a", "b"}));
}

TEST(Session, ARecordThatCannotBeWrittenEndsItBeforeItBegins) {
  const test::TemporaryFolder folder;
  const Outcome outcome = run({"--record", folder.path("missing/r.txt"), "-", "job"});
  EXPECT_EQ(outcome.status, 64);
  EXPECT_EQ(outcome.out, "");
}

TEST(Session, WithoutWindowsNoPersonCanWork) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(run({"--record", folder.path("r.txt"), "job"}).status, 64);
}

TEST(ParseOptions, RefusesWhatDoesNotFit) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{},
                                                {"a"},
                                                {"a", "b", "c"},
                                                {"--window", "a"},
                                                {"--wrong", "a", "b"},
                                                {"--program-folder"},
                                                {"--program-folder", "a", "b"},
                                                {"--program-folder", "", "a", "b"},
                                                {"", "b"},
                                                {"a", "b", "--window"}})
    EXPECT_FALSE(parseOptions(words)) << testing::PrintToString(words);
}

TEST(Session, AWrongCommandLineTellsTheUsage) {
  const Outcome outcome = run({"--wrong"});
  EXPECT_EQ(outcome.status, 64);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(outcome.errors, "コマンドの書き方が違います。\n" + script::usage());
}

TEST(Session, AScriptThatCannotBeReadIsNamed) {
  const test::TemporaryFolder folder;
  const std::string large = folder.write("large.txt", "");
  std::filesystem::resize_file(large, (16U << 20U) + 1);  // of holes: it takes no room
  for (const auto& [path, why] : {std::pair{folder.path("missing.txt"), "が見つかりません。"},
                                  std::pair{folder.path(), "はフォルダです。"},
                                  std::pair{large, "は大きすぎます（17 MB）。読めるのは 16 MB までです。"}}) {
    const Outcome outcome = run({path, "job.sqlite"});
    EXPECT_EQ(outcome.status, 64);
    EXPECT_EQ(outcome.errors, "操作手順のファイル「" + path + "」" + why + "\n" + script::usage());
  }
}

TEST(Session, WindowsMustHaveBeenBuilt) {
  const Outcome outcome = run({"--window", "-", "job.sqlite"});
  EXPECT_EQ(outcome.status, 64);
  EXPECT_TRUE(outcome.errors.starts_with("この seikahyou-script はウィンドウなしで作られています"))
      << outcome.errors;
}

TEST(Session, WindowsThatCannotBeHadEndIt) {
  const auto none = []() -> std::unique_ptr<script::Hands> { throw std::runtime_error("画面がありません"); };
  const Outcome outcome = run({"--window", "-", "job.sqlite"}, {}, none);
  EXPECT_EQ(outcome.status, 64);
  EXPECT_TRUE(outcome.errors.starts_with("ウィンドウを開けません: 画面がありません\n")) << outcome.errors;
}

TEST(Session, ADatabaseThatIsNotThereIsAnUnhandledError) {
  const test::TemporaryFolder folder;
  const std::string database = folder.path("missing.sqlite");
  const Outcome outcome = run({"--program-folder", folder.path(), "-", database}, "screen\n");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.out.starts_with("unhandled error: ")) << outcome.out;
  EXPECT_EQ(outcome.out.find('\n'), outcome.out.size() - 1);
  EXPECT_EQ(outcome.errors, "");
}

TEST(Session, WindowHandsAreUsedWhereAskedFor) {
  const test::TemporaryFolder folder;
  int made = 0;
  const auto windows = [&made] {
    ++made;
    return script::headlessHands();
  };
  run({"--window", "-", folder.path("missing.sqlite")}, {}, windows);
  EXPECT_EQ(made, 1);
  run({"-", folder.path("missing.sqlite")}, {}, windows);
  EXPECT_EQ(made, 1);
}

}  // namespace
