#include "qt/drawing_painter.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QImageReader>
#include <QPolygonF>
#include <memory>

#include "qt/convert.h"
#include "text/padding.h"

namespace qt {
namespace {

constexpr int mostPictureMegabytes = 2048;  // 400 million pixels and what they are turned into
constexpr int measuredSize = 1000;          // pixels; large enough for widths without rounding

QColor toolkitColour(report::Colour colour) { return {colour.red, colour.green, colour.blue}; }

QPointF toolkitPoint(report::Point point) { return {point.x, point.y}; }

QRectF toolkitBox(const report::Box& box) { return {box.at.x, box.at.y, box.width, box.height}; }

Qt::PenStyle styleOf(report::Dash dash) {
  if (dash == report::Dash::Dashed) return Qt::DashLine;
  return dash == report::Dash::Dotted ? Qt::DotLine : Qt::SolidLine;
}

/// Widths of single characters, looked up once each: a page measures hundreds of thousands of texts.
class Widths {
 public:
  Widths() : metrics_(sized()) {}

  double width(std::string_view text) {
    double sum = 0;
    for (std::size_t at = 0; at < text.size();) {
      const char32_t character = text::nextCharacter(text, at);
      const auto [found, added] = known_.try_emplace(character, 0.0);
      if (added) found->second = metrics_.horizontalAdvance(toQString(character)) / measuredSize;
      sum += found->second;
    }
    return sum;
  }

 private:
  static QFont sized() {
    QFont font = pageFont();
    font.setPixelSize(measuredSize);
    return font;
  }

  QFontMetricsF metrics_;
  std::unordered_map<char32_t, double> known_;
};

/// A rectangle that a shape surely does not leave.
struct Reach {
  QRectF operator()(const report::Line& line) const {
    QPolygonF points;
    for (const report::Point& point : line.points) points << toolkitPoint(point);
    return grown(points.boundingRect(), line.pen.width);
  }
  QRectF operator()(const report::Area& area) const { return toolkitBox(area.box); }
  QRectF operator()(const report::Picture& picture) const { return toolkitBox(picture.box); }
  QRectF operator()(const report::Mark& mark) const {
    return grown(QRectF(toolkitPoint(mark.at), QSizeF(0, 0)), mark.size);
  }
  QRectF operator()(const report::Words& words) const {
    return grown(QRectF(toolkitPoint(words.at), QSizeF(0, 0)),
                 static_cast<double>(words.text.size() + 1) * words.size);
  }

