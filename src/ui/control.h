#pragma once

#include <functional>
#include <string>
#include <utility>

namespace ui {

class Control;
class Desktop;
class History;
class Screen;
class TabControl;

/// What a control is, for those who handle all controls of a screen alike.
enum class Kind {
  Label,
  Button,
  OptionButton,
  TextBox,
  ListBox,
  ComboBox,
  TabControl,
  Frame,
  Menu,
  MenuItem,
  Grid
};

/// Place and size of a control in twips (1440 to the inch), within what it stands on.
struct Box {
  float left = 0;
  float top = 0;
  float width = 0;
  float height = 0;

  bool operator==(const Box&) const = default;
};

/// Somebody who shows a control and wants to hear when it changes: a window.
class ControlObserver {
 public:
  virtual ~ControlObserver() = default;

  /// Text, items, choice, page, place or readiness of the control are other than before.
  virtual void changed(Control& control) = 0;
};

/// What a screen does upon an act of the operator.
class Event {
 public:
  using Handler = std::function<void()>;

  void handle(Handler handler) { handler_ = std::move(handler); }
  void operator()() const {
    if (handler_) handler_();
  }

 private:
  Handler handler_;
};

/// A control of a screen without any toolkit: plain values under a name, and a notice when they change.
///
/// What the program does to a control goes through its set… members. What the operator does enters through
/// one act member (press, choose, edit, click, pressKey), from a window, an operation script or a test alike,
/// and reaches the screen's event handler from there.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  Kind kind() const { return kind_; }
  /// The name that screens, windows and operation scripts know it by, such as "cmbRosenBango1" or "mitem(1)".
  const std::string& name() const { return name_; }

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);

  /// Place and size; all 0 for a control that the window lays out by itself.
  const Box& box() const { return box_; }
  void move(const Box& box);
  void setSize(float width, float height) { move({box_.left, box_.top, width, height}); }

  /// The tab control it stands on, or null, and the page there.
  TabControl* tab() const { return tab_; }
  int page() const { return page_; }

  /// The desk on which its messages appear; null for a control that stands alone.
  Desktop* desktop() const { return desktop_; }
  void setDesktop(Desktop* desktop) { desktop_ = desktop; }

  /// The history of its screen's grids; null for a control that stands alone.
  History* history() const { return history_; }

  /// One observer at a time; null for none.
  void observe(ControlObserver* observer) { observer_ = observer; }

 protected:
  /// `screen` may be null: such a control stands alone.
  Control(Kind kind, std::string name, Screen* screen);

  void notify() {
    if (observer_ != nullptr) observer_->changed(*this);
  }

 private:
  friend class TabControl;

  Kind kind_;
  std::string name_;
  bool enabled_ = true;
  Box box_;
  TabControl* tab_ = nullptr;
  int page_ = 0;
  Desktop* desktop_ = nullptr;
  History* history_ = nullptr;
  ControlObserver* observer_ = nullptr;
};

}  // namespace ui
