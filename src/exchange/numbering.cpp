#include "exchange/numbering.h"

#include <cmath>
#include <optional>

#include "text/number.h"
#include "text/padding.h"

namespace exchange {
namespace {

using Keys = std::vector<std::string>;

/// The records of one route in one category, or of one book.
struct Group {
  std::map<long long, int> numbers;  // how often each
  bool ends = false;                 // a record is marked as a route end
};

constexpr std::string_view categoryColumn = "DataKubun";

std::string trimmedField(const db::Recordset& records, std::string_view column) {
  return std::string(text::trimmedRight(records.field(column).text()));
}

/// The value of SaveOrder; nothing where it is no whole number.
std::optional<long long> orderOf(const db::Recordset& records) {
  const db::Value value = records.field("SaveOrder");
  const double number = value.number();
  const bool whole = (value.isNumber() || text::isNumeric(value.text())) && std::trunc(number) == number &&
                     std::abs(number) < 1e15;
  return whole ? std::optional(static_cast<long long>(number)) : std::nullopt;
}

Keys routeOf(const db::Recordset& records) {
  return {trimmedField(records, "JobId"), trimmedField(records, "事業番号"),
          trimmedField(records, "路線番号")};
}

std::string range(long long first, long long last) {
  return std::to_string(first) + (first == last ? "" : "～" + std::to_string(last));
}

class Checker {
 public:
  Checker(const TableRules& rules, const LooseNumbers& loose, std::vector<std::string>& findings)
      : rules_(rules), loose_(loose), findings_(findings) {}

  void take(const db::Recordset& records) {
    Keys keys;
    for (const GroupKey& key : rules_.keys) keys.push_back(trimmedField(records, key.column));
    const std::string order(text::trimmed(records.field("SaveOrder").text()));
    if (rules_.categories && trimmedField(records, categoryColumn).empty())
      report(keys, "SaveOrder " + (order.empty() ? "（空）" : order) + " の DataKubun が空です。");
    Group& group = groups_[keys];
    if (const auto number = orderOf(records))
      ++group.numbers[*number];
    else
      report(keys,
             order.empty() ? "SaveOrder が空です。" : "SaveOrder「" + order + "」は整数ではありません。");
    if (rules_.routeEnds && text::trimmed(records.field("RosenEndDataFlg").text()) == "-1") group.ends = true;
  }

  void finish() {
    for (const auto& [keys, group] : groups_) {
      for (const auto& [number, times] : group.numbers)
        if (times > 1)
          report(keys,
                 "SaveOrder " + std::to_string(number) + " が " + std::to_string(times) + " 件あります。");
      if (rules_.categories && keys.back().empty()) continue;  // records that belong to no category
      if (rules_.gapless) reportGaps(keys, group);
      if (rules_.routeEnds && !group.ends) report(keys, "路線の終わり (-1) がありません。");
    }
  }

 private:
  /// The numbers between two neighbours that no loose observation holds either, in runs.
  void reportBetween(const Keys& keys, const std::set<long long>& loose, long long low, long long high) {
    long long first = low + 1;
    for (auto held = loose.upper_bound(low); held != loose.end() && *held < high; ++held) {
      if (*held > first) reportGap(keys, first, *held - 1);
      first = *held + 1;
    }
    if (first < high) reportGap(keys, first, high - 1);
  }

  void reportGaps(const Keys& keys, const Group& group) {
    static const std::set<long long> none;
    const auto found = rules_.categories ? loose_.find({keys[0], keys[1], keys[2]}) : loose_.end();
    const std::set<long long>& loose = found == loose_.end() ? none : found->second;
    std::optional<long long> before;
    for (const auto& [number, times] : group.numbers) {
      if (before) reportBetween(keys, loose, *before, number);
      before = number;
    }
  }

  void reportGap(const Keys& keys, long long first, long long last) {
    report(keys, "SaveOrder " + range(first, last) + " が抜けています。");
  }

  void report(const Keys& keys, const std::string& words) {
    std::string place = rules_.table + ":";
    for (std::size_t i = 0; i < keys.size(); ++i) place += " " + rules_.keys[i].label + "「" + keys[i] + "」";
    findings_.push_back(place + " " + words);
  }

  const TableRules& rules_;
  const LooseNumbers& loose_;
  std::vector<std::string>& findings_;
  std::map<Keys, Group> groups_;
};

}  // namespace

LooseNumbers looseNumbers(db::Database& database, std::string_view table) {
  LooseNumbers loose;
  const auto records = database.openRecordset("SELECT * FROM " + std::string(table));
  for (; !records->eof(); records->moveNext())
    if (trimmedField(*records, categoryColumn).empty())
      if (const auto number = orderOf(*records)) loose[routeOf(*records)].insert(*number);
  return loose;
}

void checkNumbering(db::Database& database, const TableRules& rules, const LooseNumbers& loose,
                    std::vector<std::string>& findings) {
  Checker checker(rules, loose, findings);
  const auto records = database.openRecordset("SELECT * FROM " + rules.table);
  for (; !records->eof(); records->moveNext()) checker.take(*records);
  checker.finish();
}

}  // namespace exchange
