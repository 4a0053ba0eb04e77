#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>
#include <vector>

#include "qt/binding.h"
#include "qt/findings_pane.h"
#include "qt/grid_view.h"
#include "qt/output_menu.h"
#include "qt/status_line.h"
#include "ui/screen.h"

namespace qt {

/// The window of a screen: its form, with every control tied to the widget of its name.
///
/// The client size is that of the form, without menu bar, status line and what docks along its edges. Sizes
/// of the screen are in twips.
class ScreenWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `setUp` puts the form's widgets into the window. Throws std::logic_error where form and screen do not
  /// fit.
  ScreenWindow(ui::Screen& screen, Host& host, const std::function<void(QMainWindow&)>& setUp);
  ~ScreenWindow() override;

  /// The screen; null once the window has let go of it.
  const ui::Screen* screen() const { return screen_; }
  /// Lets go of the screen and its controls, which may be freed thereafter.
  void letGo();
  /// Shows what has changed.
  void refresh();
  /// Tells the screen of a size that came while an act was under way.
  void catchUpSize();

  /// The screen's caption, with which the window's title begins.
  QString caption() const;
  /// From now on the window cannot be made smaller than its form says; where the form is larger than `room`,
  /// in pixels of the display, it scrolls.
  void keepMinimum(const QSize& room);
  /// The tables of the window.
  QList<GridView*> tables() const;

  /// Opens the window with this client size in pixels.
  void open(const QSize& client, bool maximised);
  QSize clientSize() const { return client_->size(); }
  /// The operator gives the window another client size, in twips.
  void resizeClient(float width, float height);

  /// The widget or action that shows `control`; null where it is none of this window.
  QObject* shown(const ui::Control& control) const;
  /// True for a screen of work, with a grid; false for a menu.
  bool hasGrid() const;

  /// What the checks find on the screen as it is now, as the pane shows it.
  const ui::Findings& findings();
  /// Looks the screen through anew and shows what is found.
  void check();
  /// Where the findings stand; null for a menu.
  FindingsPane* findingsPane() const { return pane_; }

 signals:
  /// The screen has been looked through.
  void checked();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setUpTabs();
  void setUpFindings();
  void leadTo(const ui::Finding& finding);
  int heightOfBars() const;
  void focusFirst();
  void tell();
  void nameCells();
  void setClientSize(const QSize& client);
  void clientResized();

  ui::Screen* screen_;
  Host& host_;
  StatusLine& status_;
  QWidget* client_ = nullptr;
  QSize least_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unique_ptr<OutputMenu> output_;
  FindingsPane* pane_ = nullptr;
  QTimer rest_;  ///< runs while the keyboard does not rest yet
  bool settingSize_ = false;
  bool sizeWaits_ = false;
};

}  // namespace qt
