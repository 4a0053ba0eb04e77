#include "shell/menu.h"

#include <utility>

namespace shell {
namespace {

constexpr float designWidth = 6000;   // twips
constexpr float designHeight = 5400;  // twips

}  // namespace

SeikMenu::SeikMenu(const CommandLine& commandLine, ui::Desktop& desktop, job::JobContext& context,
                   Opener open)
    : Screen("SeikMenu", "成果表データ作成メニュー", desktop, designWidth, designHeight),
      commandLine_(commandLine),
      job_(context) {
  const std::array<ui::Button*, 5> buttons = {&Command1, &Command2, &Command4, &Command5, &Command6};
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    buttons[i]->onClick.handle([open, i] { open(i); });
  }
  Command3.onClick.handle([this] { unload(); });
}

void SeikMenu::Form_Load() { gDb_ = startUp(commandLine_, desktop(), job_); }

void SeikMenu::Form_Unload() { gDb_.reset(); }

}  // namespace shell
