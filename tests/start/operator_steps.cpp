#include "start/operator_steps.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <stdexcept>

#include "qt/offscreen.h"
#include "start/program.h"
#include "support/temporary_folder.h"

namespace test {
namespace {

/// What cannot go on ends: the program must not wait for an operator who has lost his way.
void giveUp(const std::string& words) {
  seen.push_back(std::to_string(steps.size()) + " steps before the end: " + words);
  steps.clear();
  QApplication::exit(99);
}

/// The step is an event of its own: while it waits for a message box, the clock goes on.
void nextStep() {
  if (steps.empty()) return;
  const auto step = steps.front();
  steps.pop_front();
  QTimer::singleShot(0, [step] {
    try {
      step();
    } catch (const std::exception& error) {
      giveUp(error.what());
    }
  });
}

/// Every application that comes into being gets the operator.
void seatOperator() {
  auto* clock = new QTimer(QCoreApplication::instance());
  QObject::connect(clock, &QTimer::timeout, nextStep);
  clock->start(20);
}
Q_COREAPP_STARTUP_FUNCTION(seatOperator)

}  // namespace

std::deque<std::function<void()>> steps;
std::vector<std::string> seen;

QMainWindow& openWindow() {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr)
      return *qobject_cast<QMainWindow*>(window);
  throw std::logic_error("no window is open");
}

void look() { seen.push_back(openWindow().windowTitle().toStdString()); }

std::function<void()> push(const char* name) {
  return [name] { openWindow().findChild<QPushButton*>(name)->click(); };
}

void answer() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) throw std::logic_error("no message box is open");
  seen.push_back((box->windowTitle() + "|" + box->text()).toStdString());
  box->button(QMessageBox::Ok)->click();
}

int runProgram(const std::string& commandLine) {
  chooseOffscreen();
  const TemporaryFolder own;  // nothing of whoever runs the tests is read or written
  qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(own.path()));
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(own.path()));
  qputenv("LOCALAPPDATA", QByteArray::fromStdString(own.path()));
  qputenv("APPDATA", QByteArray::fromStdString(own.path()));
  seen.clear();
  return start::runProgram("seikahyou", commandLine);
}

}  // namespace test
