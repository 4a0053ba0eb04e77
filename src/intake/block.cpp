#include "intake/block.h"

#include <algorithm>
#include <array>

#include "platform/text_encoding.h"
#include "text/csv.h"

namespace intake {
namespace {

constexpr std::array<std::string_view, 4> blanks = {" ", "\t", "\xE3\x80\x80", "\xC2\xA0"};

/// The separator of a block: what the first line shows.
char separatorOf(std::string_view text) {
  return text.substr(0, text.find('\n')).find('\t') == std::string_view::npos ? ',' : '\t';
}

Line lineOf(const std::vector<text::CsvField>& record) {
  Line line{record.front().line, {}};
  line.cells.reserve(record.size());
  for (const text::CsvField& field : record) line.cells.emplace_back(trimmedCell(field.bytes));
  return line;
}

bool isBlank(const Line& line) {
  return std::all_of(line.cells.begin(), line.cells.end(),
                     [](const std::string& cell) { return cell.empty(); });
}

}  // namespace

std::string_view trimmedCell(std::string_view cell) {
  for (bool again = true; again;) {
    again = false;
    for (const std::string_view blank : blanks) {
      if (cell.starts_with(blank)) {
        cell.remove_prefix(blank.size());
        again = true;
      } else if (cell.ends_with(blank)) {
        cell.remove_suffix(blank.size());
        again = true;
      }
    }
  }
  return cell;
}

Block readBlock(std::string_view text) {
  if (text.starts_with(platform::utf8Mark)) text.remove_prefix(platform::utf8Mark.size());
  text::CsvReader reader(text, separatorOf(text));
  Block block;
  for (std::vector<text::CsvField> record; reader.next(record);) {
    Line line = lineOf(record);
    if (isBlank(line)) continue;
    if (block.headings.number == 0)
      block.headings = std::move(line);
    else
      block.lines.push_back(std::move(line));
  }
  if (block.headings.number == 0)
    throw text::RuntimeError(text::ErrorCode::TypeMismatch, "取り込む行がありません。");
  return block;
}

}  // namespace intake
