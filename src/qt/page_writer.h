#pragma once

#include <memory>

#include "report/page_writer.h"

namespace qt {

/// Draws pages with the toolkit. Where no application of the toolkit runs yet, as under an operation script
/// without windows, one without a display is started for as long as the process lives.
std::unique_ptr<report::PageWriter> pageWriter();

}  // namespace qt
