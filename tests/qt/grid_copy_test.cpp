#include <QClipboard>

#include "qt/grid_desk.h"

namespace {

class GridCopy : public GridDesk {
 protected:
  std::string copied() {
    key(Qt::Key_C, Qt::ControlModifier, "\x03");
    return QApplication::clipboard()->text().toStdString();
  }
};

TEST_F(GridCopy, OneCell) {
  grid_.setCurrent(4, 1);
  EXPECT_EQ(copied(), "4-1");
  EXPECT_EQ(keys_, U"");
}

TEST_F(GridCopy, RowsWithTabsBetweenTheVisibleColumns) {
  grid_.setCurrent(2, 0);
  grid_.selectWholeRow();
  grid_.selectTo(3, 4);
  EXPECT_EQ(copied(), "2-0\t2-1\t2-3\t2-4\n3-0\t3-1\t3-3\t3-4");
}

TEST_F(GridCopy, ARangeDrawnUpwardsIsCopiedDownwards) {
  grid_.setCurrent(3, 1);
  grid_.selectTo(2, 0);
  EXPECT_EQ(copied(), "2-0\t2-1\n3-0\t3-1");
}

TEST_F(GridCopy, BreaksWithinACellDoNotBreakTheTable) {
  grid_.setText(1, 4, "上\t下\n左");
  grid_.setCurrent(1, 4);
  EXPECT_EQ(copied(), "上 下 左");
}

TEST_F(GridCopy, CtrlAMarksEverything) {
  key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(where(), "1,0 to 12,4");
}

}  // namespace
