#pragma once

#include <cstdint>
#include <string>

namespace platform {

/// The number by which the system knows this process.
std::uint64_t processNumber();

/// True where a process of that number lives on this machine, whoever's it is.
bool isRunning(std::uint64_t process);

/// The name of this machine; "" where it has none.
std::string machineName();

}  // namespace platform
