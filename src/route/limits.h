#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "route/tolerance.h"
#include "ui/desktop.h"

namespace route {

/// What the checks of all screens go by, as the operator has set it.
struct Limits {
  double correction = 30;        ///< a larger orthometric correction of a section (mm) is worth a look
  double rate = 1e-4;            ///< a larger daily change (m per day)
  double variation = 500;        ///< a larger difference to a previous result (mm)
  double sectionKilometres = 2;  ///< length of a section (km) where no distances are known
  Tolerances tolerances;

  bool operator==(const Limits&) const = default;
};

/// Gives the text that is kept under a key, "" for none.
using SettingReader = std::function<std::string(std::string_view key)>;
/// Keeps a text under a key.
using SettingWriter = std::function<void(std::string_view key, std::string_view text)>;

/// The limits as they were kept. One that is missing, no number, or no amount above 0 is the usual one.
Limits readLimits(const SettingReader& read);

/// The limits that are set on a desk.
Limits limitsOf(const ui::Desktop& desktop);

/// Keeps the limits. readLimits gives the same ones back.
void writeLimits(const Limits& limits, const SettingWriter& write);

}  // namespace route
