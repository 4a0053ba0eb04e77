#include "report/diagram.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "text/pattern.h"

namespace report {
namespace {

constexpr double letters = 28;       // of names and numbers
constexpr double titleLetters = 34;  // of the legend and the remarks
constexpr double leastGap = 34;      // between the names of two neighbours
constexpr double leastWidth = 2200;
constexpr double plotHeight = 1180;  // with all around it a lying sheet of A4 is full
constexpr double leftRoom = 210;
constexpr double rightRoom = 60;
constexpr double leader = 45;  // from the scale down to the names
constexpr double placeLine = 46;
constexpr int ticks = 8;
constexpr double air = 0.04;  // of the values' range, between the outermost marks and the frame
constexpr Pen frame{3, black, Dash::Solid};
constexpr Pen grid{1, {205, 205, 205}, Dash::Solid};
constexpr Pen thin{1, grey, Dash::Solid};

/// What tells the lines apart, in colour and without.
struct Look {
  Sign sign;
  Colour colour;
  Dash dash;
};
constexpr std::array<Look, 6> looks = {{{Sign::Disc, {0, 0, 0}, Dash::Solid},
                                        {Sign::Triangle, {190, 30, 30}, Dash::Dashed},
                                        {Sign::Square, {20, 70, 190}, Dash::Solid},
                                        {Sign::Circle, {20, 120, 60}, Dash::Dashed},
                                        {Sign::Diamond, {150, 80, 0}, Dash::Solid},
                                        {Sign::Cross, {110, 40, 150}, Dash::Dotted}}};

/// The look of the line at `index`: of 36 lines no two have both sign and colour in common.
Look lookOf(std::size_t index) {
  const Look& look = looks[index % looks.size()];
  return {look.sign, looks[(index + index / looks.size()) % looks.size()].colour, look.dash};
}

std::string fixed(double value, int decimals) {
  return text::Pattern(decimals == 0 ? "#0" : "#0." + std::string(static_cast<std::size_t>(decimals), '0'))
      .format(value);
}

/// The scale with a step more at a side where a mark would stand on the frame. A zero line may stand there.
Scale withAir(Scale scale, double low, double high) {
  const double least = (scale.high - scale.low) * air;
  if (low != 0 && low - scale.low < least) scale.low -= scale.step;
  if (high != 0 && scale.high - high < least) scale.high += scale.step;
  return scale;
}

/// The drawing of one diagram as it grows.
class Plot {
 public:
  Plot(const Diagram& diagram, const Measure& measure) : diagram_(diagram), measure_(measure) {}

  Drawing drawing() {
    measureAll();
    heading();
    scales();
    names();
    places();
    lines();
    return std::move(sheet_);
  }

 private:
  bool hasSecond() const { return !diagram_.secondAxis.empty(); }
  double right() const { return left_ + width_; }
  double bottom() const { return top_ + plotHeight; }

  void measureAll() {
    const double needed = leastGap * static_cast<double>(diagram_.points.size() + 1);
    left_ = leftRoom;
    width_ = std::max(leastWidth, needed);
    top_ = 20 + titleLetters * 1.5 * static_cast<double>(diagram_.remarks.size() + (showsLegend() ? 1 : 0)) +
           titleLetters * 1.8;
    first_ = scaleOf(false);
    second_ = scaleOf(true);
    const double last = diagram_.points.back().at;
    for (const DiagramPoint& point : diagram_.points)
      xs_.push_back(left_ + inset() + (last > 0 ? point.at / last : 0.5) * (width_ - 2 * inset()));
    spreadNames();
    sheet_.width = right() + (hasSecond() ? leftRoom : rightRoom);
  }

  static double inset() { return 40; }

  Scale scaleOf(bool second) const {
    std::optional<double> low;
    std::optional<double> high;
    for (const DiagramLine& line : diagram_.lines) {
      if (line.secondAxis != second) continue;
      for (const auto& value : line.values) {
        if (!value) continue;
        low = std::min(low.value_or(*value), *value);
        high = std::max(high.value_or(*value), *value);
      }
    }
    if (!low) low = high = 0;
    if (diagram_.zeroLine || second) {
      low = std::min(*low, 0.0);
      high = std::max(*high, 0.0);
    }
    return withAir(scaleFor(*low, *high, ticks), *low, *high);
  }

  /// Moves names that would stand upon each other apart, evenly to both sides.
  void spreadNames() {
    labels_ = xs_;
    for (std::size_t i = 1; i < labels_.size(); ++i)
      labels_[i] = std::max(labels_[i], labels_[i - 1] + leastGap);
    double limit = right() - leastGap / 2;
    for (std::size_t i = labels_.size(); i > 0; --i) {
      labels_[i - 1] = std::min(labels_[i - 1], limit);
      limit = labels_[i - 1] - leastGap;
    }
  }

  double y(double value, const Scale& scale) const {
    return bottom() - (value - scale.low) / (scale.high - scale.low) * plotHeight;
  }

  void say(Point at, const std::string& words, double size, Anchor anchor = Anchor::Left) {
    sheet_.shapes.emplace_back(Words{at, words, size, anchor});
  }

  bool showsLegend() const { return diagram_.lines.size() > 1; }

  void heading() {
    double y = 20 + titleLetters;
    for (const std::string& remark : diagram_.remarks) {
      say({left_, y}, remark, titleLetters);
      y += titleLetters * 1.5;
    }
    if (showsLegend()) legend(y);
  }

