#include "script/answers.h"

#include <algorithm>
#include <utility>

#include "script/printer.h"

namespace script {

std::size_t Answers::answer(const ui::Question& question) {
  std::size_t chosen = question.safe;
  if (!waiting_.empty()) {
    const std::string wanted = std::move(waiting_.front());
    waiting_.pop_front();
    const auto found = std::find(question.buttons.begin(), question.buttons.end(), wanted);
    if (found == question.buttons.end())
      failure_ = "この質問に「" + wanted + "」というボタンはありません。";
    else
      chosen = static_cast<std::size_t>(found - question.buttons.begin());
  }
  transcript_ << "question: " << quoted(question.text) << " -> " << quoted(question.buttons[chosen]) << '\n';
  return chosen;
}

std::optional<std::string> Answers::takeFailure() { return std::exchange(failure_, std::nullopt); }

}  // namespace script
