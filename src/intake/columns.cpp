#include "intake/columns.h"

#include <algorithm>

#include "intake/block.h"
#include "text/width.h"

namespace intake {
namespace {

/// Other names of fields, as offices write them; without blanks, in lower case.
const std::map<std::string, Field, std::less<>>& otherNames() {
  static const std::map<std::string, Field, std::less<>> names{{"事業", Field::Project},
                                                               {"路線", Field::Route},
                                                               {"路線名", Field::Route},
                                                               {"datakubun", Field::Category},
                                                               {"データ形式", Field::Category},
                                                               {"区分", Field::Category},
                                                               {"saveorder", Field::Order},
                                                               {"順", Field::Order},
                                                               {"no", Field::Order},
                                                               {"水準点", Field::BenchMark},
                                                               {"水準点番号", Field::BenchMark},
                                                               {"点名", Field::BenchMark},
                                                               {"点番号", Field::BenchMark},
                                                               {"市郡", Field::County},
                                                               {"市町村", Field::Town},
                                                               {"観測日", Field::Date},
                                                               {"観測年月", Field::Date},
                                                               {"比高", Field::Difference},
                                                               {"観測比高", Field::Difference},
                                                               {"平均比高", Field::Difference},
                                                               {"前回観測年月日", Field::FormerDate},
                                                               {"前回比高", Field::FormerDifference},
                                                               {"高さ", Field::Height},
                                                               {"既知標高", Field::Height},
                                                               {"摘要", Field::Remark},
                                                               {"rosenenddataflg", Field::End},
                                                               {"終端", Field::End},
                                                               {"路線終端", Field::End}};
  return names;
}

/// A heading apart from its unit.
struct Name {
  std::string words;
  std::string unit;
};

std::string folded(std::string_view heading) {
  std::string result;
  for (const char c : text::halfWidth(heading)) {
    if (c == ' ' || c == '\n' || c == '\r') continue;
    result += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return result;
}

/// Cuts "距離(km)" and "距離[km]" into "距離" and "km".
Name apart(std::string_view heading) {
  Name name{folded(heading), {}};
  const std::size_t open = name.words.find_first_of("([");
  if (open == std::string::npos) return name;
  const std::size_t close = name.words.find_first_of(")]", open);
  name.unit = name.words.substr(open + 1, close == std::string::npos ? close : close - open - 1);
  name.words.resize(open);
  return name;
}

std::optional<double> metresIn(std::string_view unit) {
  if (unit == "km") return 1000;
  if (unit == "m") return 1;
  if (unit == "mm") return 0.001;
  return std::nullopt;
}

/// What a number under `unit` is divided by to be one in the field's own; nothing for a unit that does not
/// fit.
std::optional<double> divisorOf(const FieldInfo& info, const std::string& unit) {
  if (unit.empty() || unit == info.unit) return 1;
  const auto own = metresIn(info.unit);
  const auto given = metresIn(unit);
  if (!own || !given) return std::nullopt;
  return *own / *given;
}

}  // namespace

const std::vector<FieldInfo>& fields() {
  static const std::vector<FieldInfo> all{
      {Field::Project, Reading::Key, "事業番号", "事業番号", ""},
      {Field::Route, Reading::Key, "路線番号", "路線番号", ""},
      {Field::Category, Reading::Category, "DataKubun", "データ区分", ""},
      {Field::Order, Reading::Order, "SaveOrder", "順番", ""},
      {Field::BenchMark, Reading::Text, "標石番号", "標石番号", ""},
      {Field::Prefecture, Reading::Text, "都道府県", "都道府県", ""},
      {Field::County, Reading::Text, "郡市", "郡市", ""},
      {Field::Town, Reading::Text, "町村", "町村", ""},
      {Field::Date, Reading::Day, "観測年月日", "観測年月日", ""},
      {Field::Distance, Reading::Number, "距離", "距離", "km"},
      {Field::Difference, Reading::Number, "中数", "中数", "m"},
      {Field::FormerDate, Reading::Day, "前回観測日", "前回観測日", ""},
      {Field::FormerDifference, Reading::Number, "前回中数", "前回中数", "m"},
      {Field::Height, Reading::Number, "標高", "標高", "m"},
      {Field::Remark, Reading::Text, "備考", "備考", ""},
      {Field::End, Reading::End, "RosenEndDataFlg", "終点", ""}};
  return all;
}

const FieldInfo& infoOf(Field field) {
  return *std::find_if(fields().begin(), fields().end(),
                       [field](const FieldInfo& info) { return info.field == field; });
}

std::optional<Field> fieldNamed(std::string_view name) {
  const std::string words = apart(name).words;
  for (const FieldInfo& info : fields())
    if (words == info.heading) return info.field;
  const auto other = otherNames().find(words);
  return other == otherNames().end() ? std::nullopt : std::optional(other->second);
}

Source sourceByHand(Field field, std::size_t column, std::string_view heading) {
  return {column, divisorOf(infoOf(field), apart(heading).unit).value_or(1)};
}

Matching matchByName(const std::vector<std::string>& headings) {
  Matching matching;
  for (std::size_t column = 0; column < headings.size(); ++column) {
    const auto field = fieldNamed(headings[column]);
    if (!field || matching.contains(*field)) continue;
    if (const auto divisor = divisorOf(infoOf(*field), apart(headings[column]).unit))
      matching[*field] = {column, *divisor};
  }
  return matching;
}

}  // namespace intake
