#include "screen_work.h"

#include <new>

#include "daen/screen.h"
#include "hend/screen.h"
#include "hksnb/screen.h"
#include "seihyou/screen.h"
#include "tanrosen/screen.h"
#include "text/error.h"

namespace test {
namespace {

constexpr int benchMarks = 6;

/// Presses a button; what the screen lets pass would end the program with these words.
template <class Control>
void press(Control& control, ui::Desktop& desktop) {
  try {
    control.press();
  } catch (const text::RuntimeError& error) {
    desktop.message({"passed", error.what(), ui::Icon::Critical});
  } catch (const std::bad_alloc&) {
    desktop.message({"passed", "memory", ui::Icon::Critical});
  }
}

std::string cellsOf(const ui::Grid& grid) {
  std::string cells;
  for (int row = 0; row < grid.rows(); ++row)
    for (int col = 0; col < grid.cols(); ++col) cells += grid.text(row, col) + "|";
  return cells;
}

template <class Screen>
void enterMore(Screen&, ui::Desktop&) {}

/// A section of the ellipsoidal correction, from the first bench mark to the last.
void enterMore(daen::fDHsei& screen, ui::Desktop& desktop) {
  if (screen.LstHyousekiNo1.count() < benchMarks) return;  // nothing was opened
  screen.LstHyousekiNo1.choose(0);
  screen.LstHyousekiNo2.choose(benchMarks - 1);
  screen.txtStartIdo.edit("35");
  screen.txtStartFun.edit("30");
  screen.txtEndIdo.edit("35");
  screen.txtEndFun.edit("40");
  press(screen.CmdDaenCal, desktop);
}

template <class Screen>
class WorkedRoute final : public WorkedScreen {
 public:
  WorkedRoute(const job::JobContext& context, ui::Desktop& desktop)
      : desktop_(desktop), screen_(context, desktop) {
    screen_.load();
    if (auto* categories = dynamic_cast<ui::ListBox*>(screen_.find("LstDataKubun"))) categories->choose(0);
    screen_.cmbJIgyoBango1.choose(0);
    screen_.cmbRosenBango1.choose(0);
  }

  void open() override {
    press(screen_.openButton, desktop_);
    enterMore(screen_, desktop_);
  }
  void save() override { press(screen_.saveItem, desktop_); }
  std::string cells() const override { return cellsOf(screen_.Grid1); }

 private:
  ui::Desktop& desktop_;
  Screen screen_;
};

class WorkedBook final : public WorkedScreen {
 public:
  WorkedBook(const job::JobContext& context, ui::Desktop& desktop)
      : desktop_(desktop), screen_(context, desktop) {
    screen_.load();
    screen_.LstRosenNo1.choose(0);
    press(screen_.CmdExeC3, desktop);
  }

  void open() override {
    press(screen_.CmdExeC2, desktop_);
    screen_.txtHksnbNo.edit("1");
  }
  void save() override { press(screen_.CmdExeE2, desktop_); }
  std::string cells() const override { return cellsOf(screen_.Grid1); }

 private:
  ui::Desktop& desktop_;
  hksnb::fHHksb screen_;
};

template <class Worked>
std::unique_ptr<WorkedScreen> chosen(const job::JobContext& context, ui::Desktop& desktop) {
  return std::make_unique<Worked>(context, desktop);
}

}  // namespace

const ui::Message savedMessage{{}, "保存しました", ui::Icon::None};

WorkedJob::WorkedJob() {
  for (int order = 1; order <= benchMarks; ++order)
    observed(order, "R001", "B" + std::to_string(order), "100", "1.5", order == benchMarks ? "-1" : "", "'0'",
             "2");
  place("R001", "20220511", "富士見町");
  for (int order = 1; order <= benchMarks; ++order)
    orthometric(order, "R001", "B" + std::to_string(order), "100", "2", "100.1");
}

void ScreenWork::openAndSave(const job::JobContext& context, ui::Desktop& desktop) const {
  const auto screen = choose(context, desktop);
  screen->open();
  screen->save();
}

const std::vector<ScreenWork>& screenWorks() {
  static const std::vector<ScreenWork> works{
      {"Orthometric", {"KansokuSeikaDataSeihyou"}, chosen<WorkedRoute<seihyou::fSHsei>>},
      {"Ellipsoidal", {"KansokuSeikaDataDaen", "DaenHoseiChiHyouData"}, chosen<WorkedRoute<daen::fDHsei>>},
      {"Variation", {"KansokuSeikaDataHend"}, chosen<WorkedRoute<hend::fHHsei>>},
      {"SingleRoute", {"KansokuSeikaDataTanrosen"}, chosen<WorkedRoute<tanrosen::fTHsei>>},
      {"Book", {"KansokuSeikaDataHKSNB", "KansokuKikan"}, chosen<WorkedBook>}};
  return works;
}

}  // namespace test
