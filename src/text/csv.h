#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/error.h"

// Comma-separated records as RFC 4180 describes them. All works on the bytes of the file: the signs that part
// fields and lines are never a part of a character, in UTF-8 as well as in CP932.

namespace text {

/// A field as it stands in the file, without its quotes.
struct CsvField {
  std::string bytes;
  bool quoted = false;
  std::size_t line = 0;  ///< where it begins, counted from 1
};

/// A fault of a file, at a line and a field (both counted from 1).
class CsvFault : public RuntimeError {
 public:
  CsvFault(std::size_t line, std::size_t field, const std::string& words);

  std::size_t line() const { return line_; }
  std::size_t field() const { return field_; }

 private:
  std::size_t line_;
  std::size_t field_;
};

/// Reads the records of a file one after another. Lines end with CR LF or LF.
class CsvReader {
 public:
  /// `bytes` must outlive the reader. `separator` parts the fields: a comma, or a tab as spreadsheets put it
  /// on the clipboard.
  explicit CsvReader(std::string_view bytes, char separator = ',')
      : bytes_(bytes), stops_{separator, '"', '\r', '\n'} {}

  /// The next record; false at the end of the file. An empty line is a record of one empty field. Raises
  /// CsvFault for a quote inside a field without quotes, for anything but a comma or a line end behind a
  /// closing quote, for a quote that is never closed and for a CR without LF outside quotes.
  bool next(std::vector<CsvField>& record);

 private:
  void readPlain(CsvField& field, std::size_t number);
  void readQuoted(CsvField& field, std::size_t number);
  bool takeLineEnd();

  char separator() const { return stops_[0]; }

  std::string_view bytes_;
  std::array<char, 4> stops_;  ///< what ends a field without quotes; the separator first
  std::size_t at_ = 0;
  std::size_t line_ = 1;
};

/// Appends a field, in quotes where `quoted` or where its content asks for them.
void appendField(std::string& out, std::string_view bytes, bool quoted);

}  // namespace text
