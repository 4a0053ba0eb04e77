#include "qt/binding_of.h"

namespace qt {

void showPlace(const ui::Control& control, QWidget& widget) {
  const ui::Box& box = control.box();
  if (box.width != 0 || box.height != 0) widget.setFixedSize(toPixels(box.width, box.height));
  if (box.left != 0 || box.top != 0) widget.move(toPixels(box.left), toPixels(box.top));
  widget.setEnabled(control.enabled());
}

}  // namespace qt
