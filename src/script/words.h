#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace script {

/// A word of a script line, its quotes and escapes undone.
struct Word {
  std::string text;
  bool quoted = false;  ///< it stood in double quotes

  bool operator==(const Word&) const = default;
};

/// The words of a line: parted by blanks and tabs; within double quotes blanks count as text, and `\"`, `\\`,
/// `\t`, `\n` stand for the character. A backslash outside quotes is a character like any other.
/// Raises LineError for a line that is not UTF-8, a quote that does not begin a word or is not closed, text
/// hard behind a closing quote, an unknown escape.
std::vector<Word> splitWords(std::string_view line);

}  // namespace script
