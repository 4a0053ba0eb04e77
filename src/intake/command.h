#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace intake {

/// Carries out the command line of seikahyou-job (the words behind the program's name): import-observations
/// here, everything else through exchange::run. Results go to `out`; usage and errors, all in Japanese, to
/// `err`. Returns the exit status: 0, 1 for an error or lines that cannot be taken, 64 for a wrong command
/// line.
int run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

}  // namespace intake
