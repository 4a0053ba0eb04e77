#include "script/session.h"

#include <exception>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "platform/files.h"
#include "platform/input_file.h"
#include "platform/system.h"
#include "script/headless.h"
#include "script/recorder.h"
#include "shell/program.h"
#include "text/error.h"

namespace script {
namespace {

/// What keeps a run from beginning; what() is for the operator.
class NotBegun : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The program itself, on the desk of the hands that work it.
class ProgramSubject : public Subject {
 public:
  ProgramSubject(shell::CommandLine commandLine, ui::Desktop& desktop)
      : desktop_(desktop), program_(std::move(commandLine), desktop) {}
  /// A script may end with a screen open; the desk lets go of it before it is freed.
  ~ProgramSubject() override {
    if (program_.screen() != nullptr) desktop_.hide(*program_.screen());
  }

  void start() override { program_.start(); }
  ui::Screen* screen() override { return program_.screen(); }
  void sweep() override { program_.sweep(); }

 private:
  ui::Desktop& desktop_;
  shell::Program program_;
};

std::string folderWithoutSeparator(std::string folder) {
  while (folder.ends_with('/') || folder.ends_with('\\')) folder.pop_back();
  return folder;
}

shell::CommandLine commandLineOf(const Options& options) {
  const std::string folder = options.programFolder ? *options.programFolder : platform::programFolder();
  return {options.database, folderWithoutSeparator(folder)};
}

std::unique_ptr<Hands> handsFor(const Options& options, const WindowHandsMaker& windowHands) {
  if (!options.window) return headlessHands();
  if (!windowHands)
    throw NotBegun("この seikahyou-script はウィンドウなしで作られています（--window は使えません）。");
  try {
    return windowHands();
  } catch (const std::exception& error) {
    throw NotBegun(std::string("ウィンドウを開けません: ") + error.what());
  }
}

std::string scriptText(const std::string& path) {
  try {
    return platform::readInput("操作手順のファイル", path, platform::mostScriptBytes);
  } catch (const text::RuntimeError& error) {
    throw NotBegun(error.what());
  }
}

/// The file that a record is written to, with its first lines.
std::ofstream recordFile(const std::string& path, bool safeguards) {
  std::ofstream file(platform::nativePath(path), std::ios::binary | std::ios::trunc);
  if (safeguards) file << "# safeguards: on" << std::endl;
  if (!file) throw NotBegun("記録のファイル「" + path + "」に書けません。");
  return file;
}

Ending work(const Options& options, std::istream& script, const WindowHandsMaker& windowHands,
            const Streams& streams, const report::PageWriterMaker& pageWriter) {
  const auto hands = handsFor(options, windowHands);
  ProgramSubject program(commandLineOf(options), hands->desktop());
  Runner runner(program, *hands, streams.out, streams.errors, options.safeguards, pageWriter);
  if (!options.record) return runner.run(script);
  std::ofstream file = recordFile(*options.record, options.safeguards);
  Recorder recorder(file);
  runner.recordTo(recorder);
  return runner.run(script);
}

/// What a person does in the windows goes into the record; an operator is asked whatever there is to ask.
int workOfAPerson(const Options& options, const PersonsWindows& person) {
  if (!person)
    throw NotBegun("この seikahyou-script はウィンドウなしで作られています（SCRIPT を指定してください）。");
  std::ofstream file = recordFile(*options.record, true);
  Recorder recorder(file);
  return person(commandLineOf(options), recorder);
}

int session(const std::vector<std::string>& words, const WindowHandsMaker& windowHands,
            const Streams& streams, const report::PageWriterMaker& pageWriter, const PersonsWindows& person) {
  const auto options = parseOptions(words);
  if (!options) throw NotBegun("コマンドの書き方が違います。");
  if (options->script.empty()) return workOfAPerson(*options, person);
  if (options->script == "-")
    return static_cast<int>(work(*options, streams.in, windowHands, streams, pageWriter));
  std::istringstream script(scriptText(options->script));
  return static_cast<int>(work(*options, script, windowHands, streams, pageWriter));
}

}  // namespace

std::optional<Options> parseOptions(const std::vector<std::string>& words) {
  Options options;
  auto word = words.begin();
  for (; word != words.end() && word->starts_with("--"); ++word) {
    if (*word == "--window") {
      options.window = true;
    } else if (*word == "--safeguards") {
      options.safeguards = true;
    } else if (*word == "--program-folder" && word + 1 != words.end() && !(word + 1)->empty()) {
      options.programFolder = *++word;
    } else if (*word == "--record" && word + 1 != words.end() && !(word + 1)->empty()) {
      options.record = *++word;
    } else {
      return std::nullopt;
    }
  }
  if (options.record && words.end() - word == 1) {
    options.database = *word;
    return options;
  }
  if (words.end() - word != 2 || word->empty()) return std::nullopt;
  options.script = *word;
  options.database = *(word + 1);
  return options;
}

std::string usage() {
  return "使い方: seikahyou-script [--window] [--safeguards] [--program-folder DIR] [--record FILE] SCRIPT "
         "DATABASE\n"
         "        seikahyou-script [--program-folder DIR] --record FILE DATABASE\n"
         "  --window              実際のウィンドウを操作します（指定しなければウィンドウなしで動きます）\n"
         "  --safeguards          操作者への確認を行います（答えは answer で用意します）\n"
         "  --program-folder DIR  プログラムのフォルダとみなすフォルダ（JobSel.txt を探すところ）\n"
         "  --record FILE         行ったことを操作手順として FILE に書きます。SCRIPT "
         "がなければ、開いたウィンドウで人が操作します\n"
         "  SCRIPT                操作手順のファイル（UTF-8）、- は標準入力\n"
         "  DATABASE              ジョブのデータベース\n"
         "終了コード: 0 手順の終わりまで実行、1 プログラムが処理されないエラーで停止、\n"
         "  2 手順の行が解釈または実行できない、64 コマンドの書き方が違う、SCRIPT "
         "が読めない、ウィンドウが使えない\n";
}

int runSession(const std::vector<std::string>& words, const WindowHandsMaker& windowHands,
               const Streams& streams, const report::PageWriterMaker& pageWriter,
               const PersonsWindows& person) {
  try {
    return session(words, windowHands, streams, pageWriter, person);
  } catch (const NotBegun& reason) {
    streams.errors << reason.what() << '\n' << usage() << std::flush;
    return static_cast<int>(Ending::CommandLine);
  }
}

}  // namespace script
