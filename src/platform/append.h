#pragma once

#include <string>
#include <string_view>

namespace platform {

/// Adds a text to the end of a file in one write, so that what several programs add stands one after another
/// and never mixed. A file that is not there yet is made, with the folders above it, and begins with
/// `heading`. Returns false where that cannot be done; a text that could not be written whole may stand there
/// in part.
bool appendToFile(std::string_view path, std::string_view heading, std::string_view text);

/// The folder for what the program keeps of the work of the user who runs it: below $XDG_DATA_HOME or
/// ~/.local/share, on Windows below %LOCALAPPDATA%. "" where the system names no such folder.
std::string userDataFolder();

/// Day and time by the clock of the machine, "2026/11/22 03:05:09".
std::string localTime();

}  // namespace platform
