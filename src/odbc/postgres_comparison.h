#pragma once

#include <optional>
#include <string>
#include <vector>

#include "odbc/postgres_scope.h"

namespace db {

/// What is written around and in the place of a statement's significant tokens.
struct PostgresWriting {
  std::vector<std::string> before;
  std::vector<std::string> written;
  std::vector<std::string> after;
};

/// Rewrites the comparisons of a statement so that texts compare without their trailing blanks.
class PostgresComparisons {
 public:
  PostgresComparisons(const std::vector<Token>& tokens, const PostgresScope& scope, PostgresWriting& writing);

  void write();

 private:
  enum class Kind { Other, TextColumn, TextFunction, TextLiteral, NumberColumn, NumberLiteral };
  struct Operand {
    Kind kind = Kind::Other;
    std::size_t begin = 0;
    std::size_t end = 0;  // its last token
  };

  void matchParentheses();
  void compare(std::size_t sign);
  Operand rightOperand(std::size_t n) const;
  Operand leftOperand(std::size_t n) const;
  Operand named(std::size_t begin, std::size_t end) const;
  bool isTextFunction(std::size_t n) const;
  void trim(const Operand& operand);
  void meetLiteral(const Operand& column, const Operand& literal);
  void writeNumberAsText(const Operand& number);
  void readNumberFrom(const Operand& text);
  void wrap(const Operand& operand, const std::string& before, const std::string& after);
  std::string wholeText(const Operand& operand) const;

  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }

  const std::vector<Token>& tokens_;
  const PostgresScope& scope_;
  PostgresWriting& writing_;
  std::vector<std::size_t> partner_;  // of each parenthesis; its own place where it has none
};

}  // namespace db
