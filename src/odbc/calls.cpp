#include "odbc/calls.h"

#include <algorithm>
#include <array>

#include "odbc/utf16.h"
#include "text/padding.h"

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "ODBC's wide texts are UTF-16");

namespace db {
namespace {

/// One line, without "[maker][driver]" before it and psqlodbc's remark about the query behind it.
std::string plainWords(std::string words) {
  while (!words.empty() && words.front() == '[') {
    const std::size_t end = words.find(']');
    if (end == std::string::npos) break;
    words.erase(0, end + 1);
  }
  const std::size_t remark = words.find(";\nError while");
  if (remark != std::string::npos) words.erase(remark);
  std::replace_if(
      words.begin(), words.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  return std::string(text::trimmed(words));
}

SQLCHAR* narrowText(std::string& text) { return reinterpret_cast<SQLCHAR*>(text.data()); }
SQLWCHAR* wideText(std::u16string& text) { return reinterpret_cast<SQLWCHAR*>(text.data()); }

/// What a function wrote into `room` up to its first zero.
std::string written(const std::string& room) { return room.c_str(); }
std::string written(const std::u16string& room) { return utf8(room.c_str()); }

}  // namespace

SQLRETURN OdbcCalls::connect(SQLHDBC connection, std::string_view connectionString) const {
  std::string bytes(connectionString);
  std::u16string wide = utf16(connectionString);
  if (narrow_)
    return SQLDriverConnect(connection, nullptr, narrowText(bytes), static_cast<SQLSMALLINT>(bytes.size()),
                            nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
  return SQLDriverConnectW(connection, nullptr, wideText(wide), static_cast<SQLSMALLINT>(wide.size()),
                           nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
}

SQLRETURN OdbcCalls::prepare(SQLHSTMT statement, std::string_view sql) const {
  std::string bytes(sql);
  if (narrow_) return SQLPrepare(statement, narrowText(bytes), static_cast<SQLINTEGER>(bytes.size()));
  std::u16string wide = utf16(sql);
  return SQLPrepareW(statement, wideText(wide), static_cast<SQLINTEGER>(wide.size()));
}

SQLRETURN OdbcCalls::execute(SQLHSTMT statement, std::string_view sql) const {
  std::string bytes(sql);
  if (narrow_) return SQLExecDirect(statement, narrowText(bytes), static_cast<SQLINTEGER>(bytes.size()));
  std::u16string wide = utf16(sql);
  return SQLExecDirectW(statement, wideText(wide), static_cast<SQLINTEGER>(wide.size()));
}

SQLRETURN OdbcCalls::columns(SQLHSTMT statement, std::string_view table) const {
  std::string bytes(table);
  if (narrow_)
    return SQLColumns(statement, nullptr, 0, nullptr, 0, narrowText(bytes),
                      static_cast<SQLSMALLINT>(bytes.size()), nullptr, 0);
  std::u16string wide = utf16(table);
  return SQLColumnsW(statement, nullptr, 0, nullptr, 0, wideText(wide), static_cast<SQLSMALLINT>(wide.size()),
                     nullptr, 0);
}

SQLRETURN OdbcCalls::describe(SQLHSTMT statement, SQLUSMALLINT column, std::string& name,
                              SQLSMALLINT& type) const {
  constexpr SQLSMALLINT room = 512;
  SQLSMALLINT length = 0;
  SQLSMALLINT digits = 0;
  SQLSMALLINT nullable = 0;
  SQLULEN size = 0;
  std::string bytes(room, '\0');
  std::u16string wide(room, u'\0');
  const SQLRETURN code = narrow_ ? SQLDescribeCol(statement, column, narrowText(bytes), room, &length, &type,
                                                  &size, &digits, &nullable)
                                 : SQLDescribeColW(statement, column, wideText(wide), room, &length, &type,
                                                   &size, &digits, &nullable);
  name = narrow_ ? written(bytes) : written(wide);
  return code;
}

std::string OdbcCalls::info(SQLHDBC connection, SQLUSMALLINT what) const {
  constexpr SQLSMALLINT room = 256;
  SQLSMALLINT length = 0;  // not every driver tells it
  std::string bytes(room, '\0');
  std::u16string wide(room, u'\0');
  const SQLRETURN code = narrow_ ? SQLGetInfo(connection, what, bytes.data(), room, &length)
                                 : SQLGetInfoW(connection, what, wide.data(), room, &length);
  if (!SQL_SUCCEEDED(code)) return {};
  return narrow_ ? written(bytes) : written(wide);
}

OdbcDiagnosis OdbcCalls::diagnosis(SQLSMALLINT type, SQLHANDLE handle) const {
  constexpr SQLSMALLINT room = 2048;
  SQLSMALLINT length = 0;
  OdbcDiagnosis result;
  std::string state(6, '\0');
  std::string words(room, '\0');
  std::u16string wideState(6, u'\0');
  std::u16string wideWords(room, u'\0');
  const SQLRETURN code = narrow_ ? SQLGetDiagRec(type, handle, 1, narrowText(state), &result.native,
                                                 narrowText(words), room, &length)
                                 : SQLGetDiagRecW(type, handle, 1, wideText(wideState), &result.native,
                                                  wideText(wideWords), room, &length);
  if (!SQL_SUCCEEDED(code)) return {"HY000", 0, "ODBC"};
  result.state = narrow_ ? written(state) : written(wideState);
  result.words = plainWords(narrow_ ? written(words) : written(wideWords));
  return result;
}

std::string OdbcCalls::toDriver(std::string_view text) const {
  if (narrow_) return std::string(text);
  const std::u16string wide = utf16(text);
  return {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t)};
}

std::string OdbcCalls::fromDriver(std::string_view bytes) const {
  if (narrow_) return std::string(bytes);
  std::u16string wide(bytes.size() / sizeof(char16_t), u'\0');
  bytes.copy(reinterpret_cast<char*>(wide.data()), wide.size() * sizeof(char16_t));
  return utf8(wide);
}

}  // namespace db
