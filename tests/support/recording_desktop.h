#pragma once

#include <string>
#include <vector>

#include "ui/desktop.h"
#include "ui/screen.h"

namespace test {

/// A desk that answers every message box at once and remembers what it was asked, for tests to look at.
class RecordingDesktop : public ui::Desktop {
 public:
  std::vector<ui::Message> messages;    ///< every message box, oldest first
  std::vector<ui::Pointer> pointers;    ///< every pointer that was set, oldest first
  std::vector<std::string> appearance;  ///< "+fSHsei" for a screen shown, "-fSHsei" for one hidden
  ui::Screen* shown = nullptr;          ///< the screen shown last and not hidden since
  int breaths = 0;                      ///< how often windows were let breathe
  bool guarded = false;                 ///< what safeguards() tells; questions get their first button

  bool safeguards() const override { return guarded; }
  std::size_t ask(const ui::Question&) override { return 0; }
  void message(const ui::Message& message) override { messages.push_back(message); }
  void setMousePointer(ui::Pointer pointer) override { pointers.push_back(pointer); }
  void breathe() override { ++breaths; }

  void show(ui::Screen& screen) override {
    appearance.push_back("+" + screen.name());
    shown = &screen;
  }

  void hide(ui::Screen& screen) override {
    appearance.push_back("-" + screen.name());
    if (shown == &screen) shown = nullptr;
  }

  /// The messages since the last call, oldest first.
  std::vector<ui::Message> takeMessages() {
    std::vector<ui::Message> taken;
    taken.swap(messages);
    return taken;
  }
};

}  // namespace test
