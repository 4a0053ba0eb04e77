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

namespace script {

/// What the command line of an operation script asks for.
struct Options {
  bool window = false;                       ///< work real windows
  bool safeguards = false;                   ///< ask what an operator would be asked
  std::optional<std::string> programFolder;  ///< the folder that counts as the program's own
  std::string script;                        ///< path of the script; "-" for standard input
  std::string database;                      ///< the job database, as it stands

  bool operator==(const Options&) const = default;
};

/// Reads `[--window] [--safeguards] [--program-folder DIR] SCRIPT DATABASE`, the words behind the program's
/// name. Options stand before SCRIPT; what follows it is taken as it stands. Nothing where the words do not
/// fit.
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

/// One run of seikahyou-script, from its command-line words to its exit status: the program is started on
/// the database and worked through the script. `windowHands` and `pageWriter` (what PDF and PNG files are
/// drawn with) are empty in a build without windows. A wrong command line, windows that cannot be had and a
/// script file that cannot be read end it before anything is started, with the reason and the usage on the
/// error stream and status 64.
int runSession(const std::vector<std::string>& words, const WindowHandsMaker& windowHands,
               const Streams& streams, const report::PageWriterMaker& pageWriter = {});

}  // namespace script
