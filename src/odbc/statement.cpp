#include "odbc/statement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "odbc/connection.h"
#include "text/number.h"

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

bool holdsDecimals(SQLSMALLINT type) { return type == SQL_DECIMAL || type == SQL_NUMERIC; }

bool holdsBytes(SQLSMALLINT type) {
  return type == SQL_BINARY || type == SQL_VARBINARY || type == SQL_LONGVARBINARY;
}

}  // namespace

OdbcStatement::OdbcStatement(OdbcConnection& connection, std::string_view sql)
    : connection_(&connection), calls_(connection.calls()), sql_(sql), handle_(connection.handle()) {
  if (!handle_) throw connection.error("への ODBC の接続を使えません。");
  connection_->enlist(this);
  try {
    check(calls_.prepare(handle_.get(), sql));
  } catch (...) {
    connection_->delist(this);
    throw;
  }
}

OdbcStatement::~OdbcStatement() {
  if (connection_ != nullptr) connection_->delist(this);
}

void OdbcStatement::bind(std::size_t place, const Value& value) {
  if (parameters_.size() < place) {
    parameters_.resize(place);
    bound_.resize(place);
  }
  bound_[place - 1] = value;
  Parameter& parameter = parameters_[place - 1];
  const auto number = static_cast<SQLUSMALLINT>(place);
  if (value.isText()) return bindText(place, parameter, value.text());
  if (value.isBytes()) return bindBytes(place, parameter, value.text());
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
  // A driver would end the text there and write another one, which may be the key of somebody else.
  if (text.find('\0') != std::string::npos)
    throw connection_->error("には使えない文字（コード 0）のある値を書きません。");
  parameter.text = calls_.toDriver(text);
  parameter.length = static_cast<SQLLEN>(parameter.text.size());
  const std::size_t count = parameter.text.size() / calls_.width();
  const SQLSMALLINT type = count > longestPlain ? calls_.longText() : calls_.shortText();
  check(SQLBindParameter(handle_.get(), static_cast<SQLUSMALLINT>(place), SQL_PARAM_INPUT, calls_.textType(),
                         type, count == 0 ? 1 : count, 0, parameter.text.data(), parameter.length,
                         &parameter.length));
}

void OdbcStatement::bindBytes(std::size_t place, Parameter& parameter, const std::string& bytes) {
  parameter.text = bytes;
  parameter.length = static_cast<SQLLEN>(bytes.size());
  check(SQLBindParameter(handle_.get(), static_cast<SQLUSMALLINT>(place), SQL_PARAM_INPUT, SQL_C_BINARY,
                         SQL_LONGVARBINARY, bytes.empty() ? 1 : bytes.size(), 0, parameter.text.data(),
                         parameter.length, &parameter.length));
}

void OdbcStatement::requireConnection() const {
  if (connection_ == nullptr) throw Error("データベースはすでに閉じられています。");
}

void OdbcStatement::run(std::string_view table) {
  requireConnection();
  connection_->protect();
  execute(table);
  connection_->done(nullptr);
}

void OdbcStatement::runRepeatable(std::string_view table) {
  requireConnection();
  connection_->protect();
  execute(table);
  connection_->done(this);
}

void OdbcStatement::repeat() {
  requireConnection();
  const SQLRETURN code = SQLExecute(handle_.get());
  if (!SQL_SUCCEEDED(code) && code != SQL_NO_DATA) throw connection_->error("への書き込みを繰り返せません。");
}

void OdbcStatement::execute(std::string_view table) {
  connection_->requireOpen();
  SQLFreeStmt(handle_.get(), SQL_CLOSE);
  const SQLRETURN code = SQLExecute(handle_.get());
  if (code != SQL_NO_DATA) check(code, table);
  ended_ = code == SQL_NO_DATA;
  changes_ = 0;
  if (!ended_) SQLRowCount(handle_.get(), &changes_);
  if (!described_ && !ended_) describe();
}

void OdbcStatement::check(SQLRETURN code, std::string_view table) {
  if (SQL_SUCCEEDED(code)) return;
  connection_->raise(connection_->diagnosis(handle_.get()), table);
}

OdbcStatement::Reading OdbcStatement::readingOf(SQLSMALLINT type) const {
  if (holdsDecimals(type)) return Reading::Decimal;
  if (type == SQL_BIGINT) return Reading::Decimal;  // a double does not hold all of them
  if (holdsNumbers(type)) return connection_->product().givesNumbers() ? Reading::Number : Reading::Decimal;
  return holdsBytes(type) ? Reading::Bytes : Reading::Text;
}

