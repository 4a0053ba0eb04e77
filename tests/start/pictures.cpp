#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <iostream>

#include "jobs/recent.h"
#include "jobs/safe_copy.h"
#include "open/open.h"
#include "platform/files.h"
#include "qt/application.h"
#include "qt/offscreen.h"
#include "start/intake_dialog.h"
#include "start/restore_dialog.h"
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

/// A block of which one line cannot be taken.
void takeIntake(const std::string& folder, const std::string& sample, const std::string& settings) {
  std::string block = "事業番号\t路線番号\t標石番号\t観測日\t距離(km)\t比高(m)\t標高(m)\t天候\n";
  for (int mark = 1; mark <= 14; ++mark)
    block += "1001\t02A00101\tB" + std::to_string(100 + mark) + "\t2026/4/" + std::to_string(mark) + "\t" +
             (mark == 5 ? "1,9 km" : "1.9" + std::to_string(mark)) + "\t0.12" + std::to_string(mark) + "\t" +
             (mark == 1 ? "759.1234" : "") + "\t晴\n";
  QApplication::clipboard()->setText(QString::fromStdString(block));
  start::IntakeDialog dialog(sample, "1", settings, {}, nullptr);
  dialog.show();
  dialog.paste();
  dialog.findChild<QPushButton*>("nextRefused")->click();
  take(dialog, folder + "/intake.png");
}

/// A job that has lost a table since its copy was taken.
void takeRestore(const std::string& folder, const std::string& sample) {
  const std::string job = folder + "/諏訪.sqlite";
  platform::copyFile(sample, job);
  const std::string copy = jobs::keepCopy(job);
  const auto database = db::openDatabase(job);
  database->execute("DELETE FROM KansokuData WHERE SaveOrder > 3");
  database->close();
  start::RestoreDialog dialog(job, {}, nullptr);
  dialog.show();
  take(dialog, folder + "/restore.png");
  platform::removeFile(copy);
  platform::removeFile(job);
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
  takeIntake(folder, sample, settings);
  takeRestore(folder, sample);
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
