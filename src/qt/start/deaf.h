#pragma once

#include <QWidget>

namespace start {

/// To be called first in a window's destructor: what its widgets tell while they go reaches it no more.
inline void becomeDeaf(QWidget& window) {
  for (QObject* child : window.findChildren<QObject*>()) child->disconnect(&window);
}

}  // namespace start
