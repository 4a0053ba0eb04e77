#include "sql/sqlite_join.h"

#include <algorithm>
#include <array>

#include "sql/select_shape.h"
#include "sql/tokens.h"
#include "text/padding.h"

namespace db {
namespace {

bool isKnownAs(const SelectSource& source, std::string_view qualifier) {
  return text::equalIgnoringCase(source.alias.empty() ? source.table : source.alias, qualifier);
}

/// Gathers the columns that a SELECT names behind FROM.
class ComparedColumns {
 public:
  ComparedColumns(std::vector<Token> tokens, const SelectShape& shape, const ColumnsOf& columnsOf)
      : tokens_(std::move(tokens)), shape_(shape) {
    for (const SelectSource& source : shape.sources) definitions_.push_back(columnsOf(source.table));
    compared_.resize(shape.sources.size());
  }

  /// False where texts may be compared that stand in no column: literals with a blank at their end, results
  /// of functions, what is put together or selected within; or where columns are compared without a name.
  bool gather() {
    std::size_t n = 0;
    while (n < tokens_.size() && !isWord(tokens_[n], "FROM")) ++n;
    for (; n < tokens_.size(); ++n) {
      if (isWord(tokens_[n], "SELECT") || isWord(tokens_[n], "NATURAL") || isOperator(tokens_[n], "||") ||
          tokens_[n].text.ends_with(" '") || isOpenCall(n))
        return false;
      if (isName(tokens_[n])) note(n);
    }
    return true;
  }

  std::vector<std::string> blanksSql() const {
    std::vector<std::string> result;
    for (std::size_t i = 0; i < compared_.size(); ++i) {
      std::string conditions;
      for (const std::string& column : compared_[i])
        conditions += (conditions.empty() ? "" : " OR ") +
                      ("length(" + quotedName(column) + ")<>length(rtrim(" + quotedName(column) + "))");
      if (!conditions.empty())
        result.push_back("SELECT 1 FROM " + quotedName(shape_.sources[i].table) + " WHERE " + conditions +
                         " LIMIT 1");
    }
    return result;
  }

 private:
  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }

  /// True for a function whose result is not compared with a literal: MID(a,3,4) = '2301' joins nothing.
  bool isOpenCall(std::size_t n) const {
    static constexpr std::array<std::string_view, 7> keys = {"ON",  "AND", "OR",   "WHERE",
                                                             "NOT", "IN",  "USING"};
    const bool key = std::any_of(keys.begin(), keys.end(),
                                 [this, n](std::string_view word) { return isWord(tokens_[n], word); });
    if (key || !isName(tokens_[n]) || !isSign(n + 1, "(")) return false;
    std::size_t end = n + 1;
    for (std::size_t depth = 0; end < tokens_.size(); ++end) {
      if (isSign(end, "(")) ++depth;
      if (isSign(end, ")") && --depth == 0) break;
    }
    return !isSign(end + 1, "=") || end + 2 >= tokens_.size() || isName(tokens_[end + 2]);
  }

  void note(std::size_t n) {
    const bool qualified = n >= 2 && isOperator(tokens_[n - 1], ".") && isName(tokens_[n - 2]);
    const std::string name = nameOf(tokens_[n]);
    for (std::size_t i = 0; i < definitions_.size(); ++i) {
      if (qualified && !isKnownAs(shape_.sources[i], nameOf(tokens_[n - 2]))) continue;
      for (const ColumnDefinition& column : definitions_[i])
        if (text::equalIgnoringCase(column.name, name)) add(compared_[i], column.name);
    }
  }

  static void add(std::vector<std::string>& columns, const std::string& name) {
    if (std::find(columns.begin(), columns.end(), name) == columns.end()) columns.push_back(name);
  }

  std::vector<Token> tokens_;
  const SelectShape& shape_;
  std::vector<std::vector<ColumnDefinition>> definitions_;  // by source
  std::vector<std::vector<std::string>> compared_;          // by source
};

}  // namespace

JoinedTexts joinedTexts(std::string_view sql, const ColumnsOf& columnsOf) {
  const std::vector<Token> words = significantTokens(sql);
  const auto isSelect = [](const Token& token) { return isWord(token, "SELECT"); };
  const auto shape = selectShape(sql);
  JoinedTexts result;
  result.joins =
      std::count_if(words.begin(), words.end(), isSelect) > 1 || !shape || shape->sources.size() > 1;
  if (!result.joins || !shape) return result;
  ComparedColumns columns(words, *shape, columnsOf);
  if (columns.gather()) result.blanksSql = columns.blanksSql();
  return result;
}

}  // namespace db
