#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "script/headless.h"
#include "script/runner.h"
#include "shell/program.h"
#include "walker.h"

// random_walk SEED STEPS PROGRAM_FOLDER DATABASE SCRIPT: walks the program at random, prints the transcript
// and writes the walk down as an operation script. The exit status is that of the run.

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

}  // namespace

int main(int argc, char** argv) {
  if (argc != 6) {
    std::fprintf(stderr, "usage: random_walk SEED STEPS PROGRAM_FOLDER DATABASE SCRIPT\n");
    return 64;
  }
  std::ofstream record(argv[5], std::ios::binary);
  const auto hands = script::headlessHands();
  Walked program({argv[4], argv[3]}, hands->desktop());
  test::Walker walker(
      static_cast<std::uint32_t>(std::atoi(argv[1])), std::atoi(argv[2]),
      [&program] { return program.screen(); }, record);
  std::istream lines(&walker);
  const auto ending = script::Runner(program, *hands, std::cout, std::cerr).run(lines);
  if (walker.broken().empty()) return static_cast<int>(ending);
  std::cerr << "the history leads elsewhere; " << walker.broken();
  return 3;
}
