#include "job/selection.h"

#include "text/error.h"
#include "text/padding.h"

namespace job {
namespace {

[[noreturn]] void refuse(std::string_view file, const std::string& why) {
  throw text::RuntimeError(text::ErrorCode::TypeMismatch, text::description(text::ErrorCode::TypeMismatch) +
                                                              ("「" + std::string(file) + "」の1行目" + why));
}

}  // namespace

Selection selectionOf(std::string_view line, std::string_view file) {
  const std::string last(text::right(line, 1));
  if (last.empty()) refuse(file, "が空です。");
  if (last.size() != 1 || last < "0" || last > "9")
    refuse(file, "の最後の「" + last + "」は等級の数字ではありません。");
  return {std::string(text::left(line, 1)), static_cast<std::int16_t>(last[0] - '0')};
}

}  // namespace job
