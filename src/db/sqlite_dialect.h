#pragma once

#include <string>
#include <string_view>

namespace db {

/// A statement in the survey suite's SQL as SQLite understands it.
///
/// - MID(text, start, length) becomes substr, which counts characters from 1 as MID does.
/// - DISTINCTROW is dropped: records of a table are distinct anyhow.
/// - In statements that read or change records, the right side of every comparison (= == <> != < > <= >=)
/// that is a
///   text, a column or a function call compares without trailing blanks. Number literals, Null and the
///   assignments behind SET stay as they are.
///
/// Everything else, blanks and faults included, is handed on as it stands, so that the engine names the
/// fault.
std::string sqliteText(std::string_view sql);

}  // namespace db
