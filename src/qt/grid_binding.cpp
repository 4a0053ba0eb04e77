#include "qt/binding_of.h"
#include "qt/bindings.h"
#include "qt/grid_view.h"

namespace qt {
namespace {

class GridBinding : public BindingOf<ui::Grid, GridView> {
 public:
  GridBinding(ui::Grid& control, GridView& widget, Host& host) : BindingOf(control, widget, host) {
    widget.setGrid(&control, [this](const std::function<void()>& what) { act(what); });
  }

  void untie() override {
    Binding::untie();
    widget_.setGrid(nullptr, {});
  }

  void changed(ui::Control& control) override {
    widget_.gridModel().noteChange();
    Binding::changed(control);
  }

  void cellChanged(int row, int col) override {
    widget_.gridModel().noteCell(row, col);
    Binding::changed(control_);
  }

 private:
  void listen(bool attach) override { control_.observeGrid(attach ? this : nullptr); }

  void show() override {
    showPlace(control_, widget_);
    widget_.showGrid();
  }
};

}  // namespace

std::unique_ptr<Binding> bindGrid(ui::Control& control, QObject& object, Host& host) {
  return bindAs<GridBinding, ui::Grid, GridView>(control, object, host);
}

}  // namespace qt
