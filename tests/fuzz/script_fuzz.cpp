#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "../script/practice_program.h"
#include "script/headless.h"
#include "script/runner.h"

/// Any bytes are taken as a script: each must end in one of the known ways, and only an early end on a line
/// has a reason on the error stream.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto hands = script::headlessHands();
  test::PracticeProgram program(hands->desktop());
  std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
  std::ostringstream out;
  std::ostringstream errors;
  const script::Ending ending = script::Runner(program, *hands, out, errors).run(script);
  const bool reason = !errors.str().empty();
  const bool unhandled = out.str().rfind("unhandled error: ") != std::string::npos;
  if (ending == script::Ending::CommandLine) std::abort();
  if (reason != (ending == script::Ending::Line)) std::abort();
  if (ending == script::Ending::Unhandled && !unhandled) std::abort();
  return 0;
}
