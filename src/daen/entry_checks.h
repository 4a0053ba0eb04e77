#pragma once

#include <string>

#include "daen/checks.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace daen {

/// Looks at what is chosen and typed beside the grids: the reference value, and a section that waits for its
/// calculation. What it finds belongs to no cell.
class EntryChecks {
 public:
  /// All of them outlive this object.
  EntryChecks(const ui::Grid& Grid1, const ui::Grid& Grid2, const CheckConditions& conditions,
              ui::Findings& findings)
      : Grid1_(Grid1),
        Grid2_(Grid2),
        conditions_(conditions),
        section_(conditions.section),
        findings_(findings) {}

  void run();

 private:
  bool anySection() const { return Grid2_.rows() > 2; }
  bool isRead(const std::string& benchMark) const;
  bool waits() const;
  std::string sectionName() const;
  void waitingSection();
  void latitude(const char* which, const std::string& benchMark, const std::string& degrees,
                const std::string& minutes);
  double computedWith() const;
  void reference();
  void otherThanComputedWith(double now);
  void ofAnotherBenchMark();
  void add(ui::Severity severity, std::string text, std::string wayOut);

  const ui::Grid& Grid1_;
  const ui::Grid& Grid2_;
  const CheckConditions& conditions_;
  const Section& section_;
  ui::Findings& findings_;
};

}  // namespace daen
