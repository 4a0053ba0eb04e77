#include "script/runner.h"

#include <exception>
#include <new>
#include <string>
#include <variant>
#include <vector>

#include "report/exporting.h"
#include "report/source.h"
#include "script/export_step.h"
#include "script/line_error.h"
#include "script/printer.h"
#include "text/error.h"
#include "text/padding.h"

namespace script {
namespace {

std::string inBrackets(std::string_view name) { return "「" + std::string(name) + "」"; }

std::string cellName(const ui::CellPlace& cell) {
  return std::to_string(cell.row) + "," + std::to_string(cell.col);
}

std::string_view kindName(ui::Kind kind) {
  switch (kind) {
    case ui::Kind::Label:
      return "ラベル";
    case ui::Kind::Button:
      return "ボタン";
    case ui::Kind::OptionButton:
      return "オプションボタン";
    case ui::Kind::TextBox:
      return "テキストボックス";
    case ui::Kind::ListBox:
      return "リストボックス";
    case ui::Kind::ComboBox:
      return "コンボボックス";
    case ui::Kind::TabControl:
      return "タブ";
    case ui::Kind::Frame:
      return "フレーム";
    case ui::Kind::Menu:
      return "メニュー";
    case ui::Kind::MenuItem:
      return "メニュー項目";
    case ui::Kind::Grid:
      break;
  }
  return "表";
}

/// True for a command that does nothing to the program.
bool looks(const Command& command) {
  return std::holds_alternative<Show>(command) || std::holds_alternative<SizeOf>(command) ||
         std::holds_alternative<WhichScreen>(command) || std::holds_alternative<Messages>(command) ||
         std::holds_alternative<Checks>(command) || std::holds_alternative<Copy>(command) ||
         std::holds_alternative<Export>(command) || std::holds_alternative<Shot>(command);
}

int itemWithText(const ui::ItemControl& control, std::string_view wanted) {
  for (int i = 0; i < control.count(); ++i)
    if (text::trimmedRight(control.items()[static_cast<std::size_t>(i)]) == text::trimmedRight(wanted))
      return i;
  throw LineError(inBrackets(control.name()) + "に項目" + inBrackets(wanted) + "はありません。");
}

/// Lines end with a line feed, or with a carriage return before it.
std::string_view withoutLineEnd(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

Ending Runner::run(std::istream& script) {
  try {
    subject_.start();
    runLines(script);
    return Ending::Done;
  } catch (const LineError& error) {
    errors_ << line_ << ": " << error.what() << std::endl;
    return Ending::Line;
  } catch (const std::bad_alloc&) {
    printUnhandled(transcript_, "メモリが不足しています。");
  } catch (const std::exception& error) {
    printUnhandled(transcript_, error.what());
  }
  transcript_.flush();
  return Ending::Unhandled;
}

void Runner::runLines(std::istream& script) {
  constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
  std::string line;
  for (line_ = 1; std::getline(script, line); ++line_) {
    std::string_view words = withoutLineEnd(line);
    if (line_ == 1 && words.starts_with(utf8Mark)) words.remove_prefix(utf8Mark.size());
    runLine(words);
  }
  if (script.bad()) throw LineError("操作手順を終わりまで読めません。");
}

void Runner::runLine(std::string_view line) {
  const auto command = parseLine(line);
  if (!command) return;
  std::visit([this](const auto& what) { perform(what); }, *command);
  if (recorder_ != nullptr && looks(*command))
    recorder_->looked(line, std::holds_alternative<Copy>(*command));
  subject_.sweep();
  if (const auto failure = answers_.takeFailure()) throw LineError(*failure);
  transcript_.flush();
  if (!transcript_) throw LineError("記録を書き出せません。");
}

void Runner::perform(const Click& click) { hands_.press(ready<ui::Pressable>(click.name)); }

void Runner::perform(const SelectText& select) {
  auto& list = ready<ui::ItemControl>(select.name);
  hands_.choose(list, itemWithText(list, select.item));
}

void Runner::perform(const SelectAt& select) {
  auto& list = ready<ui::ItemControl>(select.name);
  if (select.index >= list.count())
    throw LineError(inBrackets(select.name) + "の項目は " + std::to_string(list.count()) + " 個です。");
  hands_.choose(list, select.index);
}

void Runner::perform(const Enter& enter) { hands_.enter(ready<ui::TextBox>(enter.name), enter.text); }

void Runner::perform(const Type& type) {
  auto& box = ready<ui::TextBox>(type.name);
  for (const char32_t character : type.characters) hands_.type(box, character);
}

void Runner::perform(const Cell& cell) {
  hands_.click(readyWith(cell.grid, {cell.row, cell.col}), cell.row, cell.col);
}

void Runner::perform(const Keys& keys) {
  auto& grid = ready<ui::Grid>(keys.grid);
  for (const char32_t code : keys.codes) hands_.pressKey(grid, code);
}

void Runner::perform(const Paste& paste) {
  printPasted(transcript_, hands_.paste(ready<ui::Grid>(paste.grid), paste.text));
}

void Runner::perform(const Copy& copy) {
  ui::Grid& grid = readyWith(copy.grid, copy.from);
  select(grid, copy.from, copy.to);
  printCopied(transcript_, hands_.copied(grid));
}

void Runner::perform(const Delete& act) {
  ui::Grid& grid = readyWith(act.grid, act.from);
  select(grid, act.from, act.to);
  hands_.pressDelete(grid);
}

void Runner::perform(const Edit& edit) {
  ui::Grid& grid = readyWith(edit.grid, edit.cell);
  if (grid.cellUse(edit.cell.row, edit.cell.col) == ui::CellUse::Shown)
    throw LineError(inBrackets(edit.grid) + "のセル " + cellName(edit.cell) + " には入力できません。");
  hands_.edit(grid, edit.cell, edit.text);
}

void Runner::perform(const Undo& undo) {
  printMoved(transcript_, "undo", hands_.undo(ready<ui::Grid>(undo.grid)));
}

void Runner::perform(const Redo& redo) {
  printMoved(transcript_, "redo", hands_.redo(ready<ui::Grid>(redo.grid)));
}

void Runner::perform(const Find& find) {
  printFound(transcript_, hands_.find(ready<ui::Grid>(find.grid), find.text));
}

void Runner::perform(const Page& page) {
  auto& tab = ready<ui::TabControl>(page.tab);
  if (page.page >= tab.pages())
    throw LineError(inBrackets(page.tab) + "のページは " + std::to_string(tab.pages()) + " 枚です。");
  hands_.bringToFront(tab, page.page);
}

void Runner::perform(const Resize& resize) { hands_.resize(openScreen(), resize.width, resize.height); }

void Runner::perform(const Close&) { hands_.close(openScreen()); }

void Runner::perform(const Show& show) {
  printReading(transcript_, show.name, hands_.read(control(show.name)));
}

void Runner::perform(const SizeOf& size) {
  printSize(transcript_, size.name, hands_.size(control(size.name)));
}

void Runner::perform(const WhichScreen&) {
  if (const ui::Screen* screen = subject_.screen())
    printScreen(transcript_, screen->name(), hands_.caption(*screen));
  else
    printNoScreen(transcript_);
}

void Runner::perform(const Messages&) { printMessages(transcript_, hands_.takeMessages()); }

void Runner::perform(const Shot& shot) {
  if (!hands_.shot(openScreen(), shot.path))
    throw LineError("画面の写しを" + inBrackets(shot.path) + "に書けません。");
}

void Runner::perform(const Checks&) { printFindings(transcript_, hands_.findings(openScreen())); }

void Runner::perform(const Answer& answer) { answers_.prepare(answer.button); }

/// A file that cannot be written is told the operator in a message box, as in the window.
void Runner::perform(const Export& step) {
  const report::Exporting how{.pageWriter = pageWriter_};
  try {
    printExported(transcript_, exported(step, openScreen(), how));
  } catch (const text::RuntimeError& error) {
    hands_.desktop().message({"出力", error.what(), ui::Icon::Critical});
  }
}

ui::Screen& Runner::openScreen() {
  ui::Screen* screen = subject_.screen();
  if (screen == nullptr) throw LineError("プログラムは終わっていて、開いている画面がありません。");
  return *screen;
}

ui::Control& Runner::control(std::string_view name) {
  const ui::Screen& screen = openScreen();
  ui::Control* found = screen.find(name);
  if (found == nullptr)
    throw LineError("画面" + inBrackets(screen.name()) + "に" + inBrackets(name) + "はありません。");
  return *found;
}

template <class Kind>
Kind& Runner::ofKind(std::string_view name) {
  ui::Control& found = control(name);
  if (auto* fitting = dynamic_cast<Kind*>(&found)) return *fitting;
  throw LineError(inBrackets(name) + "は" + std::string(kindName(found.kind())) +
                  "なので、この操作はできません。");
}

/// The control in the state in which the operator can act on it: of the right kind, enabled, in front.
template <class Kind>
Kind& Runner::ready(std::string_view name) {
  Kind& found = ofKind<Kind>(name);
  if (!found.enabled()) throw LineError(inBrackets(name) + "は今は使えません。");
  bringForward(found);
  return found;
}

/// The grid, where `cell` is one of its cells that can be clicked.
ui::Grid& Runner::readyWith(const std::string& name, const ui::CellPlace& cell) {
  auto& grid = ready<ui::Grid>(name);
  if (!grid.clickable(cell.row, cell.col))
    throw LineError(inBrackets(name) + "に、クリックできるセル " + cellName(cell) + " はありません。");
  return grid;
}

void Runner::select(ui::Grid& grid, const ui::CellPlace& from, const ui::CellPlace& to) {
  readyWith(grid.name(), to);
  hands_.select(grid, from, to);
}

/// Brings the page that a control stands on to the front, the outermost first.
void Runner::bringForward(const ui::Control& control) {
  ui::TabControl* tab = control.tab();
  if (tab == nullptr) return;
  bringForward(*tab);
  if (tab->current() == control.page()) return;
  if (!tab->enabled()) throw LineError(inBrackets(tab->name()) + "は今は使えません。");
  hands_.bringToFront(*tab, control.page());
}

}  // namespace script
