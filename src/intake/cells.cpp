#include "intake/cells.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "intake/block.h"
#include "text/error.h"
#include "text/number.h"
#include "text/width.h"

namespace intake {
namespace {

bool isFigure(char c) { return c >= '0' && c <= '9'; }

std::string plain(std::string_view cell) {
  return std::string(trimmedCell(text::halfWidth(trimmedCell(cell))));
}

/// True where commas stand between groups of three figures before the point, as in "-1,234,567.8".
bool thousandsParted(std::string_view number) {
  if (!number.empty() && (number.front() == '-' || number.front() == '+')) number.remove_prefix(1);
  number = number.substr(0, number.find_first_of(".eE"));
  std::size_t group = number.find(',');
  if (group == 0 || group > 3) return false;
  for (number.remove_prefix(group); !number.empty(); number.remove_prefix(4))
    if (number.size() < 4 || number[0] != ',' ||
        !std::all_of(number.begin() + 1, number.begin() + 4, isFigure))
      return false;
  return true;
}

/// An era's first year, by the letter and the words that a date begins with.
struct Era {
  const char* letter;
  const char* words;
  int yearBefore;  ///< the year before its first
};

constexpr std::array<Era, 5> eras = {{{"R", "令和", 2018},
                                      {"H", "平成", 1988},
                                      {"S", "昭和", 1925},
                                      {"T", "大正", 1911},
                                      {"M", "明治", 1867}}};

/// Takes the era off the front of a date; 0 where it names none.
int takeEra(std::string_view& date) {
  for (const Era& era : eras) {
    for (const std::string_view name : {std::string_view(era.letter), std::string_view(era.words)})
      if (date.starts_with(name)) {
        date.remove_prefix(name.size());
        return era.yearBefore;
      }
    if (!date.empty() && date.front() == era.letter[0] - 'A' + 'a') {
      date.remove_prefix(1);
      return era.yearBefore;
    }
  }
  return 0;
}

/// Takes up to four figures off the front, or "元" for 1; −1 where none stand there.
int takeNumber(std::string_view& rest) {
  constexpr std::string_view first = "元";
  if (rest.starts_with(first)) {
    rest.remove_prefix(first.size());
    return 1;
  }
  std::size_t count = 0;
  int number = 0;
  for (; count < 4 && count < rest.size() && isFigure(rest[count]); ++count)
    number = number * 10 + (rest[count] - '0');
  rest.remove_prefix(count);
  return count == 0 ? -1 : number;
}

/// The signs that stand after year, month and day of one way of writing a date.
using Signs = std::array<std::string_view, 3>;
constexpr std::array<Signs, 4> writings = {
    {{"/", "/", ""}, {"-", "-", ""}, {".", ".", ""}, {"年", "月", "日"}}};

std::optional<std::array<int, 3>> takeNumbers(std::string_view rest, const Signs& signs) {
  std::array<int, 3> numbers{};
  for (std::size_t i = 0; i < 3; ++i) {
    numbers[i] = takeNumber(rest);
    if (numbers[i] < 0 || !rest.starts_with(signs[i])) return std::nullopt;
    rest.remove_prefix(signs[i].size());
  }
  return rest.empty() ? std::optional(numbers) : std::nullopt;
}

std::optional<text::Date> dayOf(int year, int month, int day) {
  try {
    return text::Date(year, month, day);
  } catch (const text::RuntimeError&) {
    return std::nullopt;
  }
}

/// "20200105".
std::optional<text::Date> eightFigures(std::string_view date) {
  if (date.size() != 8 || !std::all_of(date.begin(), date.end(), isFigure)) return std::nullopt;
  const auto number = [date](std::size_t from, std::size_t count) {
    return static_cast<int>(text::readNumber(date.substr(from, count)));
  };
  return dayOf(number(0, 4), number(4, 2), number(6, 2));
}

/// The date without a time of day after it.
std::string_view withoutTime(std::string_view date) {
  const std::size_t blank = date.find(' ');
  const bool time = blank != std::string_view::npos && date.find(':', blank) != std::string_view::npos;
  return time ? date.substr(0, blank) : date;
}

}  // namespace

std::optional<std::string> numberCell(std::string_view cell) {
  std::string number = plain(cell);
  if (number.find(',') != std::string::npos) {
    if (!thousandsParted(number)) return std::nullopt;
    std::erase(number, ',');
  }
  return text::isNumeric(number) ? std::optional(std::move(number)) : std::nullopt;
}

std::optional<text::Date> dateCell(std::string_view cell) {
  const std::string written = plain(cell);
  std::string_view date = withoutTime(written);
  if (const auto day = eightFigures(date)) return day;
  const int before = takeEra(date);
  for (const Signs& signs : writings)
    if (const auto numbers = takeNumbers(date, signs)) {
      const auto [year, month, day] = *numbers;
      if (before == 0 && year < 1000) return std::nullopt;  // a year of two digits leaves room for a guess
      if (before != 0 && (year < 1 || year > 99)) return std::nullopt;
      return dayOf(before + year, month, day);
    }
  return std::nullopt;
}

std::optional<std::string> categoryCell(std::string_view cell) {
  const std::string code = plain(cell);
  const bool known = !code.empty() && code[0] >= '0' && code[0] <= '4';
  if (!known || (code.size() > 1 && code[1] != ':')) return std::nullopt;
  return code.substr(0, 1);
}

std::optional<std::string> endCell(std::string_view cell) {
  const std::string flag = plain(cell);
  if (flag.empty() || flag == "-1" || flag == "-2") return flag;
  if (flag == "終点" || flag == "終" || flag == "E") return "-1";
  if (flag == "再測" || flag == "往復") return "-2";
  return std::nullopt;
}

}  // namespace intake
