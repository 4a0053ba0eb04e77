#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

#include "qt/binding_of.h"
#include "qt/bindings.h"
#include "ui/controls.h"

namespace qt {
namespace {

class LabelBinding : public BindingOf<ui::Label, QLabel> {
 public:
  LabelBinding(ui::Label& control, QLabel& widget, Host& host) : BindingOf(control, widget, host) {
    widget.setTextFormat(Qt::PlainText);
  }

 private:
  /// A label that the form gives a name shows a value: screen readers say both.
  void show() override {
    const QString text = toQString(control_.text());
    widget_.setText(text);
    if (!caption_.isEmpty()) widget_.setAccessibleName((caption_ + u' ' + text).trimmed());
    showPlace(control_, widget_);
  }

  const QString caption_ = widget_.accessibleName();
};

class FrameBinding : public BindingOf<ui::Frame, QGroupBox> {
 public:
  using BindingOf::BindingOf;

 private:
  void show() override {
    widget_.setTitle(toQString(control_.text()));
    showPlace(control_, widget_);
  }
};

class MenuBinding : public BindingOf<ui::Menu, QMenu> {
 public:
  using BindingOf::BindingOf;

 private:
  void show() override {
    widget_.setTitle(toQString(control_.text()));
    widget_.setEnabled(control_.enabled());
  }
};

class MenuItemBinding : public BindingOf<ui::MenuItem, QAction> {
 public:
  MenuItemBinding(ui::MenuItem& control, QAction& action, Host& host) : BindingOf(control, action, host) {
    QObject::connect(&action, &QAction::triggered, &action, [this] { act([this] { control_.press(); }); });
  }

 private:
  void show() override {
    widget_.setText(toQString(control_.text()));
    widget_.setEnabled(control_.enabled());
  }
};

class ButtonBinding : public BindingOf<ui::Button, QPushButton> {
 public:
  ButtonBinding(ui::Button& control, QPushButton& widget, Host& host) : BindingOf(control, widget, host) {
    QObject::connect(&widget, &QPushButton::clicked, &widget, [this] { act([this] { control_.press(); }); });
  }

 private:
  void show() override {
    widget_.setText(toQString(control_.text()));
    showPlace(control_, widget_);
  }
};

class OptionBinding : public BindingOf<ui::OptionButton, QRadioButton> {
 public:
  OptionBinding(ui::OptionButton& control, QRadioButton& widget, Host& host)
      : BindingOf(control, widget, host) {
    QObject::connect(&widget, &QRadioButton::clicked, &widget, [this] { act([this] { control_.press(); }); });
  }

 private:
  void show() override {
    widget_.setText(toQString(control_.text()));
    if (widget_.isChecked() != control_.on()) check();
    showPlace(control_, widget_);
  }

  /// The toolkit refuses to turn the last button of a group off; the program may.
  void check() {
    const bool exclusive = widget_.autoExclusive();
    widget_.setAutoExclusive(false);
    widget_.setChecked(control_.on());
    widget_.setAutoExclusive(exclusive);
  }
};

class TextBoxBinding : public BindingOf<ui::TextBox, QLineEdit> {
 public:
  TextBoxBinding(ui::TextBox& control, QLineEdit& widget, Host& host) : BindingOf(control, widget, host) {
    QObject::connect(&widget, &QLineEdit::textEdited, &widget, [this](const QString& text) {
      act([this, typed = fromQString(text)] { control_.edit(typed); });
    });
  }

 private:
  void show() override {
    const QString text = toQString(control_.text());
    if (widget_.text() != text) widget_.setText(text);
    showComplaint();
    showPlace(control_, widget_);
  }

  /// A text that the box is not meant for stands in the colour of what is wrong, and the box says why.
  void showComplaint() {
    QPalette palette;
    if (!control_.looksValid())
      palette.setColor(QPalette::Text, QApplication::palette().color(QPalette::BrightText));
    widget_.setPalette(palette);
    widget_.setToolTip(toQString(control_.complaint()));
  }
};

}  // namespace

std::unique_ptr<Binding> bindLabel(ui::Control& control, QObject& object, Host& host) {
  return bindAs<LabelBinding, ui::Label, QLabel>(control, object, host);
}

std::unique_ptr<Binding> bindFrame(ui::Control& control, QObject& object, Host& host) {
  return bindAs<FrameBinding, ui::Frame, QGroupBox>(control, object, host);
}

std::unique_ptr<Binding> bindMenu(ui::Control& control, QObject& object, Host& host) {
  return bindAs<MenuBinding, ui::Menu, QMenu>(control, object, host);
}

std::unique_ptr<Binding> bindMenuItem(ui::Control& control, QObject& object, Host& host) {
  return bindAs<MenuItemBinding, ui::MenuItem, QAction>(control, object, host);
}

std::unique_ptr<Binding> bindButton(ui::Control& control, QObject& object, Host& host) {
  return bindAs<ButtonBinding, ui::Button, QPushButton>(control, object, host);
}

std::unique_ptr<Binding> bindOption(ui::Control& control, QObject& object, Host& host) {
  return bindAs<OptionBinding, ui::OptionButton, QRadioButton>(control, object, host);
}

std::unique_ptr<Binding> bindTextBox(ui::Control& control, QObject& object, Host& host) {
  return bindAs<TextBoxBinding, ui::TextBox, QLineEdit>(control, object, host);
}

}  // namespace qt
