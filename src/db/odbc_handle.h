#pragma once

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>
#endif
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <string>
#include <string_view>
#include <utility>

namespace db {

/// What a driver reports about a call that failed.
struct OdbcDiagnosis {
  std::string state;      ///< the SQLSTATE, such as "42S02"
  SQLINTEGER native = 0;  ///< the engine's own number
  std::string words;      ///< the engine's own words, without the makers' names in brackets before them
};

/// The first report that a handle holds; HY000 with the words "ODBC" where it holds none.
OdbcDiagnosis odbcDiagnosis(SQLSMALLINT type, SQLHANDLE handle);

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
  OdbcDiagnosis diagnosis() const { return odbcDiagnosis(TYPE, handle_); }
  void reset() {
    if (handle_ != nullptr) SQLFreeHandle(TYPE, handle_);
    handle_ = nullptr;
  }

 private:
  SQLHANDLE handle_ = nullptr;
};

/// An environment that speaks ODBC 3. Raises Error where there is none.
OdbcHandle<SQL_HANDLE_ENV> odbcEnvironment();

/// A wide text as ODBC's functions take it.
inline SQLWCHAR* odbcText(std::u16string& text) { return reinterpret_cast<SQLWCHAR*>(text.data()); }

/// An attribute's value as ODBC's functions take it: a number in the place of a pointer.
inline SQLPOINTER odbcNumber(SQLULEN value) { return reinterpret_cast<SQLPOINTER>(value); }

}  // namespace db
