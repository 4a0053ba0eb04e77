#pragma once

#include <string>

namespace jobs {

/// Writes the template for observations to `path`, an xlsx file: headings with their units and one worked
/// route, which can be typed over, and a second sheet that says what each column takes. What is copied from
/// the first sheet, or saved from it as CSV, can be taken in. A file that is there is replaced when the new
/// one is complete. Raises text::RuntimeError where it cannot be written.
void writeTemplate(const std::string& path);

}  // namespace jobs
