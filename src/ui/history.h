#pragma once

#include <any>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace ui {

class Grid;

/// What the acts of an operator are called where they can be taken back.
namespace act {
constexpr std::string_view typing = "入力";
constexpr std::string_view pasting = "貼り付け";
constexpr std::string_view filling = "フィル";
constexpr std::string_view deleting = "削除";
constexpr std::string_view calculation = "計算";
}  // namespace act

/// Where the operator stands in a grid: current cell, end of the selection, cell that keys go to.
struct GridPlace {
  int row = 1;
  int col = 0;
  int rowSel = 1;
  int colSel = 0;
  int keyRow = 1;
  int keyCol = 0;
  bool wholeRow = false;  ///< the selection is the highlight of a click, no choice of the operator
  bool headings = false;  ///< the headings of the selected columns are selected too

  bool operator==(const GridPlace&) const = default;
};

/// What has been done to the grids of a screen, act by act, so that it can be taken back and done again.
///
/// Each act of the operator is one step: a paste, a fill, a delete, what a button or Enter changed. Keys that
/// are typed into one cell one after another are one step. An act that changes nothing in the end is none. A
/// change that comes from no act starts the history anew, as nothing kept before it would fit.
class History {
 public:
  /// What is kept at most, in bytes. Beyond that the oldest steps go.
  static constexpr std::size_t usualLimit = std::size_t{64} * 1024 * 1024;

  explicit History(std::size_t mostBytes = usualLimit) : mostBytes_(mostBytes) {}
  History(const History&) = delete;
  History& operator=(const History&) = delete;

  /// An act of the operator, for as long as it lives; of acts within acts the outermost counts.
  class Act {
   public:
    /// `history` may be null: then nothing is kept.
    Act(History* history, std::string_view name);
    /// A key typed into the cell of `grid` that keys go to: the same step as the key before it.
    static Act typed(History* history, Grid& grid);
    ~Act();
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;

   private:
    Act(History* history, std::string_view name, Grid* typedInto);
    History* history_;
  };

  /// Takes a grid into the history; it lives as long.
  void add(Grid& grid) { grids_.push_back(&grid); }

  /// Keeps a state of the screen along with its grids: `take` gives it, `bring` brings it back. The state is
  /// taken at every act: let it be small.
  template <class State>
  void keep(std::function<State()> take, std::function<void(const State&)> bring) {
    kept_.push_back(
        {[take = std::move(take)] { return std::any(take()); },
         [bring = std::move(bring)](const std::any& state) { bring(std::any_cast<const State&>(state)); },
         [](const std::any& a, const std::any& b) {
           return std::any_cast<const State&>(a) == std::any_cast<const State&>(b);
         }});
  }

  /// Run after each step back or forward, for what a screen shows besides its grids and makes out of them.
  void whenMoved(std::function<void()> notice) { moved_.push_back(std::move(notice)); }

  /// The key cell is another: the next key typed begins a step of its own.
  void stopTyping() { typingGoesOn_ = false; }

  /// All that can be taken back, as it is at one time.
  class Past;
  /// Takes it out and begins anew, as restart does.
  Past setAside();
  /// Puts it in again: the grids hold what they held when it was taken out.
  void bringBack(Past past);

  /// Forgets everything: what the grids hold, or will hold when the present act is over, is the beginning.
  void restart();
  /// How often it has started anew.
  unsigned beginnings() const { return beginnings_; }

  /// The name of the act that undo would take back, redo would do again; empty for none.
  std::string undoName() const { return done_ == 0 ? std::string() : steps_[done_ - 1].name; }
  std::string redoName() const { return done_ == steps_.size() ? std::string() : steps_[done_].name; }

  /// Takes the last act back, or does it again. Returns its name, empty for none. Nothing while an act is
  /// under way.
  std::string undo();
  std::string redo();

  /// Takes back what the act under way has done to the grids; nothing of it where the history has begun
  /// within it.
  void takeBackAct();

  /// What the grids hold now has been saved, or is as good as saved; within an act, what they hold when it is
  /// over.
  void markSaved();
  /// How many cells are not what they were when markSaved was called last, or at the beginning. A row that
  /// was added or removed counts with all its cells. At least 1 where what was saved cannot be told any more.
  int unsavedCells() const;

  /// What is kept, in bytes.
  std::size_t bytes() const { return bytes_; }

  // Notices of the grids.

  /// True while changes are wanted as notices.
  bool records() const { return depth_ > 0 && !restarted_ && !moving_; }
  /// A grid has changed outside of any act.
  void changedByItself();
  void textChanged(Grid& grid, int row, int col, std::string before, const std::string& after);
  void rowsAdded(Grid& grid, int at, int count);
  /// `cells`: what stood in the rows, row by row.
  void rowsRemoved(Grid& grid, int at, int count, std::vector<std::string> cells);

 private:
  struct CellChange {
    Grid* grid;
    int row;
    int col;
    std::string before;
    std::string after;
  };
  struct RowsChange {
    Grid* grid;
    int at;
    int count;
    bool added;
    std::vector<std::string> cells;
  };
  using Change = std::variant<CellChange, RowsChange>;
  struct KeptChange {
    std::size_t which;
    std::any before;
    std::any after;
  };
  struct Step {
    std::string name;
    Grid* typedInto = nullptr;  // the grid of a typing step, and the cell
    int row = 0;
    int col = 0;
    std::vector<Change> changes;
    std::vector<KeptChange> kept;
    std::vector<GridPlace> before;
    std::vector<GridPlace> after;
    std::size_t bytes = 0;
  };
  struct Kept {
    std::function<std::any()> take;
    std::function<void(const std::any&)> bring;
    std::function<bool(const std::any&, const std::any&)> same;
  };

  void begin(std::string_view name, Grid* typedInto);
  void end();
  void finish();
  void push();
  bool continuesTyping() const;
  void takeIntoLast();
  void noteKept();
  static bool touches(const Step& step, const Grid& grid);
  std::vector<GridPlace> places() const;
  static void reduce(std::vector<Change>& changes);
  static std::size_t size(const Step& step);
  void dropLast();
  void trim();
  void forget(bool saved);
  void run(const Step& step, bool forward);
  static void apply(const Change& change, bool forward);

  std::size_t mostBytes_;
  std::vector<Grid*> grids_;
  std::vector<Kept> kept_;
  std::vector<std::function<void()>> moved_;
  std::deque<Step> steps_;
  std::size_t done_ = 0;  // how many of the steps are done; those behind them can be done again
  std::optional<std::size_t> saved_ =
      0;  // how many were done when it was saved; nothing where no step leads there
  std::size_t bytes_ = 0;
  Step present_;
  std::vector<std::any> keptBefore_;
  int depth_ = 0;
  bool restarted_ = false;
  bool savedWithin_ = false;  // the present act has saved what it leaves
  bool moving_ = false;
  bool typingGoesOn_ = false;
  unsigned beginnings_ = 0;
};

class History::Past {
 private:
  friend class History;

  std::deque<Step> steps;
  std::size_t done = 0;
  std::optional<std::size_t> saved;
  std::size_t bytes = 0;
};

}  // namespace ui
