#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/desktop.h"
#include "ui/finding.h"
#include "ui/history.h"
#include "ui/situation.h"

namespace ui {

class Grid;
struct CellPlace;

/// A screen: its caption, its controls by name, and its life from load to unload.
///
/// A screen derives from it with its controls as members (each registers itself) and its event handlers as
/// member functions of a few lines. Sizes are in twips.
class Screen {
 public:
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  /// The screen's own name, such as "fSHsei".
  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  Desktop& desktop() const { return desktop_; }

  /// What the operator has done to the screen's grids, to be taken back and done again.
  History& history() { return history_; }
  const History& history() const { return history_; }

  /// What a window tells about the work, in its title and along its lower edge.
  virtual Situation situation() const { return {}; }
  /// The unit of a column of one of the screen's grids, "m" or "0.1 mm"; "" for none.
  virtual std::string unit(const Grid& grid, int col) const;
  /// The bench mark or section that a row of one of the screen's grids belongs to; "" for a header.
  virtual std::string rowName(const Grid& grid, int row) const;

  /// The controls in the order in which they were declared.
  const std::vector<Control*>& controls() const { return controls_; }
  /// The control of that name, or null.
  Control* find(std::string_view name) const;

  /// The client size.
  float width() const { return width_; }
  float height() const { return height_; }
  /// The operator gives the window another client size.
  void resize(float width, float height);

  /// Makes the screen ready to be seen: Form_Load, then the layout.
  void load();
  /// Ends the screen, from its own menu or the close box: Form_Unload, then whoever opened it is told. Once
  /// only.
  void unload();
  bool loaded() const { return loaded_; }
  /// The operator wants to leave, by the exit item or the close box: unloads the screen unless it would lose
  /// something that the operator, asked, wants to keep.
  void leave();

  /// What the checks find on the screen as it stands, worst first.
  virtual Findings findings() const { return {}; }

  /// Told when the screen has been unloaded.
  void whenUnloaded(std::function<void(Screen&)> notice) { unloaded_ = std::move(notice); }

 protected:
  /// `width` × `height`: the client size the screen was designed for, which it also opens with.
  Screen(std::string name, std::string caption, Desktop& desktop, float width, float height);

  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}
  /// Notes for the record of the work what was done on this screen ("計算"), with details where there are
  /// any.
  void note(std::string what, std::string details = {}) const;

  /// Asks what has to be asked before the operator leaves; false where he stays.
  virtual bool mayLeave() { return true; }

  /// Ties a handler to an event under the error trap: an error is reported under `procedure`, the control and
  /// the event
  /// ("CmdDataOpen_Click").
  void on(Event& event, std::string procedure, Event::Handler handler);

  /// Ties a handler to the keys of a grid, under the error trap of the grid's key press ("Grid1_KeyPress").
  void onKeys(Grid& grid, std::function<void(char32_t code)> handler);

  /// Ties a handler to the entries of a grid that one act filled, under the same trap: what Enter would have
  /// done in each of them, done once.
  void onBlock(Grid& grid, std::function<void(const std::vector<CellPlace>& cells)> handler);

 private:
  friend class Control;
  void add(Control& control);

  std::string name_;
  std::string caption_;
  Desktop& desktop_;
  float width_;
  float height_;
  bool loaded_ = false;
  History history_;
  std::vector<Control*> controls_;
  std::map<std::string, Control*, std::less<>> byName_;
  std::function<void(Screen&)> unloaded_;
};

}  // namespace ui
