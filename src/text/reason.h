#pragma once

#include <exception>
#include <string>

namespace text {

/// What an operator is told of any error: the error's own words, Japanese ones where memory has run out.
std::string reasonOf(const std::exception& error);

}  // namespace text
