#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace exchange {

/// Carries out the command line of seikahyou-job (the words behind the program's name). Results go to `out`;
/// progress, usage and errors, all in Japanese, to `err`. Returns the exit status: 0, 1 for an error or for
/// findings, 64 for a wrong command line.
int run(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

}  // namespace exchange
