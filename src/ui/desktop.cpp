#include "ui/desktop.h"

namespace ui {

void FcSetMousePointer(Desktop& desktop, Pointer pointer) { desktop.setMousePointer(pointer); }

Hourglass::Hourglass(Desktop& desktop) : desktop_(desktop) {
  if (desktop_.waits_++ == 0) FcSetMousePointer(desktop_, Pointer::Hourglass);
}

Hourglass::~Hourglass() {
  if (--desktop_.waits_ == 0) FcSetMousePointer(desktop_, Pointer::Default);
}

}  // namespace ui
