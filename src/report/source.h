#pragma once

#include <string>
#include <vector>

#include "report/document.h"

namespace report {

/// How an operator wants a diagram.
struct DiagramWish {
  int fixedRow = 0;         ///< grid row of the assumed fixed point, against which all is shown; 0 for none
  bool equalSteps = false;  ///< bench marks in equal steps, whatever the distances are
  std::vector<std::string> layers = {};  ///< what is laid over it, of those that are offered
};

/// What can be wished of a diagram.
struct DiagramOffer {
  bool fixedPoint = false;     ///< a fixed point can be assumed
  std::string layerName = {};  ///< what can be laid over it
  std::vector<std::string> layers = {};
  std::string picture = {};  ///< name of the picture that it is filed as, "" where it cannot be filed
};

/// Somebody whose content can be printed and exported: a screen of a calculation.
class Source {
 public:
  virtual ~Source() = default;

  /// What is shown now, as a document. Where the heading of the job cannot be read it is left out.
  virtual Document document() const = 0;

  /// What its diagram is called: 変動図, 縦断図.
  virtual std::string diagramName() const = 0;

  /// What can be wished of the diagram now. Raises db::Error.
  virtual DiagramOffer diagramOffer() const { return {}; }

  /// What is shown now, as a drawing; one without shapes where there is nothing to draw. Wishes that are not
  /// offered are passed over. Raises db::Error.
  virtual Figure diagram(const DiagramWish& wish) const = 0;

  /// Files the picture of a diagram, a whole bitmap file, under the offered name, and tells the operator how
  /// that went.
  virtual void fileDiagram(const std::string& /*picture*/) {}
};

}  // namespace report
