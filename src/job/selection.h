#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace job {

/// What the job-selection file tells.
struct Selection {
  std::string jobId;       ///< one character
  std::int16_t grade = 0;  ///< 0 to 9; 1 = first grade
};

/// Job and grade from the first line of the job-selection file `file`: its first character and its last.
/// Raises TypeMismatch, naming the file, where the line is empty or ends in no digit.
Selection selectionOf(std::string_view line, std::string_view file);

}  // namespace job
