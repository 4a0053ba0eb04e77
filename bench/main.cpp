#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "bare_sqlite.h"
#include "engine_jobs.h"
#include "measure.h"

// seikahyou-measure [--csv] [--only TEXT] FOLDER: measures the program on the only route of FOLDER/job.sqlite
// against the same work done bare in the same run, then on the same job through ODBC. Results are saved into
// that job. With --only, the works whose names have TEXT in them; an engine behind ODBC is measured where
// TEXT names it.

namespace {

constexpr int turns = 9;
constexpr int turnsOfOtherEngines = 5;

using Results = std::vector<bench::Result>;

bench::Job jobOf(const std::string& folder) {
  const std::string path = (std::filesystem::path(folder) / "job.sqlite").string();
  const auto bare = [path] { return std::make_unique<bench::BareSqlite>(path); };
  return {path, std::stoi(bare()->records("SELECT COUNT(*) FROM KansokuSeikaData").at(0).at(0)), bare};
}

/// What is asked for on the command line.
struct Request {
  bool csv = false;
  std::string only;  // part of the names of the works to measure; empty for all
  std::string folder;
};

/// Empty where the command line cannot be understood.
std::optional<Request> requestOf(const std::vector<std::string>& arguments) {
  Request request;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--csv") {
      request.csv = true;
    } else if (arguments[i] == "--only" && i + 1 < arguments.size()) {
      request.only = arguments[++i];
    } else if (request.folder.empty() && !arguments[i].starts_with('-')) {
      request.folder = std::filesystem::absolute(arguments[i]).string();
    } else {
      return std::nullopt;
    }
  }
  if (request.folder.empty()) return std::nullopt;
  return request;
}

void measureAll(const std::vector<bench::Measure>& measures, const std::string& only, int atLeast,
                Results& results) {
  for (const bench::Measure& measure : measures)
    if (measure.name.find(only) != std::string::npos) results.push_back(bench::run(measure, atLeast));
}

using JobMaker = bench::EngineJob (*)(const bench::Job&, const std::string&);

/// Measures an engine behind ODBC; where it is not to be had, its lines are left out.
void measureEngine(const std::string& engine, JobMaker make, const bench::Job& job, const Request& request,
                   Results& results) {
  const std::string& only = request.only;
  if (only.find(engine) == std::string::npos && engine.find(only) == std::string::npos) return;
  bench::EngineJob there;
  try {
    there = make(job, request.folder);
  } catch (const std::exception& missing) {
    std::fprintf(stderr, "left out: %s: %s\n", engine.c_str(), missing.what());
    return;
  }
  measureAll(bench::engineMeasures(there, engine), request.only, turnsOfOtherEngines, results);
}

void print(const Results& results, double memory, int benchMarks) {
  std::printf("%-36s %12s %12s %8s %6s\n", "", "program ms", "bare ms", "ratio", "aim");
  for (const bench::Result& result : results)
    std::printf("%-36s %12.3f %12.3f %8.2f %6.1f%s\n", result.name.c_str(), result.program * 1e3,
                result.bare * 1e3, result.ratio(), result.aim, result.ratio() > result.aim ? "  over" : "");
  std::printf("%-36s %12.0f bytes for each of %d bench marks\n", "peak memory", memory, benchMarks);
}

std::string csvField(const std::string& name) {
  return name.find(',') == std::string::npos ? name : '"' + name + '"';
}

void printCsv(const Results& results, double memory) {
  std::printf("name,ratio,aim\n");
  for (const bench::Result& result : results)
    std::printf("%s,%.3f,%.1f\n", csvField(result.name).c_str(), result.ratio(), result.aim);
  std::printf("memory-bytes-per-benchmark,%.0f,\n", memory);
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<Request> request = requestOf({argv + 1, argv + argc});
  if (!request) {
    std::fprintf(stderr, "usage: seikahyou-measure [--csv] [--only TEXT] FOLDER\n");
    return 64;
  }
  const bench::Job job = jobOf(request->folder);

  const double memory = bench::memoryPerBenchMark(job);
  Results results;
  for (const auto& family : {bench::startUpMeasures, bench::seihyouMeasures, bench::daenMeasures,
                             bench::hendMeasures, bench::tanrosenMeasures, bench::hksnbMeasures})
    measureAll(family(job), request->only, turns, results);
#ifdef SEIKAHYOU_MEASURE_WINDOWS
  measureAll(bench::windowMeasures(job), request->only, turns, results);
  measureAll(bench::outputMeasures(job), request->only, turns, results);
#endif
  measureEngine("SQLite over ODBC", bench::sqliteOverOdbc, job, *request, results);
  measureEngine("PostgreSQL", bench::onPostgres, job, *request, results);
  request->csv ? printCsv(results, memory) : print(results, memory, job.benchMarks);
  return 0;
}
