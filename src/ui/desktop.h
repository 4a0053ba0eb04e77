#pragma once

#include <string>

namespace ui {

class Screen;

/// The sign that a message box carries.
enum class Icon { None, Information, Critical };

/// A message box with one button, OK. The title is empty where the box has none of its own.
struct Message {
  std::string title;
  std::string text;
  Icon icon = Icon::None;

  bool operator==(const Message&) const = default;
};

/// Pointer codes of setMousePointer.
enum class Pointer : int { Default = 0, Hourglass = 11 };

/// What a screen asks of the desk it stands on. Windows, operation scripts and tests each bring their own.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a message box and returns when the operator has answered it.
  virtual void message(const Message& message) = 0;

  /// Sets the mouse pointer everywhere on the desktop.
  virtual void setMousePointer(Pointer pointer) = 0;

  /// Lets windows repaint and stay alive during a long wait. No work of the operator is taken in meanwhile.
  virtual void breathe() = 0;

  /// A screen has been loaded and is to be seen.
  virtual void show(Screen& screen) = 0;

  /// A screen has been unloaded and is no longer to be seen; it lives on until the present event is over.
  virtual void hide(Screen& screen) = 0;
};

/// Sets the screen-wide mouse pointer.
void FcSetMousePointer(Desktop& desktop, Pointer pointer);

/// The hourglass for as long as this object lives, also where an error ends the work early.
class Hourglass {
 public:
  explicit Hourglass(Desktop& desktop);
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Desktop& desktop_;
};

}  // namespace ui
