#include "qt/look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <cmath>
#include <string>
#include <vector>

#include "platform/settings.h"
#include "qt/cell_colours.h"
#include "qt/choice_list.h"
#include "qt/desk.h"
#include "qt/look_menu.h"

namespace {

/// The share of light in a channel (0 to 255), and of a colour, as the Web Content Accessibility Guidelines
/// 2.1 define relative luminance.
double luminance(int channel) {
  const double share = channel / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}
double luminance(const QColor& colour) {
  return 0.2126 * luminance(colour.red()) + 0.7152 * luminance(colour.green()) +
         0.0722 * luminance(colour.blue());
}

/// Their contrast ratio, 1 to 21.
double contrast(const QColor& one, const QColor& other) {
  const double light = std::max(luminance(one), luminance(other));
  const double dark = std::min(luminance(one), luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

/// Every cell that there can be: entry or shown, selected with and without the keys, right or wrong.
std::vector<qt::CellLook> everyCell() {
  std::vector<qt::CellLook> cells;
  for (const bool entry : {true, false})
    for (const bool selected : {false, true})
      for (const bool keys : {false, true})
        for (const bool wrong : {false, true}) cells.push_back({entry, selected, keys, wrong});
  return cells;
}

std::string describe(const qt::CellLook& cell) {
  return std::string(cell.entry ? "entry" : "shown") + (cell.selected ? " selected" : "") +
         (cell.keys ? " with keys" : "") + (cell.wrong ? " wrong" : "");
}

class Looks : public testing::TestWithParam<qt::Look> {
 protected:
  QPalette palette_ = qt::paletteOf(GetParam());
};

// Black on white is 21 : 1; grey #777777 on white is 4.48 : 1, just too little.
TEST(Contrast, IsThatOfTheGuidelines) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21.0, 1e-9);
  EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
}

TEST_P(Looks, EveryTextStandsOutFromItsGround) {
  using P = QPalette;
  const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                         {P::Text, P::Base},
                                                         {P::Text, P::AlternateBase},
                                                         {P::ButtonText, P::Button},
                                                         {P::WindowText, P::Base},
                                                         {P::ButtonText, P::Window},
                                                         {P::PlaceholderText, P::Base},
                                                         {P::HighlightedText, P::Highlight},
                                                         {P::ToolTipText, P::ToolTipBase},
                                                         {P::BrightText, P::Base},
                                                         {P::Link, P::Base},
                                                         {P::Link, P::Window}};
  for (const auto group : {P::Active, P::Inactive, P::Disabled})
    for (const auto& [text, ground] : pairs)
      EXPECT_GE(contrast(palette_.color(group, text), palette_.color(group, ground)), 4.5)
          << group << " " << text << " on " << ground;
}

/// Texts and marks: of an entry that waits, of a value changed by hand, of what the checks have found.
TEST_P(Looks, EveryCellAndItsMarkCanBeRead) {
  for (const qt::CellLook& cell : everyCell()) {
    const QColor ground = qt::cellGround(palette_, cell);
    EXPECT_GE(contrast(palette_.color(QPalette::Text), ground), 4.5) << describe(cell);
    const double unusable = contrast(palette_.color(QPalette::Disabled, QPalette::Text), ground);
    EXPECT_TRUE(cell.selected || unusable >= 4.5) << describe(cell) << " of a table that takes no keys";
    EXPECT_GE(contrast(qt::cellMark(palette_, cell), ground), 4.5) << describe(cell);
  }
}

/// The guidelines want 3 : 1 of what is no text.
TEST_P(Looks, TheFrameAroundTheKeyCellStandsOutFromEveryCell) {
  for (const qt::CellLook& cell : everyCell()) {
    if (!cell.keys && (cell.selected || cell.wrong)) continue;
    EXPECT_GE(contrast(qt::cellFrame(palette_, cell.keys), qt::cellGround(palette_, cell)), 3.0)
        << describe(cell);
  }
}

TEST_P(Looks, CellsTellWhatTheyAre) {
  const QColor plain = qt::cellGround(palette_, {.entry = true});
  EXPECT_EQ(plain, palette_.color(QPalette::Base));
  for (const qt::CellLook& other : std::initializer_list<qt::CellLook>{
           {}, {.entry = true, .selected = true}, {.entry = true, .wrong = true}})
    EXPECT_NE(qt::cellGround(palette_, other), plain) << describe(other);
  EXPECT_NE(qt::cellFrame(palette_, true), qt::cellFrame(palette_, false));
}

INSTANTIATE_TEST_SUITE_P(Both, Looks, testing::Values(qt::Look::Light, qt::Look::Dark));

TEST(LookMenu, ChangesTheWindowsAtOnceAndForTheNextRun) {
  OpenScreen open;
  open.screen.SSTab1.setCurrent(1);
  open.screen.txtNumber.setValid([](std::string_view) { return false; }, "数ではありません");
  open.screen.txtNumber.setText("x");
  open.settle();
  platform::Settings settings;
  const qt::LookMenu menu(open.window(), settings);
  auto& box = open.widget<QLineEdit>(open.screen.txtNumber);
  EXPECT_EQ(box.palette().color(QPalette::Text), qt::paletteOf(qt::Look::Light).color(QPalette::BrightText));

  menu.findChild<QAction*>("lookDark")->trigger();
  open.settle();
  EXPECT_EQ(box.palette().color(QPalette::Base), qt::paletteOf(qt::Look::Dark).color(QPalette::Base));
  EXPECT_EQ(box.palette().color(QPalette::Text), qt::paletteOf(qt::Look::Dark).color(QPalette::BrightText));
  EXPECT_EQ(settings.text("look"), "dark");

  menu.findChild<QAction*>("lookLight")->trigger();
  EXPECT_EQ(settings.text("look"), "light");
  EXPECT_EQ(qt::lookNamed("brown"), qt::Look::Light);
}

TEST(HouseStyle, AListShowsThatItHasTheKeys) {
  OpenScreen open;
  open.screen.SSTab1.setCurrent(1);
  open.settle();
  auto& list = open.widget<qt::ChoiceList>(open.screen.lstKinds);
  list.setFocus();
  open.settle();
  const QImage with = list.grab().toImage();
  open.widget<QLineEdit>(open.screen.txtNumber).setFocus();
  open.settle();
  EXPECT_NE(list.grab().toImage(), with);
}

}  // namespace
