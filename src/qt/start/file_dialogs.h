#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace start {

/// How an operator is asked for a file or folder; "" where none was chosen. `title` stands above the dialog,
/// `at` is the folder or file that it opens at.
struct FileDialogs {
  std::function<QString(QWidget* parent, const QString& title, const QString& at, const QString& filter)>
      open;
  std::function<QString(QWidget* parent, const QString& title, const QString& at, const QString& filter)>
      save;
  std::function<QString(QWidget* parent, const QString& title, const QString& at)> folder;
};

/// The system's own dialogs.
FileDialogs systemFileDialogs();

}  // namespace start
