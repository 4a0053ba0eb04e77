#include "exchange/command.h"

#include <map>
#include <optional>
#include <ostream>

#include "exchange/check.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "exchange/csv_file.h"
#include "text/reason.h"

namespace exchange {
namespace {

constexpr int failed = 1;
constexpr int wrongCommandLine = 64;

constexpr const char* usage =
    "使い方:\n"
    "  seikahyou-job create ジョブ\n"
    "      空のジョブデータベースを作ります。\n"
    "  seikahyou-job copy 移す元 移す先 [--over]\n"
    "      ジョブのすべてのテーブルを移します。--over は、移す先にあるジョブを上書きします。\n"
    "  seikahyou-job import-csv ジョブ テーブル CSVファイル [--encoding utf-8|cp932]\n"
    "      CSV ファイルのレコードをテーブルに加えます。\n"
    "  seikahyou-job export-csv ジョブ テーブル CSVファイル [--encoding utf-8|cp932]\n"
    "      テーブルを CSV ファイルに書き出します。\n"
    "  seikahyou-job check ジョブ\n"
    "      ジョブデータベースを検査します。\n";

/// A command line, taken apart.
struct Request {
  std::string command;
  std::vector<std::string> operands;
  bool over = false;
  std::optional<Encoding> encoding;
};

/// The number of operands that a command takes.
const std::map<std::string, std::size_t>& commands() {
  static const std::map<std::string, std::size_t> all{
      {"create", 1}, {"copy", 2}, {"import-csv", 3}, {"export-csv", 3}, {"check", 1}};
  return all;
}

/// Takes an option, with the word behind it where it needs one; false where the command has no such option.
bool takeOption(Request& request, const std::vector<std::string>& words, std::size_t& at) {
  if (words[at] == "--over") {
    const bool first = !request.over;
    request.over = true;
    return first && request.command == "copy";
  }
  const bool moves = request.command == "import-csv" || request.command == "export-csv";
  if (words[at] != "--encoding" || !moves || request.encoding || ++at == words.size()) return false;
  request.encoding = platform::encodingOf(words[at]);
  return request.encoding.has_value();
}

std::optional<Request> parse(const std::vector<std::string>& words) {
  if (words.empty() || !commands().contains(words[0])) return std::nullopt;
  Request request;
  request.command = words[0];
  for (std::size_t at = 1; at < words.size(); ++at) {
    if (words[at].empty()) return std::nullopt;
    if (!words[at].starts_with("--"))
      request.operands.push_back(words[at]);
    else if (!takeOption(request, words, at))
      return std::nullopt;
  }
  const bool complete = request.operands.size() == commands().at(request.command);
  return complete ? std::optional(request) : std::nullopt;
}

int check(const std::string& job, std::ostream& out) {
  const std::vector<std::string> findings = checkJob(job);
  for (const std::string& finding : findings) out << finding << '\n';
  if (findings.empty()) out << "問題は見つかりませんでした。\n";
  return findings.empty() ? 0 : failed;
}

int moveCsv(const Request& request, std::ostream& out) {
  const std::vector<std::string>& names = request.operands;
  const bool importing = request.command == "import-csv";
  const auto move = importing ? importCsv : exportCsv;
  const std::int64_t count = move(names[0], names[1], names[2], request.encoding.value_or(Encoding::Utf8));
  out << names[1] << ": " << count << (importing ? " 件を取り込みました。\n" : " 件を書き出しました。\n");
  return 0;
}

int carryOut(const Request& request, std::ostream& out, std::ostream& err) {
  if (request.command == "check") return check(request.operands[0], out);
  if (request.command == "create") {
    createJob(request.operands[0]);
    out << "ジョブデータベースを作成しました: " << request.operands[0] << '\n';
    return 0;
  }
  if (request.command != "copy") return moveCsv(request, out);
  copyJob(request.operands[0], request.operands[1], request.over, err);
  out << "ジョブを移しました: " << request.operands[1] << '\n';
  return 0;
}

}  // namespace

int run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
  const auto request = parse(words);
  if (!request) {
    err << "コマンドの書き方が違います。\n" << usage;
    return wrongCommandLine;
  }
  try {
    return carryOut(*request, out, err);
  } catch (const std::exception& error) {
    err << text::reasonOf(error) << '\n';
    return failed;
  }
}

}  // namespace exchange
