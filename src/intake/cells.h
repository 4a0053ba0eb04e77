#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/date.h"

namespace intake {

/// The plain decimal text of a number as a spreadsheet shows it: full-width figures count, commas between
/// thousands go ("1,234.5" is "1234.5"). Nothing where the cell is no number. The digits stay as they are:
/// "12.500" is "12.500".
std::optional<std::string> numberCell(std::string_view cell);

/// The day of a cell in one of the usual forms: "2020/1/5", "2020-01-05", "2020.1.5", "20200105",
/// "2020年1月5日", and with Japanese eras "令和2年1月5日", "令和元年5月1日", "R2.1.5", "H31/4/30", "S60.1.1".
/// Full-width figures count; a time of day after it ("2020/1/5 0:00", as spreadsheets add one) does not.
/// Nothing where the cell is no such date.
std::optional<text::Date> dateCell(std::string_view cell);

/// The code of a data category, "0" to "4": the code itself or a text that begins with it and a colon.
std::optional<std::string> categoryCell(std::string_view cell);

/// The route flag of a cell: "" for a blank one, "-1" for "-1", "終点", "終" and "E", "-2" for "-2", "再測"
/// and "往復". Nothing for another text.
std::optional<std::string> endCell(std::string_view cell);

}  // namespace intake
