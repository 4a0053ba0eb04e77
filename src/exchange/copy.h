#pragma once

#include <iosfwd>
#include <string>

namespace exchange {

/// Copies every job table of the database `from` into the database `to`, which is made (an SQLite file) where
/// nothing stands there. All of it is one commit; each table is read again before it. A line for each table
/// goes to `progress`: its name and its records, or that `from` lacks it and it was left out.
///
/// Raises db::Error where both are the same, where `from` has no job table at all, where `to` holds records
/// already and `over` is false, and where a record cannot be written exactly as it is: then the error names
/// table and record, `to` stays what it was, and a file that was made is gone again.
void copyJob(const std::string& from, const std::string& to, bool over, std::ostream& progress);

}  // namespace exchange
