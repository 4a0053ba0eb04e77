#include "qt/window_hands.h"

#include <QPushButton>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "platform/files.h"
#include "qt/application.h"
#include "qt/convert.h"
#include "qt/forms.h"
#include "qt/operator.h"
#include "qt/reading.h"
#include "qt/window_desktop.h"

namespace qt {
namespace {

/// The toolkit's platform without a display, where there is none.
void chooseOffscreen() {
#ifdef Q_OS_LINUX
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
      qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

/// The error stream belongs to the script; of the toolkit's words only those about its own failure go there.
void onlyFailures(QtMsgType type, const QMessageLogContext&, const QString& words) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << fromQString(words) << std::endl;
}

ui::Icon iconOf(const QMessageBox& box) {
  switch (box.icon()) {
    case QMessageBox::Information:
      return ui::Icon::Information;
    case QMessageBox::Critical:
      return ui::Icon::Critical;
    default:
      return ui::Icon::None;
  }
}

template <class WidgetKind>
WidgetKind& widgetOf(const WindowDesktop& desktop, const ui::Control& control) {
  if (auto* widget = qobject_cast<WidgetKind*>(desktop.shown(control))) return *widget;
  throw std::logic_error("no window shows control " + control.name());
}

class WindowHands : public script::Hands {
 public:
  explicit WindowHands(std::string programName)
      : application_(std::move(programName)), desktop_(Opening::Design, owner()) {
    application_.whenFailed([this](std::exception_ptr error) { keep(error); });
  }

  ui::Desktop& desktop() override { return desktop_; }

  void press(ui::Pressable& control) override {
    perform([&] { operate::press(widgetOf<QObject>(desktop_, control)); });
  }
  void choose(ui::ItemControl& control, int index) override {
    perform([&] {
      if (control.kind() == ui::Kind::ListBox)
        operate::choose(widgetOf<ChoiceList>(desktop_, control), index);
      else
        operate::choose(widgetOf<QComboBox>(desktop_, control), index);
    });
  }
  void enter(ui::TextBox& control, std::string_view text) override {
    perform([&] { operate::enter(widgetOf<QLineEdit>(desktop_, control), toQString(text)); });
  }
  void type(ui::TextBox& control, char32_t character) override {
    perform([&] { operate::type(widgetOf<QLineEdit>(desktop_, control), toQString(character)); });
  }
  void click(ui::Grid& grid, int row, int col) override {
    perform([&] { operate::clickCell(widgetOf<GridView>(desktop_, grid), row, col); });
  }
  void pressKey(ui::Grid& grid, char32_t code) override {
    perform([&] { operate::keyInGrid(widgetOf<GridView>(desktop_, grid), code); });
  }
  void bringToFront(ui::TabControl& tab, int page) override {
    perform([&] { operate::bringToFront(widgetOf<QTabWidget>(desktop_, tab), page); });
  }
  void resize(ui::Screen& screen, int width, int height) override {
    perform([&] { windowOf(screen).resizeClient(static_cast<float>(width), static_cast<float>(height)); });
  }
  void close(ui::Screen& screen) override {
    perform([&] { windowOf(screen).close(); });
  }

  script::Reading read(const ui::Control& control) override {
    settle();
    return readShown(control, widgetOf<QObject>(desktop_, control));
  }
  script::Size size(const ui::Control& control) override {
    settle();
    return sizeShown(control, widgetOf<QObject>(desktop_, control));
  }
  std::string caption(const ui::Screen& screen) override {
    return fromQString(windowOf(screen).windowTitle());
  }
  bool shot(ui::Screen& screen, std::string_view path) override {
    settle();
    const std::string file = platform::pathText(platform::nativePath(path));
    return windowOf(screen).grab().save(toQString(file), "PNG");
  }
  std::vector<ui::Message> takeMessages() override { return std::exchange(messages_, {}); }

 private:
  DesktopOwner owner() {
    return {.ask = [this](QMessageBox& box) { answer(box); },
            .failed = [this](std::exception_ptr error) { keep(error); },
            .settled = [] {},
            .sweep = [] {},
            .setUpForm = setUpForm};
  }

  ScreenWindow& windowOf(const ui::Screen& screen) const {
    if (ScreenWindow* window = desktop_.windowOf(screen)) return *window;
    throw std::logic_error("no window shows screen " + screen.name());
  }

  template <class Act>
  void perform(Act act) {
    settle();
    act();
    settle();
    if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
  }

  /// Lets the windows come to rest.
  void settle() {
    QApplication::processEvents();
    desktop_.refresh();
    QApplication::processEvents();
    desktop_.sweep();
  }

  /// Reads the box as it stands on the desk and presses its OK.
  void answer(QMessageBox& box) {
    box.show();
    messages_.push_back({fromQString(box.windowTitle()), fromQString(box.text()), iconOf(box)});
    operate::press(*box.button(QMessageBox::Ok));
    if (box.isVisible()) throw std::logic_error("message box does not close");
  }

  void keep(const std::exception_ptr& error) {
    if (!error_) error_ = error;
  }

  Application application_;
  std::vector<ui::Message> messages_;
  std::exception_ptr error_;
  WindowDesktop desktop_;
};

}  // namespace

std::unique_ptr<script::Hands> windowHands(int& argc, char** argv) {
  chooseOffscreen();
  qInstallMessageHandler(onlyFailures);
  return std::make_unique<WindowHands>(argc > 0 ? argv[0] : "seikahyou-script");
}

}  // namespace qt
