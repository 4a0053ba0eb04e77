#include "shell/calculations.h"

#include "daen/screen.h"
#include "hend/screen.h"
#include "hksnb/screen.h"
#include "seihyou/screen.h"
#include "tanrosen/screen.h"

namespace shell {
namespace {

template <class Screen>
ScreenMaker maker() {
  return [](const job::JobContext& context, ui::Desktop& desktop) -> std::unique_ptr<ui::Screen> {
    return std::make_unique<Screen>(context, desktop);
  };
}

}  // namespace

const std::array<ScreenMaker, 5>& calculations() {
  static const std::array<ScreenMaker, 5> makers = {maker<seihyou::fSHsei>(), maker<daen::fDHsei>(),
                                                    maker<hend::fHHsei>(), maker<tanrosen::fTHsei>(),
                                                    maker<hksnb::fHHksb>()};
  return makers;
}

}  // namespace shell
