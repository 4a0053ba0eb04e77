#include "script/headless.h"

#include <cmath>
#include <utility>

#include "script/answers.h"
#include "text/padding.h"
#include "ui/find.h"

namespace script {
namespace {

/// A desk that nobody looks at.
class HeadlessDesktop : public ui::Desktop {
 public:
  void message(const ui::Message& message) override { messages_.push_back(message); }
  bool safeguards() const override { return answers_ != nullptr && answers_->asked(); }
  std::size_t ask(const ui::Question& question) override {
    const std::size_t answer = answers_->answer(question);
    if (witness_ != nullptr) witness_->answered(question.buttons[answer]);
    return answer;
  }
  ui::ActWitness* witness() override { return witness_; }
  void setMousePointer(ui::Pointer) override {}
  void breathe() override {}
  void show(ui::Screen&) override {}
  void hide(ui::Screen&) override {}

  void answerBy(Answers& answers) { answers_ = &answers; }
  void witnessBy(ui::ActWitness& witness) { witness_ = &witness; }
  std::vector<ui::Message> take() { return std::exchange(messages_, {}); }

 private:
  std::vector<ui::Message> messages_;
  Answers* answers_ = nullptr;
  ui::ActWitness* witness_ = nullptr;
};

void readItems(const ui::ItemControl& control, Reading& reading) {
  reading.items = control.items();
  reading.current = control.listIndex();
}

void readTab(const ui::TabControl& control, Reading& reading) {
  reading.current = control.current();
  reading.pages = control.pages();
}

void readGrid(const ui::Grid& grid, Reading& reading) {
  reading.rows = grid.rows();
  reading.cols = grid.cols();
  reading.row = grid.row();
  reading.col = grid.col();
  reading.rowSel = grid.rowSel();
  reading.colSel = grid.colSel();
  reading.cell = [&grid](int row, int col) { return grid.text(row, col); };
}

class HeadlessHands : public Hands {
 public:
  ui::Desktop& desktop() override { return desktop_; }
  void answerBy(Answers& answers) override { desktop_.answerBy(answers); }
  void witnessBy(ui::ActWitness& witness) override { desktop_.witnessBy(witness); }

  void press(ui::Pressable& control) override { control.press(); }
  void choose(ui::ItemControl& control, int index) override { control.choose(index); }
  void enter(ui::TextBox& control, std::string_view text) override { control.edit(text); }
  void type(ui::TextBox& control, char32_t character) override {
    std::string text = control.text();
    text::appendCharacter(text, character);
    control.edit(text);
  }
  void click(ui::Grid& grid, int row, int col) override { grid.click(row, col); }
  void pressKey(ui::Grid& grid, char32_t code) override { grid.pressKey(code); }
  void select(ui::Grid& grid, const ui::CellPlace& from, const ui::CellPlace& to) override {
    grid.moveTo(from.row, from.col);
    grid.selectTo(to.row, to.col);
  }
  std::string copied(ui::Grid& grid) override { return ui::copiedText(grid); }
  ui::BlockCount paste(ui::Grid& grid, std::string_view text) override { return ui::paste(grid, text); }
  void pressDelete(ui::Grid& grid) override { ui::emptyBlock(grid); }
  void edit(ui::Grid& grid, const ui::CellPlace& cell, std::string_view text) override {
    grid.click(cell.row, cell.col);
    grid.takeEdit(text, true);
  }
  std::string undo(ui::Grid& grid) override { return ui::undo(grid); }
  std::string redo(ui::Grid& grid) override { return ui::redo(grid); }
  std::optional<ui::CellPlace> find(ui::Grid& grid, std::string_view text) override {
    return ui::find(grid, text);
  }
  void bringToFront(ui::TabControl& tab, int page) override { tab.turnTo(page); }
  void resize(ui::Screen& screen, int width, int height) override {
    screen.resize(static_cast<float>(width), static_cast<float>(height));
  }
  void close(ui::Screen& screen) override { screen.leave(); }

  Reading read(const ui::Control& control) override;
  Size size(const ui::Control& control) override {
    const ui::Box& box = control.box();
    return {static_cast<int>(std::lround(box.width)), static_cast<int>(std::lround(box.height))};
  }
  std::string caption(const ui::Screen& screen) override { return screen.caption(); }
  bool shot(ui::Screen&, std::string_view) override { return true; }
  ui::Findings findings(const ui::Screen& screen) override { return screen.findings(); }
  std::vector<ui::Message> takeMessages() override { return desktop_.take(); }

 private:
  HeadlessDesktop desktop_;
};

Reading HeadlessHands::read(const ui::Control& control) {
  Reading reading;
  reading.kind = control.kind();
  if (const auto* words = dynamic_cast<const ui::TextControl*>(&control)) reading.text = words->text();
  if (const auto* option = dynamic_cast<const ui::OptionButton*>(&control)) reading.on = option->on();
  if (const auto* items = dynamic_cast<const ui::ItemControl*>(&control)) readItems(*items, reading);
  if (const auto* tab = dynamic_cast<const ui::TabControl*>(&control)) readTab(*tab, reading);
  if (const auto* grid = dynamic_cast<const ui::Grid*>(&control)) readGrid(*grid, reading);
  return reading;
}

}  // namespace

std::unique_ptr<Hands> headlessHands() { return std::make_unique<HeadlessHands>(); }

}  // namespace script
