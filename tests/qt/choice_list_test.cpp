#include "qt/choice_list.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFocusEvent>
#include <vector>

#include "hands/operator.h"

namespace {

class ChoiceListTest : public testing::Test {
 protected:
  ChoiceListTest() {
    list_.addItems({"い", "ろ", "は"});
    list_.resize(200, 150);
    list_.show();
    QObject::connect(&list_, &qt::ChoiceList::chosen, &list_, [this](int row) { chosen_.push_back(row); });
    QApplication::processEvents();
  }

  qt::ChoiceList list_;
  std::vector<int> chosen_;
};

TEST_F(ChoiceListTest, AClickChoosesOnceAndAgain) {
  hands::choose(list_, 1);
  hands::choose(list_, 1);
  EXPECT_EQ(chosen_, (std::vector<int>{1, 1}));
  EXPECT_EQ(list_.chosenRow(), 1);
}

TEST_F(ChoiceListTest, ArrowKeysChooseOnceEach) {
  list_.setFocus();
  hands::key(list_, Qt::Key_Down);
  hands::key(list_, Qt::Key_Down);
  hands::key(list_, Qt::Key_Up);
  EXPECT_EQ(chosen_, (std::vector<int>{0, 1, 0}));
}

TEST_F(ChoiceListTest, ComingHereWithTheTabKeyChoosesNothing) {
  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&list_, &focus);
  EXPECT_TRUE(chosen_.empty());
  EXPECT_EQ(list_.chosenRow(), -1);
}

TEST_F(ChoiceListTest, AClickBesideTheItemsChoosesNothing) {
  hands::click(*list_.viewport(), QPoint(100, 145));
  EXPECT_TRUE(chosen_.empty());
}

TEST_F(ChoiceListTest, TheProgramsChoiceIsNotTold) {
  list_.setChosenRow(2);
  EXPECT_EQ(list_.chosenRow(), 2);
  list_.setChosenRow(-1);
  EXPECT_EQ(list_.chosenRow(), -1);
  EXPECT_TRUE(chosen_.empty());
}

}  // namespace
