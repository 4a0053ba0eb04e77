#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"
#include "ui/history.h"

namespace ui {

/// A control that shows one text.
class TextControl : public Control {
 public:
  /// The text or caption, UTF-8; "&" before a letter marks the key that presses it.
  const std::string& text() const { return text_; }
  virtual void setText(std::string_view text);

 protected:
  TextControl(Kind kind, std::string name, Screen* screen, std::string_view text)
      : Control(kind, std::move(name), screen), text_(text) {}

 private:
  std::string text_;
};

/// A text on the form that the operator cannot change.
class Label : public TextControl {
 public:
  Label(std::string name, Screen* screen, std::string_view text = {})
      : TextControl(Kind::Label, std::move(name), screen, text) {}
};

/// A frame around other controls, with a caption.
class Frame : public TextControl {
 public:
  Frame(std::string name, Screen* screen, std::string_view text = {})
      : TextControl(Kind::Frame, std::move(name), screen, text) {}
};

/// The title of a pull-down menu.
class Menu : public TextControl {
 public:
  Menu(std::string name, Screen* screen, std::string_view text)
      : TextControl(Kind::Menu, std::move(name), screen, text) {}
};

/// Something to press: a button or an item of a menu.
class Pressable : public TextControl {
 public:
  Event onClick;

  /// The operator presses it. Does nothing while it is disabled. What that changes in the screen's grids can
  /// be taken back as one act.
  virtual void press();

  /// What that act is called; a calculation where the screen says nothing else.
  void setActName(std::string_view name) { actName_ = name; }
  const std::string& actName() const { return actName_; }

 protected:
  using TextControl::TextControl;

 private:
  std::string actName_{act::calculation};
};

class Button : public Pressable {
 public:
  Button(std::string name, Screen* screen, std::string_view caption)
      : Pressable(Kind::Button, std::move(name), screen, caption) {}
};

class MenuItem : public Pressable {
 public:
  MenuItem(std::string name, Screen* screen, std::string_view caption)
      : Pressable(Kind::MenuItem, std::move(name), screen, caption) {}
};

/// One of several choices that exclude each other.
class OptionButton : public Pressable {
 public:
  OptionButton(std::string name, Screen* screen, std::string_view caption)
      : Pressable(Kind::OptionButton, std::move(name), screen, caption) {}

  /// Ties option buttons together: turning one on turns the others off.
  static void group(std::initializer_list<OptionButton*> buttons);

  bool on() const { return on_; }
  /// Turns it on (and the others of its group off) or off; no event.
  void setOn(bool on);
  /// The operator chooses it: it is turned on, then onClick.
  void press() override;

 private:
  bool on_ = false;
  std::vector<OptionButton*> others_;
};

/// A line of text that the operator types into.
class TextBox : public TextControl {
 public:
  TextBox(std::string name, Screen* screen) : TextControl(Kind::TextBox, std::move(name), screen, {}) {}

  /// Runs upon every change of the text, the operator's and the program's.
  Event onChange;

  /// Sets the text; onChange where it is another one than before.
  void setText(std::string_view text) override;
  /// The operator has changed the text to this one: one change.
  void edit(std::string_view text);

  /// Says which texts the box is meant for, and what is wrong with any other ("日付ではありません"). Nothing
  /// is refused: a window shows such a text as wrong while it is typed, and that is all.
  void setValid(std::function<bool(std::string_view text)> valid, std::string complaint);
  bool looksValid() const;
  /// What is wrong with the text; "" where it looks valid.
  std::string complaint() const;

 private:
  std::function<bool(std::string_view)> valid_;
  std::string complaint_;
};

/// A control with items of which one may be chosen.
class ItemControl : public Control {
 public:
  /// Runs when the operator chooses an item.
  Event onClick;

  const std::vector<std::string>& items() const { return items_; }
  int count() const { return static_cast<int>(items_.size()); }
  void addItem(std::string_view item);
  /// Removes the item at `index` (from 0); the choice stays on its item, or is none where that was the one
  /// removed. Raises Subscript where there is no such item.
  void removeItem(int index);
  void clear();

  /// The position of the chosen item, −1 for none.
  int listIndex() const { return listIndex_; }
  /// Chooses an item without an event; −1 for none. Raises Subscript where there is no such item.
  void setListIndex(int index);
  /// The chosen item, "" for none.
  std::string text() const;

  /// The operator chooses the item at `index`, also where it is the chosen one already: then onClick.
  /// Raises Subscript where there is no such item.
  void choose(int index);

 protected:
  using Control::Control;

 private:
  std::vector<std::string> items_;
  int listIndex_ = -1;
};

class ListBox : public ItemControl {
 public:
  ListBox(std::string name, Screen* screen) : ItemControl(Kind::ListBox, std::move(name), screen) {}
};

class ComboBox : public ItemControl {
 public:
  ComboBox(std::string name, Screen* screen) : ItemControl(Kind::ComboBox, std::move(name), screen) {}
};

/// Pages of which one is in front.
class TabControl : public Control {
 public:
  /// Runs when another page has come to the front, brought there by the operator or by the program.
  Event onChange;

  TabControl(std::string name, Screen* screen, int pages)
      : Control(Kind::TabControl, std::move(name), screen), pages_(pages) {}

  int pages() const { return pages_; }
  int current() const { return current_; }
  /// Brings a page (from 0) to the front, for the program. Raises Subscript where there is none.
  void setCurrent(int page);
  /// The operator turns to a page: the same, as his act.
  void turnTo(int page);

  /// Says that these controls stand on page `page`.
  void put(int page, std::initializer_list<Control*> controls);

 private:
  int pages_;
  int current_ = 0;
};

}  // namespace ui
