#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace sample {

/// The place of a bench mark; "" is stored as Null.
struct Place {
  std::string prefecture;  ///< 都道府県
  std::string county;      ///< 郡市
  std::string town;        ///< 町村
};

/// A bench mark as it was observed, with the section that starts there. Where nothing is held, Null is
/// stored.
struct Mark {
  std::string number;
  std::optional<std::string> height;            ///< known height as stored (m)
  std::optional<int> metres;                    ///< length of the section (m)
  std::optional<long long> difference;          ///< mean height difference of the section (0.1 mm)
  std::string flag;                             ///< "-1", "-2" or ""
  std::string date;                             ///< observation date as stored
  std::string previousDate;                     ///< date of the epoch before, "" at a newly established point
  std::optional<long long> previousDifference;  ///< mean height difference of the epoch before (0.1 mm)
  std::string remark;
  Place place;
  bool uncategorised = false;  ///< the record has no data category
};

/// The bench marks that are stored under one route number and data category.
struct Route {
  std::string jobId;
  std::string project;  ///< project number as stored
  std::string number;   ///< 8 characters
  std::string category;
  int firstSaveOrder = 1;  ///< routes of a family are numbered through
  std::vector<Mark> marks;
};

/// The unit of stored heights and differences: 0.1 mm for first grade, 1 mm otherwise.
struct Precision {
  explicit Precision(int grade) : decimals(grade == 1 ? 4 : 3), unit(grade == 1 ? 1 : 10) {}

  int decimals;    ///< of a height in metres
  long long unit;  ///< in 0.1 mm
};

/// A height (0.1 mm) as text in metres.
std::string heightText(long long height, Precision precision);

enum class DateForm {
  Plain,   ///< YYYYMMDD
  Slashed  ///< YYYY/MM/DD
};

/// A day as text.
std::string dateText(std::chrono::sys_days day, DateForm form);

}  // namespace sample
