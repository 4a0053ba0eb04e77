#pragma once

#include <memory>
#include <vector>

#include "job/context.h"
#include "shell/start_up.h"
#include "ui/screen.h"

namespace shell {

/// The program from its start to its end: which screen is open. Exactly one is, the menu or one calculation;
/// a calculation that closes brings back a fresh menu, whose load reads the job anew.
///
/// Errors that no procedure traps pass through start() and through the acts on controls to the caller, who
/// reports them and ends the program.
class Program {
 public:
  Program(CommandLine commandLine, ui::Desktop& desktop);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Shows the menu.
  void start();

  /// The open screen; null before start and when the program has ended.
  ui::Screen* screen() const { return screen_.get(); }

  /// Frees the screens that have been unloaded. Call it between two events, never within one.
  void sweep() { leaving_.clear(); }

  /// What start-up found out.
  const job::JobContext& context() const { return context_; }

 private:
  void showMenu();
  void openCalculation(std::size_t calculation);
  void put(std::unique_ptr<ui::Screen> next);

  CommandLine commandLine_;
  ui::Desktop& desktop_;
  job::JobContext context_;
  std::unique_ptr<ui::Screen> screen_;
  std::vector<std::unique_ptr<ui::Screen>> leaving_;
};

}  // namespace shell
