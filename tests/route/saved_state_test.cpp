#include "route/saved_state.h"

#include <gtest/gtest.h>

#include <string>

#include "support/small_job.h"

namespace {

/// Three saved records of route R001 and one of another, in the table of the orthometric correction.
class SavedStates : public testing::Test {
 protected:
  SavedStates() {
    for (const char* row : {"'R001',1,'A',10.5", "'R001',2,'B',NULL", "'R001',3,'C',12", "'R002',1,'D',1"})
      job.sql(std::string("INSERT INTO KansokuSeikaDataSeihyou (JobId, 路線番号, SaveOrder, 水準点番号, 標高)"
                          " VALUES ('3',") +
              row + ")");
    seen = now();
  }

  route::SavedState now(const char* route = "R001") const {
    return route::SavedState::read(
        job.context().gDbPath, "KansokuSeikaDataSeihyou",
        "SELECT * FROM KansokuSeikaDataSeihyou WHERE 路線番号 = " + db::sqlValue(route));
  }

  test::SmallJob job;
  route::SavedState seen;
};

TEST_F(SavedStates, StayTheSameWhileNobodySaves) {
  EXPECT_EQ(seen.count(), 3U);
  EXPECT_EQ(seen.differences(now()), 0U);
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 備考1 = '別の路線' WHERE 路線番号 = 'R002'");
  EXPECT_EQ(seen.differences(now()), 0U);
}

TEST_F(SavedStates, AreTheSameForTheSameRecordsWrittenAnew) {
  job.sql("DELETE FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R001'");
  for (const char* row : {"3,'C',12", "1,'A',10.5", "2,'B',NULL"})
    job.sql(std::string("INSERT INTO KansokuSeikaDataSeihyou (JobId, 路線番号, SaveOrder, 水準点番号, 標高)"
                        " VALUES ('3','R001',") +
            row + ")");
  EXPECT_EQ(seen.differences(now()), 0U);
}

TEST_F(SavedStates, CountAChangedRecordOnce) {
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 標高 = 10.5001 WHERE 水準点番号 = 'A'");
  EXPECT_EQ(seen.differences(now()), 1U);
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 備考2 = '' WHERE 水準点番号 = 'B'");  // Null before
  EXPECT_EQ(seen.differences(now()), 2U);
}

TEST_F(SavedStates, CountAddedAndDeletedRecords) {
  job.sql("DELETE FROM KansokuSeikaDataSeihyou WHERE 水準点番号 = 'B'");
  EXPECT_EQ(seen.differences(now()), 1U);
  EXPECT_EQ(now().differences(seen), 1U);
  job.sql("DELETE FROM KansokuSeikaDataSeihyou WHERE 路線番号 = 'R001'");
  EXPECT_EQ(seen.differences(now()), 3U);
  EXPECT_EQ(route::SavedState().differences(now()), 0U);
}

// "ab" beside "" is not "a" beside "b".
TEST_F(SavedStates, TellFieldsApart) {
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 備考1 = 'ab', 備考2 = '' WHERE 水準点番号 = 'A'");
  const route::SavedState first = now();
  job.sql("UPDATE KansokuSeikaDataSeihyou SET 備考1 = 'a', 備考2 = 'b' WHERE 水準点番号 = 'A'");
  EXPECT_EQ(first.differences(now()), 1U);
}

TEST(SavePlan, ShrinksWhereFewerRecordsAreLeft) {
  EXPECT_TRUE((route::SavePlan{53, 52}.shrinks()));
  EXPECT_FALSE((route::SavePlan{53, 53}.shrinks()));
  EXPECT_FALSE((route::SavePlan{0, 0}.shrinks()));
}

}  // namespace
