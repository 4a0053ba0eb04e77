#pragma once

#include "report/document.h"

namespace report {

/// Somebody whose content can be printed and exported: a screen of a calculation.
class Source {
 public:
  virtual ~Source() = default;

  /// What is shown now, as a document. Where the heading of the job cannot be read it is left out.
  virtual Document document() const = 0;

  /// What is shown now, as a drawing; one without shapes where there is nothing to draw.
  virtual Figure diagram() const = 0;
};

}  // namespace report
