#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>

#include "exchange/copy.h"
#include "open/open.h"
#include "platform/files.h"
#include "sql/split_statements.h"
#include "support/postgres_server.h"

// Runs a command on a copy of a job in a PostgreSQL server that lives as long as the command:
//
//   postgres_job JOB.sqlite JOB.dsn STATEMENTS.sql COMMAND ARGUMENT …
//
// JOB.dsn is written; its file data source names the copy. STATEMENTS.sql, where there is such a file, holds
// what the copy does not bring over, such as a constraint in the place of a trigger. The exit status is that
// of the command, 77 where no server is installed.

namespace {

void carryOut(const std::string& statements, const std::string& path) {
  const auto database = db::openDatabase(path);
  for (const std::string& statement : db::splitStatements(platform::readFile(statements).value_or("")))
    database->execute(statement);
  database->close();
}

int run(char** arguments) {
  const pid_t child = fork();
  if (child == 0) {
    execv(arguments[0], arguments);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

}  // namespace

int main(int count, char** arguments) {
  constexpr int skipped = 77;
  if (count < 5) return 64;
  if (test::PostgresServer::programs().empty()) return skipped;
  try {
    test::PostgresServer server;
    std::ofstream(arguments[2]) << server.newDatabase();
    std::ostringstream progress;
    exchange::copyJob(arguments[1], arguments[2], false, progress);
    carryOut(arguments[3], arguments[2]);
    return run(arguments + 4);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
