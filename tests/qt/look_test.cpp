#include "qt/look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <cmath>

#include "platform/settings.h"
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

QColor mixed(const QColor& under, const QColor& over, double share) {
  const auto channel = [share](int a, int b) { return static_cast<int>(a + (b - a) * share + 0.5); };
  return {channel(under.red(), over.red()), channel(under.green(), over.green()),
          channel(under.blue(), over.blue())};
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

/// The marks of cells stand on the grounds of cells, typed into, shown or selected.
TEST_P(Looks, MarksOfCellsStandOutFromEveryGround) {
  using P = QPalette;
  const QColor mark = palette_.color(P::Link);
  const QColor typed = palette_.color(P::Base);
  const QColor shown = mixed(typed, palette_.color(P::Text), 0.06);
  for (const QColor& ground : {typed, shown})
    EXPECT_GE(contrast(mark, ground), 4.5) << ground.name().toStdString();
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

/// Cells: typed, only shown, and both within a selection with and without the keys.
TEST_P(Looks, EveryCellCanBeRead) {
  const QColor base = palette_.color(QPalette::Base);
  const QColor text = palette_.color(QPalette::Text);
  for (const QColor& ground : {base, mixed(base, text, 0.06)})
    for (const double chosen : {0.0, 0.18, 0.30}) {
      const QColor seen = mixed(ground, palette_.color(QPalette::Highlight), chosen);
      EXPECT_GE(contrast(text, seen), 4.5);
      EXPECT_GE(contrast(palette_.color(QPalette::BrightText), seen), chosen == 0.0 ? 4.5 : 3.0);
    }
  EXPECT_NE(base, mixed(base, text, 0.06)) << "what is typed looks other than what is shown";
  EXPECT_GE(contrast(palette_.color(QPalette::Highlight), base), 3.0) << "the frame around the key cell";
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
