#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

#include "platform/files.h"
#include "platform/process.h"
#include "platform/system.h"

namespace {

/// Carries out one line of the steps; relative paths lead on from the tool's own folder.
void carryOut(const std::string& verb, const std::string& argument) {
  if (verb == "sleep") platform::pause(std::chrono::milliseconds(std::stoi(argument)));
  if (verb == "write") {
    const std::size_t bar = argument.find('|');
    const auto target =
        platform::nativePath(platform::programFolder()) / platform::nativePath(argument.substr(0, bar));
    platform::writeFile(platform::pathText(target), argument.substr(bar + 1));
  }
  if (verb == "say") std::cout << argument << std::endl;
  if (verb == "listen")
    std::cout << std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
  if (verb == "exit") std::exit(std::stoi(argument));
  if (verb == "abort") std::raise(SIGABRT);
}

}  // namespace

/// A program that does what the file "steps.txt" beside it says, a step a line.
int main() {
  std::istringstream steps(platform::readFile(platform::programFolder() + "/steps.txt").value_or("exit 99"));
  std::string line;
  while (std::getline(steps, line)) {
    const std::size_t blank = line.find(' ');
    carryOut(line.substr(0, blank), blank == std::string::npos ? "" : line.substr(blank + 1));
  }
}
