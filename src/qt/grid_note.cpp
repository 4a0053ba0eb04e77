#include "qt/grid_note.h"

#include <QAbstractScrollArea>

namespace qt {
namespace {

constexpr int shownFor = 6000;  // ms
constexpr int fromEdge = 6;     // pixels from the edges

}  // namespace

GridNote::GridNote(QAbstractScrollArea& table) : QLabel(&table), table_(table) {
  setObjectName(QStringLiteral("gridNote"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setTextFormat(Qt::PlainText);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setFrameShape(QFrame::Box);
  setContentsMargins(fromEdge, 2, fromEdge, 2);
  end_.setSingleShot(true);
  connect(&end_, &QTimer::timeout, this, &QLabel::hide);
  hide();
}

void GridNote::say(const QString& words) {
  setText(words);
  show();
  place();
  raise();
  end_.start(shownFor);
}

void GridNote::place() {
  if (isHidden()) return;
  adjustSize();
  const QRect room = table_.viewport()->geometry();
  move(room.right() - width() - fromEdge, room.bottom() - height() - fromEdge);
}

}  // namespace qt
