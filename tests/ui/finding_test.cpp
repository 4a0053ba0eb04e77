#include "ui/finding.h"

#include <gtest/gtest.h>

namespace {

using ui::Finding;
using ui::Severity;

TEST(Findings, StandWorstFirstThenByPlace) {
  ui::Findings findings{{Severity::Warning, 2, 1, "w21", ""}, {Severity::Error, 5, 0, "e50", ""},
                        {Severity::Warning, -1, -1, "w", ""}, {Severity::Error, 2, 3, "e23", ""},
                        {Severity::Error, 2, 1, "e21", ""},   {Severity::Error, 2, 1, "e21 again", ""}};
  ui::sortFindings(findings);
  std::vector<std::string> texts;
  for (const Finding& finding : findings) texts.push_back(finding.text);
  EXPECT_EQ(texts, (std::vector<std::string>{"e21", "e21 again", "e23", "e50", "w", "w21"}));
  EXPECT_EQ(ui::countFindings(findings, Severity::Error), 4);
  EXPECT_EQ(ui::countFindings(findings, Severity::Warning), 2);
}

}  // namespace
