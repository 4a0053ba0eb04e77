#include "intake/lines.h"

#include <algorithm>
#include <cmath>

#include "intake/cells.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "text/width.h"

namespace intake {
namespace {

constexpr std::size_t keyWidth = 8;  // characters of a project or route number

std::string quoted(const std::string& cell) { return "「" + cell + "」"; }

bool holdsControls(const std::string& cell) {
  return std::any_of(cell.begin(), cell.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

}  // namespace

LineReader::LineReader(const Matching& matching, const Defaults& defaults)
    : matching_(matching), project_(defaults.project), route_(defaults.route), category_(defaults.category) {}

std::string LineReader::cell(const Line& line, Field field) const {
  const auto source = matching_.find(field);
  if (source == matching_.end() || source->second.column >= line.cells.size()) return {};
  return line.cells[source->second.column];
}

void LineReader::refuse(const Line& line, std::string why) {
  refusals_->push_back({line.number, std::move(why)});
}

std::string LineReader::words(const Line& line, Field field) {
  std::string written = cell(line, field);
  if (holdsControls(written))
    refuse(line, std::string(infoOf(field).heading) + "に改行などの文字があります。");
  return written;
}

std::string LineReader::number(const Line& line, Field field) {
  const std::string written = cell(line, field);
  if (written.empty()) return {};
  const auto plain = numberCell(written);
  if (!plain) {
    refuse(line, std::string(infoOf(field).heading) + quoted(written) + "は数値ではありません。");
    return {};
  }
  const double divisor = matching_.at(field).divisor;
  try {
    const double value = text::readNumber(*plain);
    return divisor == 1 ? *plain : text::numberText(value / divisor);
  } catch (const text::RuntimeError&) {
    refuse(line, std::string(infoOf(field).heading) + quoted(written) + "は大きすぎます。");
    return {};
  }
}

std::string LineReader::day(const Line& line, Field field) {
  const std::string written = cell(line, field);
  if (written.empty()) return {};
  const auto date = dateCell(written);
  if (!date) refuse(line, std::string(infoOf(field).heading) + quoted(written) + "は日付ではありません。");
  return date ? date->text() : std::string();
}

int LineReader::order(const Line& line) {
  const std::string written = cell(line, Field::Order);
  if (written.empty()) return 0;
  const auto plain = numberCell(written);
  const double value = plain ? text::readNumber(*plain) : 0;
  if (value >= 1 && value <= mostBenchMarks && std::trunc(value) == value) return static_cast<int>(value);
  refuse(line, "順番" + quoted(written) + "は 1 から " + std::to_string(mostBenchMarks) +
                   " までの整数ではありません。");
  return 0;
}

void LineReader::readKeys(const Line& line, Observation& observation) {
  const auto take = [&](Field field, std::string& kept) {
    const std::string written = words(line, field);
    if (text::length(written) > keyWidth)
      refuse(line, std::string(infoOf(field).heading) + quoted(written) + "は 8 文字を超えます。");
    else if (!written.empty())
      kept = written;
    if (kept.empty()) refuse(line, std::string(infoOf(field).heading) + "がありません。");
    return kept;
  };
  observation.project = take(Field::Project, project_);
  observation.route = take(Field::Route, route_);
  const std::string written = cell(line, Field::Category);
  const auto code = written.empty() ? std::optional(category_) : categoryCell(written);
  if (code)
    category_ = *code;
  else
    refuse(line, "データ区分" + quoted(written) + "は 0 から 4 ではありません。");
  observation.category = category_;
}

Observation LineReader::read(const Line& line, std::vector<Refusal>& refusals) {
  refusals_ = &refusals;
  Observation observation;
  observation.line = line.number;
  readKeys(line, observation);
  observation.order = order(line);
  observation.benchMark = words(line, Field::BenchMark);
  if (observation.benchMark.empty()) refuse(line, "標石番号がありません。");
  observation.prefecture = words(line, Field::Prefecture);
  observation.county = words(line, Field::County);
  observation.town = words(line, Field::Town);
  observation.date = day(line, Field::Date);
  observation.distance = number(line, Field::Distance);
  if (text::readNumber(observation.distance) < 0) refuse(line, "距離が負です。");
  observation.difference = number(line, Field::Difference);
  observation.formerDate = day(line, Field::FormerDate);
  observation.formerDifference = number(line, Field::FormerDifference);
  observation.height = number(line, Field::Height);
  observation.remark = words(line, Field::Remark);
  const std::string end = cell(line, Field::End);
  const auto flag = endCell(end);
  if (!flag) refuse(line, "終点" + quoted(end) + "は -1、-2、空白のどれでもありません。");
  observation.end = flag.value_or("");
  return observation;
}

}  // namespace intake
