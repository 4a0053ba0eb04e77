#pragma once

#include <QRect>
#include <QWidget>
#include <string>
#include <vector>

// What an operator sees of a window, and what a screen reader finds in it.

namespace test {

/// Every visible control of a window lies wholly within all that it stands on, and over no other; words are
/// not cut. What scrolls because the display is too small for it may lie further off.
void expectThatAllIsSeen(const QWidget& window);

/// The part of a control that can be seen in the window now, in pixels of the window.
QRect seenPart(const QWidget& control, const QWidget& window);

/// Presses Tab again and again: what has the keys can be seen each time.
void expectThatTabLeadsIntoSight(QWidget& window);

/// What a screen reader comes to in a window.
struct Announced {
  int controls = 0;
  std::vector<std::string> nameless;  ///< by object name or role
};

/// Walks the accessible tree of a window. The inside of lists, tables and combo boxes is theirs.
Announced announced(QWidget& window);

}  // namespace test
