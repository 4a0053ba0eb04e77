#include "hksnb/place_names.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_maker.h"
#include "hksnb/calculation.h"

namespace {

using hksnb::Kind;
using hksnb::Place;
using hksnb::PlaceNames;

const job::Grade first(1);

/// The bench marks of one route with their towns.
class BookOfTowns : public testing::Test {
 protected:
  void fill(const std::vector<std::pair<std::string, std::string>>& towns) {
    FcHHKSB_InitGrid1(grid, Kind::Orthometric);
    hksnb::Filling filling(grid, Kind::Orthometric, first);
    for (const auto& [benchMark, town] : towns) {
      hksnb::Observation observation;
      observation.place = {"1001", "R1", "長野県", "諏訪郡", town};
      observation.benchMark = benchMark;
      ASSERT_TRUE(filling.add(observation));
    }
    names = filling.places();
  }

  void turn(const char* start, const char* end) {
    hksnb::HKsnbSetFcSortToGrid1(grid, names, start, end, Kind::Orthometric, first);
  }

  std::string column(int col) const {
    std::string cells;
    for (int row = 1; row < grid.rows(); row += 2)
      cells += grid.text(row, hksnb::colBenchMark) + ":" + grid.text(row, col) + " ";
    return cells;
  }

  ui::Grid grid;
  PlaceNames names;
};

// C stands in 茅野市, B in no town: above C now, its blank cell is nobody's.
TEST_F(BookOfTowns, ABenchMarkWithoutATownGetsNoneByTurning) {
  fill({{"A", "富士見町"}, {"B", ""}, {"C", "茅野市"}, {"D", "茅野市"}});
  EXPECT_EQ(column(hksnb::colTown), "A:富士見町 B: C:茅野市 D: ");
  turn("A", "D");
  EXPECT_EQ(column(hksnb::colTown), "D:茅野市 C: B: A:富士見町 ");
  turn("B", "A");
  EXPECT_EQ(column(hksnb::colTown), "D:茅野市 C: A:富士見町 B: ");
  turn("A", "D");
  turn("B", "A");
  turn("B", "D");
  turn("A", "D");
  EXPECT_EQ(column(hksnb::colTown), "A:富士見町 C:茅野市 B: D:茅野市 ") << "whatever was turned";
  EXPECT_EQ(column(hksnb::colCounty), "A:諏訪郡 C: B: D: ");
}

TEST_F(BookOfTowns, TheBenchMarkBelowTheSpanShowsItsTownWhereItChangesNow) {
  fill({{"A", "富士見町"}, {"B", "茅野市"}, {"C", "茅野市"}, {"D", "茅野市"}});
  turn("A", "B");
  EXPECT_EQ(column(hksnb::colTown), "B:茅野市 A:富士見町 C:茅野市 D: ");
}

// Where two routes meet, one bench mark stands in both.
TEST(PlaceNamesOfTheBook, OfOneNumberOnTwoRoutesThePlaceThatFitsCounts) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric)
      .benchMark("A", "", "", "R1")
      .section()
      .benchMark("C")
      .section()
      .benchMark("C", "", "", "R2")
      .section();
  PlaceNames names;
  names.add("C", {"", "R2"});
  names.add("C", {"", "R1"});
  names.add("A", {"", "R1"});
  EXPECT_EQ(names.inOrder(grid), (std::vector<Place>{{"", "R1"}, {"", "R1"}, {"", "R2"}}));
}

// What the cells show is right where the memory knows another place, or none.
TEST(PlaceNamesOfTheBook, TheCellsDecide) {
  ui::Grid grid;
  test::BookMaker(grid, Kind::Orthometric).benchMark("A", "", "", "R1").section().benchMark("B").section();
  PlaceNames names;
  names.add("B", {"1001", "R3"});
  EXPECT_EQ(names.inOrder(grid), (std::vector<Place>{{"", "R1"}, {"", "R1"}}));
}

// 富士見町 is shown again at D, so B and C had none; the blank at F is 茅野市.
TEST(PlaceNamesOfTheBook, AStoredBookTellsThemByWhereANameIsShownAgain) {
  ui::Grid grid;
  test::BookMaker maker(grid, Kind::Orthometric);
  for (const char* number : {"A", "B", "C", "D", "E", "F"}) maker.benchMark(number).section();
  grid.setText(1, hksnb::colTown, "富士見町");
  grid.setText(7, hksnb::colTown, "富士見町");
  grid.setText(9, hksnb::colTown, "茅野市");
  std::string towns;
  for (const Place& place : PlaceNames::readFrom(grid).inOrder(grid)) towns += place[hksnb::colTown] + "|";
  EXPECT_EQ(towns, "富士見町|||富士見町|茅野市|茅野市|");
}

TEST(PlaceNamesOfTheBook, AnEmptyBookHasNone) {
  ui::Grid grid;
  FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  EXPECT_EQ(PlaceNames::readFrom(grid).inOrder(grid), std::vector<Place>{Place()});
}

}  // namespace
