#include "ui/history.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <new>
#include <tuple>
#include <utility>

#include "ui/grid.h"

namespace ui {

History::Act::Act(History* history, std::string_view name) : Act(history, name, nullptr) {}

History::Act::Act(History* history, std::string_view name, Grid* typedInto) : history_(history) {
  if (history_ != nullptr) history_->begin(name, typedInto);
}

History::Act History::Act::typed(History* history, Grid& grid) { return {history, act::typing, &grid}; }

History::Act::~Act() {
  if (history_ != nullptr) history_->end();
}

void History::begin(std::string_view name, Grid* typedInto) {
  if (depth_++ > 0) return;
  restarted_ = false;
  present_ = {};
  present_.name = name;
  present_.before = places();
  if (typedInto != nullptr) {
    present_.typedInto = typedInto;
    present_.row = typedInto->keyRow();
    present_.col = typedInto->keyCol();
  } else {
    typingGoesOn_ = false;
    for (Grid* grid : grids_) grid->endTyping();
  }
  keptBefore_.clear();
  for (const Kept& kept : kept_) keptBefore_.push_back(kept.take());
}

/// Where memory runs out the act stands, but nothing can be taken back any more.
void History::end() {
  if (--depth_ > 0) return;
  try {
    if (!restarted_) finish();
  } catch (const std::bad_alloc&) {
    forget(false);
  }
  if (std::exchange(savedWithin_, false)) saved_ = done_;
  restarted_ = false;
  present_ = {};
}

void History::finish() {
  reduce(present_.changes);
  noteKept();
  if (present_.changes.empty() && present_.kept.empty()) return;
  present_.after = places();
  continuesTyping() ? takeIntoLast() : push();
}

void History::noteKept() {
  for (std::size_t i = 0; i < kept_.size(); ++i) {
    std::any now = kept_[i].take();
    if (!kept_[i].same(keptBefore_[i], now))
      present_.kept.push_back({i, std::move(keptBefore_[i]), std::move(now)});
  }
}

bool History::continuesTyping() const {
  if (!typingGoesOn_ || present_.typedInto == nullptr || done_ == 0 || done_ != steps_.size()) return false;
  const Step& last = steps_.back();
  return last.typedInto == present_.typedInto && last.row == present_.row && last.col == present_.col;
}

void History::takeIntoLast() {
  Step& last = steps_.back();
  bytes_ -= last.bytes;
  std::move(present_.changes.begin(), present_.changes.end(), std::back_inserter(last.changes));
  std::move(present_.kept.begin(), present_.kept.end(), std::back_inserter(last.kept));
  reduce(last.changes);
  last.after = present_.after;
  last.bytes = size(last);
  bytes_ += last.bytes;
  typingGoesOn_ = !last.changes.empty() || !last.kept.empty();
  if (!typingGoesOn_) dropLast();
}

void History::push() {
  if (saved_ && *saved_ > done_) saved_.reset();
  while (steps_.size() > done_) dropLast();
  typingGoesOn_ = present_.typedInto != nullptr;
  present_.changes.shrink_to_fit();
  present_.bytes = size(present_);
  bytes_ += present_.bytes;
  steps_.push_back(std::move(present_));
  ++done_;
  trim();
}

void History::dropLast() {
  bytes_ -= steps_.back().bytes;
  steps_.pop_back();
  done_ = std::min(done_, steps_.size());
}

void History::trim() {
  for (; bytes_ > mostBytes_ && !steps_.empty(); --done_) {
    bytes_ -= steps_.front().bytes;
    steps_.pop_front();
    if (saved_) saved_ = *saved_ > 0 ? std::optional(*saved_ - 1) : std::nullopt;
  }
}

void History::restart() { forget(true); }

/// Starts anew; `saved`: what the grids hold from here on is as good as saved.
void History::forget(bool saved) {
  saved_ = saved ? std::optional<std::size_t>(0) : std::nullopt;
  steps_.clear();
  done_ = 0;
  bytes_ = 0;
  present_.changes.clear();
  restarted_ = depth_ > 0;
  typingGoesOn_ = false;
  ++beginnings_;
  for (Grid* grid : grids_) grid->endTyping();
}

History::Past History::setAside() {
  Past past;
  past.done = done_;
  past.saved = saved_;
  past.bytes = bytes_;
  past.steps = std::move(steps_);
  forget(true);
  return past;
}

/// Of the act under way nothing is kept.
void History::bringBack(Past past) {
  forget(true);
  steps_ = std::move(past.steps);
  done_ = past.done;
  saved_ = past.saved;
  bytes_ = past.bytes;
}

void History::changedByItself() {
  if (depth_ == 0 && !moving_ && !steps_.empty()) forget(unsavedCells() == 0);
}

void History::markSaved() {
  stopTyping();
  saved_ = done_;
  savedWithin_ = depth_ > 0;
}

int History::unsavedCells() const {
  struct Texts {
    const std::string* first;
    const std::string* last;
  };
  std::map<std::tuple<const Grid*, int, int>, Texts> cells;
  std::size_t inRows = 0;
  const std::size_t saved = saved_.value_or(0);
  const std::size_t from = std::min(saved, done_);
  const std::size_t to = std::max(saved, done_);
  for (std::size_t step = from; step < to; ++step)
    for (const Change& change : steps_[step].changes)
      if (const auto* rows = std::get_if<RowsChange>(&change))
        inRows += static_cast<std::size_t>(rows->count) * static_cast<std::size_t>(rows->grid->cols());
      else if (const auto* cell = std::get_if<CellChange>(&change))
        cells.try_emplace({cell->grid, cell->row, cell->col}, Texts{&cell->before, &cell->after})
            .first->second.last = &cell->after;
  const auto changed = std::count_if(cells.begin(), cells.end(), [&](const auto& entry) {
    return inRows > 0 || *entry.second.first != *entry.second.last;
  });
  const auto count = static_cast<int>(inRows) + static_cast<int>(changed);
  return saved_ ? count : std::max(count, 1);
}

std::vector<GridPlace> History::places() const {
  std::vector<GridPlace> places;
  for (const Grid* grid : grids_) places.push_back(grid->place());
  return places;
}

std::string History::undo() {
  if (depth_ > 0 || done_ == 0) return {};
  run(steps_[--done_], false);
  return steps_[done_].name;
}

std::string History::redo() {
  if (depth_ > 0 || done_ == steps_.size()) return {};
  run(steps_[done_++], true);
  return steps_[done_ - 1].name;
}

}  // namespace ui
