#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "sql/tokens.h"

namespace db {

/// The pieces of one statement that mean something, with what belongs together among them. A position counts
/// them from 0; asking behind the last one is answered with "no".
class Statement {
 public:
  explicit Statement(std::string_view sql);

  std::size_t count() const { return tokens_.size(); }
  const Token& at(std::size_t n) const { return tokens_[n]; }
  const std::vector<Token>& all() const { return tokens_; }

  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }
  bool isNameAt(std::size_t n) const { return n < tokens_.size() && isName(tokens_[n]); }

  /// The other one of a pair of parentheses; its own position where it has none.
  std::size_t partner(std::size_t n) const { return partner_[n]; }

  /// The first token of the name that ends at `n`, with its table where that is named: A.標高.
  std::size_t nameBegin(std::size_t n) const;
  /// The table or alias before the point of the name that ends at `n`; "" where none stands there.
  std::string qualifierOf(std::size_t n) const;

 private:
  std::vector<Token> tokens_;
  std::vector<std::size_t> partner_;
};

/// True for = == <> != < > <= >=.
bool isComparison(const Token& token);

/// What is written around and in the place of the tokens of a statement.
struct Writing {
  std::vector<std::string> before;
  std::vector<std::string> written;
  std::vector<std::string> after;

  explicit Writing(const Statement& statement);

  void wrap(std::size_t begin, std::size_t end, const std::string& opening, const std::string& closing);
  /// The tokens from `begin` to `end`, both included, as they are written so far.
  std::string text(std::size_t begin, std::size_t end) const;
  /// The whole statement `sql` with its blanks and comments.
  std::string whole(std::string_view sql) const;
};

/// One item of a select list or of ORDER BY.
struct ListItem {
  std::size_t begin = 0;  ///< its first token
  std::size_t end = 0;    ///< behind its last one
  std::size_t name = 0;   ///< the last token of the column that it is; 0 where it is none
  bool descending = false;
};

/// The parts of a statement's outermost SELECT.
struct SelectParts {
  bool distinct = false;
  bool limited = false;   ///< LIMIT or the like stands behind the order
  bool compound = false;  ///< UNION, GROUP BY or the like
  std::size_t from = 0;   ///< the position of FROM; 0 where there is none
  std::size_t order = 0;  ///< behind ORDER BY; 0 where there is none
  std::size_t end = 0;    ///< behind what is selected and its order
  std::vector<ListItem> items;
  std::vector<ListItem> orderItems;
};

/// The parts of a statement that begins with SELECT; without items where it does not.
SelectParts selectParts(const Statement& statement);

/// True for the column that tells the order of a route's records: it counts as a number, however it is
/// declared.
bool countsAsNumber(std::string_view column);

}  // namespace db
