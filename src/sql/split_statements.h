#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace db {

/// Cuts a text of several SQL statements at its semicolons (those in quotes, names and comments apart).
/// Comments and empty statements are left out.
std::vector<std::string> splitStatements(std::string_view script);

}  // namespace db
