#pragma once

#include <string>
#include <vector>

#include "job/context.h"
#include "report/document.h"
#include "route/selection.h"

namespace route {

/// A bench mark of a saved route, as the screen of its calculation shows it when the route is opened.
struct Result {
  std::string project;
  std::string route;
  std::string category;  ///< its code
  std::string benchMark;
  std::string height;  ///< m, in the decimals of the grade; "" for none
  std::string remark;
};

/// The saved routes of a result table: of a project, or of all where it is "". In the order of project, route
/// and category as texts, each family once. Raises db::Error.
std::vector<Selection> savedSelections(const job::JobContext& context, const std::string& table,
                                       const std::string& project);

/// The projects that have saved routes in a result table, in their order as texts. Raises db::Error.
std::vector<std::string> savedProjects(const job::JobContext& context, const std::string& table);

/// The results list (成果一覧): the bench marks of saved routes in route order, each with its place, height
/// and remark.
///
/// A bench mark that is on several routes, or several times on one, stands once, where it comes first with a
/// height. Where another of its heights differs it carries a mark, and a second table lists all heights of
/// such bench marks and how much they differ from the first one (mm). `calculation`: its name. `project`: of
/// which the results are, "" for all. Raises db::Error.
report::Document resultList(const job::JobContext& context, const std::string& calculation,
                            const std::string& project, const std::vector<Result>& results);

}  // namespace route
