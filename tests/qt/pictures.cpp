#include <QApplication>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <iostream>

#include "hksnb/screen.h"
#include "job/schema.h"
#include "qt/application.h"
#include "qt/dialogs.h"
#include "qt/forms.h"
#include "qt/look.h"
#include "qt/offscreen.h"
#include "qt/window_desktop.h"
#include "route/selection_screen.h"
#include "shell/calculations.h"
#include "shell/menu.h"

// qt_pictures FOLDER JOB LOOK: takes a picture of every page of every window, with routes of the sample job
// at JOB in them, on the display that the toolkit is told of, in the look "light" or "dark".

namespace {

constexpr int restTime = 300;  // ms after which the findings stand in their list

void choose(ui::Screen& screen, const char* list, const std::string& item) {
  auto& control = dynamic_cast<ui::ItemControl&>(*screen.find(list));
  for (int i = 0; i < control.count(); ++i)
    if (control.items()[static_cast<std::size_t>(i)].starts_with(item)) return control.choose(i);
  throw std::runtime_error(screen.name() + " has no " + item + " in " + list);
}

/// A book of two routes whose corrections are saved.
void makeBook(hksnb::fHHksb& book) {
  for (const char* route : {"1001     ;01F00101", "1001     ;01F00201"}) {
    choose(book, "LstRosenNo1", route);
    book.CmdExeC3.press();
  }
  book.CmdExeC2.press();
}

class Pictures {
 public:
  Pictures(QString folder, const std::string& job) : folder_(std::move(folder)) {
    context_.gDbPath = job;
    context_.gJobId = "1";
    context_.gTokyu = 1;
    job::FcSeiReadIni(context_.tables);
    job::FcSetNumberFormats(context_);
  }

  void takeAll() {
    const shell::CommandLine commandLine;
    shell::SeikMenu menu(commandLine, desktop_, context_, [](std::size_t) {});
    desktop_.show(menu);
    take(*desktop_.windowOf(menu), "menu");
    const char* const routes[] = {"01F00101", "01F00201", "01E00101", "01D00101", ""};
    for (std::size_t i = 0; i < shell::calculations().size(); ++i) {
      const auto screen = shell::calculations()[i](context_, desktop_);
      screen->load();
      desktop_.show(*screen);
      if (i == 0) desktop_.act([&] { fill(*screen, "01F00201"); });
      desktop_.act([&] { fill(*screen, routes[i]); });
      takePages(*screen);
      if (i == 0) takeOthers(*screen);
      desktop_.hide(*screen);
    }
    desktop_.hide(menu);
  }

 private:
  void fill(ui::Screen& screen, const char* route) {
    if (auto* book = dynamic_cast<hksnb::fHHksb*>(&screen)) return makeBook(*book);
    auto& one = dynamic_cast<route::SelectionScreen&>(screen);
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen.find("LstDataKubun"))) categories->choose(0);
    choose(screen, "cmbJIgyoBango1", "1001");
    choose(screen, "cmbRosenBango1", route);
    one.openButton.press();
    for (const char* calculation : {"cmdCalc", "CmdDaenCal"})
      if (auto* button = dynamic_cast<ui::Button*>(screen.find(calculation))) button->press();
    one.saveItem.press();
  }

  void takePages(const ui::Screen& screen) {
    qt::ScreenWindow& window = *desktop_.windowOf(screen);
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      take(window, screen.name() + "-" + std::to_string(page));
    }
    tabs->setCurrentIndex(0);
  }

  void takeOthers(ui::Screen& screen) {
    const test::Dialogs dialogs(*desktop_.windowOf(screen), screen, desktop_);
    for (std::size_t i = 0; i < dialogs.kinds().size(); ++i) {
      const auto window = dialogs.kinds()[i].make();
      window->show();
      take(*window, "other-" + std::to_string(i));
    }
  }

  void take(QWidget& window, const std::string& name) {
    QTest::qWait(restTime);
    const QString file = folder_ + u'/' + QString::fromStdString(name) + QStringLiteral(".png");
    if (!window.grab().save(file)) throw std::runtime_error("cannot write " + file.toStdString());
  }

  QString folder_;
  job::JobContext context_;
  qt::WindowDesktop desktop_{qt::Opening::Comfortable,
                             {.ask = [](QMessageBox& box) { std::cout << box.text().toStdString() << '\n'; },
                              .failed = [](std::exception_ptr error) { std::rethrow_exception(error); },
                              .settled = [] {},
                              .sweep = [] {},
                              .setUpForm = qt::setUpForm}};
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 64;
  test::chooseOffscreen();
  qt::Application application("qt_pictures");
  qt::wear(qt::lookNamed(argv[3]));
  try {
    Pictures(QString::fromUtf8(argv[1]), argv[2]).takeAll();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
