#include "sql/select_shape.h"

#include <algorithm>
#include <array>

#include "sql/tokens.h"

namespace db {
namespace {

template <std::size_t N>
bool isOneOf(const Token& token, const std::array<std::string_view, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&token](std::string_view word) { return isWord(token, word); });
}

bool endsSources(const Token& token) {
  static constexpr std::array<std::string_view, 8> words = {"WHERE", "GROUP", "HAVING",    "ORDER",
                                                            "LIMIT", "UNION", "INTERSECT", "EXCEPT"};
  return isOneOf(token, words) || isOperator(token, ";");
}

bool breaksRecords(const Token& token) {
  static constexpr std::array<std::string_view, 6> words = {"GROUP", "HAVING",    "LIMIT",
                                                            "UNION", "INTERSECT", "EXCEPT"};
  return isOneOf(token, words);
}

bool joins(const Token& token) {
  static constexpr std::array<std::string_view, 8> words = {"JOIN",  "LEFT",  "RIGHT",   "INNER",
                                                            "OUTER", "CROSS", "NATURAL", "FULL"};
  return isOneOf(token, words);
}

/// Reads the tokens of one SELECT from front to back.
class ShapeReader {
 public:
  explicit ShapeReader(std::string_view sql) : tokens_(significantTokens(sql)) {}

  std::optional<SelectShape> read() {
    if (!take("SELECT")) return std::nullopt;
    if (take("DISTINCT")) shape_.recordForRecord = false;
    if (!take("DISTINCTROW")) take("ALL");
    readItems();
    if (take("FROM")) readSources();
    readRest();
    return shape_;
  }

 private:
  bool atEnd() const { return at_ >= tokens_.size(); }
  bool is(std::string_view word) const { return !atEnd() && isWord(tokens_[at_], word); }
  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool take(std::string_view word) {
    if (!is(word)) return false;
    ++at_;
    return true;
  }

  /// Past the token, or past the whole group that it opens.
  void skip() {
    std::size_t depth = 0;
    do {
      if (isSign(at_, "(")) ++depth;
      if (isSign(at_, ")") && depth > 0) --depth;
      ++at_;
    } while (depth > 0 && !atEnd());
  }

  void readItems() {
    std::size_t begin = at_;
    while (!atEnd() && !is("FROM")) {
      if (isSign(at_, ",")) {
        addItem(begin, at_);
        begin = at_ + 1;
      }
      skip();
    }
    addItem(begin, at_);
  }

  void addItem(std::size_t begin, std::size_t end) {
    SelectItem item;
    while (begin + 1 < end && isName(tokens_[begin]) && isSign(begin + 1, ".")) {
      item.qualifier = nameOf(tokens_[begin]);
      begin += 2;
    }
    item.all = begin + 1 == end && isSign(begin, "*");
    const bool column = begin < end && (item.all || isName(tokens_[begin]));
    if (!column) item.qualifier.clear();
    shape_.items.push_back(item);
  }

  void readSources() {
    bool expected = true;
    while (!atEnd() && !endsSources(tokens_[at_])) {
      if (expected) {
        expected = !readSource();
      } else if (isSign(at_, ",") || is("JOIN")) {
        expected = true;
        ++at_;
      } else {
        skip();
      }
    }
  }

  /// One table, or nothing but the parenthesis that opens a group of joins.
  bool readSource() {
    SelectSource source;
    if (isSign(at_, "(")) {
      if (at_ + 1 >= tokens_.size() || !isWord(tokens_[at_ + 1], "SELECT")) {
        ++at_;
        return false;
      }
      skip();
    } else {
      source.table = readTable();
    }
    source.alias = readAlias();
    shape_.sources.push_back(source);
    return true;
  }

  std::string readTable() {
    while (isSign(at_ + 1, ".")) at_ += 2;
    const std::string name = !atEnd() && isName(tokens_[at_]) ? nameOf(tokens_[at_]) : std::string();
    ++at_;
    return name;
  }

  std::string readAlias() {
    const bool announced = take("AS");
    if (atEnd() || !isName(tokens_[at_])) return {};
    if (!announced && (is("ON") || is("USING") || joins(tokens_[at_]) || endsSources(tokens_[at_])))
      return {};
    return nameOf(tokens_[at_++]);
  }

  void readRest() {
    while (!atEnd()) {
      if (breaksRecords(tokens_[at_])) shape_.recordForRecord = false;
      skip();
    }
  }

  std::vector<Token> tokens_;
  std::size_t at_ = 0;
  SelectShape shape_;
};

}  // namespace

std::optional<SelectShape> selectShape(std::string_view sql) { return ShapeReader(sql).read(); }

std::optional<std::string> withStarReplaced(std::string_view sql, std::string_view column) {
  std::string result;
  std::size_t significant = 0;
  bool replaced = false;
  for (const Token& token : tokens(sql)) {
    if (!isInsignificant(token)) ++significant;
    const bool star = !replaced && isOperator(token, "*");
    if (!star && !replaced && significant > 1 && !isInsignificant(token) && !isWord(token, "DISTINCTROW") &&
        !isWord(token, "ALL"))
      return std::nullopt;
    result += star ? column : token.text;
    replaced = replaced || star;
  }
  if (!replaced) return std::nullopt;
  return result;
}

}  // namespace db
