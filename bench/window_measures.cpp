#include <QApplication>
#include <chrono>
#include <exception>
#include <memory>
#include <string>
#include <thread>

#include "hands/operator.h"
#include "measured_route.h"
#include "qt/application.h"
#include "qt/forms.h"
#include "qt/window_desktop.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/screen.h"

// What the operator waits for in a window with the measuring route. The windows are painted without a
// display.

namespace bench {
namespace {

/// A person sees no delay below that: one frame of a display.
constexpr auto oneFrame = std::chrono::milliseconds(16);

void chooseRoute(seihyou::fSHsei& screen) {
  screen.LstDataKubun.choose(0);
  screen.cmbJIgyoBango1.choose(0);
  screen.cmbRosenBango1.choose(0);
}

/// The orthometric screen on a desk of windows, the route open in it.
class OpenWindow {
 public:
  explicit OpenWindow(const job::JobContext& context) : screen_(context, desk_) {
    screen_.load();
    desk_.show(screen_);
    chooseRoute(screen_);
    open();
  }
  ~OpenWindow() { desk_.hide(screen_); }
  OpenWindow(const OpenWindow&) = delete;
  OpenWindow& operator=(const OpenWindow&) = delete;

  void open() {
    desk_.act([this] { screen_.openButton.press(); });
    paint();
  }
  void key(int key, const QString& text) {
    hands::key(view(), key, text);
    paint();
  }
  void paste(const QString& text) {
    view().paste(text);
    paint();
  }
  ui::Grid& grid() { return screen_.Grid1; }

 private:
  void paint() {
    desk_.refresh();
    QApplication::processEvents();
  }
  qt::GridView& view() { return dynamic_cast<qt::GridView&>(*desk_.shown(screen_.Grid1)); }

  qt::WindowDesktop desk_{qt::Opening::Design,
                          {.ask = [](QMessageBox&) {},
                           .failed = [](std::exception_ptr error) { std::rethrow_exception(error); },
                           .settled = [] {},
                           .sweep = [] {},
                           .setUpForm = qt::setUpForm}};
  seihyou::fSHsei screen_;
};

struct Windows : MeasuredRoute {
  explicit Windows(const Job& job) : MeasuredRoute(job, seihyou::columnCount), bare(context, desktop) {
    bare.load();
    chooseRoute(bare);
    bare.openButton.press();
    for (int i = 0; i < job.benchMarks; ++i)
      corrections += (i == 0 ? "" : "\n") + std::to_string(i % 41 - 20);
    pasted = QString::fromStdString(corrections);
  }

  /// The paste without window and history: the texts and one calculation.
  void fillAndCalculate() {
    ui::Grid& table = bare.Grid1;
    for (int row = 2, i = 0; row < table.rows(); row += 2, ++i)
      table.setText(row, seihyou::colCorrection, std::to_string(i % 41 - 20));
    seihyou::FcCalcSeihyou(table, 1, context.grade());
  }

  void clearCorrections(ui::Grid& table) {
    for (int row = 2; row < table.rows(); row += 2) table.setText(row, seihyou::colCorrection, {});
  }

  seihyou::fSHsei bare;
  qt::Application application{"seikahyou-measure"};
  OpenWindow window{context};
  std::string corrections;
  QString pasted;
};

}  // namespace

std::vector<Measure> windowMeasures(const Job& job) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const auto windows = std::make_shared<Windows>(job);
  const auto clear = [windows] {
    windows->clearCorrections(windows->window.grid());
    windows->clearCorrections(windows->bare.Grid1);
  };
  return {
      {"window: key press to repaint", 1,
       [windows] { windows->window.grid().setCurrent(8000, seihyou::colCorrection); },
       [windows] { windows->window.key(Qt::Key_5, QStringLiteral("5")); },
       [] { std::this_thread::sleep_for(oneFrame); }},
      {"window: open to first paint",
       1.5,
       {},
       [windows] { windows->window.open(); },
       [windows] { windows->bare.openButton.press(); }},
      {"window: paste of a correction a section", 3,
       [windows, clear] {
         clear();
         windows->window.grid().setCurrent(2, seihyou::colCorrection);
       },
       [windows] { windows->window.paste(windows->pasted); }, [windows] { windows->fillAndCalculate(); }},
  };
}

}  // namespace bench
