#include "sql/sqlite_dialect.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "sql/tokens.h"

namespace db {
namespace {

constexpr std::string_view withoutTrailingBlanks = " COLLATE RTRIM";

/// A text literal that holds characters of code 0, where a statement would end for SQLite: written with
/// another character in their place, and a call that puts them back.
std::string withZerosCalled(std::string_view literal) {
  char standIn = 1;
  while (literal.find(standIn) != std::string_view::npos && standIn < ' ') ++standIn;
  std::string text(literal);
  std::replace(text.begin(), text.end(), '\0', standIn);
  return "replace(" + text + ",char(" + std::to_string(static_cast<int>(standIn)) + "),char(0))";
}

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<std::string_view, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&token](std::string_view word) { return isWord(token, word); });
}

/// Key words that may stand behind a comparison and are no column.
bool isNoOperand(const Token& token) {
  static constexpr std::array<std::string_view, 8> words = {"NULL",   "NOT",  "CASE",  "EXISTS",
                                                            "SELECT", "TRUE", "FALSE", "RAISE"};
  return isOneOf(token, words);
}

bool isComparison(const Token& token) {
  static constexpr std::array<std::string_view, 8> signs = {"=", "==", "<>", "!=", "<", ">", "<=", ">="};
  return std::any_of(signs.begin(), signs.end(),
                     [&](std::string_view sign) { return isOperator(token, sign); });
}

/// Reads one statement's tokens and writes them down again in SQLite's form.
class Translation {
 public:
  Translation(std::string_view sql, const HoldsNumbers& holdsNumbers)
      : all_(tokens(sql)), holdsNumbers_(holdsNumbers) {
    for (std::size_t i = 0; i < all_.size(); ++i)
      if (!isInsignificant(all_[i])) index_.push_back(i);
    matchParentheses();
    marked_.assign(index_.size(), false);
    handlesRecords_ = !index_.empty() && isRecordStatement(at(0));
  }

  std::string text() {
    if (handlesRecords_) markOperands();
    std::string result;
    std::size_t n = 0;
    for (std::size_t i = 0; i < all_.size(); ++i) {
      if (isInsignificant(all_[i])) {
        result += all_[i].text;
        continue;
      }
      result += written(n);
      if (marked_[n]) result += withoutTrailingBlanks;
      if (marked_[n] && i + 1 < all_.size() && needsBlankBefore(all_[i + 1])) result += ' ';
      ++n;
    }
    return result;
  }

 private:
  const Token& at(std::size_t n) const { return all_[index_[n]]; }
  std::size_t count() const { return index_.size(); }
  bool isSign(std::size_t n, std::string_view sign) const { return n < count() && isOperator(at(n), sign); }
  bool isKey(std::size_t n, std::string_view word) const { return n < count() && isWord(at(n), word); }

  /// True where the token would run into a word before it: 'x'AND.
  static bool needsBlankBefore(const Token& token) {
    return !isInsignificant(token) && token.kind != TokenKind::Operator;
  }

  static bool isRecordStatement(const Token& token) {
    static constexpr std::array<std::string_view, 7> words = {"SELECT",  "INSERT", "UPDATE", "DELETE",
                                                              "REPLACE", "WITH",   "VALUES"};
    return isOneOf(token, words);
  }

  void matchParentheses() {
    closing_.assign(count(), count());
    std::vector<std::size_t> open;
    for (std::size_t n = 0; n < count(); ++n) {
      if (isSign(n, "(")) open.push_back(n);
      if (!isSign(n, ")") || open.empty()) continue;
      closing_[open.back()] = n;
      open.pop_back();
    }
  }

  std::string written(std::size_t n) const {
    if (at(n).kind == TokenKind::Text && at(n).text.find('\0') != std::string_view::npos)
      return withZerosCalled(at(n).text);
    if (isKey(n, "DISTINCTROW") && n > 0 && isKey(n - 1, "SELECT")) return "";
    if (isKey(n, "MID") && isSign(n + 1, "(") && !namesTable(n)) return "substr";
    return std::string(at(n).text);
  }

