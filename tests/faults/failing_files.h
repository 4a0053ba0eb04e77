#pragma once

#include <cstdint>

namespace test {

/// What SQLite asks of the system for a job's files and for memory.
enum class Call { Open, Read, Write, Truncate, Sync, Size, Lock, Delete, Access, Memory };

/// Which calls fail, and how.
struct Fault {
  Call call = Call::Read;
  int code = 0;          ///< SQLite's result code; for Memory it is of no account
  bool onwards = false;  ///< every later call of the kind fails as well
  bool kills = false;    ///< the call never returns: the process is killed instead
  int given = 0;         ///< percent of the bytes that a short read gives
};

/// From its making to its end SQLite reaches files and memory through calls that can be made to fail. One at
/// a time; none of its connections may outlive it.
class FailingFiles {
 public:
  FailingFiles();
  ~FailingFiles();
  FailingFiles(const FailingFiles&) = delete;
  FailingFiles& operator=(const FailingFiles&) = delete;

  /// The k-th call of the fault's kind from here on fails, counted from 1.
  void arm(const Fault& fault, std::int64_t k);
  /// No call fails any more. Returns whether one has failed since arm.
  bool disarm();
};

}  // namespace test
