#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include "script/subject.h"
#include "text/error.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace test {

/// A screen with a control of every kind, whose handlers write down what reached them.
class PracticeScreen : public ui::Screen {
 public:
  explicit PracticeScreen(ui::Desktop& desktop) : Screen("fPractice", "練習 \"1\"", desktop, 3000, 2000) {
    ui::OptionButton::group({&first, &second});
    tab.put(1, {&inner});
    inner.put(1, {&deep});
    tab.put(0, {&Grid1});
    asleep.setEnabled(false);
    sleepingItem.setEnabled(false);
    sleepingTab.put(1, {&behindSleep});
    sleepingTab.setEnabled(false);
    for (const char* item : {"R001    ", "R002", "#1", "R002"}) list.addItem(item);
    for (const char* item : {"東", "西 \"2\""}) combo.addItem(item);
    fillGrid();
    handleEvents();
  }

  /// What the handlers were told, one word after the other.
  std::string seen;

  ui::Label label{"label", this, "ラベル\tの\"文\""};
  ui::Frame frame{"frame", this, "枠"};
  ui::Menu menu{"menu", this, "ファイル(&F)"};
  ui::MenuItem speak{"mitem(0)", this, "話す(&S)"};
  ui::MenuItem quit{"mitem(1)", this, "終了(&X)"};
  ui::MenuItem sleepingItem{"mitem(2)", this, "眠る"};
  ui::Button button{"button", this, "押す"};
  ui::Button asleep{"asleep", this, "押せない"};
  ui::Button fail{"fail", this, "失敗"};
  ui::Button trapped{"trapped", this, "報告"};
  ui::Button asking{"asking", this, "消す"};
  ui::OptionButton first{"optSeika(0)", this, "今回"};
  ui::OptionButton second{"optSeika(1)", this, "前回"};
  ui::TextBox box{"box", this};
  ui::ListBox list{"list", this};
  ui::ComboBox combo{"combo", this};
  ui::TabControl tab{"SSTab1", this, 2};
  ui::TabControl inner{"inner", this, 2};
  ui::Button deep{"deep", this, "奥"};
  ui::TabControl sleepingTab{"sleepingTab", this, 2};
  ui::Button behindSleep{"behindSleep", this, "眠るページ"};
  ui::Grid Grid1{"Grid1", this};

  ui::Findings found;  ///< what the checks of this screen find

  ui::Findings findings() const override { return found; }

 private:
  void fillGrid() {
    Grid1.setRows(3);
    Grid1.setCols(3);
    Grid1.setText(0, 0, "水準点");
    Grid1.setText(1, 0, "a\tb\nc\\d");
    Grid1.setText(2, 1, "\"35.1\"");
    Grid1.setColWidth(2, 0);
    Grid1.setCellUse([](int, int col) { return col == 1 ? ui::CellUse::Text : ui::CellUse::Shown; });
  }

  void handleEvents() {
    button.onClick.handle([this] { seen += "button "; });
    deep.onClick.handle([this] { seen += "deep "; });
    first.onClick.handle([this] { seen += "first "; });
    second.onClick.handle([this] { seen += "second "; });
    box.onChange.handle([this] { seen += "<" + box.text() + "> "; });
    list.onClick.handle([this] { seen += "list" + std::to_string(list.listIndex()) + " "; });
    combo.onClick.handle([this] { seen += "combo" + std::to_string(combo.listIndex()) + " "; });
    Grid1.onClick.handle([this] { seen += "cell "; });
    Grid1.onKeyPress = [this](char32_t code) { seen += std::to_string(static_cast<unsigned>(code)) + " "; };
    speak.onClick.handle([this] {
      desktop().message({"", "保存しました", ui::Icon::None});
      desktop().message({"題", "二行\nある", ui::Icon::Information});
    });
    asking.onClick.handle([this] {
      if (!desktop().safeguards()) return;
      const ui::Question question{"路線「R1」の\n入力を消しますか。", {"消す", "やめる"}, 1};
      seen += "answer" + std::to_string(desktop().ask(question)) + " ";
    });
    quit.onClick.handle([this] { unload(); });
    fail.onClick.handle([] { throw text::RuntimeError(text::ErrorCode::Overflow); });
    on(trapped.onClick, "trapped_Click", [] { throw std::runtime_error("だめ\"です\""); });
  }

  void Form_Resize() override { box.setSize(width() / 3.0F, height() - 0.6F); }
};

/// A program of one screen, which ends with it.
class PracticeProgram : public script::Subject {
 public:
  explicit PracticeProgram(ui::Desktop& desktop) : desktop_(desktop) {}

  int sweeps = 0;          ///< how often it was asked to sweep
  std::string startError;  ///< start() fails with this description where it is not empty

  void start() override {
    if (!startError.empty()) throw std::runtime_error(startError);
    open_ = std::make_unique<PracticeScreen>(desktop_);
    open_->load();
    open_->whenUnloaded([this](ui::Screen&) { left_ = std::move(open_); });
  }
  PracticeScreen* screen() override { return open_.get(); }
  /// The screen stays after its end, so that a test can ask it what it saw.
  PracticeScreen& seenScreen() { return open_ ? *open_ : *left_; }
  void sweep() override { ++sweeps; }

 private:
  ui::Desktop& desktop_;
  std::unique_ptr<PracticeScreen> open_;
  std::unique_ptr<PracticeScreen> left_;
};

}  // namespace test
