#include "sql/tokens.h"

#include <algorithm>
#include <array>

#include "text/padding.h"

namespace db {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameStart(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         static_cast<unsigned char>(c) >= 0x80U;
}
bool isNamePart(char c) { return isNameStart(c) || isDigit(c) || c == '$'; }

/// Cuts one SQL text into its tokens from front to back.
class Scanner {
 public:
  explicit Scanner(std::string_view sql) : sql_(sql) {}

  bool atEnd() const { return at_ >= sql_.size(); }

  Token next() {
    const std::size_t begin = at_;
    const TokenKind kind = scan();
    return {kind, sql_.substr(begin, at_ - begin)};
  }

 private:
  char peek(std::size_t ahead = 0) const { return at_ + ahead < sql_.size() ? sql_[at_ + ahead] : '\0'; }

  TokenKind scan() {
    const char c = peek();
    if (isBlank(c)) return run(TokenKind::Blank, isBlank);
    if (c == '-' && peek(1) == '-') return lineComment();
    if (c == '/' && peek(1) == '*') return blockComment();
    if (c == '\'') return quoted(TokenKind::Text, '\'');
    if (c == '"' || c == '`') return quoted(TokenKind::QuotedName, c);
    if (c == '[') return bracketed();
    if ((c == 'x' || c == 'X') && peek(1) == '\'') return blob();
    if (isDigit(c) || (c == '.' && isDigit(peek(1)))) return number();
    if (isNameStart(c)) return run(TokenKind::Name, isNamePart);
    return sign();
  }

  template <typename Belongs>
  TokenKind run(TokenKind kind, Belongs belongs) {
    while (!atEnd() && belongs(sql_[at_])) ++at_;
    return kind;
  }

  TokenKind lineComment() {
    at_ = std::min(sql_.find('\n', at_), sql_.size());
    return TokenKind::Comment;
  }

  TokenKind blockComment() {
    const std::size_t end = sql_.find("*/", at_ + 2);
    if (end == std::string_view::npos) return unfinished();
    at_ = end + 2;
    return TokenKind::Comment;
  }

  TokenKind quoted(TokenKind kind, char quote) {
    for (++at_; !atEnd(); ++at_) {
      if (sql_[at_] != quote) continue;
      ++at_;
      if (peek() != quote) return kind;
    }
    return TokenKind::Unfinished;
  }

  TokenKind bracketed() {
    const std::size_t end = sql_.find(']', at_);
    if (end == std::string_view::npos) return unfinished();
    at_ = end + 1;
    return TokenKind::QuotedName;
  }

  TokenKind blob() {
    ++at_;
    return quoted(TokenKind::Text, '\'');
  }

  TokenKind unfinished() {
    at_ = sql_.size();
    return TokenKind::Unfinished;
  }

  TokenKind number() {
    if (peek() == '0' && (peek(1) == 'x' || peek(1) == 'X')) {
      at_ += 2;
      return run(TokenKind::Number, isNamePart);
    }
    run(TokenKind::Number, isDigit);
    if (peek() == '.') {
      ++at_;
      run(TokenKind::Number, isDigit);
    }
    exponent();
    return TokenKind::Number;
  }

  void exponent() {
    if (peek() != 'e' && peek() != 'E') return;
    const std::size_t sign = peek(1) == '+' || peek(1) == '-' ? 1 : 0;
    if (!isDigit(peek(1 + sign))) return;
    at_ += 1 + sign;
    run(TokenKind::Number, isDigit);
  }

  TokenKind sign() {
    static constexpr std::array<std::string_view, 10> longOnes = {
        "->>", "<>", "<=", ">=", "==", "!=", "||", "<<", ">>", "->"};
    for (const std::string_view one : longOnes) {
      if (sql_.substr(at_, one.size()) != one) continue;
      at_ += one.size();
      return TokenKind::Operator;
    }
    ++at_;
    return TokenKind::Operator;
  }

  std::string_view sql_;
  std::size_t at_ = 0;
};

}  // namespace

std::vector<Token> tokens(std::string_view sql) {
  std::vector<Token> result;
  for (Scanner scanner(sql); !scanner.atEnd();) result.push_back(scanner.next());
  return result;
}

std::vector<Token> significantTokens(std::string_view sql) {
  std::vector<Token> result = tokens(sql);
  result.erase(std::remove_if(result.begin(), result.end(), isInsignificant), result.end());
  return result;
}

bool isInsignificant(const Token& token) {
  return token.kind == TokenKind::Blank || token.kind == TokenKind::Comment;
}

bool isWord(const Token& token, std::string_view word) {
  return token.kind == TokenKind::Name && text::equalIgnoringCase(token.text, word);
}

bool isOperator(const Token& token, std::string_view sign) {
  return token.kind == TokenKind::Operator && token.text == sign;
}

bool isName(const Token& token) {
  return token.kind == TokenKind::Name || token.kind == TokenKind::QuotedName;
}

std::string nameOf(const Token& token) {
  if (token.kind != TokenKind::QuotedName) return std::string(token.text);
  const char quote = token.text.back();
  const std::string_view inner = token.text.substr(1, token.text.size() - 2);
  std::string name;
  for (std::size_t i = 0; i < inner.size(); ++i) {
    name += inner[i];
    if (inner[i] == quote) ++i;
  }
  return name;
}

std::string quotedName(std::string_view name) {
  std::string result = "\"";
  for (const char c : name) result.append(c == '"' ? 2 : 1, c);
  return result + '"';
}

}  // namespace db
