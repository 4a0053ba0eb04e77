#pragma once

#include <vector>

#include "odbc/postgres_comparison.h"
#include "sql/tokens.h"

namespace db {

/// Writes the names and types that a CREATE TABLE or ALTER TABLE … ADD statement makes: names keep their
/// letters, types become the server's. CREATE INDEX indexes texts as they are compared, without the blanks at
/// their ends; `tables` knows which columns hold texts. Other statements stay as they are.
void writeDefinitions(const std::vector<Token>& tokens, const PostgresTables& tables,
                      PostgresWriting& writing);

}  // namespace db
