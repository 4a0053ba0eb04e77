#include "sql/sqlite_dialect.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "sql/statement.h"

namespace db {
namespace {

constexpr std::string_view withoutTrailingBlanks = " COLLATE RTRIM";

std::string utf8Of(unsigned codePoint) {
  if (codePoint < 0x80) return std::string(1, static_cast<char>(codePoint));
  return {static_cast<char>(0xe0 | (codePoint >> 12)), static_cast<char>(0x80 | ((codePoint >> 6) & 0x3f)),
          static_cast<char>(0x80 | (codePoint & 0x3f))};
}

/// The first character that the text does not hold, as its code point: one of ASCII (no quote) or of the
/// private use area, whose UTF-8 cannot begin inside another character.
unsigned characterNotIn(std::string_view text) {
  unsigned result = 1;
  while (result == '\'' || text.find(utf8Of(result)) != std::string_view::npos)
    result = result == 0x7f ? 0xe000 : result + 1;
  return result;
}

/// A text literal that holds characters of code 0, where a statement would end for SQLite: written with
/// another character in their place, and a call that puts them back.
std::string withZerosCalled(std::string_view literal) {
  const unsigned standIn = characterNotIn(literal);
  std::string text;
  for (const char c : literal) text += c == '\0' ? utf8Of(standIn) : std::string(1, c);
  return "replace(" + text + ",char(" + std::to_string(standIn) + "),char(0))";
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

/// Writes one statement in SQLite's form.
class Translation {
 public:
  Translation(std::string_view sql, const HoldsNumbers& holdsNumbers)
      : sql_(sql), statement_(sql), writing_(statement_), holdsNumbers_(holdsNumbers) {}

  std::string text() {
    for (std::size_t n = 0; n < count(); ++n) writing_.written[n] = written(n);
    if (count() > 0 && isRecordStatement(at(0))) {
      writeComparisons();
      writeLists();
    }
    return writing_.whole(sql_);
  }

 private:
  const Token& at(std::size_t n) const { return statement_.at(n); }
  std::size_t count() const { return statement_.count(); }
  bool isSign(std::size_t n, std::string_view sign) const { return statement_.isSign(n, sign); }
  bool isKey(std::size_t n, std::string_view word) const { return statement_.isKey(n, word); }

  static bool isRecordStatement(const Token& token) {
    static constexpr std::array<std::string_view, 7> words = {"SELECT",  "INSERT", "UPDATE", "DELETE",
                                                              "REPLACE", "WITH",   "VALUES"};
    return isOneOf(token, words);
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

  void writeComparisons() {
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
      if (comparesNumbers(n) || comparesOrders(n)) continue;
      if (const auto end = operandEnd(n + 1)) writing_.after[*end] += withoutTrailingBlanks;
    }
  }

  /// True where a column that holds numbers stands on either side of the comparison at `n`.
  bool comparesNumbers(std::size_t n) const {
    if (n > 0 && isNumberColumn(n - 1)) return true;
    return statement_.isNameAt(n + 1) && isNumberColumn(nameEnd(n + 1));
  }

  /// Two columns of order numbers that are declared as texts meet as numbers.
  bool comparesOrders(std::size_t n) {
    const std::size_t right = statement_.isNameAt(n + 1) ? nameEnd(n + 1) : count();
    if (n == 0 || !isOrderColumn(n - 1) || !isOrderColumn(right)) return false;
    writeAsNumber(n - 1);
    writeAsNumber(right);
    return true;
  }

  bool isColumn(std::size_t n) const { return statement_.isNameAt(n) && !isSign(n + 1, "("); }
  bool isOrderColumn(std::size_t n) const { return isColumn(n) && countsAsNumber(nameOf(at(n))); }

  /// True where the name that ends at `n` is that of a column that is declared to hold numbers.
  bool isNumberColumn(std::size_t n) const {
    return holdsNumbers_ && isColumn(n) && holdsNumbers_(statement_.qualifierOf(n), nameOf(at(n)));
  }

  void writeAsNumber(std::size_t n) { writing_.wrap(statement_.nameBegin(n), n, "CAST(", " AS REAL)"); }

  void writeLists() {
    const SelectParts parts = selectParts(statement_);
    for (const ListItem& item : parts.orderItems)
      if (item.name != 0 && isOrderColumn(item.name) && !isNumberColumn(item.name) && !parts.distinct)
        writeAsNumber(item.name);
    if (parts.distinct && !parts.compound) writeDistinct(parts);
  }

  /// Texts that differ in trailing blanks alone are one item; without an order the items come sorted by their
  /// texts.
  void writeDistinct(const SelectParts& parts) {
    std::string order;
    for (std::size_t i = 0; i < parts.items.size(); ++i) {
      const ListItem& item = parts.items[i];
      const bool number = item.name != 0 && isNumberColumn(item.name);
      order += order.empty() ? " ORDER BY " : ",";
      order += number ? "CAST(" + writing_.text(item.begin, item.name) + " AS TEXT)" : std::to_string(i + 1);
      if (item.name == 0 || number) continue;
      writing_.after[item.name] += withoutTrailingBlanks;
      if (item.name + 1 == item.end) writing_.after[item.name] += " AS " + std::string(at(item.name).text);
    }
    if (parts.order == 0 && parts.from != 0 && !parts.limited) writing_.after[parts.end - 1] += order;
  }

  /// True for the "=" of "SET column = …" and ", column = …".
  bool isAssignment(std::size_t n) const { return n >= 2 && (isKey(n - 2, "SET") || isSign(n - 2, ",")); }

  /// The last token of the operand that begins at `n`, where its comparison is to leave trailing blanks out.
  std::optional<std::size_t> operandEnd(std::size_t n) const {
    if (n >= count()) return std::nullopt;
    std::size_t end = n;
    if (isSign(n, "(")) {
      end = statement_.partner(n);
      if (end == n || isRow(n)) return std::nullopt;
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
    while (isSign(n + 1, ".") && statement_.isNameAt(n + 2)) n += 2;
    if (!isSign(n + 1, "(")) return n;
    const std::size_t end = statement_.partner(n + 1);
    return end == n + 1 ? count() : end;
  }

  /// True for "(a, b)".
  bool isRow(std::size_t open) const {
    for (std::size_t n = open + 1; n < statement_.partner(open); ++n) {
      if (isSign(n, ",")) return true;
      if (isSign(n, "(")) n = std::max(n, statement_.partner(n));
    }
    return false;
  }

  /// True where the token is still a part of the operand before it, or already says how to compare.
  bool continues(std::size_t n) const {
    return isKey(n, "COLLATE") || isKey(n, "OVER") || isKey(n, "FILTER") || isSign(n, ".");
  }

  std::string_view sql_;
  Statement statement_;
  Writing writing_;
  const HoldsNumbers& holdsNumbers_;
};

}  // namespace

std::string sqliteText(std::string_view sql, const HoldsNumbers& holdsNumbers) {
  return Translation(sql, holdsNumbers).text();
}

}  // namespace db