  void legend(double y) {
    double x = left_;
    for (std::size_t i = 0; i < diagram_.lines.size(); ++i) {
      const Look look = lookOf(i);
      const double middle = y - titleLetters * 0.35;
      rule(sheet_, {x, middle}, {x + 100, middle}, Pen{4, look.colour, look.dash});
      sheet_.shapes.emplace_back(Mark{{x + 50, middle}, look.sign, 20, look.colour});
      say({x + 115, y}, diagram_.lines[i].name, titleLetters);
      x += 160 + measure_(diagram_.lines[i].name) * titleLetters;
    }
  }

  void scales() {
    for (double value = first_.low; value <= first_.high + first_.step / 2; value += first_.step) {
      const double at = y(value, first_);
      rule(sheet_, {left_, at}, {right(), at}, grid);
      rule(sheet_, {left_ - 12, at}, {left_, at}, frame);
      say({left_ - 20, at + letters * 0.35}, fixed(value, first_.decimals), letters, Anchor::Right);
    }
    say({left_ - 150, top_ - 30}, diagram_.axis, letters);
    if (hasSecond()) secondScale();
    if (diagram_.zeroLine)
      rule(sheet_, {left_, y(0, first_)}, {right(), y(0, first_)}, Pen{3, black, Dash::Solid});
    outline(sheet_, {{left_, top_}, width_, plotHeight}, frame);
  }

  void secondScale() {
    for (double value = second_.low; value <= second_.high + second_.step / 2; value += second_.step) {
      const double at = y(value, second_);
      rule(sheet_, {right(), at}, {right() + 12, at}, frame);
      say({right() + 20, at + letters * 0.35}, fixed(value, second_.decimals), letters);
    }
    say({right() + 150, top_ - 30}, diagram_.secondAxis, letters, Anchor::Right);
  }

  void names() {
    namesTop_ = bottom() + leader;
    double longest = 0;
    for (std::size_t i = 0; i < xs_.size(); ++i) {
      sheet_.shapes.emplace_back(
          Line{{{xs_[i], bottom()}, {xs_[i], bottom() + 12}, {labels_[i], namesTop_ - 6}}, thin});
      Words words{{labels_[i] + letters * 0.35, namesTop_}, diagram_.points[i].name, letters, Anchor::Right};
      words.upright = true;
      sheet_.shapes.emplace_back(std::move(words));
      longest = std::max(longest, measure_(diagram_.points[i].name) * letters);
    }
    sheet_.height = namesTop_ + longest + 20;
  }

  /// A line below the names of neighbours in one place, with its name; names that would stand upon each other
  /// stand in several lines.
  void places() {
    std::vector<double> taken;  // how far each line is used
    const double top = sheet_.height + 10;
    for (std::size_t first = 0; first < diagram_.points.size();) {
      std::size_t last = first;
      const std::string& place = diagram_.points[first].place;
      while (last + 1 < diagram_.points.size() && diagram_.points[last + 1].place == place) ++last;
      if (!place.empty()) onePlace(place, labels_[first] - 13, labels_[last] + 13, top, taken);
      first = last + 1;
    }
    if (!taken.empty()) sheet_.height = top + placeLine * static_cast<double>(taken.size()) + 20;
  }

  void onePlace(const std::string& place, double from, double to, double top, std::vector<double>& taken) {
    const double half = measure_(place) * letters / 2;
    const double middle = std::max((from + to) / 2, half);
    std::size_t line = 0;
    while (line < taken.size() && taken[line] > middle - half) ++line;
    if (line == taken.size()) taken.emplace_back();
    taken[line] = middle + half + letters;
    sheet_.width = std::max(sheet_.width, middle + half + 10);
    rule(sheet_, {from, top}, {to, top}, Pen{2, black, Dash::Solid});
    say({middle, top + placeLine * (static_cast<double>(line) + 0.8)}, place, letters, Anchor::Middle);
  }

  void lines() {
    for (std::size_t i = 0; i < diagram_.lines.size(); ++i) line(diagram_.lines[i], lookOf(i));
  }

  void line(const DiagramLine& line, const Look& look) {
    std::vector<Point> run;
    const auto end = [&] {
      if (run.size() > 1) sheet_.shapes.emplace_back(Line{run, Pen{4, look.colour, look.dash}});
      run.clear();
    };
    for (std::size_t i = 0; i < line.values.size(); ++i) {
      if (line.values[i]) run.push_back({xs_[i], y(*line.values[i], line.secondAxis ? second_ : first_)});
      if (!line.values[i] || diagram_.points[i].ends) end();
    }
    end();
    for (std::size_t i = 0; i < line.values.size(); ++i)
      if (line.values[i]) mark(line, i, look);
  }

  void mark(const DiagramLine& line, std::size_t i, const Look& look) {
    const DiagramPoint& point = diagram_.points[i];
    const std::string& unit = line.secondAxis ? diagram_.secondUnit : diagram_.unit;
    const double at = y(*line.values[i], line.secondAxis ? second_ : first_);
    sheet_.shapes.emplace_back(
        Mark{{xs_[i], at},
             look.sign,
             20,
             look.colour,
             point.row,
             point.name + "  " + line.name + " " + fixed(*line.values[i], line.decimals) + " " + unit});
  }

  const Diagram& diagram_;
  const Measure& measure_;
  Drawing sheet_;
  Scale first_;
  Scale second_;
  std::vector<double> xs_;      // of the points
  std::vector<double> labels_;  // of their names
  double left_ = 0;
  double top_ = 0;
  double width_ = 0;
  double namesTop_ = 0;
};

}  // namespace

Drawing draw(const Diagram& diagram, const Measure& measure) {
  if (diagram.points.empty()) return {};
  return Plot(diagram, measure).drawing();
}

}  // namespace report
