#pragma once

#include "ui/screen.h"

namespace script {

/// The program that a script works, from its start to its end, as far as a script has to know.
class Subject {
 public:
  virtual ~Subject() = default;

  /// Starts the program up to its first screen. Errors that nothing in the program traps pass through.
  virtual void start() = 0;
  /// The open screen; null once the program has ended.
  virtual ui::Screen* screen() = 0;
  /// Frees screens that have gone; called between two commands.
  virtual void sweep() = 0;
};

}  // namespace script
