#include "start/program.h"

#include <QStandardPaths>
#include <optional>
#include <utility>

#include "platform/settings.h"
#include "platform/system.h"
#include "qt/application.h"
#include "qt/convert.h"
#include "qt/look.h"
#include "qt/program.h"
#include "start/job_menu.h"
#include "start/start_window.h"

namespace start {
namespace {

Places places() {
  return {platform::settingsFile(), platform::programFolder(),
          qt::fromQString(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))};
}

void dressMenu(QMainWindow& menu, const job::JobContext& context) {
  new JobMenu(menu, context, platform::settingsFile());
}

/// Shows the window until the operator has opened a job or left.
std::optional<shell::CommandLine> chosenJob(qt::Application& application) {
  std::optional<shell::CommandLine> chosen;
  StartWindow window(places());
  application.whenFailed(
      [&window](std::exception_ptr error) { window.say(qt::toQString(qt::describe(error)), true); });
  window.whenOpened([&chosen](shell::CommandLine commandLine) {
    chosen = std::move(commandLine);
    QApplication::exit();
  });
  window.whenLeft([] { QApplication::exit(); });
  window.show();
  QApplication::exec();
  application.whenFailed({});
  return chosen;
}

}  // namespace

int runProgram(std::string name, std::string commandLine) {
  qt::scaleAsTheDisplay();
  qt::Application application(std::move(name));
  if (!commandLine.empty())
    return qt::runSession(application, {std::move(commandLine), platform::programFolder()}, dressMenu);
  qt::wear(qt::lookNamed(platform::Settings(platform::settingsFile()).text("look")));
  while (auto chosen = chosenJob(application)) qt::runSession(application, *chosen, dressMenu);
  return 0;
}

}  // namespace start
