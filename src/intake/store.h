#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "db/database.h"
#include "intake/plan.h"

namespace intake {

/// A route of a plan for which the job holds observations already.
struct ExistingRoute {
  PlannedRoute route;        ///< with the bench marks of the plan
  std::int64_t records = 0;  ///< that the job holds
};

/// The routes of `plan` for which the open job holds observations, in the plan's order. Raises db::Error.
std::vector<ExistingRoute> existingRoutes(db::Database& database, const Plan& plan);

/// The job that the open database marks for execution; "" where none is or several are. Raises db::Error.
std::string executedJob(db::Database& database);

/// Stores the observations of a plan without refusals in the job at `path`, all in one commit; those that the
/// job holds for a route of the plan go first where `replace` is set. Returns how many were stored. Raises
/// db::Error, naming the line, for a plan with refusals, for a route that is there already without `replace`,
/// and where the database refuses a record; nothing is stored then.
std::int64_t storeObservations(const std::string& path, const Plan& plan, bool replace);

/// What a plan would store, in Japanese, a line each: routes and bench marks, remarks, refusals ("3 行目:
/// …").
std::vector<std::string> described(const Plan& plan);

}  // namespace intake
