#pragma once

#include <QMessageBox>
#include <QObject>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/settings.h"
#include "qt/host.h"
#include "qt/screen_window.h"
#include "ui/desktop.h"

namespace qt {

/// With which size windows open.
enum class Opening {
  Design,      ///< exactly as the screen was designed
  Comfortable  ///< as the operator left the screen the last time, at first larger where the display has room
};

/// What the owner of a desktop brings to it.
struct DesktopOwner {
  /// Shows the message box and returns when it has been answered.
  std::function<void(QMessageBox& box)> ask;
  /// Whether operators are asked before something could be lost; empty for never.
  std::function<bool()> safeguards = {};
  /// An act ended with an error that nothing in the program trapped. No further act is run.
  std::function<void(std::exception_ptr error)> failed;
  /// An act is over and every window shows the new state.
  std::function<void()> settled;
  /// Between two events, nothing of the windows refers to unloaded screens any more: they may be freed.
  std::function<void()> sweep;
  /// Puts the form of a screen into a window.
  std::function<void(std::string_view screen, QMainWindow& window)> setUpForm;
  /// Adds to the window of a screen what the screen itself does not know; empty for nothing. Not for windows
  /// that open as designed.
  std::function<void(ScreenWindow& window)> dress = {};
  /// Takes what belongs into the record of the work, with what the checks have found when it was done; empty
  /// for no record.
  std::function<void(const ui::WorkNote& note, const ui::Findings& findings)> record = {};
  /// Who writes down what the operator does; empty for nobody.
  std::function<ui::ActWitness*()> witness = {};
  /// Remembers how the operator has left windows and columns; null: nothing is remembered beyond the desk's
  /// own life.
  platform::Settings* settings = nullptr;
  /// Milliseconds that a work may take before it shows how it goes on.
  int patience = 300;
};

/// The desk of real windows.
class WindowDesktop : public ui::Desktop, public Host {
 public:
  WindowDesktop(Opening opening, DesktopOwner owner);
  ~WindowDesktop() override;

  void message(const ui::Message& message) override;
  bool safeguards() const override { return owner_.safeguards && owner_.safeguards(); }
  std::size_t ask(const ui::Question& question) override;
  std::string setting(std::string_view key) const override;
  void note(const ui::WorkNote& note) override;
  ui::ActWitness* witness() override { return owner_.witness ? owner_.witness() : nullptr; }
  std::unique_ptr<ui::WorkBar> workBar(const std::string& words) override;
  void setMousePointer(ui::Pointer pointer) override;
  void breathe() override;
  void show(ui::Screen& screen) override;
  void hide(ui::Screen& screen) override;

  void act(const std::function<void()>& what) override;
  bool busy() const override { return busy_; }
  void stale() override;

  /// Shows what has changed, now.
  void refresh();
  /// Frees the windows of unloaded screens, and tells the owner. Does nothing while an act is under way.
  void sweep();

  /// The window of an open screen, null for none.
  ScreenWindow* windowOf(const ui::Screen& screen) const;
  /// The widget or action that shows a control of an open screen, null for none.
  QObject* shown(const ui::Control& control) const;

 private:
  void showBox(QMessageBox& box);
  QWidget* front() const { return windows_.empty() ? nullptr : windows_.back().get(); }
  void settle();
  void later(void (WindowDesktop::*what)());
  void open(ScreenWindow& window);
  platform::Settings& settings();
  const platform::Settings& settings() const { return owner_.settings == nullptr ? own_ : *owner_.settings; }
  void remember(const ScreenWindow& window);
  void writeNotes(const ui::Findings& findings);
  void noteAnswer(const ui::Question& question, std::size_t answer);
  void rememberFolding(FindingsPane& pane);
  void restoreColumns(ScreenWindow& window);
  QSize comfortable(const ScreenWindow& window, const QSize& room) const;

  Opening opening_;
  DesktopOwner owner_;
  std::vector<std::unique_ptr<ScreenWindow>> windows_;
  std::vector<std::unique_ptr<ScreenWindow>> leaving_;
  platform::Settings own_;
  std::optional<QRect> last_;        ///< where the last window stood, with its frame
  std::vector<ui::WorkNote> notes_;  ///< those that wait for the next look at the screen
  std::exception_ptr error_;
  bool busy_ = false;
  bool refreshWaits_ = false;
  bool hourglass_ = false;
  QObject turns_;  ///< takes the calls that wait for the next turn of the event loop
};

}  // namespace qt
