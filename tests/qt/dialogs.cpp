#include "qt/dialogs.h"

#include <QApplication>
#include <QClipboard>

#include "qt/diagram_window.h"
#include "qt/limits_dialog.h"
#include "qt/manual_window.h"
#include "qt/saved_dialog.h"
#include "start/choose_job_dialog.h"
#include "start/intake_dialog.h"
#include "start/new_job_dialog.h"
#include "start/restore_dialog.h"
#include "start/start_window.h"

namespace test {
namespace {

/// Saved routes as long as they get.
class ManyResults : public report::SavedResults {
 public:
  std::vector<std::string> savedRoutes() const override {
    return std::vector<std::string>(30, "01A00101 諏訪湖畔から塩尻峠まで");
  }
  report::Document savedDocument(const std::vector<std::size_t>&, const report::Progress&) const override {
    return {};
  }
  bool hasResultList() const override { return true; }
  std::vector<std::string> resultProjects() const override { return {"1001", "1002"}; }
  std::string chosenProject() const override { return "1001"; }
  report::Document resultList(const std::string&, const report::Progress&) const override { return {}; }
};

const ManyResults results;

std::unique_ptr<QWidget> diagram(QMainWindow& parent, ui::Screen& screen, qt::Host& host) {
  auto window =
      std::make_unique<qt::DiagramWindow>(parent, screen, dynamic_cast<report::Source&>(screen), host);
  window->showAnew();
  return window;
}

/// A block of which one line cannot be taken.
std::unique_ptr<QWidget> intake(const std::string& job, const std::string& settings) {
  QApplication::clipboard()->setText(
      QStringLiteral("事業番号\t路線番号\t標石番号\t観測日\t距離(km)\t比高(m)\n1001\t01A00101\tA1\t2026/4/"
                     "1\t1,9 km\t0.123\n"));
  auto dialog = std::make_unique<start::IntakeDialog>(job, "1", settings, start::FileDialogs{}, nullptr);
  QMetaObject::invokeMethod(dialog->findChild<QObject*>(QStringLiteral("paste")), "click");
  return dialog;
}

}  // namespace

Dialogs::Dialogs(QMainWindow& parent, ui::Screen& screen, qt::Host& host) {
  job_.sql({"INSERT INTO JobData VALUES ('1', '試験', 2, 1)"});
  addThoseOfAScreen(parent, screen, host);
  addThoseOfJobs();
}

void Dialogs::addThoseOfAScreen(QMainWindow& parent, ui::Screen& screen, qt::Host& host) {
  using What = qt::SavedDialog::What;
  const auto saved = [&](What what) {
    return [&, what] {
      return std::make_unique<qt::SavedDialog>(parent, results, what, host, screen.desktop());
    };
  };
  kinds_.push_back(
      {"許容範囲", [&parent] { return std::make_unique<qt::LimitsDialog>(route::Limits(), &parent); }});
  kinds_.push_back({"図", [&] { return diagram(parent, screen, host); }});
  kinds_.push_back({"保存した路線の出力", saved(What::Routes)});
  kinds_.push_back({"成果一覧", saved(What::List)});
  kinds_.push_back({"説明書", [] { return std::make_unique<qt::ManualWindow>(nullptr); }});
}

void Dialogs::addThoseOfJobs() {
  const std::vector<jobs::JobEntry> entries = {{"1", "令和八年度 諏訪地区 一等水準測量 (復旧)", 1, false},
                                               {"2", "令和八年度 二等水準測量", 2, true}};
  kinds_.push_back({"ジョブを開く", [this] {
                      auto window = std::make_unique<start::StartWindow>(
                          start::Places{folder_.path("settings.txt"), folder_.path(), folder_.path()},
                          start::FileDialogs{});
                      window->openPath(folder_.path("ない.sqlite"));
                      return window;
                    }});
  kinds_.push_back({"新しいジョブ", [this] {
                      return std::make_unique<start::NewJobDialog>(QString::fromStdString(folder_.path()),
                                                                   start::FileDialogs{}, nullptr);
                    }});
  kinds_.push_back(
      {"ジョブの選択", [entries] { return std::make_unique<start::ChooseJobDialog>(entries, nullptr); }});
  kinds_.push_back(
      {"観測成果の取り込み", [this] { return intake(job_.path(), folder_.path("settings.txt")); }});
  kinds_.push_back({"控えから戻す", [this] {
                      return std::make_unique<start::RestoreDialog>(job_.path(), start::FileDialogs{},
                                                                    nullptr);
                    }});
}

}  // namespace test
