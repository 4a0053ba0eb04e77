#pragma once

#include <string_view>

namespace route {

// A section whose two runs are recorded apart starts from one bench mark under two names: "…F" where the
// forward run begins, "…B" where the backward run does.

/// The last letter of the name under which a forward run begins.
inline constexpr char forwardRun = 'F';
/// The same of the backward run.
inline constexpr char backwardRun = 'B';

/// True where both names mean one bench mark, the first as the start of a forward run and the second as that
/// of the backward run.
inline bool samePoint(std::string_view forwardName, std::string_view backwardName) {
  return forwardName.size() > 1 && forwardName.ends_with(forwardRun) && backwardName.ends_with(backwardRun) &&
         forwardName.substr(0, forwardName.size() - 1) == backwardName.substr(0, backwardName.size() - 1);
}

}  // namespace route
