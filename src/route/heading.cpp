#include "route/heading.h"

#include <array>
#include <chrono>

#include "db/database.h"
#include "db/sql.h"
#include "open/open.h"
#include "text/date.h"
#include "text/padding.h"

namespace route {
namespace {

/// A list of names that a heading refers to by numbers.
struct NameList {
  std::string_view field;   ///< name of the heading's line
  std::string_view number;  ///< column that tells the names apart, in the heading and in the list
  std::string_view table;
  std::string_view name;
  std::string_view serial;  ///< column of a serial number, "" for none
};

constexpr std::array<NameList, 3> lists = {
    {{"観測者", "観測者No", "ComKansokushameiMst", "観測者名", ""},
     {"器械", "器械No", "ComShiyouKIkaimeiMst", "器械名", "器械番号"},
     {"標尺", "標尺No", "ComShiyouHyoushakuMeiMst", "標尺名", "標尺番号"}}};

constexpr std::array<std::array<std::string_view, 2>, 4> plain = {
    {{"作業名", "作業名"}, {"計画機関", "計画機関名"}, {"作業機関", "作業機関名"}, {"地区", "作業地域"}}};

std::string today() {
  const std::chrono::year_month_day date{
      std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now() + std::chrono::hours(9))};
  return text::Date(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                    static_cast<int>(static_cast<unsigned>(date.day())))
      .text();
}

/// A field of the present record, "" where the table has no such column or holds nothing there.
std::string fieldOr(const db::Recordset& records, std::string_view column) {
  try {
    return std::string(text::trimmed(records.field(column).text()));
  } catch (const db::Error&) {
    return {};
  }
}

/// Reads the heading of one job.
class Heading {
 public:
  Heading(db::Database& database, const job::JobContext& context) : database_(database), context_(context) {}

  std::vector<report::Field> fields() {
    const auto records = open(context_.tables.gTblEditTextData);
    if (records->eof()) return {};
    for (const auto& [name, column] : plain) add(name, fieldOr(*records, column));
    for (const NameList& list : lists) {
      const std::string number = fieldOr(*records, list.number);
      if (!number.empty()) add(list.field, nameIn(list, number));
    }
    return std::move(fields_);
  }

 private:
  std::unique_ptr<db::Recordset> open(std::string_view table) {
    return database_.openRecordset("SELECT * FROM " + db::sqlName(table) +
                                   " WHERE JobId = " + db::sqlValue(context_.gJobId));
  }

  void add(std::string_view name, const std::string& words) {
    if (!words.empty()) fields_.push_back({std::string(name), words});
  }

  std::string nameIn(const NameList& list, const std::string& number) {
    try {
      for (const auto records = open(list.table); !records->eof(); records->moveNext()) {
        if (fieldOr(*records, list.number) != number) continue;
        const std::string serial = list.serial.empty() ? std::string() : fieldOr(*records, list.serial);
        return fieldOr(*records, list.name) + (serial.empty() ? "" : "　No." + serial);
      }
    } catch (const db::Error&) {  // a job without that list
    }
    return {};
  }

  db::Database& database_;
  const job::JobContext& context_;
  std::vector<report::Field> fields_;
};

}  // namespace

std::vector<report::Field> jobHeading(const job::JobContext& context) {
  try {
    const auto database = db::openDatabase(context.gDbPath);
    std::vector<report::Field> fields = Heading(*database, context).fields();
    database->close();
    return fields;
  } catch (const db::Error&) {
    return {};
  }
}

std::string correctionUnit(job::Grade grade) { return grade.isFirst() ? "0.1mm" : "mm"; }

report::Field gradeField(job::Grade grade) {
  return {"等級",
          std::to_string(grade.tokyu()) + " 級（補正の単位 " + (grade.isFirst() ? "0.1 mm" : "mm") + "）"};
}

std::vector<report::Field> routeHeading(const job::JobContext& context, const Selection& selection,
                                        const std::string& category) {
  std::vector<report::Field> fields = jobHeading(context);
  const auto add = [&fields](std::string name, std::string_view words) {
    if (!text::trimmed(words).empty()) fields.push_back({std::move(name), std::string(text::trimmed(words))});
  };
  add("事業番号", selection.jigyoBango);
  add("データ形式", category);
  fields.push_back(gradeField(context.grade()));
  add("日付", today());
  return fields;
}

}  // namespace route
