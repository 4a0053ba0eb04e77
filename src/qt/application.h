#pragma once

#include <QApplication>
#include <exception>
#include <functional>
#include <string>

namespace qt {

/// The program's name as the toolkit wants it: the only argument that it gets to see.
struct ProgramName {
  std::string name;
  int argc = 1;
  char* argv[2] = {name.data(), nullptr};
};

/// The toolkit's application: fonts for Japanese text, and a last net under the event loop.
class Application : private ProgramName, public QApplication {
 public:
  /// The toolkit takes nothing from the command line.
  explicit Application(std::string programName);

  /// Takes an error that would otherwise leave an event handler.
  void whenFailed(std::function<void(std::exception_ptr)> failed) { failed_ = std::move(failed); }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void setUpFont();
  void setUpTranslation();
  void setUpIcon();

  std::function<void(std::exception_ptr)> failed_;
};

/// The description of an error for the operator.
std::string describe(const std::exception_ptr& error);

}  // namespace qt
