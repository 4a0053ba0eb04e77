#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace db {

/// What a piece of an SQL text is.
enum class TokenKind {
  Blank,       ///< spaces, tabs and line ends
  Comment,     ///< "-- …" to the end of the line, "/* … */"
  Name,        ///< a key word or a name without quotes; any character outside ASCII belongs to names
  QuotedName,  ///< "…", […] or `…`
  Text,        ///< '…', in which '' stands for one quote; x'…' as well
  Number,      ///< 12, .5, 1E-3, 0x1F
  Operator,    ///< one of <> <= >= == != || << >> -> ->>, or any other single character
  Unfinished   ///< a quote or a comment that the text ends in the midst of
};

/// A piece of an SQL text; `text` points into that text.
struct Token {
  TokenKind kind;
  std::string_view text;
};

/// The pieces of an SQL text in their order. Put together again they are the text, byte for byte, whatever it
/// holds.
std::vector<Token> tokens(std::string_view sql);

/// The pieces that mean something: neither blanks nor comments.
std::vector<Token> significantTokens(std::string_view sql);

/// True for blanks and comments.
bool isInsignificant(const Token& token);

/// True where the token is that key word, whatever its letter case. Quoted names are no key words.
bool isWord(const Token& token, std::string_view word);

/// True where the token is that operator.
bool isOperator(const Token& token, std::string_view sign);

/// True for names with and without quotes.
bool isName(const Token& token);

/// The name that a Name or QuotedName token stands for, without its quotes.
std::string nameOf(const Token& token);

/// A name in double quotes, as a name that holds anything is written into an SQL text.
std::string quotedName(std::string_view name);

}  // namespace db
