#include "route/opening.h"

namespace route {

bool Opening::maySave(ui::Desktop& desktop) const {
  if (!whole_)
    desktop.message(
        {{}, "読込が途中で終わったため保存しません。もう一度読み込んでください。", ui::Icon::None});
  return whole_;
}

}  // namespace route
