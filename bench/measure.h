#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bare.h"

namespace bench {

/// What a measured work does: with the job database, or in the grid alone.
enum class Work { Grid, Reading, Saving };

/// One comparison: the program's own work against the same work done bare, in the same run.
struct Measure {
  std::string name;
  double aim = 0;                 ///< the ratio (program / bare) not to exceed
  std::function<void()> prepare;  ///< before each turn of the program's work, not timed; may be empty
  std::function<void()> program;
  std::function<void()> bare;
  Work work = Work::Grid;
};

/// What a measure came to: the best of several turns each, in seconds.
struct Result {
  std::string name;
  double aim = 0;
  double program = 0;
  double bare = 0;
  double ratio() const { return program / bare; }
};

/// Takes at least `turns` turns at the program's work and the bare work and keeps the best time of each.
Result run(const Measure& measure, int turns);

/// The measuring job: one route, made by the sample generator.
struct Job {
  std::string path;                             ///< by which the program opens it
  int benchMarks = 0;                           ///< of its only route
  std::function<std::unique_ptr<Bare>()> bare;  ///< opens it with its engine's own client
};

// One family of measures for each floor of the house.
std::vector<Measure> startUpMeasures(const Job& job);
std::vector<Measure> seihyouMeasures(const Job& job);
std::vector<Measure> daenMeasures(const Job& job);
std::vector<Measure> hendMeasures(const Job& job);
std::vector<Measure> tanrosenMeasures(const Job& job);
std::vector<Measure> hksnbMeasures(const Job& job);

/// What an operator waits for in a window; only where the windows are built.
std::vector<Measure> windowMeasures(const Job& job);

/// Writing what is exported, against the libraries that write the files; only where the windows are built.
std::vector<Measure> outputMeasures(const Job& job);

/// A job in another engine, and what the ratios are not to exceed there.
struct EngineJob {
  Job job;
  double readingAim = 0;
  double savingAim = 0;
};

/// What the families above measure of reading and saving, on the job in another engine: their names end with
/// the engine's.
std::vector<Measure> engineMeasures(const EngineJob& there, const std::string& engine);

/// Bytes of memory that a loaded route takes for each bench mark, at its peak.
double memoryPerBenchMark(const Job& job);

}  // namespace bench
