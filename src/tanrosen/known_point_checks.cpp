#include "tanrosen/known_point_checks.h"

#include <unordered_map>

#include "route/checks.h"
#include "route/runs.h"
#include "tanrosen/columns.h"
#include "tanrosen/known_point_search.h"

namespace tanrosen {
namespace {

/// Goes through the list as the calculation does.
class ListCheck {
 public:
  ListCheck(const ui::Grid& grid, const std::vector<std::string>& knownPoints, Points points,
            ui::Findings& findings)
      : grid_(grid),
        names_(knownPoints),
        points_(points),
        findings_(findings),
        search_(grid, points, names_) {}

  /// Returns true where the calculation passes none over.
  bool run() {
    if (!names_.empty() && !grid_.text(1, colBenchMark).empty()) first();
    bool sound = true;
    for (const std::string& name : names_) {
      const bool returns = points_ == Points::Every && route::samePoint(reached_, name);
      if (const int row = search_.find(name, start_); row != 0) {
        if (!returns && grid_.text(row, colResult).empty()) withoutHeight(row);
        start_ = row + stride(points_);
      } else {
        passedOver(name);
        sound = false;
      }
      ++listed_[name];
      if (returns) reached_.clear();
      if (!returns && name.ends_with(route::forwardRun)) reached_ = name;
    }
    return sound;
  }

 private:
  /// Where a bench mark stands in the grid.
  struct Place {
    int rows = 0;
    bool between = false;  ///< on one of them it is no point of the calculation
  };

  void add(int row, const std::string& text, const std::string& wayOut) {
    findings_.push_back({ui::Severity::Error, row, row < 0 ? -1 : static_cast<int>(colResult), text, wayOut});
  }

  void first() {
    const std::string& begin = grid_.text(1, colBenchMark);
    if (names_.front() == begin) return;
    add(-1,
        "既知点の一覧の最初「" + names_.front() + "」は、路線の最初の水準点「" + begin +
            "」ではありません。計算はエラーになります。",
        "既知点の一覧を直してください。");
  }

  void withoutHeight(int row) {
    add(row, "既知点 " + grid_.text(row, colBenchMark) + " に既知の標高がありません。0 として計算されます。",
        "補正結果の列に既知の標高を入力してください。");
  }

  void passedOver(const std::string& name) {
    add(-1, "既知点「" + name + "」は計算で飛ばされます(" + reason(name) + ")。",
        "既知点の一覧を、路線の順に一度ずつ並べてください。");
  }

  std::string reason(const std::string& name) {
    if (places_.empty()) findPlaces();
    const auto place = places_.find(name);
    if (place == places_.end()) return "表にありません";
    if (listed_[name] >= place->second.rows) return "一覧に二度あります";
    return place->second.between ? "計算の点ではない行にあります" : "路線の順になっていません";
  }

  void findPlaces() {
    for (int row = 1; row < grid_.rows(); row += 2) {
      Place& place = places_[grid_.text(row, colBenchMark)];
      ++place.rows;
      if ((row - 1) % stride(points_) != 0) place.between = true;
    }
  }

  const ui::Grid& grid_;
  const std::vector<std::string>& names_;
  const Points points_;
  ui::Findings& findings_;
  KnownPointSearch search_;
  int start_ = 1;
  std::string reached_;                               // the last "…F" that its "…B" has not followed yet
  std::unordered_map<std::string_view, int> listed_;  // how often the list names them, down to here
  std::unordered_map<std::string_view, Place> places_;  // of all bench marks, from the first fault on
};

}  // namespace

bool findListFaults(const ui::Grid& grid, const std::vector<std::string>& knownPoints, Points points,
                    ui::Findings& findings) {
  return ListCheck(grid, knownPoints, points, findings).run();
}

}  // namespace tanrosen
