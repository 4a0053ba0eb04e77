#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "report/drawing.h"
#include "report/measure.h"
#include "report/progress.h"

namespace report {

/// Whoever can draw letters: makes files of pages and pictures. A toolkit stands behind it.
class PageWriter {
 public:
  virtual ~PageWriter() = default;

  /// The widths of texts in the font that it draws with.
  virtual Measure measure() const = 0;

  /// Writes pages, each in its own size, as a PDF file to `path`, its fonts inside. Raises RuntimeError where
  /// the file cannot be written, Cancelled.
  virtual void writePdf(const std::vector<Drawing>& pages, const std::string& title, const std::string& path,
                        const Progress& progress) = 0;

  /// Writes a drawing as a PNG picture to `path`, at 200 dots to the inch, fewer where it would be too large
  /// for a picture. Raises RuntimeError where the file cannot be written.
  virtual void writePng(const Drawing& drawing, const std::string& path) = 0;

  /// The whole bitmap file (BMP) of a drawing, at 150 dots to the inch, fewer where it would be too large.
  virtual std::string bitmap(const Drawing& drawing) = 0;
};

/// Makes a page writer when one is needed; empty, or raising a std::exception, where there is none to be had.
using PageWriterMaker = std::function<std::unique_ptr<PageWriter>()>;

}  // namespace report
