#include "text/csv.h"

#include <algorithm>

namespace text {

CsvFault::CsvFault(std::size_t line, std::size_t field, const std::string& words)
    : RuntimeError(ErrorCode::TypeMismatch,
                   std::to_string(line) + " 行目 " + std::to_string(field) + " 列目: " + words),
      line_(line),
      field_(field) {}

bool CsvReader::next(std::vector<CsvField>& record) {
  record.clear();
  if (at_ >= bytes_.size()) return false;
  for (;;) {
    CsvField& field = record.emplace_back();
    field.line = line_;
    field.quoted = at_ < bytes_.size() && bytes_[at_] == '"';
    if (field.quoted)
      readQuoted(field, record.size());
    else
      readPlain(field, record.size());
    if (at_ >= bytes_.size() || takeLineEnd()) return true;
    ++at_;  // the comma
  }
}

void CsvReader::readPlain(CsvField& field, std::size_t number) {
  const std::size_t end =
      std::min(bytes_.find_first_of(std::string_view(stops_.data(), stops_.size()), at_), bytes_.size());
  field.bytes = bytes_.substr(at_, end - at_);
  at_ = end;
  if (at_ == bytes_.size() || bytes_[at_] == separator() || bytes_[at_] == '\n') return;
  if (bytes_[at_] == '"') throw CsvFault(line_, number, "引用符で始まらない項目の途中に引用符があります。");
  if (bytes_.substr(at_, 2) != "\r\n")
    throw CsvFault(line_, number, "改行の途中だけの文字 (CR) があります。");
}

void CsvReader::readQuoted(CsvField& field, std::size_t number) {
  for (++at_;; ++at_) {
    if (at_ >= bytes_.size()) throw CsvFault(field.line, number, "引用符が閉じられていません。");
    const char c = bytes_[at_];
    if (c == '"' && bytes_.substr(at_, 2) != "\"\"") break;
    if (c == '"') ++at_;
    if (c == '\n') ++line_;
    field.bytes += c;
  }
  ++at_;
  const std::string_view rest = bytes_.substr(at_);
  if (!rest.empty() && rest[0] != separator() && rest[0] != '\n' && !rest.starts_with("\r\n"))
    throw CsvFault(line_, number, "閉じた引用符の後に余分な文字があります。");
}

bool CsvReader::takeLineEnd() {
  if (bytes_[at_] == separator()) return false;
  at_ += bytes_[at_] == '\r' ? 2U : 1U;
  ++line_;
  return true;
}

void appendField(std::string& out, std::string_view bytes, bool quoted) {
  if (!quoted && bytes.find_first_of(",\"\r\n") == std::string_view::npos) {
    out += bytes;
    return;
  }
  out += '"';
  for (const char c : bytes) out.append(c == '"' ? 2 : 1, c);
  out += '"';
}

}  // namespace text
