#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "job/selection.h"
#include "platform/files.h"
#include "support/temporary_folder.h"
#include "text/error.h"
#include "text/padding.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

/// Any bytes are taken as the file that tells the job: they give the first character of the first line and a
/// grade of one digit, or an error of the type that names the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string file = folder.write("JobSel.txt", bytes);
  const auto line = platform::firstLine(file);
  require(line.has_value() && line->find_first_of("\r\n") == std::string::npos);
  require(bytes.find(*line) != std::string_view::npos);
  try {
    const job::Selection selection = job::selectionOf(*line, file);
    require(selection.jobId == text::left(*line, 1) && !selection.jobId.empty());
    require(selection.grade >= 0 && selection.grade <= 9);
    require(line->back() == static_cast<char>('0' + selection.grade));
  } catch (const text::RuntimeError& error) {
    require(error.code() == text::ErrorCode::TypeMismatch);
    require(std::string_view(error.what()).find(file) != std::string_view::npos);
  }
  return 0;
}
