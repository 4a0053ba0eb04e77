#include <memory>
#include <string>
#include <vector>

#include "hend/calculation.h"
#include "hend/checks.h"
#include "hend/columns.h"
#include "hend/data.h"
#include "measured_route.h"
#include "text/date.h"
#include "text/number.h"

namespace bench {
namespace {

/// A section as the calculation finds it.
struct Epochs {
  text::Date newDate;
  text::Date oldDate;
  double newHeight;  // m
  double oldHeight;  // m
};

/// The variation grid of the measuring route, worked and saved, and the numbers in it.
struct Variation : MeasuredRoute {
  explicit Variation(const Job& job) : MeasuredRoute(job, hend::columnCount) {
    load();
    compute();
    takeNumbers();
    save();
  }

  void load() { hend::FcHendDBOpen(selection, context, grid); }
  void reopen() {
    std::string saved;
    hend::FcHendDBReOpen(selection, context, grid, saved);
  }
  void compute() { hend::FcHendCalc(grid, referenceDate, context.grade()); }
  void save() { hend::FcHendDBSave(selection, context, grid, referenceDate); }
  void check() { findings = hend::check(grid, referenceDate, context.grade(), {}, &memory).size(); }

  void takeNumbers() {
    const auto date = [this](int row, int col) { return text::Date::read(grid.text(row, col)); };
    const auto number = [this](int row, int col) { return text::readNumber(grid.text(row, col)); };
    for (int row = 1; row + 2 < grid.rows(); row += 2)
      sections.push_back({date(row, hend::colNewDate), date(row, hend::colOldDate),
                          number(row + 1, hend::colNewHeight), number(row + 1, hend::colOldHeight)});
    cells.resize(6 * sections.size());
  }

  /// The computation bare: days, daily change, correction and result. The correction counts as its text shows
  /// it.
  void carryAndFormat() {
    const text::Date reference = text::Date::read(referenceDate);
    const text::Pattern& heights = context.grade().heights();
    const text::Pattern& rates = hend::dailyChange();
    double rate = 0;  // m per day
    auto cell = cells.begin();
    for (const Epochs& section : sections) {
      const int daysNewOld = daysBetween(section.oldDate, section.newDate);
      const int daysReference = daysBetween(section.newDate, reference);
      const double difference = (section.newHeight * 10000 - section.oldHeight * 10000) / 10000;
      if (daysNewOld != 0) rate = difference / daysNewOld;
      const std::string correction = heights.format(rate * daysReference);
      *cell++ = std::to_string(daysNewOld);
      *cell++ = std::to_string(daysReference);
      *cell++ = heights.format(difference);
      *cell++ = rates.format(rate);
      *cell++ = correction;
      *cell++ = heights.format(text::readNumber(correction) + section.newHeight);
    }
  }

  const std::string referenceDate = "2024/01/01";
  route::CheckMemory memory;
  std::size_t findings = 0;  // of the last check
  std::vector<Epochs> sections;
  std::vector<std::string> cells;  // written by the bare pass
};

}  // namespace

std::vector<Measure> hendMeasures(const Job& job) {
  const auto route = std::make_shared<Variation>(job);
  const std::string observed =
      "SELECT * FROM KansokuSeikaData" + route->keys() + " ORDER BY DataKubun, SaveOrder";
  const std::string saved = "SELECT * FROM KansokuSeikaDataHend" + route->keys();
  const auto clear = [route] { route->clear(); };
  return {
      {"variation load", 3, clear, [route] { route->load(); }, bareReading(job, observed), Work::Reading},
      {"variation reopen", 3, clear, [route] { route->reopen(); }, bareReading(job, saved), Work::Reading},
      {"variation compute", 1.5, {}, [route] { route->compute(); }, [route] { route->carryAndFormat(); }},
      {"variation checks", 0.1, {}, [route] { route->check(); }, [route] { route->compute(); }},
      {"variation save",
       2,
       {},
       [route] { route->save(); },
       bareReplacing(job, "KansokuSeikaDataHend", route->keys()),
       Work::Saving},
  };
}

}  // namespace bench
