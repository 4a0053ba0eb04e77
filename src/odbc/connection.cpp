#include "odbc/connection.h"

#include <optional>
#include <utility>

#include "odbc/error.h"

namespace db {

OdbcConnection::OdbcConnection(const OdbcSource& source, std::string_view file,
                               std::unique_ptr<OdbcProduct> product)
    : Link(file),
      calls_(source.narrow),
      environment_(odbcEnvironment()),
      handle_(environment_.get()),
      product_(std::move(product)) {
  if (!SQL_SUCCEEDED(calls_.connect(handle_.get(), source.connectionString)))
    throw odbcError(diagnosis(), this->file());
  SQLUINTEGER ways = 0;
  SQLGetInfoW(handle_.get(), SQL_GETDATA_EXTENSIONS, &ways, sizeof ways, nullptr);
  readsAnyColumn_ = (ways & SQL_GD_ANY_ORDER) != 0;
  try {
    if (!product_) product_ = odbcProduct(calls_, handle_.get(), source.driver);
    product_->prepare(*this);
  } catch (...) {
    disconnect();
    throw;
  }
}

OdbcConnection::~OdbcConnection() {
  try {
    whole_ ? discard() : close();
  } catch (const Error&) {
    // Nobody is left to be told; close has already rolled back what could not be committed.
  }
}

std::unique_ptr<OdbcStatement> OdbcConnection::prepare(std::string_view sql) {
  requireOpen();
  return std::make_unique<OdbcStatement>(*this, sql);
}

std::unique_ptr<OdbcStatement> OdbcConnection::prepareSelect(const std::string& sql) {
  auto plain = prepare(sql);
  if (!product_->roundsNumbers()) return plain;
  const std::string exactSql = product_->exactSql(sql, plain->numberColumns());
  if (exactSql.empty()) return plain;
  auto exact = prepare(exactSql);
  exact->resemble(*plain);
  return exact;
}

void OdbcConnection::run(std::string_view sql) { prepare(sql)->run(); }

void OdbcConnection::gather() {
  requireOpen();
  requireNothingLost();
  if (gathering_) return;
  product_->begin(*this);
  gathering_ = true;
}

void OdbcConnection::keepWhole() {
  gather();
  whole_ = true;
}

void OdbcConnection::gather(const std::string& table) {
  gather();
  product_->lock(*this, table);
}

void OdbcConnection::close() {
  if (!isOpen()) return;
  std::optional<Error> failure;
  try {
    commit();
  } catch (const Error& e) {
    failure = e;
  }
  disconnect();
  if (failure) throw Error(*failure);
}

void OdbcConnection::discard() {
  if (!isOpen()) return;
  if (gathering_) rollBack();
  disconnect();
}

void OdbcConnection::setAutocommit(bool on) {
  const SQLRETURN code = SQLSetConnectAttrW(handle_.get(), SQL_ATTR_AUTOCOMMIT,
                                            odbcNumber(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF), 0);
  if (!SQL_SUCCEEDED(code)) throw product_->describe(diagnosis(), file(), {});
}

void OdbcConnection::control(std::string_view sql) {
  OdbcHandle<SQL_HANDLE_STMT> statement(handle_.get());
  const SQLRETURN code = calls_.execute(statement.get(), sql);
  if (!SQL_SUCCEEDED(code) && code != SQL_NO_DATA)
    throw product_->describe(diagnosis(statement.get()), file(), {});
}

OdbcDiagnosis OdbcConnection::diagnosis() const {
  return withLoss(calls_.diagnosis(SQL_HANDLE_DBC, handle_.get()));
}

OdbcDiagnosis OdbcConnection::diagnosis(SQLHSTMT statement) const {
  return withLoss(calls_.diagnosis(SQL_HANDLE_STMT, statement));
}

/// Not every driver tells by the state that it was the connection that failed; all of them know when asked.
OdbcDiagnosis OdbcConnection::withLoss(OdbcDiagnosis diagnosis) const {
  SQLUINTEGER dead = SQL_CD_FALSE;
  const SQLRETURN asked = SQLGetConnectAttrW(handle_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr);
  if (SQL_SUCCEEDED(asked) && dead == SQL_CD_TRUE && !isConnectionLost(diagnosis)) diagnosis.state = "08S01";
  return diagnosis;
}

/// Where the connection ends with the commit, the server may have carried it out or not.
void OdbcConnection::endTransaction(SQLSMALLINT how) {
  if (SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, handle_.get(), how))) return;
  const OdbcDiagnosis failure = diagnosis();
  if (how == SQL_COMMIT && isConnectionLost(failure)) throw Error(unsettledError(failure.words));
  throw product_->describe(failure, file(), {});
}

void OdbcConnection::protect() {
  if (!gathering_ || lost_ || whole_) return;
  try {
    product_->protect(*this);
  } catch (const Error&) {
    lost_ = true;  // the transaction is gone, with the connection or without
    rollBack();
    throw;
  }
}

void OdbcConnection::done(const OdbcStatement* repeatable) {
  if (gathering_ && !lost_ && !whole_) product_->done(repeatable);
}

void OdbcConnection::raise(const OdbcDiagnosis& diagnosis, std::string_view table) {
  const Error failure = product_->describe(diagnosis, file(), table);
  settle(diagnosis);
  throw Error(failure);
}

/// After a failure of the medium, or of anything where writing is kept as a whole, nothing of what was
/// gathered may stay; after any other failure all of it stays, unless the engine has lost it itself.
void OdbcConnection::settle(const OdbcDiagnosis& diagnosis) {
  if (!gathering_ || lost_ || restoring_) return;
  restoring_ = true;
  lost_ = whole_ || product_->isMediumFailure(diagnosis) || !product_->restore(*this);
  restoring_ = false;
  if (lost_) rollBack();
}

void OdbcConnection::rollBack() {
  try {
    product_->rollBack(*this);
  } catch (const Error&) {
    // The engine has rolled back already, or will when the connection ends.
  }
}

void OdbcConnection::commit() {
  requireNothingLost();
  if (!gathering_) return;
  try {
    product_->commit(*this);
  } catch (const Error&) {
    rollBack();
    throw;
  }
}

void OdbcConnection::disconnect() {
  for (OdbcStatement* statement : statements_) {
    statement->handle_.reset();
    statement->connection_ = nullptr;
  }
  statements_.clear();
  SQLDisconnect(handle_.get());
  handle_.reset();
}

}  // namespace db
