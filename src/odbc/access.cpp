#include "odbc/access.h"

#include "odbc/connection.h"
#include "sql/column_type.h"
#include "sql/select_shape.h"
#include "sql/tokens.h"

namespace db {
namespace {

constexpr const char* readOnly =
    "は読み取り専用のため書き込めません。使用中の ODBC ドライバー（MDBTools）は Access "
    "のファイルを読むことしかできません。";

}  // namespace

std::string OdbcAccess::fieldCondition(const ColumnDefinition& column) const {
  if (!isTextType(column.type)) return OdbcProduct::fieldCondition(column);
  return "StrComp(" + quoted(column.name) + ",?,0)=0";
}

void OdbcMdbTools::begin(OdbcConnection& connection) { throw connection.error(readOnly); }

std::string OdbcMdbTools::statement(OdbcConnection& connection, std::string_view sql) {
  const std::vector<Token> words = significantTokens(sql);
  if (!words.empty() && !isWord(words.front(), "SELECT")) throw connection.error(readOnly);
  // Of a missing table the driver says only that it cannot read the SQL text.
  if (const auto shape = selectShape(sql))
    for (const SelectSource& source : shape->sources)
      if (!source.table.empty() && columns(connection, source.table).empty())
        throw connection.error("にテーブル「" + source.table + "」がありません。");
  return std::string(sql);
}

}  // namespace db
