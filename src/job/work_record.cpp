#include "job/work_record.h"

#include <algorithm>
#include <initializer_list>

#include "text/csv.h"

namespace job {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view lineEnd = "\r\n";

std::string lineOf(std::initializer_list<std::string> fields) {
  std::string line;
  for (std::string field : fields) {
    std::replace_if(
        field.begin(), field.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    if (!line.empty()) line += ',';
    text::appendField(line, field, false);
  }
  return line.append(lineEnd);
}

}  // namespace

std::string workHeading() {
  return std::string(utf8Mark) + lineOf({"日時", "ジョブ", "画面", "路線", "作業", "内容", "誤り", "注意"});
}

std::string workLine(const WorkEntry& entry) {
  return lineOf({entry.time, entry.job, entry.screen, entry.route, entry.what, entry.details,
                 std::to_string(entry.errors), std::to_string(entry.warnings)});
}

}  // namespace job
