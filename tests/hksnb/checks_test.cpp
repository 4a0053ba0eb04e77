#include "hksnb/checks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "hksnb/book_maker.h"
#include "hksnb/calculation.h"

namespace {

using hksnb::BookState;
using hksnb::Kind;
using Lines = std::vector<std::string>;

const job::Grade first(1);

/// A sound book of three bench marks, the last one without a previous result.
class BookChecks : public testing::Test {
 protected:
  BookChecks() {
    test::BookMaker(grid, Kind::Orthometric)
        .benchMark("A", "10.0000", "10.0000")
        .section("1.0000", "5", "1.0005")
        .benchMark("B", "11.0000", "11.0005")
        .section("2.0000", "0", "2.0000")
        .benchMark("C", "13.0000", "13.0005")
        .section();
    type(1, "9.9950");
    type(3, "11.0000");
    hksnb::FcHHKSB_HendryoCal(grid, first);  // 5.0 and 0.5 mm
  }

  void type(int row, const std::string& previous) { grid.setText(row, hksnb::colPrevious, previous); }

  /// Severity, row, column and text of each finding.
  Lines found() const {
    Lines lines;
    for (const ui::Finding& finding : hksnb::checks(grid, first, state)) {
      EXPECT_FALSE(finding.wayOut.empty());
      lines.push_back((finding.severity == ui::Severity::Error ? "誤り " : "注意 ") +
                      std::to_string(finding.row) + "," + std::to_string(finding.col) + " " + finding.text);
    }
    return lines;
  }

  ui::Grid grid;
  BookState state;
};

TEST_F(BookChecks, ASoundBookHasNone) {
  EXPECT_EQ(found(), Lines{});
  hksnb::FcHHKSB_InitGrid1(grid, Kind::Orthometric);
  state.stored = {"1"};
  state.number = "1";
  EXPECT_EQ(found(), Lines{}) << "nor has an empty one";
}

TEST_F(BookChecks, AFillingThatBrokeOff) {
  state.whole = false;
  EXPECT_EQ(found(), Lines{"誤り -1,-1 読込が途中で終わっています。表はそろっていません。"});
}

// The neighbour: a correction of 0 that was saved is one.
TEST_F(BookChecks, ASectionWithoutASavedCorrection) {
  grid.setText(4, hksnb::colPresent, "");
  EXPECT_EQ(
      found(),
      Lines{"誤り 4,8 区間 B-Cの正標高補正が保存されていません。比高 2.0000 m は今回の標高に足されません。"});
}

TEST_F(BookChecks, ASectionWithoutADifferenceUnlessItIsThatBehindARepeatedBenchMark) {
  grid.setText(2, hksnb::colHeight, "");
  grid.setText(2, hksnb::colPresent, "");
  EXPECT_EQ(found(), Lines{"誤り 2,6 区間 A-Bに比高がありません。0 として足されます。"});
  grid.setText(1, hksnb::colEndMark, "-2");
  EXPECT_EQ(found(), Lines{});
}

TEST_F(BookChecks, ABenchMarkOfAnEllipsoidalBookWithoutASavedCorrection) {
  state.kind = Kind::Ellipsoidal;
  EXPECT_EQ(found(), Lines{});
  grid.setText(5, hksnb::colPresent, "");
  EXPECT_EQ(found(), Lines{"誤り 5,8 水準点 Cの楕円補正が保存されていません。今回の標高が空です。"});
}

TEST_F(BookChecks, APreviousResultThatIsNoHeight) {
  for (const std::string wrong : {"12a", "不明", "1e999", "2000000"}) {
    type(3, wrong);
    EXPECT_EQ(found(), Lines{"誤り 3,9 水準点 Bの平均成果「" + wrong + "」は標高ではありません。"});
  }
}

// 13.0005 − 12.5005 = 0.5 m is the limit itself; a tenth of a millimetre more is beyond it.
TEST_F(BookChecks, APreviousResultFarAway) {
  type(5, "12.5005");
  hksnb::FcHHKSB_HendryoCal(grid, first);
  EXPECT_EQ(found(), Lines{});
  type(5, "12.5004");
  hksnb::FcHHKSB_HendryoCal(grid, first);
  EXPECT_EQ(
      found(),
      Lines{"注意 5,9 水準点 Cの平均成果 12.5004 は、今回の 13.0005 と 500.1 mm 違います(目安 500 mm)。"});
}

TEST_F(BookChecks, AnAmountThatHasNotBeenWorkedOutSince) {
  type(5, "13.0000");
  EXPECT_EQ(found(), Lines{"誤り 5,10 水準点 Cの変動量がまだ計算されていません。"});
  type(5, "");
  type(3, "11.0001");
  EXPECT_EQ(found(), Lines{"誤り 3,10 水準点 Bの変動量 0.5 mm は、今の標高の差 0.4 mm ではありません。"});
  type(3, "");
  EXPECT_EQ(found(), Lines{"誤り 3,10 水準点 Bの平均成果は空ですが、変動量 0.5 mm が残っています。"});
}

TEST_F(BookChecks, ANumberThatAnotherBookHas) {
  state.stored = {"1", "2"};
  state.number = " 2 ";
  EXPECT_EQ(found(),
            Lines{"注意 -1,-1 番号 2 の正標高補正の計算簿はすでにあります。「完了」で置き換えられます。"});
  state.reopened = "2";
  EXPECT_EQ(found(), Lines{}) << "it is this one";
  state.number = "3";
  EXPECT_EQ(found(), Lines{});
}

TEST_F(BookChecks, NoTextInTheGridRaisesAnything) {
  for (const char* text : {"", " ", "1e308", "-1e308", "1e999", "字", "\n", "0x10"})
    for (const int col : {hksnb::colHeight, hksnb::colCorrection, hksnb::colPresent, hksnb::colPrevious})
      for (const Kind kind : {Kind::Orthometric, Kind::Ellipsoidal}) {
        for (int row = 1; row < grid.rows(); ++row) grid.setText(row, col, text);
        state.kind = kind;
        EXPECT_NO_THROW(hksnb::checks(grid, first, state));
      }
}

/// A book held against what is saved of its routes.
class BookAgainstSaved : public BookChecks {
 protected:
  BookAgainstSaved() {
    grid.setText(1, hksnb::colRoute, "R1");
    saved.results = {{10.0000}, {11.0005}, {13.0005}};
    saved.firstMonth = "202206";
    saved.lastMonth = "202210";
    state.saved = &saved;
    state.present = {"2022", "6", "2022", "10"};
  }

