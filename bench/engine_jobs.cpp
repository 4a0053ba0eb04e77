#include "engine_jobs.h"

#include <fstream>
#include <stdexcept>

#include "open/open.h"
#ifdef SEIKAHYOU_MEASURE_POSTGRES
#include <sstream>

#include "bare_postgres.h"
#include "exchange/copy.h"
#include "support/postgres_server.h"
#endif

namespace bench {
namespace {

/// Writes a file data source; returns its path.
std::string written(const std::string& path, const std::string& content) {
  std::ofstream(path, std::ios::binary) << content;
  return path;
}

}  // namespace

EngineJob sqliteOverOdbc(const Job& job, const std::string& folder) {
  EngineJob result{job, 6, 7};
  result.job.path = written(folder + "/sqlite.dsn", "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + job.path + "\n");
  db::openDatabase(result.job.path)->close();
  return result;
}

#ifdef SEIKAHYOU_MEASURE_POSTGRES

EngineJob onPostgres(const Job& job, const std::string& folder) {
  if (test::PostgresServer::programs().empty())
    throw std::runtime_error("no PostgreSQL server here (Debian: postgresql)");
  const auto server = std::make_shared<test::PostgresServer>();
  const std::string source = server->newDatabase();
  const Job copy{written(folder + "/postgres.dsn", source), job.benchMarks,
                 [server, source] { return std::make_unique<BarePostgres>(source); }};
  std::ostringstream progress;
  exchange::copyJob(job.path, copy.path, false, progress);
  // A server in use does so by itself, a minute after the copy.
  const auto database = db::openDatabase(copy.path);
  database->execute("ANALYZE");
  database->close();
  return {copy, 5, 3};
}

#else

EngineJob onPostgres(const Job&, const std::string&) {
  throw std::runtime_error("built without libpq or ODBC (Debian: libpq-dev, unixodbc-dev)");
}

#endif

}  // namespace bench
