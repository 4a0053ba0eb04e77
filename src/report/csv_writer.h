#pragma once

#include <string>

#include "platform/text_encoding.h"
#include "report/document.h"

namespace report {

/// The rows of the grid as a CSV file: a row of headings with their units, then the rows of every part, cell
/// by cell as the grid shows them. A UTF-8 file begins with its mark. Raises TypeMismatch, naming row and
/// column, for a text that the encoding cannot hold.
std::string csvOf(const Document& document, platform::Encoding encoding);

}  // namespace report
