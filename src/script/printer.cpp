#include "script/printer.h"

#include <algorithm>

namespace script {
namespace {

/// The text with the characters that would break a line written as escapes; `also` is one more of them.
std::string withEscapes(std::string_view text, char also) {
  std::string result;
  for (const char c : text) {
    if (c == '\t') {
      result += "\\t";
    } else if (c == '\n') {
      result += "\\n";
    } else {
      if (c == '\\' || c == also) result += '\\';
      result += c;
    }
  }
  return result;
}

void printItems(std::ostream& out, const Reading& reading) {
  out << reading.items.size() << " items, current " << reading.current << '\n';
  for (std::size_t i = 0; i < reading.items.size(); ++i)
    out << "  " << i << ' ' << quoted(reading.items[i]) << '\n';
}

void printGrid(std::ostream& out, const Reading& reading) {
  out << reading.rows << " rows, " << reading.cols << " columns, current " << reading.row << ','
      << reading.col << " to " << reading.rowSel << ',' << reading.colSel << '\n';
  for (int row = 0; row < reading.rows; ++row) {
    out << row;
    for (int col = 0; col < reading.cols; ++col) out << '\t' << withEscapes(reading.cell(row, col), '\\');
    out << '\n';
  }
}

std::string_view iconName(ui::Icon icon) {
  switch (icon) {
    case ui::Icon::Information:
      return "information";
    case ui::Icon::Critical:
      return "critical";
    case ui::Icon::None:
      break;
  }
  return "none";
}

}  // namespace

std::string quoted(std::string_view text) { return '"' + withEscapes(text, '"') + '"'; }

void printReading(std::ostream& out, std::string_view name, const Reading& reading) {
  out << name << ": ";
  switch (reading.kind) {
    case ui::Kind::OptionButton:
      out << (reading.on ? "on " : "off ") << quoted(reading.text) << '\n';
      return;
    case ui::Kind::ListBox:
    case ui::Kind::ComboBox:
      return printItems(out, reading);
    case ui::Kind::TabControl:
      out << "page " << reading.current << " of " << reading.pages << '\n';
      return;
    case ui::Kind::Grid:
      return printGrid(out, reading);
    default:
      out << quoted(reading.text) << '\n';
  }
}

void printSize(std::ostream& out, std::string_view name, const Size& size) {
  out << name << ": " << size.width << " x " << size.height << '\n';
}

void printScreen(std::ostream& out, std::string_view name, std::string_view caption) {
  out << "screen: " << name << ' ' << quoted(caption) << '\n';
}

void printNoScreen(std::ostream& out) { out << "screen: none\n"; }

void printMessages(std::ostream& out, const std::vector<ui::Message>& messages) {
  if (messages.empty()) out << "messages: none\n";
  for (const ui::Message& message : messages)
    out << "message: title=" << quoted(message.title) << " icon=" << iconName(message.icon)
        << " text=" << quoted(message.text) << '\n';
}

void printPasted(std::ostream& out, const ui::BlockCount& count) {
  out << "pasted: " << count.taken << " taken, " << count.passedOver << " passed over\n";
}

void printCopied(std::ostream& out, std::string_view text) { out << "copied: " << quoted(text) << '\n'; }

void printMoved(std::ostream& out, std::string_view way, std::string_view name) {
  out << way << ": " << (name.empty() ? "nothing" : name) << '\n';
}

void printFound(std::ostream& out, const std::optional<ui::CellPlace>& cell) {
  if (cell)
    out << "found: " << cell->row << ',' << cell->col << '\n';
  else
    out << "found: nothing\n";
}

void printExported(std::ostream& out, const report::Exported& exported) {
  out << "exported: " << exported.file;
  if (!exported.unit.empty()) out << ", " << exported.count << ' ' << exported.unit;
  out << '\n';
}

void printUnhandled(std::ostream& out, std::string_view description) {
  std::string line(description);
  std::replace(line.begin(), line.end(), '\n', ' ');
  out << "unhandled error: " << line << '\n';
}

void printFindings(std::ostream& out, const ui::Findings& findings) {
  const auto place = [](int at) { return at < 0 ? std::string("-") : std::to_string(at); };
  for (const ui::Finding& finding : findings)
    out << "check: " << (finding.severity == ui::Severity::Error ? "error " : "warning ")
        << place(finding.row) << ',' << place(finding.col) << ' ' << quoted(finding.text) << '\n';
  if (findings.empty()) out << "checks: none\n";
}

}  // namespace script
