#pragma once

#include <stdexcept>

#include "ui/desktop.h"

namespace bench {

/// A desk on which nothing may go wrong: a message that reports an error ends the measuring.
class QuietDesktop : public ui::Desktop {
 public:
  void message(const ui::Message& message) override {
    if (message.icon == ui::Icon::Critical) throw std::runtime_error(message.title + ": " + message.text);
  }
  void setMousePointer(ui::Pointer) override {}
  void breathe() override {}
  void show(ui::Screen&) override {}
  void hide(ui::Screen&) override {}
};

}  // namespace bench
