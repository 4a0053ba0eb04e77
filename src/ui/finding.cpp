#include "ui/finding.h"

#include <algorithm>
#include <tuple>

namespace ui {

void sortFindings(Findings& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    return std::tie(a.severity, a.row, a.col) < std::tie(b.severity, b.row, b.col);
  });
}

int countFindings(const Findings& findings, Severity severity) {
  return static_cast<int>(std::count_if(findings.begin(), findings.end(), [severity](const Finding& finding) {
    return finding.severity == severity;
  }));
}

}  // namespace ui
