#include "route/giving_up.h"

#include "db/reading.h"
#include "text/cancelled.h"
#include "ui/screen_state.h"
#include "ui/work_bar.h"

namespace route {

bool runUnlessGivenUp(ui::Screen& screen, const std::string& words, const std::function<void()>& work,
                      const std::function<void()>& bringBack) {
  const auto bar = screen.desktop().workBar(words);
  if (bar == nullptr) {
    work();
    return true;
  }
  ui::ScreenState before(screen);
  try {
    const db::ReadingWatch watch([&bar] { bar->goOn(); });
    work();
    return true;
  } catch (const text::Cancelled&) {
    before.bringBack();
    bringBack();
    return false;
  }
}

}  // namespace route
