#pragma once

#include "odbc/postgres_scope.h"
#include "sql/statement.h"

namespace db {

/// Writes the names and types that a CREATE TABLE or ALTER TABLE … ADD statement makes: names keep their
/// letters, types become the server's. CREATE INDEX indexes texts as they are compared, without the blanks at
/// their ends; `tables` knows which columns hold texts. Other statements stay as they are.
void writeDefinitions(const Statement& statement, const PostgresTables& tables, Writing& writing);

}  // namespace db
