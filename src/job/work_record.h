#pragma once

#include <string>
#include <string_view>

namespace job {

/// A line of the record of the work (作業記録).
struct WorkEntry {
  std::string time;     ///< "2026/11/22 03:05:09"
  std::string job;      ///< "ジョブ 1"
  std::string screen;   ///< caption of the screen
  std::string route;    ///< what is open: "1001 01A00101"
  std::string what;     ///< "読込", "計算", "保存", "回答"
  std::string details;  ///< counts, how it ended
  int errors = 0;       ///< findings that were left when it was done
  int warnings = 0;
};

/// The name of the file that the record stands in.
constexpr std::string_view workRecordName = "作業記録.csv";

/// The first line of the record, with the mark by which spreadsheets know UTF-8.
std::string workHeading();

/// An entry as a line of CSV, its line end included. Line breaks within a text become blanks.
std::string workLine(const WorkEntry& entry);

}  // namespace job
