#pragma once

#include <QMainWindow>
#include <string_view>
#include <vector>

namespace qt {

/// A form of the house: the screen it belongs to, and how its widgets come into a window.
struct Form {
  std::string_view screen;
  void (*setUp)(QMainWindow& window);
};

/// Every form, one a screen.
const std::vector<Form>& forms();

/// Puts the widgets of the screen's form into `window`. Throws std::logic_error where the house has no form
/// for that screen.
void setUpForm(std::string_view screen, QMainWindow& window);

}  // namespace qt
