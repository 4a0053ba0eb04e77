#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What follows the program's own name in a whole command-line text, as it stands: the name ends at the
/// closing quote where it begins with one, else at the first blank or tab; the blanks behind it are no part
/// of either.
std::string_view behindProgramName(std::string_view text);

/// The command-line text behind the program's own name, whole and as it stands: no quotes removed, nothing
/// trimmed. Where the system hands a program its arguments already parted, they are joined again with one
/// blank.
std::string commandLineText(int argc, char** argv);

/// The words of the command line behind the program's own name, as the caller's shell parted them (UTF-8).
std::vector<std::string> commandLineWords(int argc, char** argv);

/// Standard input and output carry bytes as they are: line ends stay, and a console shows UTF-8. To be called
/// once, before the first of them is used.
void useByteStreams();

/// The folder of the running program, without a separator at its end.
std::string programFolder();

/// The most memory this process has held at once, in bytes.
std::size_t peakMemory();

}  // namespace platform
