#include "job/work_record.h"

#include <gtest/gtest.h>

namespace {

TEST(WorkRecord, IsReadableAsCsv) {
  EXPECT_EQ(job::workHeading(), "\xEF\xBB\xBF日時,ジョブ,画面,路線,作業,内容,誤り,注意\r\n");
  EXPECT_EQ(job::workLine({"2026/11/22 03:05:09", "ジョブ 1", "正標高補正", "1001 01A00101", "保存",
                           "水準点 5 点", 1, 2}),
            "2026/11/22 03:05:09,ジョブ 1,正標高補正,1001 01A00101,保存,水準点 5 点,1,2\r\n");
}

TEST(WorkRecord, AnEntryIsOneLineWhateverItHolds) {
  EXPECT_EQ(job::workLine({"t", "j", "s", "r", "回答", "a,b\n\"c\"", 0, 0}),
            "t,j,s,r,回答,\"a,b \"\"c\"\"\",0,0\r\n");
}

}  // namespace
