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

template <class Screen>
void workRoute(const job::JobContext& context, ui::Desktop& desktop, const std::function<void()>& begin) {
  Screen screen(context, desktop);
  screen.load();
  if (auto* categories = dynamic_cast<ui::ListBox*>(screen.find("LstDataKubun"))) categories->choose(0);
  screen.cmbJIgyoBango1.choose(0);
  screen.cmbRosenBango1.choose(0);
  begin();
  press(screen.openButton, desktop);
  press(screen.saveItem, desktop);
}

void workBook(const job::JobContext& context, ui::Desktop& desktop, const std::function<void()>& begin) {
  hksnb::fHHksb screen(context, desktop);
  screen.load();
  screen.LstRosenNo1.choose(0);
  press(screen.CmdExeC3, desktop);
  begin();
  press(screen.CmdExeC2, desktop);
  screen.txtHksnbNo.edit("1");
  press(screen.CmdExeE2, desktop);
}

}  // namespace

const std::vector<ScreenWork>& screenWorks() {
  static const std::vector<ScreenWork> works{
      {"Orthometric", {"KansokuSeikaDataSeihyou"}, workRoute<seihyou::fSHsei>},
      {"Ellipsoidal", {"KansokuSeikaDataDaen"}, workRoute<daen::fDHsei>},
      {"Variation", {"KansokuSeikaDataHend"}, workRoute<hend::fHHsei>},
      {"SingleRoute", {"KansokuSeikaDataTanrosen"}, workRoute<tanrosen::fTHsei>},
      {"Book", {"KansokuSeikaDataHKSNB", "KansokuKikan"}, workBook}};
  return works;
}

}  // namespace test
