#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>

#include "jobs/examine.h"
#include "jobs/recent.h"
#include "shell/start_up.h"
#include "start/file_dialogs.h"

namespace Ui {
class StartWindow;
}

namespace start {

/// Where the window finds what it needs; path texts.
struct Places {
  std::string settingsFile;   ///< in which recent jobs are remembered
  std::string programFolder;  ///< where JobSel.txt and the picture tool lie
  std::string documents;      ///< the operator's own folder for documents
};

/// The window ジョブを開く: recent jobs, a job's file, a new job, the sample job, a file that is dropped on
/// it. What keeps a job from being opened is said in the window, which stays.
class StartWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit StartWindow(Places places, FileDialogs dialogs = systemFileDialogs());
  ~StartWindow() override;

  /// Takes what the program is to be started with, when a job was opened.
  void whenOpened(std::function<void(shell::CommandLine)> opened) { opened_ = std::move(opened); }
  /// Is told that the operator leaves without a job.
  void whenLeft(std::function<void()> left) { left_ = std::move(left); }

  /// Opens the job at `path`; where that cannot be, the window says why.
  void openPath(const std::string& path);
  /// Says something in the window.
  void say(const QString& words, bool wrong);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void setUpKeys();
  void showRecent(const std::string& current = {});
  void addRecent(const jobs::RecentJob& job);
  std::string selectedPath() const;
  void showChoices();
  void forgetSelected();
  void chooseFile();
  void openNewJob();
  void openSample();
  void openEntries(const std::string& path, const jobs::Examination& found);
  void begin(const std::string& path, const std::string& engine, const jobs::JobEntry* entry,
             bool forThisRun);
  bool hasSelectionFile() const;

  std::unique_ptr<Ui::StartWindow> form_;
  Places places_;
  FileDialogs dialogs_;
  jobs::RecentJobs recent_;
  std::function<void(shell::CommandLine)> opened_;
  std::function<void()> left_;
};

}  // namespace start
