#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

#include "hands/operator.h"
#include "qt/desk.h"

namespace {

using Events = std::vector<std::string>;

class KeyboardWays : public testing::Test {
 protected:
  KeyboardWays() {
    screen_.SSTab1.setCurrent(1);
    open_.settle();
  }

  template <class WidgetKind>
  WidgetKind& focused(const ui::Control& control) {
    auto& widget = open_.widget<WidgetKind>(control);
    widget.setFocus(Qt::OtherFocusReason);
    open_.settle();
    return widget;
  }

  OpenScreen open_;
  EveryKind& screen_ = open_.screen;
};

TEST_F(KeyboardWays, EnterPressesTheButtonWithTheKeysOnceAsSpaceDoes) {
  auto& button = focused<QPushButton>(screen_.cmdGo);
  hands::key(button, Qt::Key_Space, " ");
  EXPECT_EQ(screen_.events, Events{"go"});
  hands::key(button, Qt::Key_Return, "\r");
  hands::key(button, Qt::Key_Enter, "\r", Qt::KeypadModifier);
  EXPECT_EQ(screen_.events, (Events{"go", "go", "go"}));
}

TEST_F(KeyboardWays, EnterTurnsAnOptionOn) {
  hands::key(focused<QRadioButton>(screen_.optSecond), Qt::Key_Return, "\r");
  EXPECT_EQ(screen_.events, Events{"second"});
}

TEST_F(KeyboardWays, EnterInATextOrWithAltPressesNothing) {
  hands::key(focused<QLineEdit>(screen_.txtNumber), Qt::Key_Return, "\r");
  hands::key(focused<QPushButton>(screen_.cmdGo), Qt::Key_Return, "\r", Qt::AltModifier);
  EXPECT_EQ(screen_.events, Events{});
}

/// A key that stays down presses no second time what came to stand under it.
TEST_F(KeyboardWays, AKeyThatStaysDownPressesNothingBeforeItIsLetGo) {
  auto& button = focused<QPushButton>(screen_.cmdGo);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(&button, &down);
  QApplication::sendEvent(&button, &again);
  EXPECT_EQ(screen_.events, Events{});
}

TEST_F(KeyboardWays, EnterPressesTheButtonOfAMessageBoxOnce) {
  QMessageBox box(QMessageBox::NoIcon, "題", "文", QMessageBox::Ok);
  int pressed = 0;
  QObject::connect(box.button(QMessageBox::Ok), &QAbstractButton::clicked, [&] { ++pressed; });
  box.show();
  hands::key(*box.button(QMessageBox::Ok), Qt::Key_Return, "\r");
  EXPECT_EQ(pressed, 1);
}

TEST_F(KeyboardWays, AButtonShowsThatItHasTheKeysFromTheStart) {
  auto& button = focused<QPushButton>(screen_.cmdGo);
  const QImage with = button.grab().toImage();
  focused<QLineEdit>(screen_.txtNumber);
  EXPECT_NE(button.grab().toImage(), with);
}

}  // namespace
