#include "qt/grid_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

/// Passes a grid's notices on to the model, as a binding does.
struct Noting : ui::GridObserver {
  explicit Noting(qt::GridModel& noted) : model(noted) {}
  void changed(ui::Control&) override { model.noteChange(); }
  void cellChanged(int row, int col) override { model.noteCell(row, col); }
  qt::GridModel& model;
};

class GridModelTest : public testing::Test {
 protected:
  GridModelTest() {
    grid_.setCols(3);
    model_.setGrid(&grid_);
    grid_.observeGrid(&noting_);
  }

  ui::Grid grid_;
  qt::GridModel model_;
  Noting noting_{model_};
  QAbstractItemModelTester tester_{&model_, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(GridModelTest, ReadsTheGridItself) {
  grid_.setText(1, 2, "値");
  EXPECT_EQ(model_.index(0, 2).data().toString(), "値") << "also before anything is told";
  EXPECT_EQ(model_.rowCount(), 1);
  EXPECT_EQ(model_.columnCount(), 3);
  EXPECT_EQ(model_.rowCount(model_.index(0, 0)), 0);
}

TEST_F(GridModelTest, TellsRowsThatComeAndGo) {
  QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&model_, &QAbstractItemModel::rowsRemoved);
  grid_.setRows(6);
  grid_.addItem("中", 2);
  EXPECT_EQ(model_.rowCount(), 1) << "the shape that was told last";
  model_.flush();
  EXPECT_EQ(model_.rowCount(), 6);
  EXPECT_EQ(model_.index(1, 0).data().toString(), "中");
  grid_.removeItem(2);
  EXPECT_EQ(model_.index(5, 0).data().toString(), "") << "beyond the grid by now";
  model_.flush();
  EXPECT_EQ(model_.rowCount(), 5);
  EXPECT_EQ(removed.count(), 1);
}

TEST_F(GridModelTest, KnowsAGridThatWasFilledAnew) {
  grid_.setRows(10);
  model_.flush();
  grid_.setRows(11);
  EXPECT_FALSE(model_.flush()) << "a row more";
  grid_.setRows(2);
  grid_.setRows(40);
  QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
  EXPECT_TRUE(model_.flush());
  EXPECT_EQ(reset.count(), 1);
  EXPECT_EQ(model_.rowCount(), 39);
  EXPECT_FALSE(model_.flush());
}

TEST_F(GridModelTest, TellsChangedCellsInOne) {
  grid_.setRows(10);
  model_.flush();
  QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
  grid_.setText(8, 2, "a");
  grid_.setText(3, 1, "b");
  model_.flush();
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 2);
  EXPECT_EQ(changed[0][1].toModelIndex().row(), 7);
}

TEST_F(GridModelTest, TellsOfHeadersAndOfSeveralHeaderRows) {
  QSignalSpy changed(&model_, &QAbstractItemModel::headerDataChanged);
  grid_.setText(0, 1, "標高");
  model_.flush();
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(model_.headerData(1, Qt::Horizontal).toString(), "標高");
  grid_.setRows(4);
  grid_.setFixed(2, 0);
  grid_.setText(1, 1, "(m)");
  model_.flush();
  EXPECT_EQ(model_.headerData(1, Qt::Horizontal).toString(), "標高\n(m)");
  EXPECT_EQ(model_.headerRows(), 2);
  EXPECT_EQ(model_.rowCount(), 2);
}

TEST_F(GridModelTest, AlignsAsTheGridSays) {
  grid_.setAlign(1, ui::Align::Right);
  grid_.setFixedAlign(1, ui::Align::Center);
  const auto cell = model_.index(0, 1).data(Qt::TextAlignmentRole).value<Qt::Alignment>();
  const auto head = model_.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
  EXPECT_TRUE(cell.testFlag(Qt::AlignRight));
  EXPECT_TRUE(head.testFlag(Qt::AlignHCenter));
}

TEST_F(GridModelTest, TellsTheUseOfACell) {
  grid_.setCellUse([](int, int col) { return col == 1 ? ui::CellUse::Text : ui::CellUse::Shown; });
  EXPECT_EQ(model_.index(0, 1).data(qt::GridModel::UseRole).toInt(), static_cast<int>(ui::CellUse::Text));
  EXPECT_EQ(model_.index(0, 0).data(qt::GridModel::UseRole).toInt(), static_cast<int>(ui::CellUse::Shown));
}

TEST_F(GridModelTest, AScreenThatCannotTellTheUseYetAllowsNothing) {
  grid_.setCellUse(
      [this](int row, int) { return grid_.text(row, 9).empty() ? ui::CellUse::Text : ui::CellUse::Number; });
  EXPECT_EQ(model_.index(0, 1).data(qt::GridModel::UseRole).toInt(), static_cast<int>(ui::CellUse::Shown));
}

TEST_F(GridModelTest, WithoutAGridIsEmpty) {
  grid_.observeGrid(nullptr);
  model_.setGrid(nullptr);
  EXPECT_EQ(model_.rowCount(), 0);
  EXPECT_EQ(model_.columnCount(), 0);
  EXPECT_FALSE(model_.flush());
}

}  // namespace
