#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "hksnb/calculation.h"
#include "hksnb/checks.h"
#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"
#include "measured_route.h"
#include "text/number.h"

namespace bench {
namespace {

/// An orthometric book over the measuring route, compared with previous results and saved, and the doubles in
/// it.
struct Book : MeasuredRoute {
  explicit Book(const Job& job) : MeasuredRoute(job, hksnb::columnCount) {
    saveOrthometricResults(job);
    hksnb::FcHHKSB_AddRosenEndFlg(context, desktop);
    empty();
    fill();
    typePrevious();
    workAmounts();
    takeNumbers();
    save();
  }

  void empty() { hksnb::FcHHKSB_InitGrid1(grid, kind); }
  void fill() {
    hksnb::FcHHKSB_SetGrid1FromSeikaData(context, kind, {{selection.jigyoBango, selection.rosenBango}},
                                         boxes.present, places, grid);
  }
  void workAmounts() { hksnb::FcHHKSB_HendryoCal(grid, context.grade()); }
  void check() {
    findings =
        hksnb::checks(grid, context.grade(), {.kind = kind, .number = number, .reopened = number}).size();
  }
  void save() { hksnb::FcHHKSB_HKSNBSave(context, kind, number, boxes.present, grid); }
  void reopen() { hksnb::FcHHKSB_Reopen(context, kind, number, boxes, grid); }

  /// Previous results that lie up to 20 mm beside the present ones.
  void typePrevious() {
    hksnb::setYears(grid, "2021", "2016");
    int millimetres = -20;
    for (int row = 1; row < grid.rows(); row += 2) {
      const double now = text::readNumber(grid.text(row, hksnb::colPresent));
      grid.setText(row, hksnb::colPrevious, context.grade().heights().format(now + millimetres / 1000.0));
      if (++millimetres > 20) millimetres = -20;
    }
  }

  void takeNumbers() {
    for (int row = 1; row < grid.rows(); row += 2) {
      present.push_back(text::readNumber(grid.text(row, hksnb::colPresent)));
      previous.push_back(text::readNumber(grid.text(row, hksnb::colPrevious)));
    }
    cells.resize(2 * present.size());
  }

  /// The variation amounts bare. A previous height counts as its text shows it.
  void subtractAndFormat() {
    const hksnb::Formats formats = hksnb::FcHHKSB_DefToColNo(context.grade());
    for (std::size_t i = 0; i < present.size(); ++i) {
      cells[2 * i] = formats.heights.format(previous[i]);
      const double shown = text::readNumber(cells[2 * i]);
      cells[2 * i + 1] = formats.variation.format(std::round((present[i] - shown) * 1e9) / 1e6);
    }
  }

  std::string keys() const {
    return " WHERE JobId = '" + context.gJobId + "' AND 補正値フラグ = '0' AND 変動観測簿No = '" + number +
           "'";
  }

  static constexpr hksnb::Kind kind = hksnb::Kind::Orthometric;
  const std::string number = "1";
  hksnb::BookBoxes boxes;
  hksnb::PlaceNames places;
  std::size_t findings = 0;        // of the last check
  std::vector<double> present;     // m
  std::vector<double> previous;    // m
  std::vector<std::string> cells;  // written by the bare pass
};

}  // namespace

std::vector<Measure> hksnbMeasures(const Job& job) {
  const auto book = std::make_shared<Book>(job);
  const std::string joined =
      "SELECT K.*, S.標高 AS 正標高, S.正標高補正数, S.正標高結果, S.備考1, S.備考2 FROM KansokuSeikaData K "
      "LEFT JOIN KansokuSeikaDataSeihyou S ON K.JobId = S.JobId AND K.DataKubun = S.DataKubun AND "
      "K.SaveOrder "
      "= S.SaveOrder AND K.事業番号 = S.事業番号 AND K.路線番号 = S.路線番号 AND K.標石番号 = S.水準点番号" +
      book->MeasuredRoute::keys("K.") + " ORDER BY K.SaveOrder";
  const std::string saved = "SELECT * FROM KansokuSeikaDataHKSNB" + book->keys() + " ORDER BY SaveOrder";
  const auto empty = [book] { book->empty(); };
  return {
      {"book save",
       2,
       {},
       [book] { book->save(); },
       bareReplacing(job, "KansokuSeikaDataHKSNB", book->keys()),
       Work::Saving},
      {"book amounts", 1.5, {}, [book] { book->workAmounts(); }, [book] { book->subtractAndFormat(); }},
      {"book checks", 0.1, {}, [book] { book->check(); }, [book] { book->workAmounts(); }},
      {"book filling", 3, empty, [book] { book->fill(); }, bareReading(job, joined), Work::Reading},
      {"book reopen", 3, empty, [book] { book->reopen(); }, bareReading(job, saved), Work::Reading},
  };
}

}  // namespace bench
