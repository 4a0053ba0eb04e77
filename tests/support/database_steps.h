#pragma once

#include <memory>
#include <string>

#include "db/database.h"

// What the tests of every engine do and ask alike.

namespace test {

/// The description of the db::Error that `act` raises, or "no error".
template <typename Act>
std::string failure(Act act) {
  try {
    act();
  } catch (const db::Error& error) {
    return error.what();
  }
  return "no error";
}

inline bool holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// Adds a record of job "1" with the number `n` to records of a table T(JobId, n).
inline void add(db::Recordset& records, double n) {
  records.addNew();
  records.set("JobId", "1");
  records.set("n", n);
  records.update();
}

/// The records of job "1" in the table T, all deleted.
inline std::unique_ptr<db::Recordset> deleted(db::Database& database) {
  auto records = database.openRecordset("SELECT * FROM T WHERE JobId ='1'", db::Access::Edit);
  for (; !records->eof(); records->moveNext()) records->remove();
  return records;
}

}  // namespace test
