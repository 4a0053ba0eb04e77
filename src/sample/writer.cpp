#include "sample/writer.h"

#include "sample/random.h"
#include "sample/small_routes.h"

namespace sample {
namespace {

std::unique_ptr<db::Recordset> table(db::Database& database, const std::string& name) {
  return database.openRecordset("SELECT * FROM " + name, db::Access::Edit);
}

struct Field {
  const char* name;
  db::Value value;
};

void add(db::Recordset& records, const std::vector<Field>& fields) {
  records.addNew();
  for (const Field& field : fields) records.set(field.name, field.value);
  records.update();
}

db::Value textOrNull(const std::string& text) { return text.empty() ? db::Value() : db::Value(text); }

db::Value metres(const std::optional<long long>& tenthMillimetres) {
  return tenthMillimetres ? db::Value(static_cast<double>(*tenthMillimetres) / 10000) : db::Value();
}

db::Value kilometres(const std::optional<int>& length) {
  return length ? db::Value(*length / 1000.0) : db::Value();
}

void addMark(db::Recordset& records, const Route& route, const Mark& mark, int saveOrder) {
  add(records, {{"JobId", route.jobId},
                {"事業番号", route.project},
                {"路線番号", route.number},
                {"DataKubun", mark.uncategorised ? db::Value() : db::Value(route.category)},
                {"SaveOrder", saveOrder},
                {"標石番号", mark.number},
                {"都道府県", textOrNull(mark.place.prefecture)},
                {"郡市", textOrNull(mark.place.county)},
                {"町村", textOrNull(mark.place.town)},
                {"観測年月日", textOrNull(mark.date)},
                {"距離", kilometres(mark.metres)},
                {"中数", metres(mark.difference)},
                {"前回観測日", textOrNull(mark.previousDate)},
                {"前回中数", metres(mark.previousDifference)},
                {"標高", mark.height ? db::Value(*mark.height) : db::Value()},
                {"備考", textOrNull(mark.remark)},
                {"RosenEndDataFlg", textOrNull(mark.flag)}});
}

/// The runs differ from their mean by the same error, one with each sign.
void addRuns(db::Recordset& records, const Route& route, std::size_t at, long long error) {
  const Mark& from = route.marks[at];
  add(records, {{"JobId", route.jobId},
                {"事業番号", route.project},
                {"路線番号", route.number},
                {"DataKubun", from.uncategorised ? db::Value() : db::Value(route.category)},
                {"SaveOrder", static_cast<double>(route.firstSaveOrder + static_cast<int>(at))},
                {"自標石番号", from.number},
                {"至標石番号", route.marks[at + 1].number},
                {"観測年月日", from.date},
                {"距離", kilometres(from.metres)},
                {"往観測比高", metres(*from.difference + error)},
                {"復観測比高", metres(-*from.difference + error)}});
}

/// A computed section; latitudes in minutes.
struct Section {
  const char* category;
  const char* route;
  int saveOrder;
  const char* latitudes[2];
  const char* marks[2];
  double minutes[2];
  double accumulated;  ///< mm
  double meanHeight;   ///< m
  double correction;   ///< mm
};

void addSection(db::Recordset& records, const std::string& jobId, const Section& section) {
  add(records, {{"JobId", jobId},
                {"SaveOrder", section.saveOrder},
                {"事業番号", smallProject},
                {"路線番号", section.route},
                {"自首末地", section.latitudes[0]},
                {"至首末地", section.latitudes[1]},
                {"自水準点番号", section.marks[0]},
                {"至水準点番号", section.marks[1]},
                {"B1", section.minutes[0]},
                {"B2", section.minutes[1]},
                {"B1_B2", section.minutes[0] - section.minutes[1]},
                {"B1plusB2", section.minutes[0] + section.minutes[1]},
                {"k", section.accumulated},
                {"H", section.meanHeight},
                {"CalK", section.correction},
                {"DataKubun", section.category}});
}

void writeHeadings(db::Database& database, const std::vector<Job>& jobs) {
  const auto headings = table(database, "EditTextData");
  for (const Job& job : jobs)
    add(*headings, {{"JobId", job.id},
                    {"作業名", job.title},
                    {"計画機関名", "中部地方測量部"},
                    {"作業機関名", "見本測量設計"},
                    {"作業地域", "長野県諏訪郡ほか"},
                    {"観測者No", 1.0},
                    {"器械No", 1.0},
                    {"標尺No", 1.0}});
  headings->close();
}

void writeMasters(db::Database& database, const std::vector<Job>& jobs) {
  const auto observers = table(database, "ComKansokushameiMst");
  for (const Job& job : jobs) {
    add(*observers, {{"JobId", job.id}, {"観測者No", 1.0}, {"観測者名", "測量 太郎"}});
    add(*observers, {{"JobId", job.id}, {"観測者No", 2.0}, {"観測者名", "水準 花子"}});
  }
  observers->close();
  const auto instruments = table(database, "ComShiyouKIkaimeiMst");
  for (const Job& job : jobs)
    add(*instruments, {{"JobId", job.id}, {"器械No", 1.0}, {"器械名", "電子レベル"}, {"器械番号", "100234"}});
  instruments->close();
  const auto staffs = table(database, "ComShiyouHyoushakuMeiMst");
  for (const Job& job : jobs)
    add(*staffs,
        {{"JobId", job.id}, {"標尺No", 1.0}, {"標尺名", "バーコード標尺"}, {"標尺番号", "20511-20512"}});
  staffs->close();
}

}  // namespace

void writeJobs(db::Database& database, const std::vector<Job>& jobs) {
  const auto records = table(database, "JobData");
  for (const Job& job : jobs)
    add(*records, {{"JobId", job.id},
                   {"作業名", job.title},
                   {"Tokyu", job.grade},
                   {"JikkouFlg", job.executed ? 1.0 : 0.0}});
  records->close();
  writeHeadings(database, jobs);
  writeMasters(database, jobs);
}

void writeDataFolder(db::Database& database, const std::string& exeDir) {
  const auto records = table(database, "A_ExePath");
  add(*records, {{"Exe_Dir", exeDir}});
  records->close();
}

void writeRoutes(db::Database& database, const std::vector<Route>& routes) {
  const auto records = table(database, "KansokuSeikaData");
  for (const Route& route : routes) {
    int saveOrder = route.firstSaveOrder;
    for (const Mark& mark : route.marks) addMark(*records, route, mark, saveOrder++);
  }
  records->close();
}

void writeRuns(db::Database& database, const std::vector<Route>& routes, Precision precision) {
  const auto records = table(database, "KansokuData");
  Random random(7);
  for (const Route& route : routes)
    for (std::size_t at = 0; at + 1 < route.marks.size(); ++at)
      if (route.marks[at].metres) addRuns(*records, route, at, precision.unit * random.error(2));
  records->close();
}

void writeReferenceSections(db::Database& database, const std::string& jobId) {
  const auto records = table(database, "DaenHoseiChiHyouData");
  // F101 to F103 southwards: 1.3 mm and 1.4 mm, together 2.7 mm. The last one belongs to another category.
  const Section sections[] = {
      {"0", "01F00101", 1, {"36°14", "36°12"}, {"F101", "F102"}, {2174, 2172}, 1.3, 450, 1.3},
      {"0", "01F00101", 2, {"36°12", "36°10"}, {"F102", "F103"}, {2172, 2170}, 2.7, 470, 1.4},
      {"4", "01F00201", 1, {"36°10", "36°00"}, {"F103", "F108"}, {2170, 2160}, 7.2, 495, 7.2}};
  for (const Section& section : sections) addSection(*records, jobId, section);
  records->close();
}

}  // namespace sample
