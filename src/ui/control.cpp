#include "ui/control.h"

#include "ui/screen.h"

namespace ui {

Control::Control(Kind kind, std::string name, Screen* screen) : kind_(kind), name_(std::move(name)) {
  if (screen == nullptr) return;
  desktop_ = &screen->desktop();
  history_ = &screen->history();
  screen->add(*this);
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  notify();
}

void Control::move(const Box& box) {
  if (box_ == box) return;
  box_ = box;
  notify();
}

}  // namespace ui
