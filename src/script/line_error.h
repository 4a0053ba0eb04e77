#pragma once

#include <stdexcept>

namespace script {

/// A line of a script that cannot be understood or done; what() says why, in Japanese (UTF-8), without the
/// line number.
class LineError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace script
