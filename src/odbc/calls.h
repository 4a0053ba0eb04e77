#pragma once

#include <string>
#include <string_view>

#include "odbc/handle.h"

namespace db {

/// What a driver reports about a call that failed.
struct OdbcDiagnosis {
  std::string state;      ///< the SQLSTATE, such as "42S02"
  SQLINTEGER native = 0;  ///< the engine's own number
  std::string words;      ///< the engine's own words, without the makers' names in brackets before them
};

/// ODBC's functions that take or give texts, with texts in UTF-8.
///
/// They call the wide functions. unixODBC would cut the letters of its wide functions down to single bytes
/// for a driver without any; such a driver takes and gives UTF-8 bytes and is called by the narrow functions.
class OdbcCalls {
 public:
  explicit OdbcCalls(bool narrow = false) : narrow_(narrow) {}

  SQLRETURN connect(SQLHDBC connection, std::string_view connectionString) const;
  SQLRETURN prepare(SQLHSTMT statement, std::string_view sql) const;
  SQLRETURN execute(SQLHSTMT statement, std::string_view sql) const;
  /// Asks for the columns of the tables whose names fit `table`.
  SQLRETURN columns(SQLHSTMT statement, std::string_view table) const;
  /// The name and type of a result column, counted from 1.
  SQLRETURN describe(SQLHSTMT statement, SQLUSMALLINT column, std::string& name, SQLSMALLINT& type) const;
  /// A text that SQLGetInfo tells; "" where it does not.
  std::string info(SQLHDBC connection, SQLUSMALLINT what) const;
  /// The first report that a handle holds; HY000 with the words "ODBC" where it holds none.
  OdbcDiagnosis diagnosis(SQLSMALLINT type, SQLHANDLE handle) const;

  /// The C type of texts in parameters and results.
  SQLSMALLINT textType() const { return narrow_ ? SQL_C_CHAR : SQL_C_WCHAR; }
  /// The SQL types of a short and a long text parameter.
  SQLSMALLINT shortText() const { return narrow_ ? SQL_VARCHAR : SQL_WVARCHAR; }
  SQLSMALLINT longText() const { return narrow_ ? SQL_LONGVARCHAR : SQL_WLONGVARCHAR; }
  /// The width of a character of textType in bytes.
  std::size_t width() const { return narrow_ ? sizeof(char) : sizeof(SQLWCHAR); }
  /// A text as the bytes of textType, and back.
  std::string toDriver(std::string_view text) const;
  std::string fromDriver(std::string_view bytes) const;

 private:
  bool narrow_;
};

}  // namespace db
