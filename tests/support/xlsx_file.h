#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "support/zip_file.h"

namespace test {

/// A cell of a spreadsheet as its file holds it.
struct XlsxCell {
  std::string text;  ///< words, or a number as it is written
  bool isNumber = false;
  std::string formula;  ///< "" for none
  std::string format;   ///< number format; "" for none of its own
};

/// A spreadsheet file, read back.
class XlsxFile {
 public:
  /// `bytes`: the whole file.
  explicit XlsxFile(std::string_view bytes) : zip_(bytes) {
    strings_ = texts(zip_.file("xl/sharedStrings.xml"), "si");
    const std::string styles = zip_.file("xl/styles.xml");
    for (const std::string& format : elements(styles, "numFmt"))
      numberFormats_[attribute(format, "numFmtId")] = unescaped(attribute(format, "formatCode"));
    const std::size_t cells = styles.find("<cellXfs");
    for (const std::string& style : elements(styles.substr(cells, styles.find("</cellXfs>") - cells), "xf"))
      styles_.push_back(attribute(style, "numFmtId"));
    for (const std::string& sheet : elements(zip_.file("xl/workbook.xml"), "sheet"))
      names_.push_back(unescaped(attribute(sheet, "name")));
  }

  const std::vector<std::string>& sheets() const { return names_; }

  /// The whole XML text of a sheet, counted from 1.
  std::string xml(int sheet) const {
    return zip_.file("xl/worksheets/sheet" + std::to_string(sheet) + ".xml");
  }

  /// The cells of a sheet, by names such as "B5".
  std::map<std::string, XlsxCell> cells(int sheet) const {
    std::map<std::string, XlsxCell> result;
    const std::string all = xml(sheet);
    for (const std::string& element : elements(all, "c")) result[attribute(element, "r")] = cell(element);
    return result;
  }

 private:
  XlsxCell cell(const std::string& element) const {
    XlsxCell made;
    const std::string value = content(element, "v");
    made.isNumber = attribute(element, "t").empty() && !value.empty();
    made.text = attribute(element, "t") == "s" ? strings_.at(std::stoul(value)) : value;
    made.formula = unescaped(content(element, "f"));
    const std::string style = attribute(element, "s");
    if (!style.empty()) made.format = formatOf(styles_.at(std::stoul(style)));
    return made;
  }

  /// Of the formats that every spreadsheet knows, two are used.
  std::string formatOf(const std::string& id) const {
    if (id == "1") return "0";
    if (id == "2") return "0.00";
    if (id == "11") return "0.00E+00";
    const auto found = numberFormats_.find(id);
    return found == numberFormats_.end() ? std::string() : found->second;
  }

  /// The elements of that name, each from its "<" on to its end.
  static std::vector<std::string> elements(const std::string& xml, const std::string& name) {
    std::vector<std::string> result;
    for (std::size_t at = 0; (at = xml.find("<" + name, at)) != std::string::npos;) {
      const char next = xml[at + name.size() + 1];
      const std::size_t head = xml.find('>', at);
      if (next != ' ' && next != '>' && next != '/') {
        ++at;
        continue;
      }
      const bool single = xml[head - 1] == '/';
      const std::size_t end = single ? head + 1 : xml.find("</" + name + ">", at) + name.size() + 3;
      result.push_back(xml.substr(at, end - at));
      at = single || name != "si" ? head : end;
    }
    return result;
  }

  static std::string attribute(const std::string& element, const std::string& name) {
    const std::size_t at = element.substr(0, element.find('>')).find(" " + name + "=\"");
    if (at == std::string::npos) return {};
    const std::size_t start = at + name.size() + 3;
    return element.substr(start, element.find('"', start) - start);
  }

  static std::string content(const std::string& element, const std::string& name) {
    const std::size_t at = element.find("<" + name + ">");
    if (at == std::string::npos) return {};
    const std::size_t start = at + name.size() + 2;
    return element.substr(start, element.find("</" + name + ">", start) - start);
  }

  static std::vector<std::string> texts(const std::string& xml, const std::string& name) {
    std::vector<std::string> result;
    for (const std::string& element : elements(xml, name)) {
      const std::size_t start = element.find('>', element.find("<t")) + 1;
      result.push_back(unescaped(element.substr(start, element.find("</t>") - start)));
    }
    return result;
  }

  static std::string unescaped(std::string text) {
    const std::map<std::string, std::string> names = {
        {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};
    for (const auto& [name, character] : names)
      for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += character.size())
        text.replace(at, name.size(), character);
    return text;
  }

  ZipFile zip_;
  std::vector<std::string> strings_;
  std::map<std::string, std::string> numberFormats_;
  std::vector<std::string> styles_;
  std::vector<std::string> names_;
};

}  // namespace test
