#include "sql/split_statements.h"

#include "sql/tokens.h"

namespace db {
namespace {

/// Collects the pieces of one statement and knows whether a semicolon ends it.
class Collector {
 public:
  void add(const Token& token) {
    if (isInsignificant(token)) {
      if (!text_.empty()) blank_ = true;
      return;
    }
    if (blank_) text_ += ' ';
    blank_ = false;
    text_ += token.text;
    follow(token);
  }

  /// The body of a trigger holds semicolons of its own; it ends with "; END".
  bool endsAtSemicolon() const { return !trigger_ || bodyEnded_; }

  void takeInto(std::vector<std::string>& statements) {
    if (!text_.empty()) statements.push_back(text_);
    *this = Collector();
  }

 private:
  void follow(const Token& token) {
    ++words_;
    if (words_ == 1) create_ = isWord(token, "CREATE");
    if (create_ && words_ <= 3 && isWord(token, "TRIGGER")) trigger_ = true;
    bodyEnded_ = afterSemicolon_ && isWord(token, "END");
    afterSemicolon_ = isOperator(token, ";");
  }

  std::string text_;
  std::size_t words_ = 0;
  bool blank_ = false;
  bool create_ = false;
  bool trigger_ = false;
  bool afterSemicolon_ = false;
  bool bodyEnded_ = false;
};

}  // namespace

std::vector<std::string> splitStatements(std::string_view script) {
  std::vector<std::string> statements;
  Collector collector;
  for (const Token& token : tokens(script)) {
    if (isOperator(token, ";") && collector.endsAtSemicolon())
      collector.takeInto(statements);
    else
      collector.add(token);
  }
  collector.takeInto(statements);
  return statements;
}

}  // namespace db
