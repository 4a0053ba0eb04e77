#include "odbc/handle.h"

#include "db/database.h"

namespace db {

OdbcHandle<SQL_HANDLE_ENV> odbcEnvironment() {
  OdbcHandle<SQL_HANDLE_ENV> environment(nullptr);
  if (!environment) throw Error("ODBC を使えません。");
  SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, odbcNumber(SQL_OV_ODBC3), 0);
  return environment;
}

}  // namespace db
