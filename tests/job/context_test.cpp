#include "job/context.h"

#include <gtest/gtest.h>

namespace {

TEST(JobContext, BeginsEmpty) {
  const job::JobContext context;
  EXPECT_EQ(context.gDbPath, "");
  EXPECT_EQ(context.gJobId, "");
  EXPECT_EQ(context.gTokyu, 0);
  EXPECT_EQ(context.gExeDir, "");
  EXPECT_EQ(context.gFmt[1].text(), "###0.000");
}

TEST(FcSeiReadIni, FillsTheTenTableNames) {
  job::TableNames tables;
  EXPECT_TRUE(job::FcSeiReadIni(tables));
  EXPECT_EQ(tables.gTblEditTextData, "EditTextData");
  EXPECT_EQ(tables.gTblKansokuSeikaData, "KansokuSeikaData");
  EXPECT_EQ(tables.gTblDaenHoseiChiHyouData, "DaenHoseiChiHyouData");
  EXPECT_EQ(tables.gTblHendHoseiChiHyouData, "HendHoseiChiHyouData");
  EXPECT_EQ(tables.gTblKansokuSeikaDataDaen, "KansokuSeikaDataDaen");
  EXPECT_EQ(tables.gTblKansokuSeikaDataHend, "KansokuSeikaDataHend");
  EXPECT_EQ(tables.gTblKansokuSeikaDataHKSNB, "KansokuSeikaDataHKSNB");
  EXPECT_EQ(tables.gTblKansokuSeikaDataSeihyou, "KansokuSeikaDataSeihyou");
  EXPECT_EQ(tables.gTblKansokuSeikaDataTanrosen, "KansokuSeikaDataTanrosen");
  EXPECT_EQ(tables.gTblKansokuData, "KansokuData");
}

TEST(FcSetNumberFormats, FollowsTheGradeOfTheJob) {
  job::JobContext context;
  context.gTokyu = 1;
  job::FcSetNumberFormats(context);
  EXPECT_EQ(context.gFmt[4].text(), "##0.0");
  context.gTokyu = 3;
  job::FcSetNumberFormats(context);
  EXPECT_EQ(context.gFmt[4].text(), "###0");
  EXPECT_EQ(context.grade().factor(), 1000);
}

}  // namespace
