#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ui {

class ActWitness;
class Screen;
class WorkBar;

/// The sign that a message box carries.
enum class Icon { None, Information, Critical };

/// A message box with one button, OK. The title is empty where the box has none of its own.
struct Message {
  std::string title;
  std::string text;
  Icon icon = Icon::None;

  bool operator==(const Message&) const = default;
};

/// A question before an act that could lose or spoil something.
struct Question {
  std::string text;                  ///< names what would happen
  std::vector<std::string> buttons;  ///< captions without access keys
  std::size_t safe = 0;  ///< the button that loses nothing: Enter, Esc and the close box stand for it

  bool operator==(const Question&) const = default;
};

/// What a record of the work keeps of something that was done.
struct WorkNote {
  std::string job;      ///< "ジョブ 1"
  std::string open;     ///< what is open, "1001 01A00101"
  std::string screen;   ///< caption of the screen
  std::string what;     ///< "読込", "計算", "保存"
  std::string details;  ///< counts, how it ended; may be empty

  bool operator==(const WorkNote&) const = default;
};

/// Pointer codes of setMousePointer.
enum class Pointer : int { Default = 0, Hourglass = 11 };

/// What a screen asks of the desk it stands on. Windows, operation scripts and tests each bring their own.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Shows a message box and returns when the operator has answered it.
  virtual void message(const Message& message) = 0;

  /// True where operators are asked before something could be lost or spoilt. False: no question is ever
  /// asked.
  virtual bool safeguards() const { return false; }

  /// Asks a question and returns the position of the button that answered it. Only to be called with
  /// safeguards.
  virtual std::size_t ask(const Question& question) { return question.safe; }

  /// The text that the operator has set under a key, the same for all screens; "" where nothing is set.
  virtual std::string setting(std::string_view) const { return {}; }

  /// Something was done that belongs into a record of the work.
  virtual void note(const WorkNote&) {}

  /// Who writes down what the operator does to controls; null for nobody.
  virtual ActWitness* witness() { return nullptr; }

  /// What shows the operator that a work goes on which may take long, called `words` ("読み込んでいます"),
  /// and lets him give it up; null where nobody is shown anything. Only for works that leave no trace when
  /// they are given up.
  virtual std::unique_ptr<WorkBar> workBar(const std::string& words);

  /// Sets the mouse pointer everywhere on the desktop.
  virtual void setMousePointer(Pointer pointer) = 0;

  /// Lets windows repaint and stay alive during a long wait. No work of the operator is taken in meanwhile.
  virtual void breathe() = 0;

  /// A screen has been loaded and is to be seen.
  virtual void show(Screen& screen) = 0;

  /// A screen has been unloaded and is no longer to be seen; it lives on until the present event is over.
  virtual void hide(Screen& screen) = 0;

 private:
  friend class Hourglass;
  int waits_ = 0;  ///< hourglasses that stand on the desk
};

/// Sets the screen-wide mouse pointer.
void FcSetMousePointer(Desktop& desktop, Pointer pointer);

/// The hourglass for as long as this object lives, also where an error ends the work early. Of several that
/// live at a time the last one to go takes it away.
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
