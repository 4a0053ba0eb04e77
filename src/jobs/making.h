#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jobs {

/// What a new job is to be. All texts may be blank where nothing else is said.
struct NewJob {
  std::string folder;            ///< in which its file is made
  std::string name;              ///< of the file; ".sqlite" is put behind it where it has no such ending
  std::string id = "1";          ///< job identifier, one character as the job-selection file takes it
  std::string title;             ///< 作業名
  std::int16_t grade = 1;        ///< 1 to 4
  std::string planner;           ///< 計画機関名
  std::string surveyor;          ///< 作業機関名
  std::string area;              ///< 作業地域
  std::string observer;          ///< 観測者名
  std::string instrument;        ///< 器械名
  std::string instrumentNumber;  ///< 器械番号
  std::string staff;             ///< 標尺名
  std::string staffNumber;       ///< 標尺番号
};

/// The path of the file that the job would get.
std::string pathOf(const NewJob& job);

/// What keeps the job from being made, a Japanese sentence each; empty where nothing is known to.
std::vector<std::string> faultsOf(const NewJob& job);

/// Makes the job: an SQLite file with every table, the job (marked for execution), its heading, and a data
/// folder's path beside the file. Returns the file's path. Raises text::RuntimeError for the first of
/// faultsOf, and where the file cannot be made; nothing is left behind then.
std::string makeJob(const NewJob& job);

/// The sample job in the folder "seikahyou-sample" below `folder`, which is made where it is not there yet.
/// `programFolder`: where the picture tool lies. Returns the path of the job's file. Raises
/// text::RuntimeError where it cannot be made.
std::string sampleJob(const std::string& folder, const std::string& programFolder);

}  // namespace jobs
