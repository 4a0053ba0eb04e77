#pragma once

#include <QtGlobal>

namespace test {

/// Windows of the tests need no display where the toolkit can do without one; the toolkit for Windows shows
/// them.
inline void chooseOffscreen() {
#ifndef Q_OS_WIN
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
}

}  // namespace test
