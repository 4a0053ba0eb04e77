#pragma once

#include <string_view>

namespace db {

/// True for a declared type whose columns keep whole or real numbers: INT anywhere in it, else REAL, FLOA or
/// DOUB without a word for texts.
bool isNumberType(std::string_view type);

/// True for a declared type whose columns keep texts: CHAR, CLOB or TEXT in it, unless INT comes into it.
bool isTextType(std::string_view type);

/// True for a declared type with a fixed number of decimals: NUMERIC, DECIMAL, CURRENCY or MONEY.
bool isDecimalType(std::string_view type);

}  // namespace db
