#pragma once

#include <functional>
#include <memory>

#include "db/database.h"
#include "job/context.h"
#include "job/names.h"
#include "shell/start_up.h"
#include "ui/controls.h"
#include "ui/screen.h"

namespace shell {

/// The main menu: five calculations to execute, and the way back to where the program was started from. Its
/// load is the start-up of the program.
class SeikMenu : public ui::Screen {
 public:
  /// Opens the calculation of a button, by the button's position in the menu (0 to 4).
  using Opener = std::function<void(std::size_t calculation)>;

  /// `context` is filled by the load.
  SeikMenu(const CommandLine& commandLine, ui::Desktop& desktop, job::JobContext& context, Opener open);

  ui::Situation situation() const override { return {job::jobName(job_), job::unitNames(job_), {}}; }

  ui::Button Command1{"Command1", this, "実行(&A)"};
  ui::Button Command2{"Command2", this, "実行(&B)"};
  ui::Button Command4{"Command4", this, "実行(&C)"};
  ui::Button Command5{"Command5", this, "実行(&D)"};
  ui::Button Command6{"Command6", this, "実行(&E)"};
  ui::Button Command3{"Command3", this, "戻る(&U)"};

 private:
  void Form_Load() override;
  void Form_Unload() override;

  const CommandLine& commandLine_;
  job::JobContext& job_;
  std::unique_ptr<db::Database> gDb_;
};

}  // namespace shell
