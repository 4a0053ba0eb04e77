#pragma once

#include <istream>
#include <ostream>
#include <string_view>
#include <utility>

#include "report/page_writer.h"
#include "script/answers.h"
#include "script/command.h"
#include "script/hands.h"
#include "script/recorder.h"
#include "script/subject.h"

namespace script {

/// How a run ended: the exit status of the process.
enum class Ending : int {
  Done = 0,         ///< the script came to its end
  Unhandled = 1,    ///< the program stopped on an error that nothing in it trapped
  Line = 2,         ///< a line could not be understood or done
  CommandLine = 64  ///< the run did not begin: the command line is wrong
};

/// Works a program through a script, line by line, and writes down what the operator would see.
class Runner {
 public:
  /// The transcript goes to `transcript`, the reason of an early end to `errors`, as `LINE: why`.
  /// With `safeguards` the program asks what an operator would be asked. `pageWriter` makes what PDF and PNG
  /// files are drawn with.
  Runner(Subject& subject, Hands& hands, std::ostream& transcript, std::ostream& errors,
         bool safeguards = false, report::PageWriterMaker pageWriter = {})
      : subject_(subject),
        hands_(hands),
        transcript_(transcript),
        errors_(errors),
        answers_(safeguards, transcript),
        pageWriter_(std::move(pageWriter)) {
    hands_.answerBy(answers_);
  }

  /// Starts the program and does the script's lines until the first that fails. The transcript is flushed
  /// after every line.
  Ending run(std::istream& script);

  /// Writes down what the script does; `recorder` must outlive the run. Its lines that only look at something
  /// are taken over as they stand.
  void recordTo(Recorder& recorder) {
    recorder_ = &recorder;
    hands_.witnessBy(recorder);
  }

 private:
  void runLines(std::istream& script);
  void runLine(std::string_view line);

  void perform(const Click& click);
  void perform(const SelectText& select);
  void perform(const SelectAt& select);
  void perform(const Enter& enter);
  void perform(const Type& type);
  void perform(const Cell& cell);
  void perform(const Keys& keys);
  void perform(const Paste& paste);
  void perform(const Copy& copy);
  void perform(const Delete& act);
  void perform(const Edit& edit);
  void perform(const Undo& undo);
  void perform(const Redo& redo);
  void perform(const Find& find);
  void perform(const Page& page);
  void perform(const Resize& resize);
  void perform(const Close& close);
  void perform(const Show& show);
  void perform(const SizeOf& size);
  void perform(const WhichScreen& screen);
  void perform(const Messages& messages);
  void perform(const Shot& shot);
  void perform(const Checks& checks);
  void perform(const Answer& answer);
  void perform(const Export& step);

  ui::Screen& openScreen();
  ui::Control& control(std::string_view name);
  template <class Kind>
  Kind& ofKind(std::string_view name);
  template <class Kind>
  Kind& ready(std::string_view name);
  ui::Grid& readyWith(const std::string& name, const ui::CellPlace& cell);
  void select(ui::Grid& grid, const ui::CellPlace& from, const ui::CellPlace& to);
  void bringForward(const ui::Control& control);

  Subject& subject_;
  Hands& hands_;
  std::ostream& transcript_;
  std::ostream& errors_;
  Answers answers_;
  report::PageWriterMaker pageWriter_;
  Recorder* recorder_ = nullptr;
  int line_ = 0;
};

}  // namespace script
