#include "jobs/observation_table.h"

#include <algorithm>
#include <utility>

#include "open/open.h"
#include "platform/files.h"
#include "platform/text_encoding.h"
#include "text/error.h"

namespace jobs {
namespace {

[[noreturn]] void refuse(const std::string& words) {
  throw text::RuntimeError(text::ErrorCode::FileNotFound, words);
}

std::string decoded(const std::string& file) {
  const auto bytes = platform::isFile(file) ? platform::readFile(file) : std::nullopt;
  if (!bytes) refuse("ファイル「" + file + "」を読み込めません。");
  for (const auto encoding : {platform::Encoding::Utf8, platform::Encoding::Cp932})
    if (auto text = platform::decoded(*bytes, encoding)) return *text;
  refuse("ファイル「" + file +
         "」は文字のファイルではありません。Excel のファイルなら、Excel で範囲をコピーするか、CSV "
         "で保存してください。");
}

}  // namespace

ObservationTable::ObservationTable(std::string path, std::string jobId, std::string settingsFile)
    : path_(std::move(path)), memory_(std::move(settingsFile)) {
  defaults_.jobId = std::move(jobId);
  plan_.jobId = defaults_.jobId;
}

void ObservationTable::readText(std::string_view text) {
  block_ = intake::readBlock(text);
  matching_ = memory_.match(block_.headings.cells);
  think();
}

void ObservationTable::readFile(const std::string& file) { readText(decoded(file)); }

std::string ObservationTable::cell(std::size_t line, std::size_t column) const {
  const std::vector<std::string>& cells = block_.lines[line].cells;
  return column < cells.size() ? cells[column] : std::string();
}

void ObservationTable::setCell(std::size_t line, std::size_t column, std::string text) {
  std::vector<std::string>& cells = block_.lines[line].cells;
  if (column >= cells.size()) cells.resize(column + 1);
  cells[column] = std::string(intake::trimmedCell(text));
  think();
}

std::optional<intake::Field> ObservationTable::fieldOf(std::size_t column) const {
  for (const auto& [field, source] : matching_)
    if (source.column == column) return field;
  return std::nullopt;
}

void ObservationTable::match(std::size_t column, std::optional<intake::Field> field) {
  memory_.remember(headings()[column], field);
  std::erase_if(matching_, [column](const auto& one) { return one.second.column == column; });
  if (field) matching_[*field] = intake::sourceByHand(*field, column, headings()[column]);
  think();
}

void ObservationTable::setDefaults(std::string project, std::string route, std::string category) {
  defaults_.project = std::string(intake::trimmedCell(project));
  defaults_.route = std::string(intake::trimmedCell(route));
  defaults_.category = std::move(category);
  think();
}

void ObservationTable::think() {
  if (headings().empty()) return;
  plan_ = intake::planObservations(block_, matching_, defaults_);
  refusals_.clear();
  for (const intake::Refusal& refusal : plan_.refusals) {
    std::string& words = refusals_[refusal.line];
    words += (words.empty() ? "" : " ") + refusal.why;
  }
}

std::string ObservationTable::refusal(std::size_t line) const {
  const auto found = refusals_.find(block_.lines[line].number);
  return found == refusals_.end() ? std::string() : found->second;
}

std::optional<std::size_t> ObservationTable::nextRefused(std::optional<std::size_t> line) const {
  const std::size_t count = block_.lines.size();
  const std::size_t from = line ? *line + 1 : 0;
  for (std::size_t step = 0; step < count; ++step)
    if (const std::size_t at = (from + step) % count; !refusal(at).empty()) return at;
  return std::nullopt;
}

std::vector<std::string> ObservationTable::remarks() const {
  std::vector<std::string> remarks;
  if (headings().empty()) return remarks;
  for (const intake::Refusal& refusal : plan_.refusals)
    if (refusal.line == block_.headings.number) remarks.push_back(refusal.why);
  if (block_.lines.empty())
    remarks.emplace_back("見出しの下に行がありません。1 行目は見出しとして読みます。");
  remarks.insert(remarks.end(), plan_.remarks.begin(), plan_.remarks.end());
  return remarks;
}

std::vector<intake::ExistingRoute> ObservationTable::existing() const {
  const auto database = db::openDatabase(path_);
  auto routes = intake::existingRoutes(*database, plan_);
  database->close();
  return routes;
}

std::int64_t ObservationTable::store(bool replace) const {
  return intake::storeObservations(path_, plan_, replace);
}

}  // namespace jobs
