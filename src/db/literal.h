#pragma once

#include <string>
#include <string_view>

namespace db {

/// `value` as a text of a statement in the survey suite's SQL: in single quotes, each quote of its own
/// doubled.
///
/// Whatever the value holds (quotes, percent signs, semicolons, a character of code 0, 100,000 characters) is
/// that text and nothing else once an engine has read the statement. An engine that keeps no character of
/// code 0 refuses such a statement. Every value that becomes part of a statement goes through here.
std::string literal(std::string_view value);

}  // namespace db
