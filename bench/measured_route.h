#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "job/context.h"
#include "measure.h"
#include "quiet_desktop.h"
#include "route/selection.h"
#include "ui/grid.h"

namespace bench {

/// The measuring job's only route and a grid to lay it in: what the measures of every calculation stand on.
struct MeasuredRoute {
  /// Starts up on the job; the grid gets `columns` columns.
  MeasuredRoute(const Job& job, int columns);

  /// Empties the grid down to one header row and one empty row.
  void clear();

  /// " WHERE …": the keys of the route, for a table whose columns carry `prefix` ("S.").
  std::string keys(std::string_view prefix = {}) const;

  QuietDesktop desktop;
  job::JobContext context;
  route::Selection selection;
  ui::Grid grid;

 private:
  int columns_;
};

/// The bare side of a load: reads every column of every record that `sql` selects.
std::function<void()> bareReading(const Job& job, const std::string& sql);

/// The bare side of a save: deletes the records of `table` that `conditions` (" WHERE …") select and inserts
/// them again, in one transaction. They are taken from the table now: save first.
std::function<void()> bareReplacing(const Job& job, const std::string& table, const std::string& conditions);

/// Works the orthometric correction on the measuring route and saves it, as a book needs it.
void saveOrthometricResults(const Job& job);

}  // namespace bench
