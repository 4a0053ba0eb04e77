#include <QComboBox>
#include <QTabWidget>
#include <stdexcept>

#include "qt/binding_of.h"
#include "qt/bindings.h"
#include "qt/choice_list.h"
#include "qt/grid_view.h"
#include "qt/wheel_stop.h"
#include "ui/controls.h"

namespace qt {
namespace {

/// The items of a list or combo box, when they are others than the widget's.
template <class WidgetKind, class ItemText>
bool sameItems(const ui::ItemControl& control, const WidgetKind& widget, ItemText itemText) {
  if (control.count() != widget.count()) return false;
  for (int i = 0; i < control.count(); ++i)
    if (itemText(i) != toQString(control.items()[static_cast<std::size_t>(i)])) return false;
  return true;
}

QStringList itemTexts(const ui::ItemControl& control) {
  QStringList texts;
  for (const std::string& item : control.items()) texts << toQString(item);
  return texts;
}

class ListBinding : public BindingOf<ui::ListBox, ChoiceList> {
 public:
  ListBinding(ui::ListBox& control, ChoiceList& widget, Host& host) : BindingOf(control, widget, host) {
    QObject::connect(&widget, &ChoiceList::chosen, &widget,
                     [this](int row) { act([this, row] { control_.choose(row); }); });
  }

 private:
  void show() override {
    if (!sameItems(control_, widget_, [this](int i) { return widget_.item(i)->text(); })) {
      widget_.clear();
      widget_.addItems(itemTexts(control_));
    }
    widget_.setChosenRow(control_.listIndex());
    showPlace(control_, widget_);
  }
};

class ComboBinding : public BindingOf<ui::ComboBox, QComboBox> {
 public:
  ComboBinding(ui::ComboBox& control, QComboBox& widget, Host& host) : BindingOf(control, widget, host) {
    widget.setEditable(false);
    new WheelStop(&widget);
    widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    QObject::connect(&widget, &QComboBox::activated, &widget,
                     [this](int row) { act([this, row] { control_.choose(row); }); });
  }

 private:
  void show() override {
    if (!sameItems(control_, widget_, [this](int i) { return widget_.itemText(i); })) {
      widget_.clear();
      widget_.addItems(itemTexts(control_));
    }
    widget_.setCurrentIndex(control_.listIndex());
    showPlace(control_, widget_);
  }
};

class TabBinding : public BindingOf<ui::TabControl, QTabWidget> {
 public:
  TabBinding(ui::TabControl& control, QTabWidget& widget, Host& host) : BindingOf(control, widget, host) {
    if (widget.count() != control.pages())
      throw std::logic_error("control " + control.name() + ": the form has " +
                             std::to_string(widget.count()) + " pages, the control " +
                             std::to_string(control.pages()));
    QObject::connect(&widget, &QTabWidget::currentChanged, &widget,
                     [this](int page) { act([this, page] { control_.turnTo(page); }); });
  }

 private:
  void show() override {
    showPlace(control_, widget_);
    if (widget_.currentIndex() == control_.current()) return;
    widget_.setCurrentIndex(control_.current());
    focusGrid();
  }

  /// A page that the program brings to the front comes with its grid ready for keys.
  void focusGrid() {
    if (auto* grid = widget_.currentWidget()->findChild<GridView*>()) grid->setFocus(Qt::OtherFocusReason);
  }
};

}  // namespace

std::unique_ptr<Binding> bindList(ui::Control& control, QObject& object, Host& host) {
  return bindAs<ListBinding, ui::ListBox, ChoiceList>(control, object, host);
}

std::unique_ptr<Binding> bindCombo(ui::Control& control, QObject& object, Host& host) {
  return bindAs<ComboBinding, ui::ComboBox, QComboBox>(control, object, host);
}

std::unique_ptr<Binding> bindTab(ui::Control& control, QObject& object, Host& host) {
  return bindAs<TabBinding, ui::TabControl, QTabWidget>(control, object, host);
}

}  // namespace qt
