#pragma once

#include <string>

#include "report/document.h"
#include "report/progress.h"

namespace report {

/// Writes a document as a spreadsheet file to `path`, over whatever file is there.
///
/// The first sheet, 成果表, holds the rows of the grid: title and fields, a row of headings with units that
/// stays in sight and stands on every printed page, then the rows as the grid shows them, numbers as numbers
/// with the grid's decimals. The second sheet, 検算, reckons every derived cell from the observed and typed
/// ones with formulas, on the row on which the first sheet shows it, and how much both differ. Further sheets
/// hold the named tables. Raises RuntimeError where the file cannot be written, Cancelled.
void writeXlsx(const Document& document, const std::string& path, const Progress& progress = {});

}  // namespace report
