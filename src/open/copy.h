#pragma once

#include <string_view>

namespace db {

/// Copies the database at `from` into a new file at `to` by the safe copy of its own engine: one state of it,
/// whole, also while others work on it. Returns false, having done nothing, where the engine has no such
/// copy. Raises Error where the copying fails; no file is left then.
bool copyByEngine(std::string_view from, std::string_view to);

}  // namespace db
