#include "qt/application.h"

#include <QFont>
#include <QIcon>
#include <QTranslator>
#include <new>
#include <utility>

#include "qt/convert.h"
#include "qt/display_fit.h"
#include "qt/house_style.h"
#include "qt/keyboard_ways.h"
#include "qt/look.h"

/// The linker takes the resources of a library along only where somebody asks for them.
static void takeResourcesAlong() { Q_INIT_RESOURCE(house); }

namespace qt {

Application::Application(std::string programName)
    : ProgramName{std::move(programName)}, QApplication(argc, argv) {
  setQuitOnLastWindowClosed(false);
  takeResourcesAlong();
  setStyle(new HouseStyle);
  wear(Look::Light);
  setUpFont();
  setUpTranslation();
  setUpIcon();
  new KeyboardWays(this);
  installEventFilter(new DisplayFit(this));
}

/// The font of the house where the system has it, else the nearest Japanese one of fixed width.
void Application::setUpFont() {
  const QString house = QStringLiteral("ＭＳ ゴシック");
  QFont::insertSubstitutions(
      house, {QStringLiteral("MS Gothic"), QStringLiteral("IPAGothic"), QStringLiteral("IPAゴシック"),
              QStringLiteral("Noto Sans Mono CJK JP"), QStringLiteral("Noto Sans CJK JP")});
  setFont(QFont(house, 9));
}

/// The toolkit's own words (menus of text boxes, buttons of its dialogs) in Japanese, whatever the system
/// speaks.
void Application::setUpTranslation() {
  auto* words = new QTranslator(this);
  if (words->load(QStringLiteral(":/house/qtbase_ja.qm"))) installTranslator(words);
}

void Application::setUpIcon() {
  QIcon icon;
  for (const int size : {16, 32, 64, 256}) icon.addFile(QStringLiteral(":/house/seikahyou-%1.png").arg(size));
  setWindowIcon(icon);
}

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    if (!failed_) throw;
    failed_(std::current_exception());
    return true;
  }
}

std::string describe(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const std::bad_alloc&) {
    return "メモリが不足しています。";
  } catch (const std::exception& known) {
    return known.what();
  } catch (...) {
    return "原因の分からないエラーが発生しました。";
  }
}

}  // namespace qt
