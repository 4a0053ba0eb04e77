#pragma once

#include <gtest/gtest.h>

#include <cstdio>

#include "support/postgres_server.h"

namespace test {

/// Runs the tests of a program that needs the PostgreSQL server; where the machine has none it says so and
/// passes, in the words by which CTest counts it as skipped. Returns the exit status.
inline int runServerTests(int count, char** arguments, bool needsServer = true) {
  if (needsServer && PostgresServer::programs().empty()) {
    std::puts("SKIPPED: no PostgreSQL server here (Debian: postgresql)");
    return 0;
  }
  testing::InitGoogleTest(&count, arguments);
  return RUN_ALL_TESTS();
}

}  // namespace test
