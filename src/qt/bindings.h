#pragma once

#include <QObject>
#include <memory>

#include "qt/binding.h"

// One maker for each kind of control. Each gives null where the object is no widget for that kind.

namespace qt {

std::unique_ptr<Binding> bindLabel(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindFrame(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindMenu(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindMenuItem(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindButton(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindOption(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindTextBox(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindList(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindCombo(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindTab(ui::Control& control, QObject& object, Host& host);
std::unique_ptr<Binding> bindGrid(ui::Control& control, QObject& object, Host& host);

}  // namespace qt
