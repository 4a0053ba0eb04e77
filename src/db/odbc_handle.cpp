#include "db/odbc_handle.h"

#include <algorithm>
#include <array>

#include "db/database.h"
#include "db/utf16.h"
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

}  // namespace

OdbcDiagnosis odbcDiagnosis(SQLSMALLINT type, SQLHANDLE handle) {
  std::u16string state(6, u'\0');
  std::u16string words(1024, u'\0');
  OdbcDiagnosis result;
  SQLSMALLINT length = 0;
  const SQLRETURN code = SQLGetDiagRecW(type, handle, 1, odbcText(state), &result.native, odbcText(words),
                                        static_cast<SQLSMALLINT>(words.size()), &length);
  if (!SQL_SUCCEEDED(code)) return {"HY000", 0, "ODBC"};
  result.state = utf8(std::u16string_view(state).substr(0, 5));
  result.words = plainWords(utf8(std::u16string_view(words.c_str())));
  return result;
}

OdbcHandle<SQL_HANDLE_ENV> odbcEnvironment() {
  OdbcHandle<SQL_HANDLE_ENV> environment(nullptr);
  if (!environment) throw Error("ODBC を使えません。");
  SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, odbcNumber(SQL_OV_ODBC3), 0);
  return environment;
}

}  // namespace db
