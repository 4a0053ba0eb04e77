#include "ui/screen.h"

#include <cmath>
#include <utility>

#include "ui/act_witness.h"
#include "ui/error_trap.h"
#include "ui/grid.h"

namespace ui {

Screen::Screen(std::string name, std::string caption, Desktop& desktop, float width, float height)
    : name_(std::move(name)),
      caption_(std::move(caption)),
      desktop_(desktop),
      width_(width),
      height_(height) {}

Control* Screen::find(std::string_view name) const {
  const auto found = byName_.find(name);
  return found == byName_.end() ? nullptr : found->second;
}

std::string Screen::unit(const Grid&, int) const { return {}; }

std::string Screen::rowName(const Grid& grid, int row) const { return ui::rowName(grid, row, 0); }

void Screen::resize(float width, float height) {
  const Witnessed seen(&desktop_, [&] {
    return OperatorAct{
        "resize", "", {std::to_string(std::lround(width)), std::to_string(std::lround(height))}};
  });
  width_ = width;
  height_ = height;
  Form_Resize();
}

void Screen::load() {
  loaded_ = true;
  Form_Load();
  Form_Resize();
}

void Screen::unload() {
  if (!std::exchange(loaded_, false)) return;
  Form_Unload();
  if (unloaded_) unloaded_(*this);
}

void Screen::leave() {
  const Witnessed seen(&desktop_, [] { return OperatorAct{"close", ""}; });
  if (loaded_ && mayLeave()) unload();
}

void Screen::on(Event& event, std::string procedure, Event::Handler handler) {
  event.handle([this, procedure = std::move(procedure), handler = std::move(handler)] {
    trapped(&desktop_, procedure, handler);
  });
}

void Screen::onKeys(Grid& grid, std::function<void(char32_t)> handler) {
  grid.onKeyPress = [this, procedure = grid.name() + "_KeyPress", handler = std::move(handler)](
                        char32_t code) { trapped(&desktop_, procedure, [&] { handler(code); }); };
}

void Screen::onBlock(Grid& grid, std::function<void(const std::vector<CellPlace>&)> handler) {
  grid.onBlock = [this, procedure = grid.name() + "_KeyPress",
                  handler = std::move(handler)](const std::vector<CellPlace>& cells) {
    const Hourglass wait(desktop_);
    trapped(&desktop_, procedure, [&] { handler(cells); });
  };
}

void Screen::note(std::string what, std::string details) const {
  const Situation now = situation();
  desktop_.note({now.job, now.open, caption_, std::move(what), std::move(details)});
}

void Screen::add(Control& control) {
  controls_.push_back(&control);
  byName_.emplace(control.name(), &control);
}

}  // namespace ui
