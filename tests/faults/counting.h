#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string>

namespace test {

/// True where ./test runs with --long: the attacks are made whole, not a share of them.
inline bool isLong() { return std::getenv("SEIKAHYOU_LONG") != nullptr; }

/// How many cases a generator makes.
inline int share(int few, int all) { return isLong() ? all : few; }

/// Tells how many cases of a kind ("faults", "kills") the test has tried, in its output and in its report.
inline void tellCount(const std::string& kind, long long count) {
  testing::Test::RecordProperty(kind, std::to_string(count));
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  std::cout << "[ counted  ] " << test.test_suite_name() << "." << test.name() << ": " << count << " " << kind
            << std::endl;
}

}  // namespace test
