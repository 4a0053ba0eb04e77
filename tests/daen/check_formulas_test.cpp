#include <gtest/gtest.h>

#include "daen/calculation.h"
#include "daen/route_maker.h"
#include "daen/tables.h"
#include "report/check.h"

namespace {

class DaenCheckFormulas : public testing::Test, protected test::DaenGrids {
 protected:
  /// From 45°30′ to 44°30′, where a section at 100 m has 9.2 mm.
  void calculate(const char* start, const char* end) {
    daen::FcSeiDaenCal(route, sections, {start, end, "45", "30", "44", "30", ""},
                       daen::FcDaenInit(job::Grade(1)), [](const daen::SectionValues&) {});
  }
};

// A to D is 4 km, so B has 1/4 · 9.2 = 2.3 and C 2/4 · 9.2 = 4.6. The section from E back to D, which lies as
// far behind E as C lies behind D, gives D 2/4 · 9.2 + 9.2 = 13.8 and leaves B and C what they had.
TEST_F(DaenCheckFormulas, ASectionThatReachesIntoAnotherLeavesItsSharesAlone) {
  benchMark("A", "100", "1");
  benchMark("B", "100", "1");
  benchMark("C", "100", "2");
  benchMark("D", "100", "2");
  benchMark("E", "100");
  calculate("A", "D");
  calculate("E", "D");
  EXPECT_EQ(result(3), "2.3|100.0023");
  EXPECT_EQ(result(5), "4.6|100.0046");
  EXPECT_EQ(result(7), "13.8|100.0138");
  const report::Document document = daen::tables(route, sections, "01A00101");
  const auto results = report::checked(gathered(document), document.check);
  EXPECT_GT(results.size(), 10U);
  for (std::size_t i = 0; i < results.size(); ++i)
    EXPECT_EQ(results[i].difference, 0)
        << document.check.cells[i].column << "," << document.check.cells[i].row;
}

}  // namespace
