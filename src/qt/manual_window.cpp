#include "qt/manual_window.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <map>
#include <vector>

namespace qt {
namespace {

constexpr QSize comfortable(860, 900);  // pixels

const QString folder = QStringLiteral(":/manual");

/// The manual's text, and the width (pixels) of each of its pictures by the picture's path.
struct Text {
  QString markdown;
  std::map<QString, int> widths;
};

/// Pictures stand in the manual as <img> elements, for the sake of their widths; the toolkit's reader takes
/// nothing after such an element for Markdown. So they become pictures of Markdown here, and their widths are
/// kept apart.
Text manualText() {
  QFile file(folder + QStringLiteral("/manual.ja.md"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  Text text{QString::fromUtf8(file.readAll()), {}};
  const QRegularExpression picture(
      QStringLiteral("<img src=\"([^\"]+)\" width=\"(\\d+)\" alt=\"([^\"]*)\">"));
  for (auto found = picture.match(text.markdown); found.hasMatch(); found = picture.match(text.markdown)) {
    text.widths[found.captured(1)] = found.captured(2).toInt();
    text.markdown.replace(found.capturedStart(), found.capturedLength(),
                          QStringLiteral("![%1](%2)").arg(found.captured(3), found.captured(1)));
  }
  return text;
}

/// Gives a picture of the text its width.
void setWidth(QTextDocument& text, const QTextFragment& picture, const std::map<QString, int>& widths) {
  QTextImageFormat format = picture.charFormat().toImageFormat();
  const auto width = widths.find(format.name());
  if (!format.isValid() || width == widths.end()) return;
  format.setWidth(width->second);
  QTextCursor cursor(&text);
  cursor.setPosition(picture.position());
  cursor.setPosition(picture.position() + picture.length(), QTextCursor::KeepAnchor);
  cursor.setCharFormat(format);
}

void setWidths(QTextDocument& text, const std::map<QString, int>& widths) {
  for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
    std::vector<QTextFragment> pictures;
    for (auto at = block.begin(); !at.atEnd(); ++at)
      if (at.fragment().charFormat().isImageFormat()) pictures.push_back(at.fragment());
    for (const QTextFragment& picture : pictures) setWidth(text, picture, widths);
  }
}

/// A heading as links name it: letters and figures alone.
QString plain(const QString& heading) {
  QString letters;
  for (const QChar c : heading)
    if (c.isLetterOrNumber()) letters += c.toLower();
  return letters;
}

bool isHeading(const QTextBlock& block) { return block.blockFormat().headingLevel() > 0; }

}  // namespace

ManualWindow::ManualWindow(QWidget* parent) : QMainWindow(parent), text_(*new QTextBrowser) {
  setObjectName(QStringLiteral("manual"));
  setWindowTitle(QStringLiteral("操作説明書"));
  text_.setObjectName(QStringLiteral("manualText"));
  text_.setAccessibleName(windowTitle());
  text_.setSearchPaths({folder});
  text_.setOpenLinks(false);
  const Text manual = manualText();
  text_.document()->setMarkdown(manual.markdown, QTextDocument::MarkdownDialectGitHub);
  setWidths(*text_.document(), manual.widths);
  setCentralWidget(&text_);
  connect(&text_, &QTextBrowser::anchorClicked, this, &ManualWindow::follow);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  resize(comfortable.boundedTo(screen()->availableSize() * 0.9));
}

void ManualWindow::open(const QString& screen, QWidget& window) {
  auto* manual = window.findChild<ManualWindow*>();
  if (manual == nullptr) manual = new ManualWindow(&window);
  manual->show();
  manual->raise();
  manual->activateWindow();
  manual->goTo(chapterOf(screen));
}

QString ManualWindow::chapterOf(const QString& screen) {
  static const std::map<QString, QString> chapters = {
      {QStringLiteral("fSHsei"), QStringLiteral("3. 正標高補正計算")},
      {QStringLiteral("fDHsei"), QStringLiteral("4. 楕円補正計算")},
      {QStringLiteral("fHHsei"), QStringLiteral("5. 変動補正計算")},
      {QStringLiteral("fTHsei"), QStringLiteral("6. 単路線閉合差補正計算")},
      {QStringLiteral("fHHksb"), QStringLiteral("7. 変動量計算簿・変動図")},
  };
  const auto found = chapters.find(screen);
  return found == chapters.end() ? QStringLiteral("1. 起動とジョブの選択") : found->second;
}

bool ManualWindow::goTo(const QString& heading) {
  const QString wanted = plain(heading);
  for (QTextBlock block = text_.document()->begin(); block.isValid(); block = block.next()) {
    if (!isHeading(block) || plain(block.text()) != wanted) continue;
    const QRectF place = text_.document()->documentLayout()->blockBoundingRect(block);
    text_.verticalScrollBar()->setValue(static_cast<int>(place.top()));
    return true;
  }
  return false;
}

QString ManualWindow::headingInView() const {
  QTextBlock block = text_.cursorForPosition(QPoint(8, 8)).block();
  while (block.isValid() && !isHeading(block)) block = block.previous();
  return block.text();
}

/// Links lead to headings of the manual itself.
void ManualWindow::follow(const QUrl& link) { goTo(link.fragment()); }

}  // namespace qt
