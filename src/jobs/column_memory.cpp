#include "jobs/column_memory.h"

#include <utility>

#include "jobs/settings_key.h"
#include "platform/settings.h"

namespace jobs {
namespace {

constexpr const char* prefix = "column.";
constexpr const char* none = "-";
constexpr char between = '\t';

/// A column has one field and a field one column: who comes last wins.
void put(intake::Matching& matching, std::size_t column, const std::string& heading,
         std::optional<intake::Field> field) {
  std::erase_if(matching, [column](const auto& one) { return one.second.column == column; });
  if (field) matching[*field] = intake::sourceByHand(*field, column, heading);
}

}  // namespace

ColumnMemory::ColumnMemory(std::string settingsFile) : file_(std::move(settingsFile)) {}

intake::Matching ColumnMemory::match(const std::vector<std::string>& headings) const {
  const platform::Settings settings(file_);
  intake::Matching matching = intake::matchByName(headings);
  for (std::size_t column = 0; column < headings.size(); ++column) {
    const std::string& heading = headings[column];
    const std::string told = settings.text(settingsKey(prefix, heading));
    const std::size_t end = told.find(between);
    if (end == std::string::npos || told.substr(end + 1) != heading) continue;
    const auto field = intake::fieldNamed(told.substr(0, end));
    if (field || told.substr(0, end) == none) put(matching, column, heading, field);
  }
  return matching;
}

void ColumnMemory::remember(const std::string& heading, std::optional<intake::Field> field) {
  platform::Settings(file_).set(settingsKey(prefix, heading),
                                (field ? intake::infoOf(*field).heading : none) + (between + heading));
}

}  // namespace jobs
