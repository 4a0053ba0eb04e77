#include "report/svg_writer.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "text/number.h"

namespace report {
namespace {

constexpr std::string_view fonts = "ＭＳ ゴシック, MS Gothic, IPAGothic, Noto Sans Mono CJK JP, monospace";

std::string number(double value) { return text::numberText(std::round(value * 100) / 100); }

std::string colour(Colour colour) {
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "#%02x%02x%02x", colour.red, colour.green, colour.blue);
  return digits.data();
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (c == '&')
      result += "&amp;";
    else if (c == '<')
      result += "&lt;";
    else if (c == '>')
      result += "&gt;";
    else if (c == '"')
      result += "&quot;";
    else if (static_cast<unsigned char>(c) >= 0x20)
      result += c;
  }
  return result;
}

std::string attribute(std::string_view name, const std::string& value) {
  return " " + std::string(name) + "=\"" + value + "\"";
}

std::string pointList(const std::vector<Point>& points) {
  std::string list;
  for (const Point& point : points)
    list += (list.empty() ? "" : " ") + number(point.x) + "," + number(point.y);
  return list;
}

std::string strokeOf(const Pen& pen) {
  std::string stroke = attribute("stroke", colour(pen.colour)) + attribute("stroke-width", number(pen.width));
  if (pen.dash == Dash::Dashed)
    stroke += attribute("stroke-dasharray", number(pen.width * 6) + " " + number(pen.width * 3));
  if (pen.dash == Dash::Dotted)
    stroke += attribute("stroke-dasharray", number(pen.width) + " " + number(pen.width * 2));
  return stroke;
}

std::string boxOf(const Box& box) {
  return attribute("x", number(box.at.x)) + attribute("y", number(box.at.y)) +
         attribute("width", number(box.width)) + attribute("height", number(box.height));
}

std::string base64(std::string_view bytes) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string result;
  for (std::size_t at = 0; at < bytes.size(); at += 3) {
    unsigned group = 0;
    for (std::size_t i = 0; i < 3; ++i)
      group = group << 8U | (at + i < bytes.size() ? static_cast<unsigned char>(bytes[at + i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i)
      result += at + i > bytes.size() ? '=' : letters[group >> (18U - 6U * i) & 63U];
  }
  return result;
}

/// Writes the elements of a file.
class Elements {
 public:
  void operator()(const Line& line) {
    out_ += "<polyline" + attribute("points", pointList(line.points)) + attribute("fill", "none") +
            strokeOf(line.pen) + "/>\n";
  }
  void operator()(const Area& area) {
    out_ += "<rect" + boxOf(area.box) + attribute("fill", colour(area.fill)) + "/>\n";
  }
  void operator()(const Picture& picture) {
    const bool bitmap = picture.bytes->starts_with("BM");
    out_ += "<image" + boxOf(picture.box) +
            attribute("href", std::string("data:image/") + (bitmap ? "bmp" : "png") + ";base64," +
                                  base64(*picture.bytes)) +
            "/>\n";
  }
  void operator()(const Words& words) {
    constexpr std::array<const char*, 3> anchors = {"start", "middle", "end"};
    out_ += "<text" + attribute("x", number(words.at.x)) + attribute("y", number(words.at.y)) +
            attribute("font-size", number(words.size));
    if (words.anchor != Anchor::Left)
      out_ += attribute("text-anchor", anchors[static_cast<std::size_t>(words.anchor)]);
    if (words.upright)
      out_ += attribute("transform", "rotate(-90 " + number(words.at.x) + " " + number(words.at.y) + ")");
    if (words.bold) out_ += attribute("font-weight", "bold");
    out_ += attribute("fill", colour(words.colour)) + ">" + escaped(words.text) + "</text>\n";
  }
  void operator()(const Mark& mark) {
    out_ += "<g class=\"mark\"" + attribute("data-x", number(mark.at.x)) +
            attribute("data-y", number(mark.at.y)) + ">";
    if (!mark.note.empty()) out_ += "<title>" + escaped(mark.note) + "</title>";
    out_ += sign(mark) + "</g>\n";
  }

  std::string take() { return std::move(out_); }

 private:
  static std::string sign(const Mark& mark) {
    const double r = mark.size / 2;
    const Point at = mark.at;
    const std::string hollow = attribute("fill", "#ffffff") + attribute("stroke", colour(mark.colour)) +
                               attribute("stroke-width", "3");
    const std::string full = attribute("fill", colour(mark.colour));
    const std::string round = attribute("cx", number(at.x)) + attribute("cy", number(at.y)) +
                              attribute("r", number(mark.sign == Sign::Circle ? r - 1.5 : r));
    const auto corners = [](std::vector<Point> points, const std::string& paint) {
      return "<polygon" + attribute("points", pointList(points)) + paint + "/>";
    };
    switch (mark.sign) {
      case Sign::Disc:
        return "<circle" + round + full + "/>";
      case Sign::Circle:
        return "<circle" + round + hollow + "/>";
      case Sign::Square:
        return "<rect" + boxOf({{at.x - r, at.y - r}, 2 * r, 2 * r}) + full + "/>";
      case Sign::Triangle:
        return corners({{at.x, at.y - r}, {at.x + r, at.y + r}, {at.x - r, at.y + r}}, hollow);
      case Sign::Diamond:
        return corners({{at.x, at.y - r}, {at.x + r, at.y}, {at.x, at.y + r}, {at.x - r, at.y}}, full);
      case Sign::Cross:
        break;
    }
    return "<path" +
           attribute("d", "M" + number(at.x - r) + " " + number(at.y - r) + "L" + number(at.x + r) + " " +
                              number(at.y + r) + "M" + number(at.x - r) + " " + number(at.y + r) + "L" +
                              number(at.x + r) + " " + number(at.y - r)) +
           attribute("stroke", colour(mark.colour)) + attribute("stroke-width", "3") + "/>";
  }

  std::string out_;
};

}  // namespace

std::string svgOf(const Drawing& drawing, std::string_view title) {
  Elements elements;
  for (const Shape& shape : drawing.shapes) std::visit(elements, shape);
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
         attribute("width", number(drawing.width / 10) + "mm") +
         attribute("height", number(drawing.height / 10) + "mm") +
         attribute("viewBox", "0 0 " + number(drawing.width) + " " + number(drawing.height)) +
         attribute("font-family", std::string(fonts)) + ">\n<title>" + escaped(title) +
         "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" + elements.take() + "</svg>\n";
}

}  // namespace report
