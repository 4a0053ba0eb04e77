#include "report/page_maker.h"

#include <algorithm>
#include <array>

#include "report/table_layout.h"

namespace report {
namespace {

constexpr double titleSize = 56;
constexpr double fieldSize = 30;
constexpr double fieldLine = 42;
constexpr double fieldGap = 20;
constexpr double runningSize = 26;
constexpr double runningHeight = 60;
constexpr double boxWidth = 220;
constexpr double boxHead = 50;
constexpr double boxHeight = 190;
constexpr Pen boxPen{2, black, Dash::Solid};

}  // namespace

double PageMaker::width(bool lying) const {
  return (lying ? std::max(paper_.width, paper_.height) : std::min(paper_.width, paper_.height)) -
         margins_.left - margins_.right;
}

double PageMaker::height(bool lying) const {
  return (lying ? std::min(paper_.width, paper_.height) : std::max(paper_.width, paper_.height)) -
         margins_.top - margins_.bottom;
}

double PageMaker::room() const { return margins_.top + height(lying_) - y_; }

double PageMaker::freshRoom() const { return height(lying_) - runningHeight; }

void PageMaker::addPage() {
  pages_.push_back(
      {width(lying_) + margins_.left + margins_.right, height(lying_) + margins_.top + margins_.bottom, {}});
  y_ = margins_.top;
}

void PageMaker::beginPart(const Part& part, bool lying) {
  part_ = &part;
  lying_ = lying;
  addPage();
  boxes();
  title(part.title.empty() ? document_->title : part.title);
  std::vector<Field> all = document_->fields;
  all.insert(all.end(), part.fields.begin(), part.fields.end());
  fields(all);
}

/// The boxes for those who have reckoned and checked, in the upper right corner.
void PageMaker::boxes() {
  const double right = margins_.left + width(lying_);
  double x = right - 2 * boxWidth;
  for (const char* const who : {"計算者", "点検者"}) {
    outline(page(), {{x, y_}, boxWidth, boxHeight}, boxPen);
    rule(page(), {x, y_ + boxHead}, {x + boxWidth, y_ + boxHead}, boxPen);
    page().shapes.emplace_back(Words{{x + boxWidth / 2, y_ + boxHead - 14}, who, fieldSize, Anchor::Middle});
    x += boxWidth;
  }
}

void PageMaker::title(const std::string& text) {
  const double middle = margins_.left + (width(lying_) - 2 * boxWidth) / 2;
  Words words{{middle, y_ + titleSize * 1.4}, text, titleSize, Anchor::Middle};
  words.bold = true;
  page().shapes.emplace_back(std::move(words));
  y_ += titleSize * 2.2;
}

/// Two fields beside each other. The boxes leave their right end free.
void PageMaker::fields(const std::vector<Field>& fields) {
  const double top = y_;
  const double room = width(lying_) - 2 * boxWidth - 30;
  const std::array<double, 2> indents = {indentOf(fields, 0), indentOf(fields, 1)};
  const double left = std::clamp(indents[0] + longestText(fields, 0) + fieldGap, 0.4 * room, 0.6 * room);
  double lowest = y_;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i % 2 == 0) y_ = lowest;
    const double x = i % 2 == 0 ? 0 : left;
    field(fields[i], margins_.left + x, (i % 2 == 0 ? left : room - left) - fieldGap, indents[i % 2], lowest);
  }
  y_ = std::max(lowest, top + boxHeight - titleSize * 2.2) + 30;
}

/// How far the texts of every second field stand behind its name: all the same.
double PageMaker::indentOf(const std::vector<Field>& fields, std::size_t first) const {
  double longest = 0;
  for (std::size_t i = first; i < fields.size(); i += 2)
    longest = std::max(longest, measure_(fields[i].name));
  return (longest + 0.7) * fieldSize;
}

/// The width of the longest text of every second field.
double PageMaker::longestText(const std::vector<Field>& fields, std::size_t first) const {
  double longest = 0;
  for (std::size_t i = first; i < fields.size(); i += 2)
    longest = std::max(longest, measure_(fields[i].text));
  return longest * fieldSize;
}

void PageMaker::field(const Field& field, double x, double width, double indent, double& lowest) {
  page().shapes.emplace_back(Words{{x, y_ + fieldSize}, field.name, fieldSize});
  double y = y_;
  for (const std::string& line : wrapped(field.text, (width - indent) / fieldSize, measure_)) {
    page().shapes.emplace_back(Words{{x + indent, y + fieldSize}, line, fieldSize});
    y += fieldLine;
  }
  lowest = std::max(lowest, y);
}

/// What the pages are told apart by, in one line.
std::string PageMaker::running() const {
  std::string line;
  for (const Field& field : part_->fields) {
    const std::string words = field.name + " " + field.text;
    if (measure_(line + words) * runningSize > width(lying_) * 0.7) break;
    line += (line.empty() ? "" : "　") + words;
  }
  return line;
}

void PageMaker::beginPage() {
  addPage();
  const std::string& title = part_->title.empty() ? document_->title : part_->title;
  page().shapes.emplace_back(Words{{margins_.left, y_ + runningSize}, title, runningSize});
  page().shapes.emplace_back(
      Words{{margins_.left + width(lying_), y_ + runningSize}, running(), runningSize, Anchor::Right});
  y_ += runningHeight;
}

std::vector<Drawing> PageMaker::finished() {
  const std::string of = " / " + std::to_string(pages_.size());
  for (std::size_t i = 0; i < pages_.size(); ++i)
    pages_[i].shapes.emplace_back(Words{{pages_[i].width / 2, pages_[i].height - margins_.bottom + 70},
                                        std::to_string(i + 1) + of,
                                        runningSize,
                                        Anchor::Middle});
  return std::move(pages_);
}

}  // namespace report
