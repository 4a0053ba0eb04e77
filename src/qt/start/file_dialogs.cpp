#include "start/file_dialogs.h"

#include <QFileDialog>

namespace start {

FileDialogs systemFileDialogs() {
  return {
      .open = [](QWidget* parent, const QString& title, const QString& at,
                 const QString& filter) { return QFileDialog::getOpenFileName(parent, title, at, filter); },
      .save = [](QWidget* parent, const QString& title, const QString& at,
                 const QString& filter) { return QFileDialog::getSaveFileName(parent, title, at, filter); },
      .folder = [](QWidget* parent, const QString& title,
                   const QString& at) { return QFileDialog::getExistingDirectory(parent, title, at); }};
}

}  // namespace start
