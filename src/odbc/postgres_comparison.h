#pragma once

#include <string>

#include "odbc/postgres_scope.h"
#include "sql/statement.h"

namespace db {

/// The SQL text of the number that the text `expression` is as a whole; Null where it is none.
std::string postgresNumber(const std::string& expression);

/// Rewrites the comparisons of a statement so that texts compare without their trailing blanks, and
/// SaveOrder by its number however it is declared.
class PostgresComparisons {
 public:
  PostgresComparisons(const Statement& statement, const PostgresScope& scope, Writing& writing);

  void write();

 private:
  enum class Kind { Other, TextColumn, TextFunction, TextLiteral, NumberColumn, NumberLiteral };
  struct Operand {
    Kind kind = Kind::Other;
    std::size_t begin = 0;
    std::size_t end = 0;  // its last token
  };

  void compare(std::size_t sign);
  Operand rightOperand(std::size_t n) const;
  Operand leftOperand(std::size_t n) const;
  Operand named(std::size_t begin, std::size_t end) const;
  bool isTextFunction(std::size_t n) const;
  void trim(const Operand& operand);
  void meetLiteral(const Operand& column, const Operand& literal);
  void writeNumberAsText(const Operand& number);
  void readNumberFrom(const Operand& text);
  bool isOrder(const Operand& operand) const;
  void wrap(const Operand& operand, const std::string& before, const std::string& after) {
    writing_.wrap(operand.begin, operand.end, before, after);
  }

  bool isSign(std::size_t n, std::string_view sign) const { return statement_.isSign(n, sign); }
  bool isKey(std::size_t n, std::string_view word) const { return statement_.isKey(n, word); }
  const Token& at(std::size_t n) const { return statement_.at(n); }

  const Statement& statement_;
  const PostgresScope& scope_;
  Writing& writing_;
};

}  // namespace db
