#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSpinBox>

#include "picture/picture.h"
#include "picture/picture_view.h"

namespace picture {

/// The window of the picture-paste tool: a picture from the clipboard or a file, cut out and scaled, that
/// "貼付" writes where the calculations fetch it.
class PictureWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `target`: the file that "貼付" writes. Begins with the picture on the clipboard, if there is one.
  explicit PictureWindow(QString target);

  const Picture& picture() const { return picture_; }

  /// Opens a picture file; the operator is told where that fails.
  void openFile(const QString& path);

 signals:
  /// The operator is told that something went wrong.
  void complained(const QString& words);

 private:
  QWidget* makeControls();
  QPushButton* makeButton(const char* name, const QString& caption, void (PictureWindow::*what)());
  void addShortcuts();
  void chooseFile();
  void takeClipboard();
  void cut();
  void undo();
  void paste();
  void change(const QString& wrong);
  void showPicture();
  void showChoices();

  QString target_;
  Picture picture_;
  PictureView* view_;
  QLabel* size_;
  QSpinBox* percent_;
  QPushButton* cut_ = nullptr;
  QPushButton* undo_ = nullptr;
  QPushButton* paste_ = nullptr;
};

/// Where the picture-paste tool leaves its picture: "temp.bmp" in the folder in which the tool itself stands,
/// also where it stands there as a link. `argv0`: the name it was started by.
QString pictureTarget(const QString& argv0);

}  // namespace picture
