#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <stdexcept>

#include "hands/operator.h"
#include "hands/reading.h"
#include "qt/desk.h"

namespace {

using Events = std::vector<std::string>;

class Binder : public testing::Test {
 protected:
  OpenScreen open_;
  EveryKind& screen_ = open_.screen;

  template <class WidgetKind>
  WidgetKind& widget(const ui::Control& control) {
    return open_.widget<WidgetKind>(control);
  }
};

TEST_F(Binder, ShowsEveryControlAsItIs) {
  EXPECT_EQ(widget<QLabel>(screen_.lblName).text(), "A & B");
  EXPECT_EQ(widget<QPushButton>(screen_.cmdGo).text(), "実行(&A)");
  EXPECT_EQ(widget<QGroupBox>(screen_.fraBox).title(), "枠");
  EXPECT_EQ(widget<QMenu>(screen_.m0item).title(), "ファイル(&F)");
  EXPECT_EQ(widget<QAction>(screen_.clearItem).text(), "クリア(&C)");
  EXPECT_TRUE(widget<QRadioButton>(screen_.optFirst).isChecked());
  EXPECT_FALSE(widget<QRadioButton>(screen_.optSecond).isChecked());
  EXPECT_EQ(widget<qt::ChoiceList>(screen_.lstKinds).count(), 3);
  EXPECT_EQ(widget<QComboBox>(screen_.cmbRoute).itemText(2), "は  ");
  EXPECT_EQ(open_.window().windowTitle(), "すべて");
}

TEST_F(Binder, GathersWhatTheProgramChangesUntilTheNextTurn) {
  screen_.lblName.setText("新");
  screen_.lstKinds.setListIndex(1);
  screen_.cmbRoute.clear();
  screen_.cmdGo.setEnabled(false);
  EXPECT_EQ(widget<QLabel>(screen_.lblName).text(), "A & B");

  QApplication::processEvents();

  EXPECT_EQ(widget<QLabel>(screen_.lblName).text(), "新");
  EXPECT_EQ(widget<qt::ChoiceList>(screen_.lstKinds).chosenRow(), 1);
  EXPECT_EQ(widget<QComboBox>(screen_.cmbRoute).count(), 0);
  EXPECT_FALSE(widget<QPushButton>(screen_.cmdGo).isEnabled());
  EXPECT_TRUE(screen_.events.empty()) << "showing is no act of the operator";
}

TEST_F(Binder, PressesReachTheScreenOnce) {
  screen_.SSTab1.setCurrent(1);
  open_.settle();
  hands::press(widget<QPushButton>(screen_.cmdGo));
  hands::press(widget<QAction>(screen_.clearItem));
  hands::press(widget<QRadioButton>(screen_.optSecond));
  EXPECT_EQ(screen_.events, (Events{"go", "clear", "second"}));
  EXPECT_TRUE(screen_.optSecond.on());
  EXPECT_FALSE(widget<QRadioButton>(screen_.optFirst).isChecked());
}

TEST_F(Binder, ArrowKeysPressOptionButtons) {
  screen_.SSTab1.setCurrent(1);
  open_.settle();
  widget<QRadioButton>(screen_.optFirst).setFocus();
  hands::key(widget<QRadioButton>(screen_.optFirst), Qt::Key_Down);
  EXPECT_EQ(screen_.events, Events{"second"});
  EXPECT_TRUE(screen_.optSecond.on());
}

TEST_F(Binder, ProgramTurnsTheLastOptionOff) {
  screen_.optFirst.setOn(false);
  open_.settle();
  EXPECT_FALSE(widget<QRadioButton>(screen_.optFirst).isChecked());
}

TEST_F(Binder, EveryKeyInATextBoxIsAChange) {
  screen_.SSTab1.setCurrent(1);
  open_.settle();
  auto& box = widget<QLineEdit>(screen_.txtNumber);
  hands::type(box, "3");
  hands::type(box, "5");
  hands::enter(box, "12.5");
  hands::enter(box, "");
  EXPECT_EQ(screen_.events, (Events{"text 3", "text 35", "text 12.5", "text "}));
}

TEST_F(Binder, AScreenThatRefusesATextSeesTheBoxEmptied) {
  screen_.txtNumber.onChange.handle([this] {
    if (screen_.txtNumber.text() == "x") screen_.txtNumber.setText("");
  });
  hands::type(widget<QLineEdit>(screen_.txtNumber), "x");
  EXPECT_EQ(widget<QLineEdit>(screen_.txtNumber).text(), "");
}

TEST_F(Binder, SaysWhatIsWrongWithAText) {
  screen_.txtNumber.setValid([](std::string_view text) { return text != "x"; }, "日付ではありません");
  auto& box = widget<QLineEdit>(screen_.txtNumber);
  hands::type(box, "x");
  EXPECT_EQ(box.toolTip(), "日付ではありません");
  EXPECT_EQ(box.palette().color(QPalette::Text), QApplication::palette().color(QPalette::BrightText));
  hands::enter(box, "2020");
  EXPECT_EQ(box.toolTip(), "");
  EXPECT_NE(box.palette().color(QPalette::Text), QApplication::palette().color(QPalette::BrightText));
}

TEST_F(Binder, ChoosesInAComboBoxAlsoWhatIsChosenAlready) {
  screen_.SSTab1.setCurrent(1);
  open_.settle();
  auto& combo = widget<QComboBox>(screen_.cmbRoute);
  hands::choose(combo, 1);
  hands::choose(combo, 1);
  combo.setFocus();
  hands::key(combo, Qt::Key_Down);
  EXPECT_EQ(screen_.events, (Events{"route ろ", "route ろ", "route は  "}));
  EXPECT_EQ(combo.currentIndex(), 2);
}

TEST_F(Binder, TabsGoBothWays) {
  auto& tabs = widget<QTabWidget>(screen_.SSTab1);
  hands::bringToFront(tabs, 1);
  EXPECT_EQ(screen_.SSTab1.current(), 1);
  screen_.SSTab1.setCurrent(0);
  open_.settle();
  EXPECT_EQ(tabs.currentIndex(), 0);
  EXPECT_EQ(open_.window().focusWidget(), &widget<QWidget>(screen_.Grid1));
}

TEST_F(Binder, SizesAreTwipsRoundedToPixels) {
  // The grid has 3000 × 1501 twips: 200 × 100.07 pixels.
  EXPECT_EQ(widget<QWidget>(screen_.Grid1).size(), QSize(200, 100));
  const script::Size size = hands::sizeShown(screen_.Grid1, widget<QWidget>(screen_.Grid1));
  EXPECT_EQ(size.width, 3000);
  EXPECT_EQ(size.height, 1501);
  EXPECT_EQ(hands::sizeShown(screen_.cmdGo, widget<QWidget>(screen_.cmdGo)).width, 0)
      << "the form's affair, not the program's";
}

TEST_F(Binder, ASizeThatTheWidgetDoesNotHaveIsReadInPixels) {
  widget<QWidget>(screen_.Grid1).setFixedSize(180, 100);
  const script::Size size = hands::sizeShown(screen_.Grid1, widget<QWidget>(screen_.Grid1));
  EXPECT_EQ(size.width, 180 * 15);
  EXPECT_EQ(size.height, 1501);
}

/// What the binder says of a form that `damage` has been done to.
std::string complaintAbout(const std::function<void(QMainWindow&)>& damage) {
  Desk desk;
  EveryKind screen(desk.windows);
  try {
    qt::ScreenWindow window(screen, desk.windows, [&](QMainWindow& made) {
      setUpEveryKind(made);
      damage(made);
    });
  } catch (const std::logic_error& error) {
    return error.what();
  }
  return "none";
}

TEST(BinderOfAWrongForm, NamesTheControlThatIsMissing) {
  EXPECT_EQ(complaintAbout([](QMainWindow& window) { delete window.findChild<QLabel*>("lblName"); }),
            "form EveryKind: control lblName is missing");
}

TEST(BinderOfAWrongForm, NamesTheControlOfAnotherKind) {
  EXPECT_EQ(complaintAbout([](QMainWindow& window) {
              window.findChild<QLabel*>("lblName")->setObjectName("old");
              window.findChild<QPushButton*>("cmdGo")->setObjectName("lblName");
            }),
            "form EveryKind: control lblName is of another kind: QPushButton");
}

TEST(BinderOfAWrongForm, NamesTheControlOnTheWrongPage) {
  EXPECT_EQ(complaintAbout([](QMainWindow& window) {
              window.findChild<QTabWidget*>("SSTab1")->widget(0)->layout()->addWidget(
                  window.findChild<QPushButton*>("cmdGo"));
            }),
            "form EveryKind: control cmdGo does not stand on page 1");
}

TEST(BinderOfAWrongForm, CountsThePages) {
  EXPECT_EQ(complaintAbout([](QMainWindow& window) {
              window.findChild<QTabWidget*>("SSTab1")->addTab(new QWidget, "三");
            }),
            "control SSTab1: the form has 3 pages, the control 2");
}

}  // namespace
