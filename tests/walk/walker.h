#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

#include "typing_watch.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace test {

/// A stream of operation-script lines in which each line is made up at random when it is asked for, out of
/// what the open screen offers at that moment. The same seed on the same job gives the same walk.
///
/// Now and then everything done to the screen's tables is taken back and done again, step by step. Then the
/// tables must show what they showed when their history began, and after that what they showed before.
class Walker : public std::streambuf {
 public:
  /// `screen` gives the open screen, null when the program has ended; the walk then ends too. Each line goes
  /// to `record`; a word on a table that shows something else than it must stops the walk (broken).
  Walker(std::uint32_t seed, int steps, std::function<ui::Screen*()> screen, std::ostream& record)
      : state_(seed), steps_(steps), screen_(std::move(screen)), record_(record) {}

  /// With safeguards: looks for what was typed (TypingWatch), and gives answers to questions. `questions`
  /// counts those asked so far.
  void watchTyping(std::function<int()> questions) { questions_ = std::move(questions); }
  /// The walk has ended; `screen` is null where the program has.
  void finish(const ui::Screen* screen);

  /// What a table showed instead of what it had to show; empty where all was well.
  /// Or what was lost.
  const std::string& broken() const { return broken_; }

 protected:
  int_type underflow() override;

 private:
  int below(int limit);
  std::string nextLine();
  std::string look(const ui::Control& control);
  std::string act(const ui::Screen& screen, const ui::Control& control);
  std::string press(const ui::Control& control);
  std::string choose(const ui::ItemControl& list);
  std::string write(const ui::TextBox& box);
  std::string work(const ui::Grid& grid);
  std::string block(const ui::Grid& grid);
  std::string onCells(std::string_view act, const ui::Grid& grid);
  std::string paste(const ui::Grid& grid);
  std::string edit(const ui::Grid& grid);
  std::string rewind(const ui::Screen& screen);
  void expect(const std::string& wanted, const ui::Screen& screen);
  std::string keys();
  std::string answered(const ui::Screen& screen, std::string line);

  std::uint32_t state_;
  int steps_;
  std::function<ui::Screen*()> screen_;
  std::ostream& record_;
  std::string line_;

  /// The way through the history: none, back to its beginning, forward to its end.
  enum class Rewinding { No, Back, Forward };
  Rewinding rewinding_ = Rewinding::No;
  std::string atBeginning_;  // what the tables showed when their history began
  std::string before_;       // and before they were taken back
  std::string broken_;

  std::function<int()> questions_;  // none without safeguards
  TypingWatch typing_;
  std::string next_;  // the line that the answer just given is for
};

}  // namespace test