void OdbcStatement::describe() {
  SQLSMALLINT count = 0;
  check(SQLNumResultCols(handle_.get(), &count));
  for (SQLSMALLINT i = 1; i <= count; ++i) {
    std::string name;
    SQLSMALLINT type = 0;
    check(calls_.describe(handle_.get(), static_cast<SQLUSMALLINT>(i), name, type));
    names_.push_back(std::move(name));
    readings_.push_back(readingOf(type));
  }
  row_.resize(names_.size());
  described_ = true;
}

std::vector<bool> OdbcStatement::numberColumns() {
  requireConnection();
  if (!described_) describe();
  std::vector<bool> result;
  for (const Reading reading : readings_) result.push_back(reading == Reading::Number);
  return result;
}

void OdbcStatement::resemble(const OdbcStatement& other) {
  names_ = other.names_;
  readings_ = other.readings_;
  // The texts of exact numbers, which may be whole ones that no double holds.
  std::replace(readings_.begin(), readings_.end(), Reading::Number, Reading::Decimal);
  row_.resize(names_.size());
  described_ = true;
}

bool OdbcStatement::next() {
  requireConnection();
  if (ended_) return false;
  const SQLRETURN code = SQLFetch(handle_.get());
  if (code == SQL_NO_DATA) {
    SQLFreeStmt(handle_.get(), SQL_CLOSE);
    ended_ = true;
    return false;
  }
  check(code);
  forgetRow();
  return true;
}

void OdbcStatement::forgetRow() {
  for (std::size_t i = 0; i < row_.size(); ++i) {
    row_[i].reset();
    if (!connection_->readsAnyColumn()) row_[i] = read(i);
  }
}

const Value& OdbcStatement::value(std::size_t column) {
  requireConnection();
  std::optional<Value>& value = row_.at(column);
  if (!value) value = read(column);
  return *value;
}

Value OdbcStatement::read(std::size_t column) {
  const auto number = static_cast<SQLUSMALLINT>(column + 1);
  if (textsOnly_) return readLong(number, calls_.textType());
  switch (readings_[column]) {
    case Reading::Number:
      return readNumber(number);
    case Reading::Decimal:
      return readDecimal(number);
    case Reading::Bytes:
      return readLong(number, SQL_C_BINARY);
    case Reading::Text:
      break;
  }
  return readLong(number, calls_.textType());
}

Value OdbcStatement::readNumber(SQLUSMALLINT column) {
  double number = 0;
  SQLLEN length = 0;
  check(SQLGetData(handle_.get(), column, SQL_C_DOUBLE, &number, sizeof number, &length));
  return length == SQL_NULL_DATA ? Value() : Value(number);
}

/// An engine may keep any text in a column of decimals, and a whole number that a double cannot hold.
Value OdbcStatement::readDecimal(SQLUSMALLINT column) {
  Value value = readLong(column, calls_.textType());
  const std::string words = value.text();
  return text::isNumeric(words) && !isLongWhole(words) ? Value(text::readNumber(words)) : value;
}

/// A driver hands long data over piece by piece; each piece of a text ends with a zero character.
Value OdbcStatement::readLong(SQLUSMALLINT column, SQLSMALLINT type) {
  alignas(SQLWCHAR) std::array<char, 1024> piece;
  const std::size_t end = type == SQL_C_BINARY ? 0 : calls_.width();
  std::string bytes;
  for (;;) {
    SQLLEN length = 0;
    const SQLRETURN code = SQLGetData(handle_.get(), column, type, piece.data(), piece.size(), &length);
    if (code == SQL_NO_DATA) break;
    check(code);
    if (length == SQL_NULL_DATA) return {};
    const std::size_t room = piece.size() - end;
    const bool more = length == SQL_NO_TOTAL || static_cast<std::size_t>(length) > room;
    if (!more && bytes.empty() && type != SQL_C_BINARY)
      return Value(calls_.fromDriver({piece.data(), static_cast<std::size_t>(length)}));
    bytes.append(piece.data(), more ? room : static_cast<std::size_t>(length));
    if (!more) break;
  }
  if (type == SQL_C_BINARY) return Bytes{std::move(bytes)};
  return calls_.fromDriver(bytes);
}

}  // namespace db
