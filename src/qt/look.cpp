#include "qt/look.h"

#include <QApplication>

namespace qt {
namespace {

constexpr std::string_view lightName = "light";
constexpr std::string_view darkName = "dark";

/// What a look is made of.
struct Colours {
  QRgb window;
  QRgb base;
  QRgb alternate;
  QRgb button;
  QRgb text;
  QRgb pale;    ///< of what cannot be used now, and of words that stand in for a text
  QRgb strong;  ///< of what is chosen
  QRgb wrong;
  QRgb link;
  QRgb tip;
};

constexpr Colours light = {0xfff0f0f0, 0xffffffff, 0xfff4f4f4, 0xffe4e4e4, 0xff101010,
                           0xff525252, 0xff1a5fb4, 0xffb00020, 0xff0b4f9e, 0xffffffdc};
constexpr Colours dark = {0xff2b2b2b, 0xff1e1e1e, 0xff262626, 0xff3a3a3a, 0xffeeeeee,
                          0xffababab, 0xff2a6fc4, 0xffff8a80, 0xff8ab8f0, 0xff3c3c28};

void setTexts(QPalette& palette, QPalette::ColorGroup group, QRgb colour) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(group, role, QColor::fromRgba(colour));
}

}  // namespace

QPalette paletteOf(Look look) {
  const Colours& colours = look == Look::Dark ? dark : light;
  const auto colour = [](QRgb rgb) { return QColor::fromRgba(rgb); };
  QPalette palette(colour(colours.button), colour(colours.window));
  palette.setColor(QPalette::Base, colour(colours.base));
  palette.setColor(QPalette::AlternateBase, colour(colours.alternate));
  palette.setColor(QPalette::Highlight, colour(colours.strong));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, colour(colours.tip));
  palette.setColor(QPalette::ToolTipText, colour(colours.text));
  palette.setColor(QPalette::PlaceholderText, colour(colours.pale));
  palette.setColor(QPalette::BrightText, colour(colours.wrong));
  palette.setColor(QPalette::Link, colour(colours.link));
  palette.setColor(QPalette::LinkVisited, colour(colours.link));
  for (const auto group : {QPalette::Active, QPalette::Inactive}) setTexts(palette, group, colours.text);
  setTexts(palette, QPalette::Disabled, colours.pale);
  return palette;
}

void wear(Look look) { QApplication::setPalette(paletteOf(look)); }

std::string_view nameOf(Look look) { return look == Look::Dark ? darkName : lightName; }

Look lookNamed(std::string_view name) { return name == darkName ? Look::Dark : Look::Light; }

}  // namespace qt
