#include "script/command.h"

#include <algorithm>
#include <array>
#include <vector>

#include "report/exporting.h"
#include "script/keys.h"
#include "script/line_error.h"
#include "script/whole.h"
#include "script/words.h"
#include "text/padding.h"

namespace script {
namespace {

/// The words behind the command's own.
using Arguments = std::vector<Word>;

/// The most twips that a window may be asked to measure: 16,000 points of a screen with 96 to the inch.
constexpr int mostTwips = 240000;

int number(const Word& word) {
  const auto value = wholeNumber(word.text);
  if (!value) throw LineError("「" + word.text + "」は 0 以上の整数ではありません。");
  return *value;
}

/// The cell whose row and column stand at `at` and behind it.
ui::CellPlace place(const Arguments& words, std::size_t at) {
  return {number(words[at]), number(words[at + 1])};
}

int twips(const Word& word) {
  const int value = number(word);
  if (value < 1 || value > mostTwips) throw LineError("画面の大きさは 1 から 240000 までの twip です。");
  return value;
}

/// `#N` names a position unless it stands in quotes.
Command select(const Arguments& words) {
  const Word& item = words[1];
  const bool position = !item.quoted && item.text.size() > 1 && item.text.front() == '#' &&
                        item.text.find_first_not_of("0123456789", 1) == std::string::npos;
  if (!position) return SelectText{words[0].text, item.text};
  return SelectAt{words[0].text, number({item.text.substr(1), false})};
}

Command shot(const Arguments& words) {
  const std::string& path = words[0].text;
  if (path.size() < 5 || !text::equalIgnoringCase(path.substr(path.size() - 4), ".png"))
    throw LineError("画面の写しのファイル名は「.png」で終わります。");
  return Shot{path};
}

Export exportTo(Export::What what, const std::string& path) {
  if (!report::canExportDocument(path))
    throw LineError("出力するファイル名は「.pdf」「.xlsx」「.csv」「.svg」「.png」のどれかで終わります。");
  return {what, path};
}

Command exportTable(const Arguments& words) { return exportTo(Export::What::Table, words[0].text); }

Command exportOther(const Arguments& words) {
  const std::string& path = words[1].text;
  if (words[0].text == "saved") return exportTo(Export::What::Saved, path);
  if (words[0].text == "results") return exportTo(Export::What::Results, path);
  if (words[0].text != "diagram")
    throw LineError(
        "出力できるのは表（export FILE）、図（export diagram FILE）、保存した路線（export saved FILE）か"
        "成果一覧（export results FILE）です。");
  if (!report::canExportDrawing(path))
    throw LineError("図のファイル名は「.pdf」「.svg」「.png」のどれかで終わります。");
  return Export{Export::What::Diagram, path};
}

/// How a command is written and understood.
struct Form {
  std::string_view word;
  std::string_view arguments;
  std::size_t count;
  Command (*understand)(const Arguments&);
};

using Given = const Arguments&;

constexpr std::array<Form, 25> forms = {{
    {"click", " NAME", 1, [](Given w) -> Command { return Click{w[0].text}; }},
    {"select", " NAME TEXT", 2, select},
    {"enter", " NAME TEXT", 2,
     [](Given w) -> Command {
       return Enter{w[0].text, w[1].text};
     }},
    {"type", " NAME TEXT", 2,
     [](Given w) -> Command {
       return Type{w[0].text, typedCharacters(w[1].text)};
     }},
    {"cell", " GRID ROW COL", 3,
     [](Given w) -> Command {
       return Cell{w[0].text, number(w[1]), number(w[2])};
     }},
    {"key", " GRID TEXT", 2,
     [](Given w) -> Command {
       return Keys{w[0].text, keysOf(w[1].text)};
     }},
    {"paste", " GRID TEXT", 2,
     [](Given w) -> Command {
       return Paste{w[0].text, w[1].text};
     }},
    {"copy", " GRID R1 C1 R2 C2", 5,
     [](Given w) -> Command {
       return Copy{w[0].text, place(w, 1), place(w, 3)};
     }},
    {"delete", " GRID R1 C1 R2 C2", 5,
     [](Given w) -> Command {
       return Delete{w[0].text, place(w, 1), place(w, 3)};
     }},
    {"edit", " GRID ROW COL TEXT", 4,
     [](Given w) -> Command {
       return Edit{w[0].text, place(w, 1), w[3].text};
     }},
    {"undo", " GRID", 1, [](Given w) -> Command { return Undo{w[0].text}; }},
    {"redo", " GRID", 1, [](Given w) -> Command { return Redo{w[0].text}; }},
    {"find", " GRID TEXT", 2,
     [](Given w) -> Command {
       return Find{w[0].text, w[1].text};
     }},
    {"tab", " NAME N", 2,
     [](Given w) -> Command {
       return Page{w[0].text, number(w[1])};
     }},
    {"resize", " WIDTH HEIGHT", 2,
     [](Given w) -> Command {
       return Resize{twips(w[0]), twips(w[1])};
     }},
    {"close", "", 0, [](Given) -> Command { return Close{}; }},
    {"show", " NAME", 1, [](Given w) -> Command { return Show{w[0].text}; }},
    {"size", " NAME", 1, [](Given w) -> Command { return SizeOf{w[0].text}; }},
    {"screen", "", 0, [](Given) -> Command { return WhichScreen{}; }},
    {"messages", "", 0, [](Given) -> Command { return Messages{}; }},
    {"shot", " FILE.png", 1, shot},
    {"export", " FILE", 1, exportTable},
    {"export", " diagram|saved|results FILE", 2, exportOther},
    {"checks", "", 0, [](Given) -> Command { return Checks{}; }},
    {"answer", " TEXT", 1, [](Given w) -> Command { return Answer{w[0].text}; }},
}};

/// The form of a command that is written with so many words behind it; else one of its forms, to complain
/// by.
const Form& formOf(const Word& word, std::size_t count) {
  const Form* found = nullptr;
  for (const Form& form : forms)
    if (form.word == word.text && (found == nullptr || form.count == count)) found = &form;
  if (found == nullptr) throw LineError("「" + word.text + "」という操作はありません。");
  return *found;
}

}  // namespace

std::optional<Command> parseLine(std::string_view line) {
  if (line.starts_with('#')) return std::nullopt;
  Arguments words = splitWords(line);
  if (words.empty()) return std::nullopt;
  const Form& form = formOf(words.front(), words.size() - 1);
  words.erase(words.begin());
  if (words.size() != form.count)
    throw LineError("「" + std::string(form.word) + std::string(form.arguments) +
                    "」と書きます（空白を含む語は引用符で囲みます）。");
  return form.understand(words);
}

}  // namespace script
