#pragma once

#include <string>
#include <vector>

#include "hksnb/distances.h"
#include "job/context.h"

namespace hksnb {

/// The reference dates ("YYYY/MM/DD") to which the saved variation results of the book's routes were carried,
/// in the order of the routes, each once. Routes without such results, or without a date in them, have none;
/// where the database cannot be read there are none at all.
std::vector<std::string> referenceDates(const std::vector<BookPoint>& points, const job::JobContext& context);

}  // namespace hksnb
