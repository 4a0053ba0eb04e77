#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/desktop.h"

namespace ui {

/// An act of the operator as it enters a control or a screen, in the words of an operation script.
struct OperatorAct {
  std::string verb;                  ///< "click", "cell", "key"
  std::string control;               ///< name of the control; "" for an act on the screen itself
  std::vector<std::string> words{};  ///< what follows

  bool operator==(const OperatorAct&) const = default;
};

/// Somebody who writes down what the operator does.
class ActWitness {
 public:
  virtual ~ActWitness() = default;

  /// An act begins, perhaps within another one; ended() follows.
  virtual void began(const OperatorAct& act) = 0;
  virtual void ended() = 0;
  /// A question of the act under way was answered by the button with this caption.
  virtual void answered(std::string_view button) = 0;
};

/// Tells the witness of a desk of an act, for as long as it lives.
class Witnessed {
 public:
  /// `desktop` may be null. `describe` gives the OperatorAct; it is asked only where there is a witness.
  template <class Describe>
  Witnessed(Desktop* desktop, const Describe& describe)
      : witness_(desktop == nullptr ? nullptr : desktop->witness()) {
    if (witness_ != nullptr) witness_->began(describe());
  }
  ~Witnessed() {
    if (witness_ != nullptr) witness_->ended();
  }
  Witnessed(const Witnessed&) = delete;
  Witnessed& operator=(const Witnessed&) = delete;

 private:
  ActWitness* witness_;
};

}  // namespace ui
