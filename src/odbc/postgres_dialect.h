#pragma once

#include <string>
#include <string_view>

#include "odbc/postgres_scope.h"

namespace db {

/// A statement in the survey suite's SQL as PostgreSQL understands it.
///
/// - Names of tables and columns are written as the server has them, so that any letter case finds them; new
///   names in CREATE TABLE and ALTER TABLE keep theirs.
/// - MID becomes substr, DISTINCTROW is dropped, TEXT(n) becomes varchar(n), REAL and DOUBLE double
/// precision.
/// - Texts are compared without their trailing blanks and byte by byte. A number's column meets a text by its
///   number, a text's column a number by its text.
/// - ORDER BY sorts texts byte by byte and Null first; records of one table that it does not tell apart, or
///   that no ORDER BY stands for, come in the order in which they were written.
///
/// Everything else, faults included, is handed on as it stands, so that the server names the fault.
std::string postgresText(std::string_view sql, const PostgresTables& tables);

}  // namespace db
