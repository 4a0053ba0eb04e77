#include <algorithm>
#include <string>
#include <vector>

#include "db/database.h"
#include "db/sql.h"
#include "hksnb/data.h"
#include "hksnb/procedure.h"
#include "open/open.h"
#include "route/observations.h"
#include "text/padding.h"

namespace hksnb {
namespace {

constexpr std::size_t projectWidth = 9;
constexpr std::size_t routeWidth = 8;

db::Sql routesSql(const job::JobContext& context, Kind kind) {
  return " SELECT DISTINCT 事業番号,路線番号 FROM " + db::sqlName(correctionTable(context, kind)) +
         " WHERE JobId = " + db::sqlValue(context.gJobId) + " AND (DataKubun = '0' OR DataKubun = NULL)";
}

db::Sql numbersSql(const job::JobContext& context, Kind kind) {
  return "SELECT Distinct 変動観測簿No FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataHKSNB) +
         " WHERE JObId = " + db::sqlValue(context.gJobId) +
         " AND 補正値フラグ = " + db::sqlValue(rowsCode(kind)) + " ORDER BY 変動観測簿No";
}

/// A key without the blanks behind it, which make no other key of it.
std::string key(const db::Value& value) { return std::string(text::trimmedRight(value.text())); }

}  // namespace

std::string RouteItem::text() const {
  return text::padded(project, projectWidth) + ";" + text::padded(route, routeWidth);
}

RouteItem RouteItem::read(std::string_view item) {
  return {std::string(text::trimmed(text::left(item, projectWidth))),
          std::string(text::trimmed(text::mid(item, projectWidth + 2)))};
}

Status FcHHKSB_AddRosenEndFlg(const job::JobContext& context, ui::Desktop& desktop) {
  return procedure(&desktop, "FcHHKSB_AddRosenEndFlg", [&] {
    const std::string& table = context.tables.gTblKansokuSeikaDataHKSNB;
    const auto database = db::openDatabase(context.gDbPath);
    const auto columns = database->tableDefinition(table);
    if (std::none_of(columns.begin(), columns.end(), [](const db::ColumnDefinition& column) {
          return text::equalIgnoringCase(column.name, "RosenEndFlg");
        }))
      database->execute("ALTER TABLE " + db::sqlName(table) + " ADD COLUMN RosenEndFlg TEXT(2)");
    database->close();
  });
}

Status FcHHKSB_GetRosenNo(const job::JobContext& context, Kind kind, ui::ListBox& LstRosenNo1,
                          ui::ListBox& LstRosenNo2) {
  return procedure(LstRosenNo1.desktop(), "FcHHKSB_GetRosenNo", [&] {
    LstRosenNo1.clear();
    LstRosenNo2.clear();
    std::vector<RouteItem> routes;
    route::readRecords(context.gDbPath, routesSql(context, kind), [&](db::Database&, db::Recordset& records) {
      for (; !records.eof(); records.moveNext())
        routes.push_back({key(records.field("事業番号")), key(records.field("路線番号"))});
    });
    std::sort(routes.begin(), routes.end());
    routes.erase(std::unique(routes.begin(), routes.end()), routes.end());
    for (const RouteItem& item : routes) LstRosenNo1.addItem(item.text());
  });
}

Status FcHHKSB_GetHksnbNo(const job::JobContext& context, Kind kind, ui::ListBox& LstHksnbNo) {
  return procedure(LstHksnbNo.desktop(), "FcHHKSB_GetHksnbNo", [&] {
    LstHksnbNo.clear();
    std::vector<std::string> numbers;
    route::readRecords(context.gDbPath, numbersSql(context, kind),
                       [&](db::Database&, db::Recordset& records) {
                         for (; !records.eof(); records.moveNext())
                           numbers.push_back(key(records.field("変動観測簿No")));
                       });
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    for (const std::string& number : numbers) LstHksnbNo.addItem(number);
  });
}

}  // namespace hksnb
