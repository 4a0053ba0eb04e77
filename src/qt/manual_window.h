#pragma once

#include <QMainWindow>

class QTextBrowser;

namespace qt {

/// The manual, which lies inside the program: its text with its pictures, open at a chapter.
class ManualWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit ManualWindow(QWidget* parent = nullptr);

  /// Opens the manual at the chapter of a screen, such as "fSHsei", beside `window`; the one that is open
  /// already comes to the front. It goes with the window.
  static void open(const QString& screen, QWidget& window);

  /// The heading of the screen's chapter; that of the first chapter for a screen without one of its own.
  static QString chapterOf(const QString& screen);

  /// Goes to the heading with this text. Returns false where the manual has none.
  bool goTo(const QString& heading);
  /// The heading that stands at the top of the window.
  QString headingInView() const;

 private:
  void follow(const QUrl& link);

  QTextBrowser& text_;
};

}  // namespace qt
