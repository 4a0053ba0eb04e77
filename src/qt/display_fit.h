#pragma once

#include <QObject>
#include <QRect>
#include <QWidget>
#include <optional>
#include <vector>

namespace qt {

// Where windows stand, in pixels of the toolkit.

/// The display on which a window opens: the one that holds the middle of `place`, where a window stood
/// before; without a place, or where that display is gone, the first one. `displays`: the room that each has
/// for windows, at least one.
QRect displayFor(const std::optional<QRect>& place, const std::vector<QRect>& displays);

/// The same of the displays that are there now, the first one being the system's main display.
QRect displayFor(const std::optional<QRect>& place);

/// `frame` made no larger than `room`, and moved inside of it.
QRect fitted(const QRect& frame, const QRect& room);

/// Makes a window, with the frame around it, no larger than `room` and puts it inside. It must be open.
void fitInto(QWidget& window, const QRect& room);

/// Where what stands in a window cannot be seen in `room` all at once, it scrolls from here on: the central
/// widget of a main window, all that a dialog holds. The window can then be made as small as the room.
void scrollWhereTooLarge(QWidget& window, const QSize& room);

/// Brings the cell or control that keys go to into sight, where it lies in what scrolls.
void keepKeysInSight(const QWidget& window);

/// Lets each window and dialog that opens by itself, without a place of its own, fit its display.
class DisplayFit : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace qt
