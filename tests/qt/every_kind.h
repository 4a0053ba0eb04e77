#pragma once

#include <string>
#include <vector>

#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

class QMainWindow;

/// A screen with a control of every kind, which writes down what happens to it.
class EveryKind : public ui::Screen {
 public:
  explicit EveryKind(ui::Desktop& desktop);

  std::vector<std::string> events;

  ui::TabControl SSTab1{"SSTab1", this, 2};
  ui::Grid Grid1{"Grid1", this};
  ui::Label lblName{"lblName", this, "A & B"};
  ui::Button cmdGo{"cmdGo", this, "実行(&A)"};
  ui::OptionButton optFirst{"opt(0)", this, "一"};
  ui::OptionButton optSecond{"opt(1)", this, "二"};
  ui::TextBox txtNumber{"txtNumber", this};
  ui::ListBox lstKinds{"lstKinds", this};
  ui::ComboBox cmbRoute{"cmbRoute", this};
  ui::Frame fraBox{"fraBox", this, "枠"};
  ui::Menu m0item{"m0item", this, "ファイル(&F)"};
  ui::MenuItem clearItem{"mitem(0)", this, "クリア(&C)"};

 private:
  void Form_Resize() override;
  void Form_Unload() override { events.push_back("unload"); }
};

/// Its form: page 0 of the tab control with the grid, page 1 with the rest.
void setUpEveryKind(QMainWindow& window);
