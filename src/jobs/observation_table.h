#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "intake/plan.h"
#include "intake/store.h"
#include "jobs/column_memory.h"

namespace jobs {

/// A table of observations that is about to be taken into a job: its cells, which column is which, what would
/// be stored and what cannot be. Whatever is changed in it is thought over at once.
class ObservationTable {
 public:
  /// `path`, `jobId`: the job that takes them. `settingsFile`: where matches made by hand are remembered.
  ObservationTable(std::string path, std::string jobId, std::string settingsFile);

  /// Takes the block that a spreadsheet has put on the clipboard (UTF-8). Raises text::RuntimeError where
  /// it is none; the table is what it was then.
  void readText(std::string_view text);
  /// Takes a CSV file, in UTF-8 or else in CP932. Raises text::RuntimeError as readText does.
  void readFile(const std::string& file);

  const std::vector<std::string>& headings() const { return block_.headings.cells; }
  const std::vector<intake::Line>& lines() const { return block_.lines; }
  /// "" for a cell that the line does not have.
  std::string cell(std::size_t line, std::size_t column) const;
  void setCell(std::size_t line, std::size_t column, std::string text);

  /// The field that a column is read as.
  std::optional<intake::Field> fieldOf(std::size_t column) const;
  /// The operator matches a column; it is remembered for tables to come.
  void match(std::size_t column, std::optional<intake::Field> field);

  /// What every line shares where the table has no column for it.
  const intake::Defaults& defaults() const { return defaults_; }
  void setDefaults(std::string project, std::string route, std::string category);

  const intake::Plan& plan() const { return plan_; }
  /// Why a line cannot be taken; "" where it can.
  std::string refusal(std::size_t line) const;
  /// The first line behind `line` that cannot be taken, going round at the end; nothing where all can.
  std::optional<std::size_t> nextRefused(std::optional<std::size_t> line) const;
  /// What is to be said about all of it, in Japanese, a sentence each: what cannot be taken at all, what is
  /// made, what the job holds already.
  std::vector<std::string> remarks() const;
  bool canBeStored() const { return plan_.refusals.empty() && !plan_.observations.empty(); }

  /// Routes of the table for which the job holds observations. Raises db::Error.
  std::vector<intake::ExistingRoute> existing() const;
  /// Stores all of it or, raising db::Error, nothing. Returns how many observations were stored.
  std::int64_t store(bool replace) const;

 private:
  void think();

  std::string path_;
  ColumnMemory memory_;
  intake::Block block_;
  intake::Matching matching_;
  intake::Defaults defaults_;
  intake::Plan plan_;
  std::unordered_map<std::size_t, std::string> refusals_;  ///< by the number of the line
};

}  // namespace jobs
