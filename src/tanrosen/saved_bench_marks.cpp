#include "tanrosen/saved_bench_marks.h"

#include <algorithm>

#include "route/observations.h"

namespace tanrosen {
namespace {

bool sameRecord(const SavedBenchMark& one, const SavedBenchMark& other) {
  return one.name == other.name && one.route == other.route && one.category == other.category;
}

}  // namespace

SavedBenchMarks::SavedBenchMarks(db::Recordset& records)
    : records_(records),
      order_(records.column("A.SaveOrder")),
      route_(records.column("A.路線番号")),
      category_(records.column("A.DataKubun")),
      name_(records.column("水準点番号")),
      distance_(records.column("距離")),
      height_(records.column("A.標高")),
      correction_(records.column("単路線補正数")),
      result_(records.column("単路線補正結果")),
      remark1_(records.column("備考1")),
      remark2_(records.column("備考2")),
      flag_(records.column("RosenEndDataFlg")),
      meanDifference_(records.column("中数")),
      nameToday_(records.column("標石番号")),
      categoryToday_(records.column("B.DataKubun")),
      heightToday_(records.column("B.標高")) {}

std::vector<SavedBenchMark> SavedBenchMarks::next() {
  std::vector<SavedBenchMark> benchMarks;
  kinships_.clear();
  if (records_.eof()) return benchMarks;
  const double order = records_.value(order_).number();
  for (; !records_.eof() && records_.value(order_).number() == order; records_.moveNext()) take(benchMarks);
  return benchMarks;
}

/// Adds the present record to those of its order, or only its height of today where the record is there.
void SavedBenchMarks::take(std::vector<SavedBenchMark>& benchMarks) {
  SavedBenchMark read = present();
  const auto known = std::find_if(benchMarks.begin(), benchMarks.end(),
                                  [&](const SavedBenchMark& one) { return sameRecord(one, read); });
  const auto at = static_cast<std::size_t>(known - benchMarks.begin());
  if (known == benchMarks.end()) {
    benchMarks.push_back(std::move(read));
    kinships_.push_back(Kinship::Stranger);
  }
  const Kinship found = kinship(benchMarks[at]);
  if (found <= kinships_[at]) return;
  kinships_[at] = found;
  benchMarks[at].heightToday = records_.value(heightToday_);
}

SavedBenchMark SavedBenchMarks::present() const {
  SavedBenchMark read;
  read.order = records_.value(order_).number();
  read.route = records_.value(route_).text();
  read.category = text(category_);
  read.name = text(name_);
  read.distance = text(distance_);
  read.correction = text(correction_);
  read.remark1 = text(remark1_);
  read.remark2 = text(remark2_);
  read.flag = text(flag_);
  read.height = records_.value(height_);
  read.result = records_.value(result_);
  read.meanDifference = records_.value(meanDifference_);
  return read;
}

SavedBenchMarks::Kinship SavedBenchMarks::kinship(const SavedBenchMark& benchMark) const {
  if (text(nameToday_) != benchMark.name) return Kinship::Stranger;
  return text(categoryToday_) == benchMark.category ? Kinship::SameCategoryToo : Kinship::SameBenchMark;
}

std::string SavedBenchMarks::text(db::Column column) const { return route::fieldText(records_, column); }

}  // namespace tanrosen