  /// True where a name stands for a table or column even though a parenthesis follows: INSERT INTO MID (…).
  bool namesTable(std::size_t n) const {
    static constexpr std::array<std::string_view, 6> before = {"INTO",  "TABLE", "EXISTS",
                                                               "INDEX", "AS",    "REFERENCES"};
    return n > 0 && (isSign(n - 1, ".") || isOneOf(at(n - 1), before));
  }

  void markOperands() {
    std::size_t depth = 0;
    bool inSetList = false;
    std::size_t setDepth = 0;
    for (std::size_t n = 0; n < count(); ++n) {
      if (isSign(n, "(")) ++depth;
      if (isSign(n, ")") && depth > 0) --depth;
      if (isKey(n, "SET")) {
        inSetList = true;
        setDepth = depth;
      }
      if ((isKey(n, "WHERE") || isKey(n, "FROM")) && depth == setDepth) inSetList = false;
      if (!isComparison(at(n))) continue;
      if (inSetList && depth == setDepth && isAssignment(n)) continue;
      if (comparesNumbers(n)) continue;
      if (const auto end = operandEnd(n + 1)) marked_[*end] = true;
    }
  }

  /// True where a column that holds numbers stands on either side of the comparison at `n`.
  bool comparesNumbers(std::size_t n) const {
    if (!holdsNumbers_) return false;
    if (n > 0 && isNumberColumn(n - 1)) return true;
    return n + 1 < count() && isName(at(n + 1)) && isNumberColumn(nameEnd(n + 1));
  }

  /// True where the name that ends at `n` is that of a column that holds numbers.
  bool isNumberColumn(std::size_t n) const {
    if (n >= count() || !isName(at(n)) || isSign(n + 1, "(")) return false;
    const bool qualified = n >= 2 && isSign(n - 1, ".") && isName(at(n - 2));
    return holdsNumbers_(qualified ? at(n - 2).text : std::string_view(), at(n).text);
  }

  /// True for the "=" of "SET column = …" and ", column = …".
  bool isAssignment(std::size_t n) const { return n >= 2 && (isKey(n - 2, "SET") || isSign(n - 2, ",")); }

  /// The last token of the operand that begins at `n`, where its comparison is to leave trailing blanks out.
  std::optional<std::size_t> operandEnd(std::size_t n) const {
    if (n >= count()) return std::nullopt;
    std::size_t end = n;
    if (isSign(n, "(")) {
      end = closing_[n];
      if (end == count() || isRow(n)) return std::nullopt;
    } else if (isName(at(n)) && !isNoOperand(at(n))) {
      end = nameEnd(n);
    } else if (at(n).kind != TokenKind::Text) {
      return std::nullopt;
    }
    if (end == count() || continues(end + 1)) return std::nullopt;
    return end;
  }

  /// The last token of a column, with its table where that is named, or of a function call; count() for a
  /// broken one.
  std::size_t nameEnd(std::size_t n) const {
    while (isSign(n + 1, ".") && n + 2 < count() && isName(at(n + 2))) n += 2;
    return isSign(n + 1, "(") ? closing_[n + 1] : n;
  }

  /// True for "(a, b)".
  bool isRow(std::size_t open) const {
    for (std::size_t n = open + 1; n < closing_[open]; ++n) {
      if (isSign(n, ",")) return true;
      if (isSign(n, "(")) n = closing_[n];
    }
    return false;
  }

  /// True where the token is still a part of the operand before it, or already says how to compare.
  bool continues(std::size_t n) const {
    return isKey(n, "COLLATE") || isKey(n, "OVER") || isKey(n, "FILTER") || isSign(n, ".");
  }

  std::vector<Token> all_;
  std::vector<std::size_t> index_;    // of the significant tokens in all_
  std::vector<std::size_t> closing_;  // for each "(" its ")", counted in index_; count() where there is none
  std::vector<bool> marked_;          // tokens behind which the comparison rule is written
  bool handlesRecords_ = false;
  const HoldsNumbers& holdsNumbers_;
};

}  // namespace

std::string sqliteText(std::string_view sql, const HoldsNumbers& holdsNumbers) {
  return Translation(sql, holdsNumbers).text();
}

}  // namespace db
