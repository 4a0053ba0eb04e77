#include "qt/grid_desk.h"

#include "ui/grid_helpers.h"

GridDesk::GridDesk() {
  grid_.setRows(13);
  grid_.setCols(5);
  for (int col = 0; col < 5; ++col) {
    grid_.setColWidth(col, col == 2 ? 0 : 900);
    grid_.setText(0, col, "見出" + std::to_string(col));
    for (int row = 1; row < 13; ++row)
      grid_.setText(row, col, std::to_string(row) + "-" + std::to_string(col));
  }
  grid_.setAlign(1, ui::Align::Right);
  grid_.setCellUse([](int, int col) {
    return col == 4 ? ui::CellUse::Text : col == 1 ? ui::CellUse::Number : ui::CellUse::Shown;
  });
  grid_.onKeyPress = [this](char32_t code) {
    keys_ += code;
    ui::FcGridKeyEdit(grid_, code);
  };
  grid_.onClick.handle([this] { ++clicks_; });
  settle();
  view_.setFocus();
}

void GridDesk::key(int code, Qt::KeyboardModifiers held, const QString& text) {
  hands::key(view_, code, text, held);
}

void GridDesk::compose(const QString& preedit, const QString& commit) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  QApplication::sendEvent(&view_, &event);
}

std::string GridDesk::where() const {
  return std::to_string(grid_.row()) + "," + std::to_string(grid_.col()) + " to " +
         std::to_string(grid_.rowSel()) + "," + std::to_string(grid_.colSel());
}
