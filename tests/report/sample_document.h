#pragma once

#include <string>
#include <vector>

#include "report/document.h"

namespace test {

/// A table of `benchMarks` bench marks with a section row below each: names, heights (m), remarks.
inline report::Table routeTable(int benchMarks, const std::string& remark = {}) {
  report::Table table;
  table.columns = {{"水準点", "", report::Side::Left, false},
                   {"標高", "m", report::Side::Point, false},
                   {"備考", "", report::Side::Left, true}};
  for (int i = 1; i <= benchMarks; ++i) {
    table.rows.push_back({{"A" + std::to_string(i), std::to_string(100 + i) + ".1234", remark}, true, false});
    table.rows.push_back({{"", "1.0000"}, false, false});
  }
  if (!table.rows.empty()) table.rows.back().ruleBelow = true;
  return table;
}

/// A document of one part with that table.
inline report::Document routeDocument(int benchMarks, const std::string& remark = {}) {
  report::Document document;
  document.title = "正標高補正計算";
  document.fields = {{"作業名", "見本作業"}};
  document.parts.push_back({"", {{"路線番号", "01A00101"}}, {routeTable(benchMarks, remark)}});
  return document;
}

/// The texts on a page in the order in which they were put there.
inline std::vector<report::Words> wordsOn(const report::Drawing& page) {
  std::vector<report::Words> words;
  for (const report::Shape& shape : page.shapes)
    if (const auto* text = std::get_if<report::Words>(&shape)) words.push_back(*text);
  return words;
}

/// The text on a page that reads so; none (empty text) where there is none.
inline report::Words wordsThatRead(const report::Drawing& page, const std::string& text) {
  for (const report::Words& words : wordsOn(page))
    if (words.text == text) return words;
  return {};
}

}  // namespace test
