#include "qt/binding.h"

#include <QAction>
#include <QTabWidget>
#include <stdexcept>

#include "qt/bindings.h"
#include "qt/convert.h"
#include "ui/controls.h"

namespace qt {
namespace {

[[noreturn]] void wrongForm(const QMainWindow& window, const ui::Control& control, const std::string& why) {
  throw std::logic_error("form " + fromQString(window.objectName()) + ": control " + control.name() + " " +
                         why);
}

/// The page of the tab control on which the form has `object`, −1 for none.
int pageOf(const QTabWidget& tabs, const QObject& object) {
  for (int page = 0; page < tabs.count(); ++page)
    for (const QObject* at = &object; at != nullptr; at = at->parent())
      if (at == tabs.widget(page)) return page;
  return -1;
}

void checkPage(const ui::Control& control, const QObject& object, const QMainWindow& window) {
  if (control.tab() == nullptr) return;
  const auto* tabs = window.findChild<QTabWidget*>(toQString(control.tab()->name()));
  if (tabs == nullptr || pageOf(*tabs, object) != control.page())
    wrongForm(window, control, "does not stand on page " + std::to_string(control.page()));
}

std::unique_ptr<Binding> bindTo(ui::Control& control, QObject& object, Host& host) {
  switch (control.kind()) {
    case ui::Kind::Label:
      return bindLabel(control, object, host);
    case ui::Kind::Frame:
      return bindFrame(control, object, host);
    case ui::Kind::Menu:
      return bindMenu(control, object, host);
    case ui::Kind::MenuItem:
      return bindMenuItem(control, object, host);
    case ui::Kind::Button:
      return bindButton(control, object, host);
    case ui::Kind::OptionButton:
      return bindOption(control, object, host);
    case ui::Kind::TextBox:
      return bindTextBox(control, object, host);
    case ui::Kind::ListBox:
      return bindList(control, object, host);
    case ui::Kind::ComboBox:
      return bindCombo(control, object, host);
    case ui::Kind::TabControl:
      return bindTab(control, object, host);
    case ui::Kind::Grid:
      return bindGrid(control, object, host);
  }
  return nullptr;
}

}  // namespace

void Binding::tie() {
  tied_ = true;
  listen(true);
  stale_ = true;
  refresh();
}

void Binding::untie() {
  if (!tied_) return;
  tied_ = false;
  listen(false);
}

void Binding::refresh() {
  if (!tied_ || !stale_) return;
  stale_ = false;
  showing_ = true;
  show();
  showing_ = false;
}

void Binding::changed(ui::Control&) {
  if (stale_) return;
  stale_ = true;
  host_.stale();
}

void Binding::cellChanged(int, int) { changed(control_); }

void Binding::act(const std::function<void()>& what) {
  if (!tied_ || showing_) return;
  stale_ = true;  // the widget has moved by itself; the control may see it otherwise
  host_.act(what);
}

std::unique_ptr<Binding> bind(ui::Control& control, QMainWindow& window, Host& host) {
  auto* object = window.findChild<QObject*>(toQString(control.name()));
  if (object == nullptr) wrongForm(window, control, "is missing");
  checkPage(control, *object, window);
  auto binding = bindTo(control, *object, host);
  if (!binding)
    wrongForm(window, control, "is of another kind: " + std::string(object->metaObject()->className()));
  return binding;
}

}  // namespace qt
