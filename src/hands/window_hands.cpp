#include "hands/window_hands.h"

#include <QPushButton>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "hands/operator.h"
#include "hands/reading.h"
#include "platform/files.h"
#include "qt/application.h"
#include "qt/convert.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"
#include "script/answers.h"
#include "ui/controls.h"
#include "ui/desktop.h"

namespace hands {
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
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << qt::fromQString(words) << std::endl;
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
WidgetKind& widgetOf(const qt::WindowDesktop& desktop, const ui::Control& control) {
  if (auto* widget = qobject_cast<WidgetKind*>(desktop.shown(control))) return *widget;
  throw std::logic_error("no window shows control " + control.name());
}

class WindowHands : public script::Hands {
 public:
  explicit WindowHands(std::string programName)
      : application_(std::move(programName)), desktop_(qt::Opening::Design, owner()) {
    application_.whenFailed([this](std::exception_ptr error) { keep(error); });
  }

  ui::Desktop& desktop() override { return desktop_; }
  void answerBy(script::Answers& answers) override { answers_ = &answers; }
  void witnessBy(ui::ActWitness& witness) override { witness_ = &witness; }

  void press(ui::Pressable& control) override {
    perform([&] { hands::press(widgetOf<QObject>(desktop_, control)); });
  }
  void choose(ui::ItemControl& control, int index) override {
    perform([&] {
      if (control.kind() == ui::Kind::ListBox)
        hands::choose(widgetOf<qt::ChoiceList>(desktop_, control), index);
      else
        hands::choose(widgetOf<QComboBox>(desktop_, control), index);
    });
  }
  void enter(ui::TextBox& control, std::string_view text) override {
    perform([&] { hands::enter(widgetOf<QLineEdit>(desktop_, control), qt::toQString(text)); });
  }
  void type(ui::TextBox& control, char32_t character) override {
    perform([&] { hands::type(widgetOf<QLineEdit>(desktop_, control), qt::toQString(character)); });
  }
  void click(ui::Grid& grid, int row, int col) override {
    perform([&] { hands::clickCell(widgetOf<qt::GridView>(desktop_, grid), row, col); });
  }
  void pressKey(ui::Grid& grid, char32_t code) override {
    perform([&] { hands::keyInGrid(widgetOf<qt::GridView>(desktop_, grid), code); });
  }
  void select(ui::Grid& grid, const ui::CellPlace& from, const ui::CellPlace& to) override {
    perform([&] { hands::selectCells(viewOf(grid), from, to); });
  }
  std::string copied(ui::Grid& grid) override { return qt::fromQString(viewOf(grid).selectedText()); }
  /// The text does not go over the clipboard, which belongs to whoever sits at the display.
  ui::BlockCount paste(ui::Grid& grid, std::string_view text) override {
    perform([&] { viewOf(grid).paste(qt::toQString(text)); });
    return viewOf(grid).pasted();
  }
  void pressDelete(ui::Grid& grid) override {
    perform([&] { hands::key(viewOf(grid), Qt::Key_Delete); });
  }
  void edit(ui::Grid& grid, const ui::CellPlace& cell, std::string_view text) override {
    perform([&] { hands::editCell(viewOf(grid), cell, qt::toQString(text)); });
  }
  std::string undo(ui::Grid& grid) override { return pressStep(grid, "editUndo"); }
  std::string redo(ui::Grid& grid) override { return pressStep(grid, "editRedo"); }
  std::optional<ui::CellPlace> find(ui::Grid& grid, std::string_view text) override {
    bool found = false;
    perform([&] { found = hands::findText(viewOf(grid), qt::toQString(text)); });
    if (!found) return std::nullopt;
    const script::Reading seen = read(grid);
    return ui::CellPlace{seen.row, seen.col};
  }
  void bringToFront(ui::TabControl& tab, int page) override {
    perform([&] { hands::bringToFront(widgetOf<QTabWidget>(desktop_, tab), page); });
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
    return qt::fromQString(windowOf(screen).caption());
  }
  bool shot(ui::Screen& screen, std::string_view path) override {
    settle();
    windowOf(screen).findings();
    const std::string file = platform::pathText(platform::nativePath(path));
    return windowOf(screen).grab().save(qt::toQString(file), "PNG");
  }
  ui::Findings findings(const ui::Screen& screen) override {
    settle();
    return windowOf(screen).findings();
  }
  std::vector<ui::Message> takeMessages() override { return std::exchange(messages_, {}); }

 private:
  qt::DesktopOwner owner() {
    return {.ask = [this](QMessageBox& box) { answer(box); },
            .safeguards = [this] { return answers_ != nullptr && answers_->asked(); },
            .failed = [this](std::exception_ptr error) { keep(error); },
            .settled = [] {},
            .sweep = [] {},
            .setUpForm = qt::setUpForm,
            .witness = [this] { return witness_; }};
  }

  qt::ScreenWindow& windowOf(const ui::Screen& screen) const {
    if (qt::ScreenWindow* window = desktop_.windowOf(screen)) return *window;
    throw std::logic_error("no window shows screen " + screen.name());
  }

  qt::GridView& viewOf(const ui::Grid& grid) const { return widgetOf<qt::GridView>(desktop_, grid); }

  std::string pressStep(const ui::Grid& grid, const char* item) {
    QString name;
    perform([&] {
      viewOf(grid).setFocus(Qt::OtherFocusReason);
      name = hands::pressNamed(*viewOf(grid).window()->findChild<QAction*>(QLatin1String(item)));
    });
    return qt::fromQString(name);
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

  /// Reads the question as it stands on the desk and presses the button that the script has ready.
  void answerQuestion(QMessageBox& box) {
    ui::Question question{qt::fromQString(box.text()), {}, 0};
    const QList<QAbstractButton*> buttons = box.buttons();
    for (const QAbstractButton* button : buttons) {
      if (button == box.defaultButton()) question.safe = question.buttons.size();
      question.buttons.push_back(qt::fromQString(button->text()));
    }
    hands::press(*buttons[static_cast<qsizetype>(answers_->answer(question))]);
  }

  /// Reads the box as it stands on the desk and presses its OK.
  void answer(QMessageBox& box) {
    box.show();
    if (box.icon() == QMessageBox::Question) return answerQuestion(box);
    messages_.push_back({qt::fromQString(box.windowTitle()), qt::fromQString(box.text()), iconOf(box)});
    hands::press(*box.button(QMessageBox::Ok));
    if (box.isVisible()) throw std::logic_error("message box does not close");
  }

  void keep(const std::exception_ptr& error) {
    if (!error_) error_ = error;
  }

  qt::Application application_;
  std::vector<ui::Message> messages_;
  script::Answers* answers_ = nullptr;
  ui::ActWitness* witness_ = nullptr;
  std::exception_ptr error_;
  qt::WindowDesktop desktop_;
};

}  // namespace

std::unique_ptr<script::Hands> windowHands(int& argc, char** argv) {
  chooseOffscreen();
  qInstallMessageHandler(onlyFailures);
  return std::make_unique<WindowHands>(argc > 0 ? argv[0] : "seikahyou-script");
}

}  // namespace hands
