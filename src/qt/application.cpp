#include "qt/application.h"

#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <new>
#include <utility>

#include "qt/convert.h"

namespace qt {

Application::Application(std::string programName)
    : ProgramName{std::move(programName)}, QApplication(argc, argv) {
  setQuitOnLastWindowClosed(false);
  setUpFont();
  setUpTranslation();
}

/// The font of the house where the system has it, else the nearest Japanese one of fixed width.
void Application::setUpFont() {
  const QString house = QStringLiteral("ＭＳ ゴシック");
  QFont::insertSubstitutions(
      house, {QStringLiteral("MS Gothic"), QStringLiteral("IPAGothic"), QStringLiteral("IPAゴシック"),
              QStringLiteral("Noto Sans Mono CJK JP"), QStringLiteral("Noto Sans CJK JP")});
  setFont(QFont(house, 9));
}

/// The toolkit's own words (menus of text boxes) in Japanese, where its translation is installed.
void Application::setUpTranslation() {
  auto* words = new QTranslator(this);
  if (words->load(QLocale(QLocale::Japanese), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    installTranslator(words);
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
