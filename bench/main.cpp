#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "bare_sqlite.h"
#include "engine_jobs.h"
#include "measure.h"

// seikahyou-measure [--csv] FOLDER: measures the program on the only route of FOLDER/job.sqlite against the
// same work done bare in the same run, then on the same job through ODBC. Results are saved into that job.

namespace {

constexpr int turns = 9;
constexpr int turnsOfOtherEngines = 5;

using Results = std::vector<bench::Result>;

bench::Job jobOf(const std::string& folder) {
  const std::string path = (std::filesystem::path(folder) / "job.sqlite").string();
  const auto bare = [path] { return std::make_unique<bench::BareSqlite>(path); };
  return {path, std::stoi(bare()->records("SELECT COUNT(*) FROM KansokuSeikaData").at(0).at(0)), bare};
}

void measureAll(const std::vector<bench::Measure>& measures, int atLeast, Results& results) {
  for (const bench::Measure& measure : measures) results.push_back(bench::run(measure, atLeast));
}

using JobMaker = bench::EngineJob (*)(const bench::Job&, const std::string&);

/// Measures an engine behind ODBC; where it is not to be had, its lines are left out.
void measureEngine(const std::string& engine, JobMaker make, const bench::Job& job, const std::string& folder,
                   Results& results) {
  bench::EngineJob there;
  try {
    there = make(job, folder);
  } catch (const std::exception& missing) {
    std::fprintf(stderr, "left out: %s: %s\n", engine.c_str(), missing.what());
    return;
  }
  measureAll(bench::engineMeasures(there, engine), turnsOfOtherEngines, results);
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
  const bool csv = argc == 3 && std::strcmp(argv[1], "--csv") == 0;
  if (argc != 2 && !csv) {
    std::fprintf(stderr, "usage: seikahyou-measure [--csv] FOLDER\n");
    return 64;
  }
  const std::string folder = std::filesystem::absolute(argv[argc - 1]).string();
  const bench::Job job = jobOf(folder);

  const double memory = bench::memoryPerBenchMark(job);
  Results results;
  for (const auto& family : {bench::startUpMeasures, bench::seihyouMeasures, bench::daenMeasures,
                             bench::hendMeasures, bench::tanrosenMeasures, bench::hksnbMeasures})
    measureAll(family(job), turns, results);
#ifdef SEIKAHYOU_MEASURE_WINDOWS
  measureAll(bench::windowMeasures(job), turns, results);
  measureAll(bench::outputMeasures(job), turns, results);
#endif
  measureEngine("SQLite over ODBC", bench::sqliteOverOdbc, job, folder, results);
  measureEngine("PostgreSQL", bench::onPostgres, job, folder, results);
  csv ? printCsv(results, memory) : print(results, memory, job.benchMarks);
  return 0;
}
