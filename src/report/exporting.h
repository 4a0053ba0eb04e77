#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text_encoding.h"
#include "report/document.h"
#include "report/page_writer.h"
#include "report/paginate.h"
#include "report/progress.h"

namespace report {

/// What an export has written.
struct Exported {
  std::string file;       ///< the file's name without its folder
  std::string unit;       ///< what is counted: "pages", "rows", or "" where nothing is
  std::size_t count = 0;  ///< how many
};

/// How an export is done.
struct Exporting {
  PageWriterMaker pageWriter;  ///< needed for PDF and PNG files
  Paper paper = {};
  platform::Encoding encoding = platform::Encoding::Utf8;  ///< of CSV files
  Progress progress = {};
};

/// True for a path whose suffix (".pdf", ".xlsx", ".csv", ".svg", ".png", in any letter case) names a kind of
/// file that a document can be written as; for a drawing, only ".pdf", ".svg" and ".png".
bool canExportDocument(std::string_view path);
bool canExportDrawing(std::string_view path);

/// Writes a document to the file `path`; its suffix says how. Pages that become a picture stand below each
/// other. A file that is there is replaced only when the new one is complete. Raises RuntimeError, naming the
/// file and what stands in the way, and Cancelled; the old file is left then.
Exported exportDocument(const Document& document, const std::string& path, const Exporting& how);

/// A drawing with its title on a lying page, or one as long as the drawing needs.
Drawing pageOf(const Figure& figure);

/// The same for a drawing. On paper it fills a lying page, or has its own size where it is longer.
Exported exportDrawing(const Figure& figure, const std::string& path, const Exporting& how);

}  // namespace report
