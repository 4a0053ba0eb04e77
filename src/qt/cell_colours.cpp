#include "qt/cell_colours.h"

namespace qt {
namespace {

constexpr QColor wrongColour(0xd0, 0x10, 0x10);

// How much of a colour lies over the ground, 0 to 1.
constexpr double greyOfShown = 0.06;
constexpr double tintWithKeys = 0.30;
constexpr double tintWithoutKeys = 0.18;
constexpr double tintOfWrong = 0.22;
constexpr double paleness = 0.35;  // of the frame while the keyboard is elsewhere

/// `share` (0 to 1) of `over`, the rest `under`.
QColor mixed(const QColor& under, const QColor& over, double share) {
  const auto channel = [share](int a, int b) { return static_cast<int>(a + (b - a) * share + 0.5); };
  return {channel(under.red(), over.red()), channel(under.green(), over.green()),
          channel(under.blue(), over.blue())};
}

}  // namespace

QColor cellGround(const QPalette& palette, const CellLook& look) {
  QColor ground = palette.color(QPalette::Base);
  if (!look.entry) ground = mixed(ground, palette.color(QPalette::Text), greyOfShown);
  if (look.selected)
    ground = mixed(ground, palette.color(QPalette::Highlight), look.keys ? tintWithKeys : tintWithoutKeys);
  return look.wrong ? mixed(ground, wrongColour, tintOfWrong) : ground;
}

/// Both tints together leave no room for a third colour.
QColor cellMark(const QPalette& palette, const CellLook& look) {
  return palette.color(look.wrong && look.selected ? QPalette::Text : QPalette::Link);
}

QColor cellFrame(const QPalette& palette, bool keys) {
  const QColor strong = palette.color(QPalette::Active, QPalette::Link);
  return keys ? strong : mixed(strong, palette.color(QPalette::Base), paleness);
}

}  // namespace qt
