#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace db {

/// Tells whether a column is declared to hold numbers. `qualifier` is the table or alias before its point, ""
/// where none stands there.
using HoldsNumbers = std::function<bool(std::string_view qualifier, std::string_view column)>;

/// A statement in the survey suite's SQL as SQLite understands it.
///
/// - MID(text, start, length) becomes substr, which counts characters from 1 as MID does.
/// - DISTINCTROW is dropped: records of a table are distinct anyhow.
/// - In statements that read or change records, the right side of every comparison (= == <> != < > <= >=)
/// that is a
///   text, a column or a function call compares without trailing blanks. Number literals, Null and the
///   assignments behind SET stay as they are.
/// - A comparison with a column that holds numbers stays as it is: numbers have no trailing blanks, and the
///   engine can look them up in an index.
///
/// - SaveOrder is a number wherever records are ordered or joined by it, also where it is declared as a text.
/// - In a DISTINCT list, texts that differ in trailing blanks alone are one item; without an ORDER BY the
/// items
///   come sorted by their texts.
///
/// Everything else, blanks and faults included, is handed on as it stands, so that the engine names the
/// fault. Without `holdsNumbers` every column counts as a text.
std::string sqliteText(std::string_view sql, const HoldsNumbers& holdsNumbers = {});

}  // namespace db
