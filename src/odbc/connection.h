#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "engine/link.h"
#include "odbc/calls.h"
#include "odbc/handle.h"
#include "odbc/product.h"
#include "odbc/source.h"
#include "odbc/statement.h"

namespace db {

/// The connection to one database through its driver, shared by the database and its record sets, with the
/// transaction in which writing is gathered. All members take the engine's own SQL; failures raise Error.
class OdbcConnection final : public Link {
 public:
  /// Connects. `file` is the path that the operator knows the database by; without `product` the driver tells
  /// what it is.
  OdbcConnection(const OdbcSource& source, std::string_view file,
                 std::unique_ptr<OdbcProduct> product = nullptr);
  ~OdbcConnection() override;

  /// The ways of the engine behind the driver.
  OdbcProduct& product() { return *product_; }
  bool isOpen() const override { return static_cast<bool>(handle_); }

  std::unique_ptr<OdbcStatement> prepare(std::string_view sql);
  /// Prepares a SELECT that gives real numbers with all their digits.
  std::unique_ptr<OdbcStatement> prepareSelect(const std::string& sql);
  /// Prepares and runs one statement.
  void run(std::string_view sql);

  /// Begins to gather what is written, unless that has begun already.
  void gather();
  /// The same, and keeps other writers of `table` out from here.
  void gather(const std::string& table);
  bool isGathering() const { return gathering_; }

  /// Begins to gather; from here on any refusal loses all that was gathered, and so does the end of the
  /// connection without close.
  void keepWhole();
  std::vector<ColumnDefinition> columns(std::string_view table) override {
    return product_->columns(*this, table);
  }

  /// Commits what was gathered and ends the connection, also where the commit fails. A second call does
  /// nothing.
  void close();
  /// Drops what was gathered and ends the connection.
  void discard();

  // What products and statements use.

  const OdbcCalls& calls() const { return calls_; }
  SQLHDBC handle() const { return handle_.get(); }
  /// True where the driver gives the columns of a row in any order, so that some may be left out.
  bool readsAnyColumn() const { return readsAnyColumn_; }
  /// Turns the driver's own committing after each statement on or off.
  void setAutocommit(bool on);
  /// Runs a statement about the transaction itself: no protection, no description but the driver's.
  void control(std::string_view sql);
  /// Ends the driver's transaction: SQL_COMMIT or SQL_ROLLBACK.
  void endTransaction(SQLSMALLINT how);

 private:
  friend class OdbcStatement;

  void enlist(OdbcStatement* statement) { statements_.insert(statement); }
  void delist(OdbcStatement* statement) { statements_.erase(statement); }
  OdbcDiagnosis diagnosis() const;
  OdbcDiagnosis diagnosis(SQLHSTMT statement) const;
  OdbcDiagnosis withLoss(OdbcDiagnosis diagnosis) const;
  void protect();
  void done(const OdbcStatement* repeatable);
  [[noreturn]] void raise(const OdbcDiagnosis& diagnosis, std::string_view table);
  void settle(const OdbcDiagnosis& diagnosis);
  void rollBack();
  void commit();
  void disconnect();

  OdbcCalls calls_;
  OdbcHandle<SQL_HANDLE_ENV> environment_;
  OdbcHandle<SQL_HANDLE_DBC> handle_;
  std::unique_ptr<OdbcProduct> product_;
  std::set<OdbcStatement*> statements_;
  bool readsAnyColumn_ = false;
  bool gathering_ = false;
  bool restoring_ = false;  // a failure is being undone
};

}  // namespace db
