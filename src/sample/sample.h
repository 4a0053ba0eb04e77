#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace sample {

/// What the sample job is to be.
struct Options {
  std::string folder;             ///< gets job.sqlite and the data folder
  std::optional<int> benchMarks;  ///< only one route of so many bench marks (2 or more), for measuring
  std::optional<int> grade;       ///< grade of the executed job, 1 to 9
  std::string sqlFile;            ///< statements for the finished database; "" for none
};

/// The options of the command line "DIR [--benchmarks N] [--grade G] [--sql FILE]"; nothing where it is
/// wrong.
std::optional<Options> readArguments(const std::vector<std::string>& arguments);

/// Makes job.sqlite and data/map_app/ in the folder; a program PicturePaste in `programFolder` is copied
/// there. The same options give the same records everywhere. Raises text::RuntimeError (or db::Error) with a
/// Japanese description and leaves no database behind; one that is there already is an error and stays
/// untouched.
void makeSampleJob(const Options& options, const std::string& programFolder);

/// The whole command: what it made goes to `out`, usage and errors to `err`. Returns the exit status: 0, 1
/// for an error, 64 for wrong arguments.
int run(const std::vector<std::string>& arguments, const std::string& programFolder, std::ostream& out,
        std::ostream& err);

}  // namespace sample
