#pragma once

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <utility>

namespace db {

/// An ODBC handle that is freed with its owner. TYPE is SQL_HANDLE_ENV, SQL_HANDLE_DBC or SQL_HANDLE_STMT.
template <SQLSMALLINT TYPE>
class OdbcHandle {
 public:
  OdbcHandle() = default;
  /// A new handle below `parent`; empty where the driver manager refuses one.
  explicit OdbcHandle(SQLHANDLE parent) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(TYPE, parent, &handle_))) handle_ = nullptr;
  }
  ~OdbcHandle() { reset(); }
  OdbcHandle(OdbcHandle&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  OdbcHandle& operator=(OdbcHandle&& other) noexcept {
    if (this != &other) {
      reset();
      handle_ = std::exchange(other.handle_, nullptr);
    }
    return *this;
  }

  SQLHANDLE get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  void reset() {
    if (handle_ != nullptr) SQLFreeHandle(TYPE, handle_);
    handle_ = nullptr;
  }

 private:
  SQLHANDLE handle_ = nullptr;
};

/// An environment that speaks ODBC 3. Raises Error where there is none.
OdbcHandle<SQL_HANDLE_ENV> odbcEnvironment();

/// An attribute's value as ODBC's functions take it: a number in the place of a pointer.
inline SQLPOINTER odbcNumber(SQLULEN value) { return reinterpret_cast<SQLPOINTER>(value); }

}  // namespace db
