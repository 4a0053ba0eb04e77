#include "daen/data_sections.h"

#include <array>
#include <string>

#include "daen/columns.h"
#include "db/database.h"
#include "db/sql.h"
#include "route/observations.h"
#include "route/records.h"
#include "text/padding.h"
#include "ui/error_trap.h"

namespace daen {
namespace {

// The fields of a reference item, each followed by ";": width in characters, and where they begin.
constexpr std::size_t projectWidth = 9;
constexpr std::size_t routeWidth = 8;
constexpr std::size_t benchMarkWidth = 10;
constexpr std::size_t routeStart = projectWidth + 2;
constexpr std::size_t endStart = routeStart + routeWidth + 1 + benchMarkWidth + 1;
constexpr std::size_t referenceStart = endStart + benchMarkWidth + 1;

/// Fields of the section table in the order of the grid's columns.
constexpr std::array<const char*, sectionColumnCount> fields = {
    "自首末地", "至首末地", "自水準点番号", "至水準点番号", "B1", "B2", "B1_B2", "B1plusB2",
    "k",        "H",        "CalK"};

bool isNumberColumn(int col) { return col >= secB1; }

const text::Pattern& reopened() {
  static const text::Pattern pattern("#0.0#");
  return pattern;
}

db::Sql padded(std::string_view key) { return db::sqlValue(route::paddedKey(key)); }

db::Sql reopenSql(const job::JobContext& context, const route::Selection& selection) {
  const db::Sql table = db::sqlName(context.tables.gTblDaenHoseiChiHyouData);
  return " SELECT * FROM " + table + " WHERE " + " JobId =" + db::sqlValue(context.gJobId) + " AND " + table +
         ".事業番号 =" + padded(selection.jigyoBango) + " AND " + table +
         ".路線番号 =" + padded(selection.rosenBango) + " AND " + table + ".DataKubun" + "=" +
         db::sqlValue(selection.dataKubun) + " ORDER BY " + table + ".SaveOrder";
}

/// What both reference queries begin with.
db::Sql projectSql(const job::JobContext& context, const route::Selection& selection) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblDaenHoseiChiHyouData) +
         " WHERE JobId =" + db::sqlValue(context.gJobId) + " AND 事業番号 =" + padded(selection.jigyoBango);
}

db::Sql otherRoutesSql(const job::JobContext& context, const route::Selection& selection) {
  return projectSql(context, selection) + " AND 路線番号 <>" + padded(selection.rosenBango);
}

db::Sql otherCategoriesSql(const job::JobContext& context, const route::Selection& selection) {
  return projectSql(context, selection) + " AND 路線番号 =" + padded(selection.rosenBango) +
         " AND DataKubun <>" + db::sqlValue(selection.dataKubun);
}

void addRecord(db::Recordset& records, const route::Selection& selection, const job::JobContext& context,
               const ui::Grid& grid, int row) {
  records.addNew();
  records.set("JobId", context.gJobId);
  records.set("SaveOrder", row);
  records.set("事業番号", route::paddedKey(selection.jigyoBango));
  records.set("路線番号", route::paddedKey(selection.rosenBango));
  records.set("DataKubun", selection.dataKubun);
  for (int col = 0; col < sectionColumnCount; ++col)
    if (!grid.text(row, col).empty())
      records.set(fields[static_cast<std::size_t>(col)], route::cellValue(grid, row, col));
  records.update();
}

std::string referenceItem(const db::Recordset& record) {
  const auto field = [&](const char* name, std::size_t width) {
    return text::padded(db::FcNullToBlank(record.field(name)), width) + ";";
  };
  return field("事業番号", projectWidth) + field("路線番号", routeWidth) +
         field("自水準点番号", benchMarkWidth) + field("至水準点番号", benchMarkWidth) +
         db::FcNullToBlank(record.field("k"));
}

void addReferences(const std::string& dbPath, const db::Sql& sql, ui::ListBox& list) {
  route::readRecords(dbPath, sql, [&](db::Database&, db::Recordset& records) {
    for (; !records.eof(); records.moveNext()) list.addItem(referenceItem(records));
  });
}

void addSection(const db::Recordset& record, ui::Grid& grid) {
  const int row = grid.rows() - 1;
  grid.addItem({}, row);
  for (int col = 0; col < sectionColumnCount; ++col) {
    const db::Value value = record.field(fields[static_cast<std::size_t>(col)]);
    grid.setText(row, col,
                 isNumberColumn(col) ? route::formatted(value, reopened()) : db::FcNullToBlank(value));
  }
}

}  // namespace

db::Sql savedSectionsSql(const job::JobContext& context, const route::Selection& selection) {
  return "SELECT * FROM " + db::sqlName(context.tables.gTblDaenHoseiChiHyouData) +
         " WHERE JobId = " + db::sqlValue(context.gJobId) + " AND 事業番号 =" + padded(selection.jigyoBango) +
         " AND 路線番号 =" + padded(selection.rosenBango) +
         " AND DataKubun = " + db::sqlValue(selection.dataKubun);
}

std::size_t countSections(const ui::Grid& Grid2) {
  return Grid2.rows() > 2 ? static_cast<std::size_t>(Grid2.rows() - 2) : 0;
}

void replaceSections(db::Database& database, const route::Selection& selection,
                     const job::JobContext& context, const ui::Grid& Grid2) {
  route::replaceRecords(database, savedSectionsSql(context, selection), [&](db::Recordset& records) {
    for (int row = 1; row <= Grid2.rows() - 2; ++row) addRecord(records, selection, context, Grid2, row);
  });
}

bool FcDaenHoseichiHyouSave(const route::Selection& selection, const job::JobContext& context,
                            const ui::Grid& Grid2) {
  return ui::trapped(Grid2.desktop(), "FcDaenHoseichiHyouSave", [&] {
    route::save(context.gDbPath, route::Extent::AsFarAsItCame,
                [&](db::Database& database) { replaceSections(database, selection, context, Grid2); });
  });
}

void reopenSections(const route::Selection& selection, const job::JobContext& context, ui::Grid& Grid2) {
  route::readRecords(context.gDbPath, reopenSql(context, selection),
                     [&](db::Database&, db::Recordset& records) {
                       for (; !records.eof(); records.moveNext()) addSection(records, Grid2);
                     });
}

bool FcSetLstSanshouDaen(const route::Selection& selection, const job::JobContext& context,
                         ui::ListBox& LstSanshouDaen) {
  return ui::trapped(LstSanshouDaen.desktop(), "FcSetLstSanshouDaen", [&] {
    LstSanshouDaen.clear();
    addReferences(context.gDbPath, otherRoutesSql(context, selection), LstSanshouDaen);
    addReferences(context.gDbPath, otherCategoriesSql(context, selection), LstSanshouDaen);
  });
}

std::string referenceEnd(std::string_view item) {
  return std::string(text::trimmed(text::mid(item, endStart, benchMarkWidth)));
}

std::string referenceRoute(std::string_view item) {
  return std::string(text::trimmed(text::mid(item, routeStart, routeWidth)));
}

std::string referenceOf(std::string_view item) {
  return std::string(text::mid(text::trimmed(item), referenceStart));
}

}  // namespace daen
