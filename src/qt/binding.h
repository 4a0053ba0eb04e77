#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>

#include "qt/host.h"
#include "ui/grid.h"

namespace qt {

/// Ties one control to the widget that shows it.
///
/// The control's notices come singly and often; they are only noted, and refresh() brings the widget up to
/// date when the gathering ends. What the operator does to the widget enters the control through act().
class Binding : public ui::GridObserver {
 public:
  /// `host` outlives the binding.
  Binding(ui::Control& control, Host& host) : control_(control), host_(host) {}
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  const ui::Control& control() const { return control_; }
  /// The widget or action.
  virtual QObject& shown() const = 0;

  /// Starts to listen to the control and shows it for the first time.
  void tie();
  /// Stops listening; nothing goes to the control any more, which may be freed thereafter.
  virtual void untie();
  /// Shows the control as it is, where it has changed since the last time.
  void refresh();

  /// Shows the control again at the next turn though it has not changed: the look of the windows has.
  void showAnew() { changed(control_); }

  void changed(ui::Control& control) override;
  void cellChanged(int row, int col) override;

 protected:
  /// Brings the widget to the control's state.
  virtual void show() = 0;
  /// Attaches itself as the observer, or nobody.
  virtual void listen(bool attach) { control_.observe(attach ? this : nullptr); }
  /// An act of the operator; passed over while the widget is only being brought up to date.
  void act(const std::function<void()>& what);

 private:
  ui::Control& control_;
  Host& host_;
  bool tied_ = false;
  bool stale_ = false;
  bool showing_ = false;
};

/// Ties `control` to the widget or action of its name in `window`. Throws std::logic_error where the form has
/// none, has one of another kind, or has it on another page than the control says: the form is wrong.
std::unique_ptr<Binding> bind(ui::Control& control, QMainWindow& window, Host& host);

}  // namespace qt
