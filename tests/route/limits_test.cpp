#include "route/limits.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using Texts = std::map<std::string, std::string, std::less<>>;

route::Limits readFrom(const Texts& texts) {
  return route::readLimits([&](std::string_view key) {
    const auto found = texts.find(key);
    return found == texts.end() ? std::string() : found->second;
  });
}

// 作業規程の準則: 15/15/15/25, 2/5/10/20, 2.5/5/10/20 mm for 1 km.
TEST(Limits, WithoutSettingsAreTheUsualOnes) {
  const route::Limits limits = readFrom({});
  EXPECT_EQ(limits, route::Limits());
  EXPECT_EQ(limits.tolerances.of(job::Grade(1)), (route::Tolerance{15, 2, 2.5}));
  EXPECT_EQ(limits.tolerances.of(job::Grade(4)), (route::Tolerance{25, 20, 20}));
}

TEST(Limits, ComeBackAsTheyWereKept) {
  route::Limits limits;
  limits.correction = 12.5;
  limits.rate = 2.5e-5;
  limits.variation = 300;
  limits.sectionKilometres = 1.5;
  limits.tolerances.grades[1] = {10, 4, 3.5};
  limits.tolerances.source = "社内規程";
  Texts kept;
  route::writeLimits(limits, [&](std::string_view key, std::string_view text) {
    kept.insert_or_assign(std::string(key), std::string(text));
  });
  EXPECT_EQ(readFrom(kept), limits);
  EXPECT_EQ(kept.at("limits.grade2.double"), "3.5");
}

TEST(Limits, ADamagedValueIsTheUsualOne) {
  for (const char* text : {"", " ", "たくさん", "12mm", "0", "-3", "1E999", "nan"}) {
    const route::Limits limits =
        readFrom({{"limits.correction", text}, {"limits.grade1.loop", text}, {"limits.rate", "0.0002"}});
    EXPECT_EQ(limits.correction, 30) << text;
    EXPECT_EQ(limits.tolerances.grades[0].loop, 2) << text;
    EXPECT_EQ(limits.rate, 0.0002) << "the others stay as they were set";
  }
  EXPECT_EQ(readFrom({{"limits.source", "  "}}).tolerances.source, route::Tolerances().source);
}

}  // namespace
