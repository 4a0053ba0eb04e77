#include "shell/program.h"

#include <utility>

#include "shell/calculations.h"
#include "shell/menu.h"

namespace shell {

Program::Program(CommandLine commandLine, ui::Desktop& desktop)
    : commandLine_(std::move(commandLine)), desktop_(desktop) {}

Program::~Program() = default;

void Program::start() { showMenu(); }

void Program::showMenu() {
  auto menu = std::make_unique<SeikMenu>(commandLine_, desktop_, context_,
                                         [this](std::size_t calculation) { openCalculation(calculation); });
  menu->load();
  menu->whenUnloaded([this](ui::Screen& gone) {
    desktop_.hide(gone);
    leaving_.push_back(std::exchange(screen_, nullptr));
  });
  put(std::move(menu));
}

/// The calculation's load runs while the menu is still loaded; then the menu goes.
void Program::openCalculation(std::size_t calculation) {
  auto next = calculations()[calculation](context_, desktop_);
  next->load();
  next->whenUnloaded([this](ui::Screen& gone) {
    desktop_.hide(gone);
    leaving_.push_back(std::exchange(screen_, nullptr));
    showMenu();
  });
  screen_->unload();
  put(std::move(next));
}

void Program::put(std::unique_ptr<ui::Screen> next) {
  screen_ = std::move(next);
  desktop_.show(*screen_);
}

}  // namespace shell
