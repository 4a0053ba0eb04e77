#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "report/page_writer.h"
#include "script/hands.h"
#include "script/runner.h"
#include "shell/start_up.h"
#include "ui/act_witness.h"

namespace script {

/// What the command line of an operation script asks for.
struct Options {
  bool window = false;                       ///< work real windows
  bool safeguards = false;                   ///< ask what an operator would be asked
  std::optional<std::string> programFolder;  ///< the folder that counts as the program's own
  std::string script;                        ///< path of the script; "-" for standard input, "" for a person
  std::string database;                      ///< the job database, as it stands
  std::optional<std::string> record{};       ///< file in which what is done is written down as a script

  bool operator==(const Options&) const = default;
};

/// Reads `[--window] [--safeguards] [--program-folder DIR] [--record FILE] SCRIPT DATABASE`, the words behind
/// the program's name; with `--record` SCRIPT may be missing: then a person works in windows. Options stand
/// before SCRIPT; what follows it is taken as it stands. Nothing where the words do not fit.
std::optional<Options> parseOptions(const std::vector<std::string>& words);

/// How to write the command line, with the exit statuses; several lines.
std::string usage();

/// The streams of the process.
struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& errors;
};

/// Makes the hands that work real windows; may raise a std::exception where there is no window to be had.
using WindowHandsMaker = std::function<std::unique_ptr<Hands>()>;

/// Opens the program's windows for a person and comes back when they are closed, with the exit status.
/// `witness` is told what the person does.
using PersonsWindows = std::function<int(const shell::CommandLine& commandLine, ui::ActWitness& witness)>;

/// One run of seikahyou-script, from its command-line words to its exit status: the program is started on
/// the database and worked through the script. `windowHands` and `pageWriter` (what PDF and PNG files are
/// drawn with) are empty in a build without windows. A wrong command line, windows that cannot be had and a
/// script file that cannot be read end it before anything is started, with the reason and the usage on the
/// error stream and status 64. `person`: the windows of a person whose work is recorded; empty in a build
/// without windows.
int runSession(const std::vector<std::string>& words, const WindowHandsMaker& windowHands,
               const Streams& streams, const report::PageWriterMaker& pageWriter = {},
               const PersonsWindows& person = {});

}  // namespace script
