#include "save_law.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "screen_work.h"

namespace test {

void judge(const TableStates& states, const std::vector<ui::Message>& told, bool guarded,
           const std::string& where) {
  ASSERT_FALSE(told.empty()) << where;
  const std::string& last = told.back().text;
  const bool isSaved = std::find(told.begin(), told.end(), savedMessage) != told.end();
  const bool failsBehind = isSaved && !(told.back() == savedMessage);
  const bool claimsOld = last.find("保存前の成果はそのまま残っています") != std::string::npos;
  EXPECT_FALSE(failsBehind && guarded) << where << ": after the save: " << last;
  for (const std::string& state : states) {
    const bool isFirst = &state == &states.front();
    EXPECT_TRUE(state == "old" || state == "new") << where << ": " << state << ": " << last;
    EXPECT_TRUE(!guarded || state == states.front()) << where << ": " << last;
    EXPECT_TRUE(!isSaved || state == "new" || (failsBehind && !guarded && !isFirst)) << where << ": " << last;
    EXPECT_TRUE(!claimsOld || state == "old") << where << ": " << last;
  }
}

}  // namespace test
