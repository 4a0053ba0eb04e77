#pragma once

#include <algorithm>
#include <deque>
#include <string>
#include <vector>

#include "support/recording_desktop.h"

namespace test {

/// A recording desk with safeguards: it answers questions by the buttons that wait, else by the safe one, and
/// remembers what it was asked.
class AskingDesktop : public RecordingDesktop {
 public:
  bool asks = true;                     ///< whether there are safeguards at all
  std::deque<std::string> answers;      ///< captions of the buttons to press, the next one first
  std::vector<ui::Question> questions;  ///< every question, oldest first

  bool safeguards() const override { return asks; }

  std::size_t ask(const ui::Question& question) override {
    questions.push_back(question);
    if (answers.empty()) return question.safe;
    const auto found = std::find(question.buttons.begin(), question.buttons.end(), answers.front());
    answers.pop_front();
    return found == question.buttons.end() ? question.safe
                                           : static_cast<std::size_t>(found - question.buttons.begin());
  }
};

}  // namespace test
