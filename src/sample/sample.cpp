#include "sample/sample.h"

#include <algorithm>
#include <charconv>
#include <ostream>

#include "db/database.h"
#include "job/schema.h"
#include "open/open.h"
#include "platform/files.h"
#include "sample/long_routes.h"
#include "sample/small_routes.h"
#include "sample/writer.h"
#include "sql/split_statements.h"
#include "text/error.h"

namespace sample {
namespace {

constexpr const char* usage =
    "使い方: seikahyou-sample フォルダー [--benchmarks 水準点数] [--grade 等級] [--sql SQLファイル]\n"
    "  フォルダーに job.sqlite と data を作成します。水準点数は 2 以上、等級は 1 ～ 9 です。\n";

/// The whole number that `text` is, from `low` to `high`.
std::optional<int> wholeNumber(const std::string& text, int low, int high) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number >= low && number <= high ? std::optional(number) : std::nullopt;
}

bool readOption(const std::string& name, const std::string& value, Options& options) {
  if (name == "--benchmarks") return (options.benchMarks = wholeNumber(value, 2, 10'000'000)).has_value();
  if (name == "--grade") return (options.grade = wholeNumber(value, 1, 9)).has_value();
  options.sqlFile = value;
  return name == "--sql" && !value.empty();
}

[[noreturn]] void fail(text::ErrorCode code, const std::string& description) {
  throw text::RuntimeError(code, description);
}

std::vector<std::string> extraStatements(const std::string& sqlFile) {
  if (sqlFile.empty()) return {};
  const auto script = platform::readFile(sqlFile);
  if (!script) fail(text::ErrorCode::FileNotFound, "SQLファイルを読み込めません: " + sqlFile);
  return db::splitStatements(*script);
}

/// The data folder as the survey suite writes it: absolute, "\" between folders and at the end.
std::string exeDir(const std::string& dataFolder) {
  std::string text =
      platform::pathText(std::filesystem::absolute(platform::nativePath(dataFolder)).lexically_normal());
  std::replace(text.begin(), text.end(), '/', '\\');
  return text + '\\';
}

void makeDataFolder(const std::string& dataFolder, const std::string& programFolder) {
  const std::string toolFolder = dataFolder + "/map_app";
  platform::makeFolder(toolFolder);
  for (const char* name : {"/PicturePaste", "/PicturePaste.exe"})
    if (platform::isFile(programFolder + name))
      platform::copyFile(programFolder + name, toolFolder + "/PicturePaste.exe");
}

/// The job for measuring: one route, and nothing beside it.
void writeMeasuringJob(db::Database& database, int benchMarks, int grade) {
  writeJobs(database, {{"1", "計測用路線", grade, true}});
  writeRoutes(database, {measuringRoute("1", Precision(grade), benchMarks)});
}

/// Job "1" is first grade and job "2" of another one; the executed job is the one that has the wanted grade.
void writeSurveyJobs(db::Database& database, int grade) {
  const bool first = grade == 1;
  const std::vector<Job> jobs{{"1", "一等水準測量 見本", 1, first},
                              {"2", "二等水準測量 見本", first ? 2 : grade, !first}};
  writeJobs(database, jobs);
  unsigned seed = 1;
  for (const Job& job : jobs) {
    const Precision precision(job.grade);
    std::vector<Route> routes = smallRoutes(job.id, precision);
    for (Route& route : longRoutes(job.id, precision, seed++)) routes.push_back(std::move(route));
    writeRoutes(database, routes);
    writeRuns(database, routes, precision);
    writeReferenceSections(database, job.id);
  }
}

void fill(db::Database& database, const Options& options, const std::string& dataFolder) {
  for (const std::string& statement : db::splitStatements(job::schemaSql())) database.execute(statement);
  writeDataFolder(database, exeDir(dataFolder));
  const int grade = options.grade.value_or(1);
  if (options.benchMarks)
    writeMeasuringJob(database, *options.benchMarks, grade);
  else
    writeSurveyJobs(database, grade);
}

std::string databasePath(const Options& options) { return options.folder + "/job.sqlite"; }

void writeDatabase(const std::string& path, const Options& options, const std::string& dataFolder,
                   const std::vector<std::string>& statements) {
  const auto database = db::createDatabase(path);
  fill(*database, options, dataFolder);
  for (const std::string& statement : statements) database->execute(statement);
  database->close();
}

}  // namespace

std::optional<Options> readArguments(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument.starts_with("--")) {
      if (++i == arguments.size() || !readOption(argument, arguments[i], options)) return std::nullopt;
    } else if (options.folder.empty() && !argument.empty()) {
      options.folder = argument;
    } else {
      return std::nullopt;
    }
  }
  return options.folder.empty() ? std::nullopt : std::optional(options);
}

void makeSampleJob(const Options& options, const std::string& programFolder) {
  const std::string path = databasePath(options);
  std::error_code ignored;
  if (std::filesystem::exists(platform::nativePath(path), ignored))
    fail(text::ErrorCode::Database, "ジョブデータベースが既にあります。上書きしません: " + path);
  const auto statements = extraStatements(options.sqlFile);
  const std::string dataFolder = options.folder + "/data";
  makeDataFolder(dataFolder, programFolder);
  try {
    writeDatabase(path, options, dataFolder, statements);
  } catch (...) {
    std::filesystem::remove(platform::nativePath(path), ignored);
    throw;
  }
}

int run(const std::vector<std::string>& arguments, const std::string& programFolder, std::ostream& out,
        std::ostream& err) {
  const auto options = readArguments(arguments);
  if (!options) {
    err << usage;
    return 64;
  }
  try {
    makeSampleJob(*options, programFolder);
  } catch (const std::exception& error) {
    err << error.what() << '\n';
    return 1;
  }
  out << "見本ジョブを作成しました: " << databasePath(*options) << '\n';
  return 0;
}

}  // namespace sample
