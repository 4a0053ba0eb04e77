#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "report/document.h"
#include "report/progress.h"

namespace report {

/// Somebody who has saved results beside those that are shown: the screen of a correction.
class SavedResults {
 public:
  virtual ~SavedResults() = default;

  /// The saved routes of the category and project that are chosen on the page of the selection, each family
  /// once.
  virtual std::vector<std::string> savedRoutes() const = 0;

  /// These of the saved routes (by their places in savedRoutes) in one document, in their order. Raises
  /// RuntimeError where one cannot be read, Cancelled.
  virtual Document savedDocument(const std::vector<std::size_t>& routes, const Progress& progress) const = 0;

  /// True where there are heights to list.
  virtual bool hasResultList() const = 0;
  /// The projects that have saved results. Raises db::Error.
  virtual std::vector<std::string> resultProjects() const = 0;
  /// The project that is chosen on the page of the selection, "" for none.
  virtual std::string chosenProject() const = 0;
  /// The results list of a project, "" for all of them. Raises RuntimeError where a route cannot be read,
  /// Cancelled.
  virtual Document resultList(const std::string& project, const Progress& progress) const = 0;
};

}  // namespace report
