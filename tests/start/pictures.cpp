#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <iostream>

#include "jobs/recent.h"
#include "platform/files.h"
#include "qt/application.h"
#include "qt/offscreen.h"
#include "start/start_window.h"

// start_pictures DIR SAMPLE: takes pictures of the windows in which jobs are opened, made and filled, as the
// manual shows them. SAMPLE: the sample job.

namespace {

void take(QWidget& widget, const std::string& file) {
  QApplication::processEvents();
  if (!widget.grab().save(QString::fromStdString(file))) throw std::runtime_error("cannot write " + file);
}

/// The dialog of that name, which the press of a button opens.
QDialog& dialogBehind(QMainWindow& window, const char* button, const char* name) {
  window.findChild<QPushButton*>(button)->click();
  return *window.findChild<QDialog*>(name);
}

void takeAll(const std::string& folder, const std::string& sample) {
  const std::string settings = folder + "/settings.txt";
  jobs::RecentJobs recent(settings);
  recent.remember({"/home/測量/諏訪/令和八年.sqlite", "SQLite", "1", "2", "2026-11-18 16:40:00"});
  recent.remember({sample, "SQLite", "1", "1", "2026-11-20 09:12:00"});
  start::StartWindow window({settings, folder, folder});
  window.show();
  take(window, folder + "/start.png");
  window.openPath(folder);
  take(window, folder + "/start-message.png");
  QDialog& made = dialogBehind(window, "newJob", "NewJob");
  made.findChild<QLineEdit*>("name")->setText("諏訪 一等水準");
  made.findChild<QLineEdit*>("folder")->setText("/home/測量/諏訪");
  made.findChild<QLineEdit*>("title")->setText("令和八年度 一等水準測量");
  made.findChild<QLineEdit*>("planner")->setText("中部地方測量部");
  take(made, folder + "/new-job.png");
  made.reject();
  platform::removeFile(settings);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 64;
  test::chooseOffscreen();
  qt::Application application("start_pictures");
  try {
    takeAll(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
