#pragma once

#include <exception>

namespace text {

/// The operator has given a work up before it was done. It is no error: whoever began the work brings back
/// what was there before, and nobody tells the operator what he knows.
class Cancelled : public std::exception {
 public:
  const char* what() const noexcept override { return "中止しました。"; }
};

}  // namespace text
