#include "qt/program.h"

#include <utility>

#include "job/work_record.h"
#include "platform/append.h"
#include "platform/settings.h"
#include "qt/application.h"
#include "qt/convert.h"
#include "qt/forms.h"
#include "qt/look.h"
#include "qt/window_desktop.h"
#include "shell/program.h"

namespace qt {
namespace {

QString captionOf(const QWidget& window) {
  const auto* screen = qobject_cast<const ScreenWindow*>(&window);
  return screen == nullptr ? window.windowTitle() : screen->caption();
}

/// A box without a title of its own carries that of its window.
void ask(QMessageBox& box) {
  if (box.windowTitle().isEmpty() && box.parentWidget() != nullptr)
    box.setWindowTitle(captionOf(*box.parentWidget()));
  box.exec();
}

/// The program on its desk of windows.
class Session {
 public:
  Session(Application& application, shell::CommandLine commandLine, MenuDresser dressMenu,
          ui::ActWitness* witness)
      : application_(application),
        dressMenu_(std::move(dressMenu)),
        witness_(witness),
        desktop_(Opening::Comfortable, owner()),
        program_(std::move(commandLine), desktop_) {
    application.whenFailed([this](std::exception_ptr error) { fail(error); });
    wear(lookNamed(settings_.text("look")));
  }

  /// The windows let go of the open screen before it is freed.
  ~Session() {
    application_.whenFailed({});
    if (program_.screen() != nullptr) desktop_.hide(*program_.screen());
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  int run() {
    desktop_.act([this] { program_.start(); });
    return program_.screen() == nullptr || status_ != 0 ? status_ : QApplication::exec();
  }

 private:
  DesktopOwner owner() {
    return {
        .ask = ask,
        .safeguards = [this] { return settings_.flag("safeguards", true); },
        .failed = [this](std::exception_ptr error) { fail(error); },
        .settled = [this] { endWithoutScreen(); },
        .sweep = [this] { program_.sweep(); },
        .setUpForm = setUpForm,
        .dress = [this](ScreenWindow& window) { dress(window); },
        .record = [this](const ui::WorkNote& note, const ui::Findings& findings) { record(note, findings); },
        .witness = [this] { return witness_; },
        .settings = &settings_};
  }

  /// 作業記録 stands in the user's own folder, or in the one that the settings name under "record.folder".
  /// One that cannot be written keeps nobody from working.
  void record(const ui::WorkNote& note, const ui::Findings& findings) {
    if (!settings_.flag("record", true)) return;
    const std::string folder = settings_.text("record.folder", platform::userDataFolder());
    if (folder.empty()) return;
    const job::WorkEntry entry{.time = platform::localTime(),
                               .job = note.job,
                               .screen = note.screen,
                               .route = note.open,
                               .what = note.what,
                               .details = note.details,
                               .errors = ui::countFindings(findings, ui::Severity::Error),
                               .warnings = ui::countFindings(findings, ui::Severity::Warning)};
    platform::appendToFile(folder + "/" + std::string(job::workRecordName), job::workHeading(),
                           job::workLine(entry));
  }

  void dress(ScreenWindow& window) {
    if (dressMenu_ && !window.hasGrid()) dressMenu_(window, program_.context());
  }

  void endWithoutScreen() {
    if (program_.screen() == nullptr) QApplication::exit(status_);
  }

  /// Nothing goes on after such an error: what the screen holds may be half done.
  void fail(const std::exception_ptr& error) {
    if (std::exchange(status_, 1) != 0) return;
    QMessageBox box(QMessageBox::Critical, QStringLiteral("エラー"),
                    toQString(describe(error)) + QStringLiteral("\n\nプログラムを終了します。"),
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
    QApplication::exit(status_);
  }

  Application& application_;
  MenuDresser dressMenu_;
  ui::ActWitness* witness_;
  platform::Settings settings_{platform::settingsFile()};
  int status_ = 0;
  WindowDesktop desktop_;
  shell::Program program_;
};

}  // namespace

void scaleAsTheDisplay() {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

int runSession(Application& application, shell::CommandLine commandLine, MenuDresser dressMenu,
               ui::ActWitness* witness) {
  return Session(application, std::move(commandLine), std::move(dressMenu), witness).run();
}

}  // namespace qt
