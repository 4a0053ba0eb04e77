#include "qt/page_writer.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <new>

#include "qt/convert.h"
#include "qt/drawing_painter.h"
#include "text/error.h"

namespace qt {
namespace {

constexpr int dotsPerInch = 1200;           // of PDF pages; widths are rounded to these at most
constexpr double tenthsInInch = 254;        // 0.1 mm
constexpr double pictureDotsPerInch = 200;  // of PNG pictures
constexpr double bitmapDotsPerInch = 150;   // of filed bitmaps
constexpr double mostDots = 24000;          // of a picture's longer side

[[noreturn]] void refuse() { throw text::RuntimeError(text::ErrorCode::PathNotFound); }

/// The application that a process without windows draws with.
class Offstage {
 public:
  Offstage() {
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qInstallMessageHandler(onlyFailures);
    application_ = std::make_unique<QGuiApplication>(count_, words_);
  }

 private:
  /// Of the toolkit's words only those about its own failure are for whoever runs the process.
  static void onlyFailures(QtMsgType type, const QMessageLogContext&, const QString& words) {
    if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << fromQString(words) << std::endl;
  }

  int count_ = 1;
  char name_[10] = "seikahyou";
  char* words_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

QPageSize sizeOf(const report::Drawing& page) {
  return QPageSize(QSizeF(page.width / 10, page.height / 10), QPageSize::Millimeter, {},
                   QPageSize::ExactMatch);
}

class ToolkitWriter : public report::PageWriter {
 public:
  report::Measure measure() const override { return pageMeasure(); }

  void writePdf(const std::vector<report::Drawing>& pages, const std::string& title, const std::string& path,
                const report::Progress& progress) override {
    QFile file(toQString(path));
    if (pages.empty() || !file.open(QIODevice::WriteOnly)) refuse();
    QPdfWriter writer(&file);
    writer.setTitle(toQString(title));
    writer.setCreator(QStringLiteral("seikahyou"));
    writer.setResolution(dotsPerInch);
    writer.setPageSize(sizeOf(pages.front()));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter(&writer);
    if (!painter.isActive()) refuse();
    painter.scale(dotsPerInch / tenthsInInch, dotsPerInch / tenthsInInch);
    DrawingPainter drawing(painter);
    for (std::size_t i = 0; i < pages.size(); ++i) {
      report::tell(progress, i, pages.size());
      if (i > 0) nextPage(writer, pages[i]);
      drawing.paint(pages[i]);
    }
    const bool ended = painter.end();
    if (!ended || file.error() != QFileDevice::NoError || !file.flush()) refuse();
  }

  void writePng(const report::Drawing& drawing, const std::string& path) override {
    if (!imageOf(drawing, pictureDotsPerInch).save(toQString(path), "PNG")) refuse();
  }

  std::string bitmap(const report::Drawing& drawing) override {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!imageOf(drawing, bitmapDotsPerInch).save(&bytes, "BMP")) throw std::bad_alloc();
    return bytes.data().toStdString();
  }

 private:
  static QImage imageOf(const report::Drawing& drawing, double dots) {
    const double longer = std::max({drawing.width, drawing.height, 1.0});
    const double scale = std::min(dots / tenthsInInch, mostDots / longer);
    QImage image(std::max(1, static_cast<int>(std::ceil(drawing.width * scale))),
                 std::max(1, static_cast<int>(std::ceil(drawing.height * scale))), QImage::Format_RGB32);
    if (image.isNull()) throw std::bad_alloc();
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    DrawingPainter(painter).paint(drawing);
    painter.end();
    return image;
  }

  static void nextPage(QPdfWriter& writer, const report::Drawing& page) {
    writer.setPageSize(sizeOf(page));
    writer.newPage();
  }
};

}  // namespace

std::unique_ptr<report::PageWriter> pageWriter() {
  if (QCoreApplication::instance() == nullptr) static Offstage offstage;
  return std::make_unique<ToolkitWriter>();
}

}  // namespace qt
