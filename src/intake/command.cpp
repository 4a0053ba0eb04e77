#include "intake/command.h"

#include <map>
#include <optional>
#include <ostream>
#include <utility>

#include "exchange/command.h"
#include "intake/cells.h"
#include "intake/store.h"
#include "open/open.h"
#include "platform/input_file.h"
#include "platform/text_encoding.h"
#include "text/error.h"
#include "text/reason.h"

namespace intake {
namespace {

constexpr const char* name = "import-observations";
constexpr int failed = 1;
constexpr int wrongCommandLine = 64;

constexpr const char* usage =
    "  seikahyou-job import-observations ジョブ ファイル [--encoding utf-8|cp932] [--job 番号] [--project "
    "事業番号]\n"
    "                [--route 路線番号] [--category 0-4] [--over] [--preview]\n"
    "      観測成果の表 (CSV、タブ区切り) を取り込みます。--over は、ジョブにある同じ路線を置き換えます。\n"
    "      --preview は、取り込む内容を表示するだけです。\n";

/// A command line, taken apart.
struct Request {
  std::vector<std::string> operands;
  std::map<std::string, std::string> values;  ///< of the options that have one
  bool over = false;
  bool preview = false;

  std::string value(const std::string& option, const std::string& otherwise = {}) const {
    const auto found = values.find(option);
    return found == values.end() ? otherwise : found->second;
  }
};

bool takeOption(Request& request, const std::vector<std::string>& words, std::size_t& at) {
  const std::string& option = words[at];
  if (option == "--over") return !std::exchange(request.over, true);
  if (option == "--preview") return !std::exchange(request.preview, true);
  for (const char* known : {"--encoding", "--job", "--project", "--route", "--category"})
    if (option == known) return ++at < words.size() && request.values.emplace(option, words[at]).second;
  return false;
}

std::optional<Request> parse(const std::vector<std::string>& words) {
  Request request;
  for (std::size_t at = 1; at < words.size(); ++at) {
    if (!words[at].starts_with("--"))
      request.operands.push_back(words[at]);
    else if (!takeOption(request, words, at))
      return std::nullopt;
  }
  const bool known = platform::encodingOf(request.value("--encoding", "utf-8")).has_value() &&
                     categoryCell(request.value("--category", "0")).has_value();
  return known && request.operands.size() == 2 ? std::optional(request) : std::nullopt;
}

std::string readText(const Request& request) {
  const std::string& file = request.operands[1];
  const std::string bytes = platform::readInput("ファイル", file, platform::mostTextBytes);
  auto words = platform::decoded(bytes, *platform::encodingOf(request.value("--encoding", "utf-8")));
  if (!words)
    throw db::Error("ファイル「" + file +
                    "」に文字として正しくないバイトがあります。--encoding を確かめてください。");
  return *words;
}

Plan planOf(const Request& request) {
  const auto database = db::openDatabase(request.operands[0]);
  Defaults defaults{request.value("--job"), request.value("--project"), request.value("--route"),
                    *categoryCell(request.value("--category", "0"))};
  if (defaults.jobId.empty()) defaults.jobId = executedJob(*database);
  if (defaults.jobId.empty())
    throw db::Error(
        "実行するジョブ (JobData の JikkouFlg が 1) が一つに決まりません。--job で指定してください。");
  const std::string text = readText(request);
  try {
    const Block block = readBlock(text);
    return planObservations(block, matchByName(block.headings.cells), defaults);
  } catch (const text::RuntimeError& error) {
    throw db::Error("ファイル「" + request.operands[1] + "」: " + error.what());
  }
}

int import(const Request& request, std::ostream& out) {
  const Plan plan = planOf(request);
  for (const std::string& line : described(plan)) out << line << '\n';
  if (!plan.refusals.empty()) {
    out << "何も取り込んでいません。\n";
    return failed;
  }
  if (request.preview) return 0;
  out << storeObservations(request.operands[0], plan, request.over) << " 件を取り込みました。\n";
  return 0;
}

}  // namespace

int run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
  if (words.empty() || words[0] != name) {
    const int status = exchange::run(words, out, err);
    if (status == wrongCommandLine) err << usage;
    return status;
  }
  const auto request = parse(words);
  if (!request) {
    err << "コマンドの書き方が違います。\n" << usage;
    return wrongCommandLine;
  }
  try {
    return import(*request, out);
  } catch (const std::exception& error) {
    err << text::reasonOf(error) << '\n';
    return failed;
  }
}

}  // namespace intake
