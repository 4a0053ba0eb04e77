#pragma once

#include <string>
#include <string_view>

namespace db {

/// A piece of SQL that stands in the program's own source. Only literals become one, so nothing that an
/// operator has typed or a database holds can.
class SourceText {
 public:
  consteval SourceText(const char* text) : text_(text) {}
  constexpr std::string_view text() const { return text_; }

 private:
  std::string_view text_;
};

/// The text of a statement or of a piece of one, put together of what stands in the source, names and values:
///
///     Sql("SELECT * FROM ") + sqlName(table) + " WHERE 路線番号 =" + sqlValue(route)
///
/// No plain string becomes a part of it: a value is quoted by sqlValue, a name tested by sqlName.
class Sql {
 public:
  Sql() = default;
  Sql(SourceText text) : text_(text.text()) {}

  const std::string& text() const { return text_; }
  operator std::string_view() const { return text_; }

  Sql& operator+=(const Sql& more) {
    text_ += more.text_;
    return *this;
  }
  bool operator==(const Sql& other) const = default;
  bool operator==(std::string_view other) const { return text_ == other; }

 private:
  friend Sql sqlName(std::string_view name);
  friend Sql sqlValue(std::string_view value);

  std::string text_;
};

inline Sql operator+(Sql first, const Sql& second) { return first += second; }
inline Sql operator+(Sql first, SourceText second) { return first += Sql(second); }
inline Sql operator+(SourceText first, const Sql& second) { return Sql(first) += second; }

/// The name of a table or column that a variable holds, written as it is. Raises std::invalid_argument where
/// it would have to be quoted: names of the survey suite are letters, digits, "_" and characters outside
/// ASCII.
Sql sqlName(std::string_view name);

/// A value in single quotes, its own quotes doubled (see literal): whatever it holds is that text and nothing
/// else.
Sql sqlValue(std::string_view value);

}  // namespace db
