#pragma once

#include <string>
#include <vector>

namespace exchange {

/// Looks through a job database for what the calculations would stumble over, and returns one Japanese
/// sentence for each finding, with its table and keys; none for a job in order:
/// - damage that the engine's own examination finds: then nothing else is looked at;
/// - order numbers (SaveOrder) that are declared as texts;
/// - job tables and columns that are missing;
/// - records without a data category;
/// - SaveOrder that is empty, no whole number, there twice, or left out between the first and the last of a
///   route in a category, or of a variation book. Routes of a family are numbered through, so a route may
///   begin with any number; a number that an observation without a category holds is not left out. In the
///   tables of sections, where route ends have none, numbers may be left out;
/// - routes in which no bench mark is marked as a route end ("-1").
/// Raises db::Error where the database cannot be read.
std::vector<std::string> checkJob(const std::string& path);

}  // namespace exchange
