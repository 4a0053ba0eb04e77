#pragma once

#include <stdexcept>
#include <string>

namespace text {

/// What went wrong at run time, apart from its wording.
enum class ErrorCode {
  Overflow,        ///< a counter past 16 bits, a number past the range of double
  DivisionByZero,  ///< a quotient with divisor 0
  TypeMismatch,    ///< a text that should have been a number or a date and is neither
  Subscript,       ///< a row, column or item that is not there
  FileNotFound,    ///< a file that should be there and is not
  PathNotFound,    ///< a folder that should be there and is not
  Database         ///< anything the job database refused
};

/// A run-time error with the Japanese description that the operator reads; what() is that description
/// (UTF-8).
class RuntimeError : public std::runtime_error {
 public:
  /// The error with the standard description of `code`; `code` is not Database.
  explicit RuntimeError(ErrorCode code);
  /// The error with a description of its own, complete and in Japanese.
  RuntimeError(ErrorCode code, const std::string& description);

  ErrorCode code() const { return code_; }

 private:
  ErrorCode code_;
};

/// The standard Japanese description of `code`, such as "オーバーフローしました。".
const char* description(ErrorCode code);

}  // namespace text
