#pragma once

#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "ui/act_witness.h"

namespace script {

/// Writes what an operator does as an operation script that does it again.
///
/// A line is written when its act is over and no further key or character can belong to it; answers to
/// questions stand before the act that they belong to. Going from cell to cell with the keyboard is written
/// where something is done in the cell.
class Recorder : public ui::ActWitness {
 public:
  /// `out` must outlive the recorder; it is flushed after every line.
  explicit Recorder(std::ostream& out) : out_(out) {}
  ~Recorder() override { finish(); }

  void began(const ui::OperatorAct& act) override;
  void ended() override { --depth_; }

  void answered(std::string_view button) override;
  /// A line of a script that looks at something and does nothing: written as it stands. `goes`: it goes to
  /// its cells by itself.
  void looked(std::string_view line, bool goes = false);
  /// Nothing more is done: writes what has been held back.
  void finish();

 private:
  /// Where the operator has gone without doing anything there yet.
  struct Place {
    std::string grid;
    std::string row;
    std::string col;
  };
  /// A line held back: keys and characters that follow are written into it.
  struct Line {
    std::string verb;
    std::string control;
    std::vector<std::string> words;
    std::vector<std::string> answers;
  };

  void take(const ui::OperatorAct& act);
  void arrive(const std::optional<Place>& place);
  bool goesOn(const ui::OperatorAct& act) const;
  void hold(Line line);

  std::ostream& out_;
  std::optional<Line> held_;
  std::optional<Place> gone_;    // by moving the key cell
  std::optional<Place> marked_;  // first cell of a range that was selected
  int depth_ = 0;
};

}  // namespace script
