#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <streambuf>
#include <string>
#include <vector>

#include "script/headless.h"
#include "script/runner.h"
#include "shell/program.h"
#include "walker.h"

// random_walk [--safeguards] SEED STEPS PROGRAM_FOLDER DATABASE SCRIPT: walks the program at random, prints
// the transcript and writes the walk down as an operation script. With safeguards it looks for what it has
// typed. The exit status is that of the run, 3 where a table shows something else than it must or something
// typed was lost.

namespace {

/// The program on the desk of the hands that walk it.
class Walked : public script::Subject {
 public:
  Walked(shell::CommandLine commandLine, ui::Desktop& desktop) : program_(std::move(commandLine), desktop) {}

  void start() override { program_.start(); }
  ui::Screen* screen() override { return program_.screen(); }
  void sweep() override { program_.sweep(); }

 private:
  shell::Program program_;
};

/// Passes a transcript on and counts the questions in it.
class CountingBuffer : public std::streambuf {
 public:
  explicit CountingBuffer(std::streambuf& to) : to_(to) {}

  int questions() const { return questions_; }

 protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    const char character = traits_type::to_char_type(c);
    begin_ += character;
    if (begin_ == "question: ") ++questions_;
    if (character == '\n') begin_.clear();
    return to_.sputc(character);
  }
  int sync() override { return to_.pubsync(); }

 private:
  std::streambuf& to_;
  std::string begin_;  // of the present line
  int questions_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool safeguards = !arguments.empty() && arguments.front() == "--safeguards";
  if (safeguards) arguments.erase(arguments.begin());
  if (arguments.size() != 5) {
    std::fprintf(stderr, "usage: random_walk [--safeguards] SEED STEPS PROGRAM_FOLDER DATABASE SCRIPT\n");
    return 64;
  }
  std::ofstream record(arguments[4], std::ios::binary);
  const auto hands = script::headlessHands();
  Walked program({arguments[3], arguments[2]}, hands->desktop());
  test::Walker walker(
      static_cast<std::uint32_t>(std::stoi(arguments[0])), std::stoi(arguments[1]),
      [&program] { return program.screen(); }, record);
  CountingBuffer counting(*std::cout.rdbuf());
  std::ostream transcript(&counting);
  if (safeguards) walker.watchTyping([&counting] { return counting.questions(); });
  std::istream lines(&walker);
  const auto ending = script::Runner(program, *hands, transcript, std::cerr, safeguards).run(lines);
  walker.finish(ending == script::Ending::Done ? program.screen() : nullptr);
  if (walker.broken().empty()) return static_cast<int>(ending);
  std::cerr << "the walk is broken; " << walker.broken() << "\n";
  return 3;
}
