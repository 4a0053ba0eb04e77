#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace platform {

/// The command-line text behind the program's own name, whole and as it stands: no quotes removed, nothing
/// trimmed. Where the system hands a program its arguments already parted, they are joined again with one
/// blank.
std::string commandLineText(int argc, char** argv);

/// The words of the command line behind the program's own name, as the caller's shell parted them (UTF-8).
std::vector<std::string> commandLineWords(int argc, char** argv);

/// The folder of the running program, without a separator at its end.
std::string programFolder();

/// The most memory this process has held at once, in bytes.
std::size_t peakMemory();

}  // namespace platform