 private:
  static QRectF grown(const QRectF& box, double by) { return box.adjusted(-by, -by, by, by); }
};

QPolygonF corners(std::initializer_list<QPointF> points) { return QPolygonF(QList<QPointF>(points)); }

}  // namespace

QFont pageFont() {
  QFont font(QStringList{QStringLiteral("ＭＳ ゴシック"), QStringLiteral("MS Gothic"),
                         QStringLiteral("IPAGothic"), QStringLiteral("IPAゴシック"),
                         QStringLiteral("Noto Sans Mono CJK JP"), QStringLiteral("Noto Sans CJK JP")});
  font.setStyleHint(QFont::Monospace);
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

report::Measure pageMeasure() {
  return [widths = std::make_shared<Widths>()](std::string_view text) { return widths->width(text); };
}

DrawingPainter::DrawingPainter(QPainter& painter)
    : painter_(painter), measure_(pageMeasure()), font_(pageFont()) {
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.setRenderHint(QPainter::SmoothPixmapTransform);
}

void DrawingPainter::begin() {
  penChosen_ = false;
  fontChosen_ = false;
  page_ = painter_.worldTransform();
}

void DrawingPainter::paint(const report::Drawing& drawing) {
  begin();
  for (const report::Shape& shape : drawing.shapes) std::visit(*this, shape);
  leaveText();
}

void DrawingPainter::paint(const report::Drawing& drawing, const report::Box& seen) {
  const QRectF box = toolkitBox(seen);
  begin();
  for (const report::Shape& shape : drawing.shapes)
    if (std::visit(Reach(), shape).intersects(box)) std::visit(*this, shape);
  leaveText();
}

void DrawingPainter::enterText(double scale) {
  if (scale == textScale_) return;
  textScale_ = scale;
  painter_.setWorldTransform(QTransform::fromScale(scale, scale) * page_);
}

void DrawingPainter::leaveText() {
  if (textScale_ == 0) return;
  textScale_ = 0;
  painter_.setWorldTransform(page_);
}

void DrawingPainter::choose(const report::Pen& pen) {
  if (penChosen_ && pen == pen_) return;
  pen_ = pen;
  penChosen_ = true;
  QPen made(toolkitColour(pen.colour), pen.width, styleOf(pen.dash), Qt::FlatCap, Qt::MiterJoin);
  painter_.setPen(made);
}

void DrawingPainter::chooseFont(bool bold) {
  if (fontChosen_ && bold == bold_) return;
  fontChosen_ = true;
  bold_ = bold;
  font_.setPixelSize(measuredSize);
  font_.setBold(bold);
  painter_.setFont(font_);
}

void DrawingPainter::operator()(const report::Line& line) {
  leaveText();
  choose(line.pen);
  if (line.points.size() == 2)
    return painter_.drawLine(toolkitPoint(line.points[0]), toolkitPoint(line.points[1]));
  QPolygonF points;
  for (const report::Point& point : line.points) points << toolkitPoint(point);
  painter_.drawPolyline(points);
}

void DrawingPainter::operator()(const report::Area& area) {
  leaveText();
  painter_.fillRect(toolkitBox(area.box), toolkitColour(area.fill));
}

void DrawingPainter::operator()(const report::Mark& mark) {
  leaveText();
  const double r = mark.size / 2;
  const QPointF at = toolkitPoint(mark.at);
  const bool hollow = mark.sign == report::Sign::Circle || mark.sign == report::Sign::Triangle;
  choose({3, mark.colour, report::Dash::Solid});
  painter_.setBrush(hollow ? QColor(Qt::white) : toolkitColour(mark.colour));
  switch (mark.sign) {
    case report::Sign::Disc:
      painter_.drawEllipse(at, r - 1.5, r - 1.5);
      break;
    case report::Sign::Circle:
      painter_.drawEllipse(at, r - 1.5, r - 1.5);
      break;
    case report::Sign::Square:
      painter_.drawRect(QRectF(at.x() - r, at.y() - r, 2 * r, 2 * r));
      break;
    case report::Sign::Triangle:
      painter_.drawPolygon(
          corners({{at.x(), at.y() - r}, {at.x() + r, at.y() + r}, {at.x() - r, at.y() + r}}));
      break;
    case report::Sign::Diamond:
      painter_.drawPolygon(
          corners({{at.x(), at.y() - r}, {at.x() + r, at.y()}, {at.x(), at.y() + r}, {at.x() - r, at.y()}}));
      break;
    case report::Sign::Cross:
      painter_.drawLine(at - QPointF(r, r), at + QPointF(r, r));
      painter_.drawLine(at - QPointF(r, -r), at + QPointF(r, -r));
      break;
  }
  painter_.setBrush(Qt::NoBrush);
}

/// Letters are drawn in one large size and scaled, so that their widths on every device are those measured.
/// Texts of one size follow each other on a page; they share the scale.
void DrawingPainter::operator()(const report::Words& words) {
  chooseFont(words.bold);
  choose({1, words.colour, report::Dash::Solid});
  const double scale = words.size / measuredSize;
  double before = 0;
  if (words.anchor != report::Anchor::Left)
    before = measure_(words.text) * measuredSize * (words.anchor == report::Anchor::Middle ? 0.5 : 1);
  if (!words.upright) {
    enterText(scale);
    return painter_.drawText(QPointF(words.at.x / scale - before, words.at.y / scale), toQString(words.text));
  }
  leaveText();
  painter_.translate(words.at.x, words.at.y);
  painter_.rotate(-90);
  painter_.scale(scale, scale);
  painter_.drawText(QPointF(-before, 0), toQString(words.text));
  painter_.setWorldTransform(page_);
}

/// A picture that cannot be shown is told, not left out.
void DrawingPainter::operator()(const report::Picture& picture) {
  leaveText();
  QImageReader::setAllocationLimit(mostPictureMegabytes);
  QByteArray bytes = QByteArray::fromRawData(picture.bytes->data(), static_cast<int>(picture.bytes->size()));
  QBuffer buffer(&bytes);
  const QImage image = QImageReader(&buffer).read();
  const QRectF box = toolkitBox(picture.box);
  if (image.isNull())
    return (*this)(report::Words{{picture.box.at.x, picture.box.at.y + 40}, "（画像を読めません）", 32});
  const QSizeF size = QSizeF(image.size()).scaled(box.size(), Qt::KeepAspectRatio);
  painter_.drawImage(QRectF(box.center() - QPointF(size.width() / 2, size.height() / 2), size), image);
}

}  // namespace qt
