#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace test {

/// A connection to a database file beside the one under test, as another program would have it.
class OtherProgram {
 public:
  explicit OtherProgram(const std::string& path) {
    if (sqlite3_open(path.c_str(), &handle_) != SQLITE_OK) throw std::runtime_error("cannot open " + path);
  }
  ~OtherProgram() { sqlite3_close(handle_); }
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  void run(const std::string& sql) {
    if (sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
      throw std::runtime_error(sql + ": " + sqlite3_errmsg(handle_));
  }

  /// The first field of the first record as text; "none" where there is no record, "null" for Null.
  std::string ask(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
      throw std::runtime_error(sql + ": " + sqlite3_errmsg(handle_));
    std::string answer = "none";
    if (sqlite3_step(statement) == SQLITE_ROW) {
      const void* text = sqlite3_column_text(statement, 0);
      answer = text == nullptr ? "null" : static_cast<const char*>(text);
    }
    sqlite3_finalize(statement);
    return answer;
  }

 private:
  sqlite3* handle_ = nullptr;
};

}  // namespace test