  hksnb::SavedResults saved;
};

TEST_F(BookAgainstSaved, ASoundBookHasNone) { EXPECT_EQ(found(), Lines{}); }

// Two sections down the walk may be off by 1 + 2 × 0.5 = 2 units: 13.0003 is 2 units below 13.0005, 13.0002
// is 3. Above, at B, 1 + 0.5 units may be hidden.
TEST_F(BookAgainstSaved, AHeightThatIsNotTheSavedOne) {
  saved.results[2] = {13.0003};
  EXPECT_EQ(found(), Lines{});
  saved.results[2] = {13.0002};
  EXPECT_EQ(found(),
            Lines{"注意 5,8 路線 R1 の水準点 C の今回の標高 13.0005 は、保存されている正標高補正の結果 "
                  "13.0002 と 0.3 mm 違います。"});
  saved.results[1] = {11.0003, 10.9};
  EXPECT_EQ(found(),
            Lines{"注意 3,8 路線 R1 の水準点 B の今回の標高 11.0005 は、保存されている正標高補正の結果 "
                  "11.0003 と 0.2 mm 違います。この路線でほかに 1 点。"})
      << "of two records the nearer one counts";
}

// An orthometric result may be the corrected difference of the section below, here 2.0000 m behind B.
TEST_F(BookAgainstSaved, ASavedDifferenceIsNoHeight) {
  saved.results[1] = {2.0000};
  EXPECT_EQ(found(), Lines{});
  saved.results[1] = {};
  EXPECT_EQ(found(), Lines{}) << "nor is there anything to differ from";
}

// A copied result is the saved one to the last digit: half a unit (0.05 mm) is a rounding, more is not.
TEST_F(BookAgainstSaved, AnEllipsoidalHeightIsACopy) {
  state.kind = Kind::Ellipsoidal;
  saved.results[2] = {13.00046};
  EXPECT_EQ(found(), Lines{});
  saved.results[2] = {13.0004};
  EXPECT_EQ(found(),
            Lines{"注意 5,8 路線 R1 の水準点 C の今回の標高 13.0005 は、保存されている楕円補正の結果 "
                  "13.0004 と 0.1 mm 違います。"});
}

// Two routes tell their first height each.
TEST_F(BookAgainstSaved, EveryRouteIsToldOnce) {
  grid.setText(5, hksnb::colRoute, "R2");
  saved.results = {{10.5}, {11.5}, {13.5}};
  const Lines lines = found();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("注意 1,8 路線 R1 の水準点 A の今回の標高 10.0000 は、")) << lines[0];
  EXPECT_TRUE(lines[0].ends_with(" -500 mm 違います。この路線でほかに 1 点。")) << lines[0];
  EXPECT_TRUE(lines[1].starts_with("注意 5,8 路線 R2 の水準点 C の今回の標高 13.0005 は、")) << lines[1];
}

TEST_F(BookAgainstSaved, AListOfOtherBenchMarksSaysNothing) {
  saved.results = {{99.0}};
  EXPECT_EQ(found(), Lines{});
}

TEST_F(BookAgainstSaved, MonthsBeyondThoseOfTheObservations) {
  for (const hksnb::Period& sound : {hksnb::Period{"2022", "07", "2022", "9"}, hksnb::Period{"", "", "", ""},
                                     hksnb::Period{"9999", "99", "0000", "00"}}) {
    state.present = sound;
    EXPECT_EQ(found(), Lines{});
  }
  state.present = {"2021", "10", "2022", "10"};
  EXPECT_EQ(found(),
            Lines{"注意 -1,-1 新観測年月 2021年10月～2022年10月 は、観測年月日の 2022年6月～2022年10月 "
                  "より広くなっています。"});
  state.present = {"2022", "6", "2022", "11"};
  EXPECT_EQ(found().size(), 1U);
  saved.firstMonth = saved.lastMonth = "";
  EXPECT_EQ(found(), Lines{}) << "no observation has a date";
}

}  // namespace
