#include <algorithm>
#include <functional>
#include <unordered_map>

#include "ui/grid.h"
#include "ui/history.h"

// What the steps of a history are made of, and how they are walked.

namespace ui {
namespace {

struct Cell {
  const Grid* grid;
  int row;
  int col;
  bool operator==(const Cell&) const = default;
};

struct CellHash {
  std::size_t operator()(const Cell& cell) const {
    constexpr std::size_t mostCols = 1009;  // a prime beyond any grid's columns
    return std::hash<const void*>()(cell.grid) ^
           (static_cast<std::size_t>(cell.row) * mostCols + static_cast<std::size_t>(cell.col));
  }
};

/// Changes that a step back or forward makes are no acts.
class Moving {
 public:
  explicit Moving(bool& moving) : moving_(moving) { moving_ = true; }
  ~Moving() { moving_ = false; }
  Moving(const Moving&) = delete;
  Moving& operator=(const Moving&) = delete;

 private:
  bool& moving_;
};

std::size_t bytesOf(const std::string& text) {
  constexpr std::size_t within = 15;  // such a text stands in the string itself
  return text.capacity() > within ? text.capacity() + 1 : 0;
}

}  // namespace

void History::textChanged(Grid& grid, int row, int col, std::string before, const std::string& after) {
  present_.changes.emplace_back(CellChange{&grid, row, col, std::move(before), after});
}

void History::rowsAdded(Grid& grid, int at, int count) {
  present_.changes.emplace_back(RowsChange{&grid, at, count, true, {}});
}

void History::rowsRemoved(Grid& grid, int at, int count, std::vector<std::string> cells) {
  present_.changes.emplace_back(RowsChange{&grid, at, count, false, std::move(cells)});
}

/// Of several changes of one cell the first text and the last one count; a cell that got its text back has
/// not changed. Where rows came or went cells have no fixed place: such changes stay as they were made.
void History::reduce(std::vector<Change>& changes) {
  for (const Change& change : changes)
    if (std::holds_alternative<RowsChange>(change)) return;
  std::unordered_map<Cell, std::size_t, CellHash> places;
  places.reserve(changes.size());
  std::size_t kept = 0;
  for (Change& change : changes) {
    auto& cell = std::get<CellChange>(change);
    const auto [place, isNew] = places.try_emplace(Cell{cell.grid, cell.row, cell.col}, kept);
    if (!isNew)
      std::get<CellChange>(changes[place->second]).after = std::move(cell.after);
    else if (&changes[kept++] != &change)
      changes[kept - 1] = std::move(change);
  }
  changes.erase(changes.begin() + static_cast<std::ptrdiff_t>(kept), changes.end());
  std::erase_if(changes, [](const Change& change) {
    const auto& cell = std::get<CellChange>(change);
    return cell.before == cell.after;
  });
}

std::size_t History::size(const Step& step) {
  std::size_t bytes = sizeof(Step) + step.changes.size() * sizeof(Change) +
                      step.kept.size() * sizeof(KeptChange) +
                      (step.before.size() + step.after.size()) * sizeof(GridPlace);
  for (const Change& change : step.changes) {
    if (const auto* cell = std::get_if<CellChange>(&change)) {
      bytes += bytesOf(cell->before) + bytesOf(cell->after);
    } else {
      for (const std::string& text : std::get<RowsChange>(change).cells)
        bytes += sizeof(std::string) + bytesOf(text);
    }
  }
  return bytes;
}

bool History::touches(const Step& step, const Grid& grid) {
  return std::any_of(step.changes.begin(), step.changes.end(), [&](const Change& change) {
    return std::visit([&](const auto& made) { return made.grid == &grid; }, change);
  });
}

void History::run(const Step& step, bool forward) {
  const Moving moving(moving_);
  typingGoesOn_ = false;
  const auto bring = [&](const KeptChange& kept) {
    kept_[kept.which].bring(forward ? kept.after : kept.before);
  };
  if (forward) {
    for (const Change& change : step.changes) apply(change, true);
    std::for_each(step.kept.begin(), step.kept.end(), bring);
  } else {
    std::for_each(step.changes.rbegin(), step.changes.rend(),
                  [](const Change& change) { apply(change, false); });
    std::for_each(step.kept.rbegin(), step.kept.rend(), bring);
  }
  for (std::size_t i = 0; i < grids_.size(); ++i) {
    grids_[i]->endTyping();
    if (touches(step, *grids_[i])) grids_[i]->setPlace(forward ? step.after[i] : step.before[i]);
  }
  for (const auto& notice : moved_) notice();
}

void History::takeBackAct() {
  const Moving moving(moving_);
  std::for_each(present_.changes.rbegin(), present_.changes.rend(),
                [](const Change& change) { apply(change, false); });
  present_.changes.clear();
}

void History::apply(const Change& change, bool forward) {
  if (const auto* cell = std::get_if<CellChange>(&change)) {
    cell->grid->setText(cell->row, cell->col, forward ? cell->after : cell->before);
  } else {
    const auto& rows = std::get<RowsChange>(change);
    if (rows.added == forward)
      rows.grid->insertRows(rows.at, rows.count, rows.cells);
    else
      rows.grid->eraseRows(rows.at, rows.count);
  }
}

}  // namespace ui
