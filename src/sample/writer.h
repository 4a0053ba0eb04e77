#pragma once

#include <string>
#include <vector>

#include "db/database.h"
#include "sample/route.h"

namespace sample {

/// A job as table JobData holds it.
struct Job {
  std::string id;
  std::string title;
  int grade;
  bool executed;  ///< chosen for execution (JikkouFlg)
};

// Each of these adds records to the tables of an open, writable job database and raises db::Error.

/// JobData, the heading texts and the lists of observers, instruments and staffs.
void writeJobs(db::Database& database, const std::vector<Job>& jobs);

/// The data folder; `exeDir` ends in "\".
void writeDataFolder(db::Database& database, const std::string& exeDir);

/// Observation results, SaveOrder running along each route.
void writeRoutes(db::Database& database, const std::vector<Route>& routes);

/// The forward and backward runs from which the mean differences of `routes` come.
void writeRuns(db::Database& database, const std::vector<Route>& routes, Precision precision);

/// Computed sections of two routes of the small project, for the list of reference values of the ellipsoidal
/// correction.
void writeReferenceSections(db::Database& database, const std::string& jobId);

}  // namespace sample
