#include "db/odbc_statement.h"

#include <array>
#include <cmath>

#include "db/odbc_connection.h"
#include "db/utf16.h"

namespace db {
namespace {

/// The longest text that is handed over as an ordinary one; drivers take longer ones as memos.
constexpr std::size_t longestPlain = 255;

bool isWhole(double number) {
  constexpr double most = 2147483647.0;
  return std::trunc(number) == number && std::abs(number) <= most;
}

bool holdsNumbers(SQLSMALLINT type) {
  switch (type) {
    case SQL_DECIMAL:
    case SQL_NUMERIC:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_BIGINT:
      return true;
    default:
      return false;
  }
}

bool holdsBytes(SQLSMALLINT type) {
  return type == SQL_BINARY || type == SQL_VARBINARY || type == SQL_LONGVARBINARY;
}

/// The bytes of UTF-16 as UTF-8.
std::string wideText(const std::string& bytes) {
  std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
  bytes.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(char16_t));
  return utf8(text);
}

}  // namespace

OdbcStatement::OdbcStatement(OdbcConnection& connection, std::string_view sql)
    : connection_(&connection), handle_(connection.handle()) {
  if (!handle_) throw connection.error("への ODBC の接続を使えません。");
  connection_->enlist(this);
  try {
    std::u16string text = utf16(sql);
    check(SQLPrepareW(handle_.get(), odbcText(text), static_cast<SQLINTEGER>(text.size())));
  } catch (...) {
    connection_->delist(this);
    throw;
  }
}

OdbcStatement::~OdbcStatement() {
  if (connection_ != nullptr) connection_->delist(this);
}

void OdbcStatement::bind(std::size_t place, const Value& value) {
  if (parameters_.size() < place) parameters_.resize(place);
  Parameter& parameter = parameters_[place - 1];
  const auto number = static_cast<SQLUSMALLINT>(place);
  if (value.isText()) return bindText(place, parameter, value.text());
  parameter.length = value.isNull() ? SQL_NULL_DATA : 0;
  parameter.number = value.number();
  SQLSMALLINT form = SQL_C_DOUBLE;
  SQLSMALLINT type = value.isNull() ? SQL_VARCHAR : SQL_DOUBLE;
  SQLPOINTER at = &parameter.number;
  if (value.isNumber() && isWhole(parameter.number)) {
    parameter.whole = static_cast<SQLINTEGER>(parameter.number);
    form = SQL_C_SLONG;
    type = SQL_INTEGER;
    at = &parameter.whole;
  }
  check(SQLBindParameter(handle_.get(), number, SQL_PARAM_INPUT, form, type, value.isNull() ? 1 : 0, 0, at, 0,
                         &parameter.length));
}

void OdbcStatement::bindText(std::size_t place, Parameter& parameter, const std::string& text) {
  parameter.text = utf16(text);
  const std::size_t count = parameter.text.size();
  parameter.length = static_cast<SQLLEN>(count * sizeof(char16_t));
  const SQLSMALLINT type = count > longestPlain ? SQL_WLONGVARCHAR : SQL_WVARCHAR;
  check(SQLBindParameter(handle_.get(), static_cast<SQLUSMALLINT>(place), SQL_PARAM_INPUT, SQL_C_WCHAR, type,
                         count == 0 ? 1 : count, 0, odbcText(parameter.text), parameter.length,
                         &parameter.length));
}

void OdbcStatement::run(std::string_view table) {
  if (connection_ == nullptr) throw Error("データベースはすでに閉じられています。");
  connection_->requireOpen();
  SQLFreeStmt(handle_.get(), SQL_CLOSE);
  connection_->protect();
  const SQLRETURN code = SQLExecute(handle_.get());
  if (code != SQL_NO_DATA) check(code, table);
  changes_ = 0;
  if (code != SQL_NO_DATA) SQLRowCount(handle_.get(), &changes_);
  if (!described_) describe();
}

void OdbcStatement::check(SQLRETURN code, std::string_view table) {
  if (SQL_SUCCEEDED(code)) return;
  connection_->raise(handle_.diagnosis(), table);
}

void OdbcStatement::describe() {
  SQLSMALLINT count = 0;
  check(SQLNumResultCols(handle_.get(), &count));
  for (SQLSMALLINT i = 1; i <= count; ++i) {
    std::u16string name(256, u'\0');
    SQLSMALLINT length = 0;
    SQLSMALLINT type = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    SQLULEN size = 0;
    check(SQLDescribeColW(handle_.get(), static_cast<SQLUSMALLINT>(i), odbcText(name),
                          static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits, &nullable));
    names_.push_back(utf8(std::u16string_view(name.c_str())));
    readings_.push_back(holdsNumbers(type) ? Reading::Number
                        : holdsBytes(type) ? Reading::Bytes
                                           : Reading::Text);
  }
  row_.resize(names_.size());
  described_ = true;
}

bool OdbcStatement::next() {
  if (connection_ == nullptr) throw Error("データベースはすでに閉じられています。");
  const SQLRETURN code = SQLFetch(handle_.get());
  if (code == SQL_NO_DATA) {
    SQLFreeStmt(handle_.get(), SQL_CLOSE);
    return false;
  }
  check(code);
  for (std::size_t i = 0; i < row_.size(); ++i) row_[i] = read(i);
  return true;
}

Value OdbcStatement::read(std::size_t column) {
  const auto number = static_cast<SQLUSMALLINT>(column + 1);
  if (textsOnly_) return readLong(number, SQL_C_WCHAR);
  switch (readings_[column]) {
    case Reading::Number:
      return readNumber(number);
    case Reading::Bytes:
      return readLong(number, SQL_C_BINARY);
    case Reading::Text:
      break;
  }
  return readLong(number, SQL_C_WCHAR);
}

Value OdbcStatement::readNumber(SQLUSMALLINT column) {
  double number = 0;
  SQLLEN length = 0;
  check(SQLGetData(handle_.get(), column, SQL_C_DOUBLE, &number, sizeof number, &length));
  return length == SQL_NULL_DATA ? Value() : Value(number);
}

/// A driver hands long data over piece by piece; each piece of a text ends with a zero character.
Value OdbcStatement::readLong(SQLUSMALLINT column, SQLSMALLINT type) {
  alignas(char16_t) std::array<char, 1024> piece{};
  const std::size_t end = type == SQL_C_WCHAR ? sizeof(char16_t) : 0;
  std::string bytes;
  for (;;) {
    SQLLEN length = 0;
    const SQLRETURN code = SQLGetData(handle_.get(), column, type, piece.data(), piece.size(), &length);
    if (code == SQL_NO_DATA) break;
    check(code);
    if (length == SQL_NULL_DATA) return {};
    const std::size_t room = piece.size() - end;
    const bool more = length == SQL_NO_TOTAL || static_cast<std::size_t>(length) > room;
    bytes.append(piece.data(), more ? room : static_cast<std::size_t>(length));
    if (!more) break;
  }
  return Value(type == SQL_C_WCHAR ? wideText(bytes) : bytes);
}

}  // namespace db
