#include "ui/desktop.h"

#include "ui/work_bar.h"

namespace ui {

std::unique_ptr<WorkBar> Desktop::workBar(const std::string&) { return nullptr; }

void FcSetMousePointer(Desktop& desktop, Pointer pointer) { desktop.setMousePointer(pointer); }

Hourglass::Hourglass(Desktop& desktop) : desktop_(desktop) {
  if (desktop_.waits_++ == 0) FcSetMousePointer(desktop_, Pointer::Hourglass);
}

Hourglass::~Hourglass() {
  if (--desktop_.waits_ == 0) FcSetMousePointer(desktop_, Pointer::Default);
}

}  // namespace ui
