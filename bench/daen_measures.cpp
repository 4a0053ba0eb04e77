#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "daen/calculation.h"
#include "daen/checks.h"
#include "daen/columns.h"
#include "daen/data.h"
#include "measured_route.h"
#include "text/number.h"

namespace bench {
namespace {

double toTenths(double value) { return text::sign(value) * text::Fix(std::abs(value) * 10 + 0.5) / 10; }

/// The ellipsoidal grids of the measuring route, which is one section as a whole, worked and saved, and the
/// doubles in them.
struct Ellipsoidal : MeasuredRoute {
  explicit Ellipsoidal(const Job& job) : MeasuredRoute(job, daen::columnCount) {
    sections.setDesktop(&desktop);
    sections.setCols(daen::sectionColumnCount);
    load();
    const int last = grid.rows() / 2 * 2 - 1;
    section = {
        grid.text(1, daen::colBenchMark), grid.text(last, daen::colBenchMark), "36", "30", "35", "10", ""};
    compute();
    takeNumbers();
    save();
  }

  void load() { daen::FcDHseiDBOpen(selection, context, formats, grid); }
  void reopen() { daen::FcDHseiDBReOpen(selection, context, formats, grid); }
  void compute() {
    daen::FcSeiDaenCal(grid, sections, section, formats, [](const daen::SectionValues&) {});
  }
  void save() { daen::FcDHseiSave(selection, context, grid); }
  void check() { findings = daen::check(grid, sections, {section, ""}, context.grade(), &memory).size(); }

  void takeNumbers() {
    for (int row = 1; row < grid.rows(); row += 2) {
      heights.push_back(text::readNumber(grid.text(row, daen::colHeight)));
      distances.push_back(text::readNumber(grid.text(row + 1, daen::colDistance)));
    }
    cells.resize(2 * heights.size());
  }

  /// The computation bare: mean height, correction, shares, corrected heights. A correction counts as its
  /// text shows it.
  void shareAndFormat() {
    double sum = 0;
    for (const double height : heights) sum += height;
    const double meanHeight = text::Fix(std::abs(sum / static_cast<double>(heights.size())) * 10 + 0.5) / 10;
    double correction = 0;
    daen::FcDaenHoseichi(36.5, 35 + 10.0 / 60, meanHeight, correction);
    correction = toTenths(correction);
    double total = 0;
    for (const double distance : distances) total += distance;
    double covered = 0;
    for (std::size_t i = 0; i < heights.size(); ++i) {
      std::string& shown = cells[2 * i];
      shown = formats.correction.format(toTenths(covered / total * correction));
      cells[2 * i + 1] = formats.height.format(text::readNumber(shown) / 1000 + heights[i]);
      covered += distances[i];
    }
  }

  const daen::Formats formats = daen::FcDaenInit(context.grade());
  ui::Grid sections{"Grid2"};
  daen::Section section;
  route::CheckMemory memory;
  std::size_t findings = 0;        // of the last check
  std::vector<double> heights;     // m
  std::vector<double> distances;   // km, to the next bench mark
  std::vector<std::string> cells;  // written by the bare pass
};

}  // namespace

std::vector<Measure> daenMeasures(const Job& job) {
  const auto route = std::make_shared<Ellipsoidal>(job);
  const std::string observed =
      "SELECT * FROM KansokuSeikaData" + route->keys() + " ORDER BY DataKubun, SaveOrder";
  const std::string saved = "SELECT * FROM KansokuSeikaDataDaen" + route->keys();
  const auto clear = [route] { route->clear(); };
  return {
      {"ellipsoidal load", 3, clear, [route] { route->load(); }, bareReading(job, observed), Work::Reading},
      {"ellipsoidal reopen", 3, clear, [route] { route->reopen(); }, bareReading(job, saved), Work::Reading},
      {"ellipsoidal compute", 1.5, {}, [route] { route->compute(); }, [route] { route->shareAndFormat(); }},
      {"ellipsoidal checks", 0.1, {}, [route] { route->check(); }, [route] { route->compute(); }},
      {"ellipsoidal save",
       2,
       {},
       [route] { route->save(); },
       bareReplacing(job, "KansokuSeikaDataDaen", route->keys()),
       Work::Saving},
  };
}

}  // namespace bench
