#include "sample/survey.h"

#include <array>

namespace sample {
namespace {

constexpr std::array remarks{"橋梁上", "傾斜地", "交通量多し", "再測"};

int yearsBetween(const Observation& observation) {
  return static_cast<int>((observation.firstDay - observation.before).count() / 365);
}

/// The bench mark at a position as far as its place, day and height go.
Mark markAt(const Walk& walk, const Observation& observation, std::size_t position, std::size_t count,
            Precision precision) {
  const auto every = static_cast<std::size_t>(observation.knownEvery);
  const std::chrono::days day(static_cast<int>(position) / observation.marksADay);
  Mark mark;
  mark.place = observation.places[position * observation.places.size() / count];
  mark.date = dateText(observation.firstDay + day, observation.form);
  mark.previousDate = dateText(observation.before + day, observation.form);
  if (position % every == 0 || position + 1 == count) mark.height = heightText(walk.height(), precision);
  return mark;
}

void addSection(Mark& mark, Walk& walk, int years) {
  const Walk::Section section = walk.section(years);
  mark.metres = section.metres;
  mark.difference = walk.observed(section.rise);
  mark.previousDifference = walk.observed(section.riseBefore);
  if (walk.random().oneIn(15)) mark.remark = remarks[static_cast<std::size_t>(walk.random().between(0, 3))];
  walk.follow(section);
}

auto place(std::vector<Mark>& marks, std::size_t at) {
  return marks.begin() + static_cast<std::ptrdiff_t>(at);
}

}  // namespace

std::vector<Mark> survey(Walk& walk, const Observation& observation, const std::vector<std::string>& numbers,
                         Precision precision) {
  const int years = yearsBetween(observation);
  std::vector<Mark> marks;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    marks.push_back(markAt(walk, observation, i, numbers.size(), precision));
    Mark& mark = marks.back();
    mark.number = numbers[i];
    if (i + 1 < numbers.size())
      addSection(mark, walk, years);
    else
      mark.flag = "-1";
  }
  return marks;
}

void separateRuns(std::vector<Mark>& marks, std::size_t at, long long secondRise) {
  Mark backward = marks[at];
  backward.difference = secondRise;
  backward.height.reset();
  backward.number += 'B';
  marks[at].number += 'F';
  Mark reached = marks[at + 1];
  reached.flag = "-2";
  reached.metres.reset();
  reached.height.reset();
  reached.previousDifference.reset();
  reached.remark.clear();
  Mark first = reached;
  first.difference = -*marks[at].difference;  // the level goes back to where the section starts
  reached.difference.reset();
  marks.insert(place(marks, at + 1), {first, backward, reached});
}

void establish(std::vector<Mark>& marks, std::size_t at) {
  *marks[at - 1].previousDifference += *marks[at].previousDifference;
  marks[at].previousDifference.reset();
  marks[at].previousDate.clear();
  marks[at].remark = "新設";
}

void addStray(std::vector<Mark>& marks, std::size_t at) {
  Mark stray = marks[at];
  stray.number += 'N';
  stray.height.reset();
  stray.previousDate.clear();
  stray.previousDifference.reset();
  stray.remark = "未分類";
  stray.uncategorised = true;
  marks.insert(place(marks, at + 1), stray);
}

}  // namespace sample
