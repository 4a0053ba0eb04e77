#include <array>
#include <string>

#include "db/database.h"
#include "db/sql.h"
#include "hksnb/data.h"
#include "hksnb/filling.h"
#include "hksnb/procedure.h"
#include "open/open.h"
#include "route/observations.h"

namespace hksnb {
namespace {

/// The observations of a route beside the results of the correction, where there are any.
db::Sql observationsSql(const job::JobContext& context, Kind kind, const RouteItem& item) {
  const bool orthometric = kind == Kind::Orthometric;
  const db::Sql observed = db::sqlName(context.tables.gTblKansokuSeikaData);
  const auto same = [&](db::SourceText ours, db::SourceText theirs) {
    return " (" + observed + "." + ours + " = HOSEI." + theirs + ")";
  };
  const db::SourceText orthometricColumns = " HOSEI.正標高補正数 AS 補正値, HOSEI.正標高結果 AS 補正結果,";
  const db::SourceText ellipsoidalColumns = " HOSEI.楕円補正値 AS 補正値, HOSEI.楕円補正結果 AS 補正結果,";
  return " SELECT DISTINCTROW " + observed + ".*, HOSEI.標高 AS 正標高," +
         (orthometric ? orthometricColumns : ellipsoidalColumns) + " HOSEI.備考1, HOSEI.備考2 FROM " +
         observed + " LEFT JOIN  " + db::sqlName(correctionTable(context, kind)) + " AS HOSEI ON" +
         same("JobId", "JobId") + " AND " + same("DataKubun", "DataKubun") + " AND " +
         same("SaveOrder", "SaveOrder") + "  AND " + same("事業番号", "事業番号") + "  AND" +
         same("路線番号", "路線番号") + " AND" +
         (orthometric ? same("標石番号", "水準点番号") : same("標石番号", "標石番号")) + " WHERE " +
         observed + ".JobId =" + db::sqlValue(context.gJobId) + " AND " + observed +
         ".事業番号 = " + db::sqlValue(item.project) + " AND " + observed +
         ".路線番号 = " + db::sqlValue(item.route) + " AND (" + observed + ".DataKubun ='0' OR " + observed +
         ".DataKubun = Null)" + " ORDER BY " + observed + ".SaveOrder";
}

/// Reads observations from records whose columns it has looked up once.
class Reader {
 public:
  explicit Reader(const db::Recordset& records) : records_(records) {}

  void read(Observation& observation) const {
    for (std::size_t i = 0; i < place_.size(); ++i) observation.place[i] = text(place_[i]);
    observation.benchMark = text(benchMark_);
    observation.height = text(height_);
    observation.meanDifference = text(meanDifference_);
    observation.correction = text(correction_);
    observation.result = text(result_);
    observation.flag = text(flag_);
    observation.remark1 = text(remark1_);
    observation.remark2 = text(remark2_);
    observation.date = text(date_);
  }

 private:
  std::string text(db::Column column) const { return route::fieldText(records_, column); }

  const db::Recordset& records_;
  const std::array<db::Column, placeColumns> place_ = {
      records_.column("事業番号"), records_.column("路線番号"), records_.column("都道府県"),
      records_.column("郡市"), records_.column("町村")};
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column height_ = records_.column("正標高");
  const db::Column meanDifference_ = records_.column("中数");
  const db::Column correction_ = records_.column("補正値");
  const db::Column result_ = records_.column("補正結果");
  const db::Column flag_ = records_.column("RosenEndDataFlg");
  const db::Column remark1_ = records_.column("HOSEI.備考1");
  const db::Column remark2_ = records_.column("HOSEI.備考2");
  const db::Column date_ = records_.column("観測年月日");
};

/// Lays the records of one route after another into the book.
class ObservedBook {
 public:
  ObservedBook(Filling& filling, GrowingPeriod& period) : filling_(filling), period_(period) {}

  /// Returns false where the grid is full.
  bool lay(db::Recordset& records) {
    const Reader reader(records);
    for (; !records.eof(); records.moveNext()) {
      reader.read(observation_);
      period_.add(observation_.date);
      if (!filling_.add(observation_)) return false;
    }
    return true;
  }

 private:
  Filling& filling_;
  GrowingPeriod& period_;
  Observation observation_;
};

}  // namespace

Status FcHHKSB_SetGrid1FromSeikaData(const job::JobContext& context, Kind kind,
                                     const std::vector<RouteItem>& routes, Period& present,
                                     PlaceNames& places, ui::Grid& Grid1) {
  return fillingProcedure(Grid1.desktop(), "FcHHKSB_SetGrid1FromSeikaData", [&] {
    Filling filling(Grid1, kind, context.grade());
    GrowingPeriod period(present);
    ObservedBook book(filling, period);
    bool hasRoom = true;
    const auto database = db::openDatabase(context.gDbPath);
    for (std::size_t i = 0; i < routes.size() && hasRoom; ++i) {
      const auto records = database->openRecordset(observationsSql(context, kind, routes[i]));
      hasRoom = book.lay(*records);
      records->close();
    }
    database->close();
    hasRoom = hasRoom && filling.finish();
    places = filling.places();
    present = period.period();
    return hasRoom;
  });
}

}  // namespace hksnb
