#pragma once

#include <QApplication>
#include <exception>
#include <string>
#include <vector>

#include "qt/application.h"
#include "qt/every_kind.h"
#include "qt/window_desktop.h"

/// A desk of windows that answers message boxes by itself and writes down what reaches its owner.
struct Desk {
  std::vector<std::string> boxes;     ///< "title|text" of the message boxes
  std::vector<std::string> failures;  ///< descriptions of untrapped errors
  int sweeps = 0;
  qt::WindowDesktop windows;

  explicit Desk(qt::Opening opening = qt::Opening::Design)
      : windows(opening,
                {.ask =
                     [this](QMessageBox& box) {
                       boxes.push_back((box.windowTitle() + "|" + box.text()).toStdString());
                     },
                 .failed = [this](std::exception_ptr error) { failures.push_back(qt::describe(error)); },
                 .settled = [] {},
                 .sweep = [this] { ++sweeps; },
                 .setUpForm = [](std::string_view, QMainWindow& window) { setUpEveryKind(window); }}) {}
};

/// The screen with every kind of control, open in a window.
struct OpenScreen {
  Desk desk;
  EveryKind screen{desk.windows};

  OpenScreen() {
    screen.load();
    desk.windows.show(screen);
    settle();
    screen.events.clear();
  }
  ~OpenScreen() { desk.windows.hide(screen); }
  OpenScreen(const OpenScreen&) = delete;
  OpenScreen& operator=(const OpenScreen&) = delete;

  void settle() {
    QApplication::processEvents();
    desk.windows.refresh();
    QApplication::processEvents();
  }
  qt::ScreenWindow& window() { return *desk.windows.windowOf(screen); }
  template <class WidgetKind>
  WidgetKind& widget(const ui::Control& control) {
    return dynamic_cast<WidgetKind&>(*desk.windows.shown(control));
  }
};
