#include "script/recorder.h"

#include <utility>

#include "script/printer.h"

namespace script {
namespace {

/// A word as a script line takes it: in quotes where it would not be read as that word without.
std::string written(std::string_view word) {
  const bool plain =
      !word.empty() && word.front() != '#' && word.find_first_of(" \t\n\"") == std::string_view::npos;
  return plain ? std::string(word) : quoted(word);
}

}  // namespace

void Recorder::began(const ui::OperatorAct& act) {
  if (depth_++ == 0) take(act);
}

void Recorder::take(const ui::OperatorAct& act) {
  if (act.verb == "go" || act.verb == "mark") {
    if (act.verb == "go") marked_.reset();
    (act.verb == "go" ? gone_ : marked_) = Place{act.control, act.words[0], act.words[1]};
    return;
  }
  if (goesOn(act)) {
    held_->words = act.verb == "resize" ? act.words : std::vector{held_->words.front() + act.words.front()};
    return;
  }
  if (act.verb == "fill") {
    arrive(Place{act.control, act.words[0], act.words[1]});
    return hold({"paste", act.control, {act.words[2]}, {}});
  }
  if (act.verb == "paste") arrive(marked_ ? marked_ : gone_);
  const bool ownPlace = act.verb == "cell" || act.verb == "edit" || act.verb == "delete";
  if (!ownPlace) arrive(gone_);
  gone_.reset();
  marked_.reset();
  hold({act.verb, act.control, act.words, {}});
}

/// True where the act belongs into the line that is held back: a key behind a key, a character behind a
/// character, a size behind a size.
bool Recorder::goesOn(const ui::OperatorAct& act) const {
  return held_ && held_->answers.empty() && !gone_ && act.verb == held_->verb &&
         act.control == held_->control && (act.verb == "key" || act.verb == "type" || act.verb == "resize");
}

/// The operator has done something in the cell that he had gone to.
void Recorder::arrive(const std::optional<Place>& place) {
  if (place) hold({"cell", place->grid, {place->row, place->col}, {}});
  gone_.reset();
  marked_.reset();
}

void Recorder::hold(Line line) {
  if (held_) {
    for (const std::string& answer : held_->answers) out_ << "answer " << written(answer) << '\n';
    const bool position = held_->verb == "select #";
    out_ << (position ? "select" : held_->verb);
    if (!held_->control.empty()) out_ << ' ' << held_->control;
    for (const std::string& word : held_->words) out_ << ' ' << (position ? "#" + word : written(word));
    out_ << std::endl;
  }
  held_ = std::move(line);
}

void Recorder::answered(std::string_view button) {
  if (held_) held_->answers.emplace_back(button);
}

void Recorder::looked(std::string_view line, bool goes) {
  finish();
  if (goes) {
    gone_.reset();
    marked_.reset();
  }
  out_ << line << std::endl;
}

void Recorder::finish() {
  hold({});
  held_.reset();
}

}  // namespace script
