#include "route/result_list.h"

#include <map>
#include <set>
#include <utility>

#include "db/database.h"
#include "db/sql.h"
#include "open/open.h"
#include "route/heading.h"
#include "text/number.h"
#include "text/padding.h"

namespace route {
namespace {

using report::Side;

constexpr const char* differs = "※";

std::string trimmedText(const db::Value& value) { return std::string(text::trimmed(value.text())); }

/// A bench mark of the list.
struct BenchMark {
  std::string number;
  std::vector<Result> places;

  /// Where it comes first with a height; its first place where it has none at all.
  const Result& first() const {
    for (const Result& place : places)
      if (!place.height.empty()) return place;
    return places.front();
  }
  bool isUnsettled() const {
    for (const Result& place : places)
      if (!place.height.empty() && place.height != first().height) return true;
    return false;
  }
};

db::Sql conditions(const job::JobContext& context, const std::string& project) {
  db::Sql sql = " WHERE JobId = " + db::sqlValue(context.gJobId);
  if (!project.empty()) sql = sql + " AND 事業番号 = " + db::sqlValue(project);
  return sql;
}

/// The bench marks in the order in which they come first.
std::vector<BenchMark> gatheredMarks(const std::vector<Result>& results) {
  std::vector<BenchMark> all;
  std::map<std::string, std::size_t> index;
  for (const Result& result : results) {
    const auto [found, added] = index.try_emplace(result.benchMark, all.size());
    if (added) all.push_back({result.benchMark, {}});
    all[found->second].places.push_back(result);
  }
  return all;
}

/// Prefecture, county and town of the observed bench marks.
std::map<std::string, std::string> placeNames(db::Database& database, const job::JobContext& context,
                                              const std::string& project) {
  std::map<std::string, std::string> names;
  const auto records =
      database.openRecordset("SELECT 標石番号,都道府県,郡市,町村 FROM " +
                             db::sqlName(context.tables.gTblKansokuSeikaData) + conditions(context, project));
  for (; !records->eof(); records->moveNext()) {
    std::string name = trimmedText(records->field("都道府県")) + trimmedText(records->field("郡市")) +
                       trimmedText(records->field("町村"));
    if (!name.empty()) names.try_emplace(trimmedText(records->field("標石番号")), std::move(name));
  }
  records->close();
  return names;
}

report::Table listOf(const std::vector<BenchMark>& all, const std::map<std::string, std::string>& names) {
  report::Table table{{},
                      {{"事業番号", "", Side::Left, false},
                       {"路線番号", "", Side::Left, false},
                       {"水準点", "", Side::Left, false},
                       {"所在地", "", Side::Left, true},
                       {"標高", "m", Side::Point, false},
                       {"相違", "", Side::Middle, false},
                       {"備考", "", Side::Left, true}},
                      {}};
  for (std::size_t i = 0; i < all.size(); ++i) {
    const Result& place = all[i].first();
    const auto name = names.find(all[i].number);
    const bool last = i + 1 == all.size() || all[i + 1].first().project != place.project ||
                      all[i + 1].first().route != place.route;
    table.rows.push_back({{place.project, place.route, all[i].number, name == names.end() ? "" : name->second,
                           place.height, all[i].isUnsettled() ? differs : "", place.remark},
                          false,
                          last});
  }
  return table;
}

/// The heights of the bench marks that have several.
report::Table differencesOf(const std::vector<BenchMark>& all, job::Grade grade) {
  report::Table table{"標高の異なる水準点",
                      {{"水準点", "", Side::Left, false},
                       {"事業番号", "", Side::Left, false},
                       {"路線番号", "", Side::Left, false},
                       {"データ形式", "", Side::Middle, false},
                       {"標高", "m", Side::Point, false},
                       {"差", "mm", Side::Point, false}},
                      {}};
  const text::Pattern millimetres(grade.isFirst() ? "#0.0" : "#0");
  for (const BenchMark& mark : all) {
    if (!mark.isUnsettled()) continue;
    const double first = text::readNumber(mark.first().height);
    for (const Result& place : mark.places) {
      if (place.height.empty()) continue;
      const bool isFirst = &place == &mark.first();
      table.rows.push_back(
          {{isFirst ? mark.number : "", place.project, place.route, place.category, place.height,
            isFirst ? "" : millimetres.format((text::readNumber(place.height) - first) * 1000)},
           true,
           false});
    }
    table.rows.back().withNext = false;
    table.rows.back().ruleBelow = true;
  }
  return table;
}

}  // namespace

std::vector<Selection> savedSelections(const job::JobContext& context, const std::string& table,
                                       const std::string& project) {
  std::vector<Selection> selections;
  std::set<std::string> families;
  const auto database = db::openDatabase(context.gDbPath);
  const auto records =
      database->openRecordset("SELECT DISTINCT 事業番号,路線番号,DataKubun FROM " + db::sqlName(table) +
                              conditions(context, project) + " ORDER BY 事業番号,路線番号,DataKubun");
  for (; !records->eof(); records->moveNext()) {
    Selection selection{trimmedText(records->field("事業番号")),
                        trimmedText(records->field("路線番号")),
                        trimmedText(records->field("DataKubun")),
                        {}};
    const bool isKnown =
        selection.dataKubun == "1" &&
        !families.insert(selection.jigyoBango + " " + routeFamily(selection.rosenBango)).second;
    if (!isKnown && !selection.dataKubun.empty()) selections.push_back(std::move(selection));
  }
  records->close();
  database->close();
  return selections;
}

std::vector<std::string> savedProjects(const job::JobContext& context, const std::string& table) {
  std::vector<std::string> projects;
  for (const Selection& selection : savedSelections(context, table, {}))
    if (projects.empty() || projects.back() != selection.jigyoBango) projects.push_back(selection.jigyoBango);
  return projects;
}

report::Document resultList(const job::JobContext& context, const std::string& calculation,
                            const std::string& project, const std::vector<Result>& results) {
  const std::vector<BenchMark> marks = gatheredMarks(results);
  const auto database = db::openDatabase(context.gDbPath);
  const auto names = placeNames(*database, context, project);
  database->close();
  report::Document document;
  document.title = "成果一覧（" + calculation + "）";
  document.fields = routeHeading(context, {project, {}, {}, {}}, {});
  report::Part part;
  part.items.emplace_back(listOf(marks, names));
  report::Table differences = differencesOf(marks, context.grade());
  if (!differences.rows.empty()) {
    part.items.emplace_back(
        report::Note{std::string(differs) + " は、ほかのところでの標高と異なる水準点です。"});
    part.items.emplace_back(std::move(differences));
  }
  document.parts.push_back(std::move(part));
  return document;
}

}  // namespace route
