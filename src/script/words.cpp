#include "script/words.h"

#include "script/line_error.h"
#include "text/padding.h"

namespace script {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool isBlank(char c) { return c == ' ' || c == '\t'; }

/// A byte that is no part of UTF-8 reads as the replacement character in a single byte; the character itself
/// has three.
void requireUtf8(std::string_view line) {
  for (std::size_t at = 0; at < line.size();) {
    const std::size_t start = at;
    if (text::nextCharacter(line, at) == replacement && at - start == 1)
      throw LineError("UTF-8 でない文字があります。");
  }
}

/// The character that the escape at `at`, behind the backslash, stands for.
char escaped(std::string_view line, std::size_t at) {
  switch (at < line.size() ? line[at] : ' ') {
    case '"':
      return '"';
    case '\\':
      return '\\';
    case 't':
      return '\t';
    case 'n':
      return '\n';
    default:
      throw LineError(R"(引用符の中の「\」のあとに書けるのは " \ t n だけです。)");
  }
}

/// The word whose opening quote stands at `at`, which is moved behind the closing one.
Word quotedWord(std::string_view line, std::size_t& at) {
  Word word{{}, true};
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      if (at < line.size() && !isBlank(line[at])) throw LineError("閉じる引用符のあとには空白が要ります。");
      return word;
    }
    word.text += line[at] == '\\' ? escaped(line, ++at) : line[at];
  }
  throw LineError("引用符が閉じていません。");
}

Word plainWord(std::string_view line, std::size_t& at) {
  Word word;
  for (; at < line.size() && !isBlank(line[at]); ++at) {
    if (line[at] == '"') throw LineError("引用符は語の初めにだけ書けます。");
    word.text += line[at];
  }
  return word;
}

}  // namespace

std::vector<Word> splitWords(std::string_view line) {
  requireUtf8(line);
  std::vector<Word> words;
  for (std::size_t at = 0; at < line.size();) {
    if (isBlank(line[at]))
      ++at;
    else
      words.push_back(line[at] == '"' ? quotedWord(line, at) : plainWord(line, at));
  }
  return words;
}

}  // namespace script
