#include "odbc/product.h"

#include "odbc/access.h"
#include "odbc/connection.h"
#include "odbc/error.h"
#include "odbc/postgres.h"
#include "odbc/sqlite.h"
#include "sql/tokens.h"
#include "text/padding.h"

namespace db {
namespace {

/// The columns of SQLColumns' answer that are read, counted from 1.
constexpr SQLUSMALLINT tableColumn = 3;
constexpr SQLUSMALLINT nameColumn = 4;
constexpr SQLUSMALLINT kindColumn = 5;
constexpr SQLUSMALLINT typeColumn = 6;
constexpr SQLUSMALLINT sizeColumn = 7;

std::string textOf(const OdbcCalls& calls, SQLHSTMT statement, SQLUSMALLINT column) {
  std::string room(512, '\0');
  SQLLEN length = 0;
  SQLGetData(statement, column, calls.textType(), room.data(), static_cast<SQLLEN>(room.size()), &length);
  if (length == SQL_NULL_DATA) return {};
  return calls.fromDriver(std::string_view(room).substr(0, static_cast<std::size_t>(length)));
}

SQLINTEGER numberOf(SQLHSTMT statement, SQLUSMALLINT column) {
  SQLINTEGER number = 0;
  SQLLEN length = 0;
  SQLGetData(statement, column, SQL_C_SLONG, &number, sizeof number, &length);
  return length == SQL_NULL_DATA ? 0 : number;
}

/// A type as a job database declares it, whatever the driver calls it.
std::string declaredType(SQLINTEGER kind, SQLINTEGER size, const std::string& driversName) {
  switch (kind) {
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
      return size > 0 ? "TEXT(" + std::to_string(size) + ")" : "TEXT";
    case SQL_LONGVARCHAR:
    case SQL_WLONGVARCHAR:
      return "TEXT";
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return "INTEGER";
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return "REAL";
    default:
      return driversName;
  }
}

}  // namespace

std::string OdbcProduct::quoted(std::string_view name) const { return quotedName(name); }

std::vector<ColumnDefinition> OdbcProduct::columns(OdbcConnection& connection, std::string_view table) {
  connection.requireOpen();
  const OdbcHandle<SQL_HANDLE_STMT> statement(connection.handle());
  const OdbcCalls& calls = connection.calls();
  if (!SQL_SUCCEEDED(calls.columns(statement.get(), table)))
    throw describe(calls.diagnosis(SQL_HANDLE_STMT, statement.get()), connection.file(), {});
  std::vector<ColumnDefinition> result;
  while (SQL_SUCCEEDED(SQLFetch(statement.get()))) {
    // "_" and "%" in the name ask for other tables too.
    if (!text::equalIgnoringCase(textOf(calls, statement.get(), tableColumn), table)) continue;
    std::string column = textOf(calls, statement.get(), nameColumn);
    const SQLINTEGER kind = numberOf(statement.get(), kindColumn);
    const std::string type = textOf(calls, statement.get(), typeColumn);
    result.push_back({std::move(column), declaredType(kind, numberOf(statement.get(), sizeColumn), type)});
  }
  return result;
}

std::string OdbcProduct::defaultRecord(const std::vector<ColumnDefinition>& columns) const {
  return "(" + quoted(columns.front().name) + ") VALUES(NULL)";
}

void OdbcProduct::begin(OdbcConnection& connection) { connection.setAutocommit(false); }
void OdbcProduct::commit(OdbcConnection& connection) { connection.endTransaction(SQL_COMMIT); }
void OdbcProduct::rollBack(OdbcConnection& connection) { connection.endTransaction(SQL_ROLLBACK); }

Error OdbcProduct::describe(const OdbcDiagnosis& diagnosis, std::string_view file,
                            std::string_view table) const {
  return odbcError(diagnosis, file, table);
}

bool OdbcProduct::isMediumFailure(const OdbcDiagnosis& diagnosis) const {
  return db::isMediumFailure(diagnosis);
}

std::unique_ptr<OdbcProduct> odbcProduct(const OdbcCalls& calls, SQLHDBC connection,
                                         std::string_view driver) {
  std::string name = calls.info(connection, SQL_DBMS_NAME);
  if (name.empty()) name = driver;
  if (text::equalIgnoringCase(name, "PostgreSQL")) return std::make_unique<OdbcPostgres>();
  if (text::equalIgnoringCase(text::left(name, 6), "SQLite")) return std::make_unique<OdbcSqlite>();
  if (text::equalIgnoringCase(name, "MDBTOOLS")) return std::make_unique<OdbcMdbTools>();
  if (text::equalIgnoringCase(name, "ACCESS")) return std::make_unique<OdbcAccess>();
  return std::make_unique<OdbcProduct>();
}

}  // namespace db
