#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "bare_sqlite.h"
#include "measure.h"

// seikahyou-measure [--csv] FOLDER: measures the program on the only route of FOLDER/job.sqlite against the
// same work done bare in the same run. Results are saved into that job.

namespace {

constexpr int turns = 9;

int countBenchMarks(const std::string& path) {
  return std::stoi(bench::BareSqlite(path).records("SELECT COUNT(*) FROM KansokuSeikaData").at(0).at(0));
}

void print(const std::vector<bench::Result>& results, double memory, int benchMarks) {
  std::printf("%-28s %12s %12s %8s %6s\n", "", "program ms", "bare ms", "ratio", "aim");
  for (const bench::Result& result : results)
    std::printf("%-28s %12.3f %12.3f %8.2f %6.1f%s\n", result.name.c_str(), result.program * 1e3,
                result.bare * 1e3, result.ratio(), result.aim, result.ratio() > result.aim ? "  over" : "");
  std::printf("%-28s %12.0f bytes for each of %d bench marks\n", "peak memory", memory, benchMarks);
}

void printCsv(const std::vector<bench::Result>& results, double memory) {
  std::printf("name,ratio,aim\n");
  for (const bench::Result& result : results)
    std::printf("%s,%.3f,%.1f\n", result.name.c_str(), result.ratio(), result.aim);
  std::printf("memory-bytes-per-benchmark,%.0f,\n", memory);
}

}  // namespace

int main(int argc, char** argv) {
  const bool csv = argc == 3 && std::strcmp(argv[1], "--csv") == 0;
  if (argc != 2 && !csv) {
    std::fprintf(stderr, "usage: seikahyou-measure [--csv] FOLDER\n");
    return 64;
  }
  const std::string path = (std::filesystem::path(argv[argc - 1]) / "job.sqlite").string();
  const bench::Job job{path, countBenchMarks(path)};

  const double memory = bench::memoryPerBenchMark(job);
  std::vector<bench::Result> results;
  for (const auto& family : {bench::startUpMeasures, bench::seihyouMeasures, bench::daenMeasures,
                             bench::hendMeasures, bench::tanrosenMeasures, bench::hksnbMeasures})
    for (const bench::Measure& measure : family(job)) results.push_back(bench::run(measure, turns));
  csv ? printCsv(results, memory) : print(results, memory, job.benchMarks);
  return 0;
}
