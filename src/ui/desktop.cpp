#include "ui/desktop.h"

namespace ui {

void FcSetMousePointer(Desktop& desktop, Pointer pointer) { desktop.setMousePointer(pointer); }

Hourglass::Hourglass(Desktop& desktop) : desktop_(desktop) {
  FcSetMousePointer(desktop_, Pointer::Hourglass);
}

Hourglass::~Hourglass() { FcSetMousePointer(desktop_, Pointer::Default); }

}  // namespace ui
