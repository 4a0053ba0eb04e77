#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <ostream>
#include <string>

#include "ui/desktop.h"

namespace script {

/// The answers that a script has ready for the questions to come, and how both are written down.
class Answers {
 public:
  /// `asked`: whether the program asks at all. The transcript goes to `transcript`.
  Answers(bool asked, std::ostream& transcript) : asked_(asked), transcript_(transcript) {}

  bool asked() const { return asked_; }

  /// The button that the next question will be answered by; several wait in line.
  void prepare(std::string button) { waiting_.push_back(std::move(button)); }

  /// Answers a question by the button that waits, else by its safe one, writes both down and returns the
  /// button's position. A button that the question does not have is kept as the failure of the line, and the
  /// safe one answers.
  std::size_t answer(const ui::Question& question);

  /// Why the present line fails, once; nothing where all is well.
  std::optional<std::string> takeFailure();

 private:
  bool asked_;
  std::ostream& transcript_;
  std::deque<std::string> waiting_;
  std::optional<std::string> failure_;
};

}  // namespace script
