#pragma once

#include <string>

#include "text/error.h"
#include "ui/desktop.h"

namespace route {

/// A desk for a screen that works unseen: nobody answers there, so what it would tell the operator ends the
/// work.
class QuietDesktop : public ui::Desktop {
 public:
  void message(const ui::Message& message) override {
    if (told_.empty()) told_ = message.text;
  }
  void setMousePointer(ui::Pointer) override {}
  void breathe() override {}
  void show(ui::Screen&) override {}
  void hide(ui::Screen&) override {}

  /// Raises RuntimeError with the first message, where there has been one.
  void raise() const {
    if (!told_.empty()) throw text::RuntimeError(text::ErrorCode::FileNotFound, told_);
  }

 private:
  std::string told_;
};

}  // namespace route
