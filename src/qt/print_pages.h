#pragma once

#include <QPrinter>

#include "report/document.h"
#include "report/progress.h"

namespace qt {

/// Paints a drawing with its title on a printer, lying. One that is too long for the sheet in letters that
/// can be read goes on over several sheets, to be joined side by side.
void printDrawing(const report::Figure& figure, QPrinter& printer);

/// Paints a document on a printer, on the paper that it is set to and the pages chosen for it. Raises
/// Cancelled.
void printDocument(const report::Document& document, QPrinter& printer, const report::Progress& progress);

}  // namespace qt
