#include "jobs/settings_key.h"

#include <cstdint>

namespace jobs {

std::string settingsKey(std::string_view prefix, std::string_view text) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
  std::string key(prefix);
  for (int shift = 60; shift >= 0; shift -= 4) key += "0123456789abcdef"[(hash >> shift) & 15U];
  return key;
}

}  // namespace jobs
