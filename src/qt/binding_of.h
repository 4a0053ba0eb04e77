#pragma once

#include <QWidget>
#include <memory>

#include "qt/binding.h"
#include "qt/convert.h"

namespace qt {

/// Shows place, size and readiness of a control on its widget. What the program does not set stays as the
/// form has it.
void showPlace(const ui::Control& control, QWidget& widget);

/// A binding between one kind of control and one kind of widget.
template <class ControlKind, class WidgetKind>
class BindingOf : public Binding {
 public:
  BindingOf(ControlKind& control, WidgetKind& widget, Host& host)
      : Binding(control, host), control_(control), widget_(widget) {}

  QObject& shown() const override { return widget_; }

 protected:
  ControlKind& control_;
  WidgetKind& widget_;
};

/// The binding of class Made where `object` is the widget it wants, null else.
template <class Made, class ControlKind, class WidgetKind>
std::unique_ptr<Binding> bindAs(ui::Control& control, QObject& object, Host& host) {
  auto* widget = qobject_cast<WidgetKind*>(&object);
  if (widget == nullptr) return nullptr;
  return std::make_unique<Made>(dynamic_cast<ControlKind&>(control), *widget, host);
}

}  // namespace qt
