#include "job/context.h"

namespace job {

bool FcSeiReadIni(TableNames& tables) {
  tables.gTblEditTextData = "EditTextData";
  tables.gTblKansokuSeikaData = "KansokuSeikaData";
  tables.gTblDaenHoseiChiHyouData = "DaenHoseiChiHyouData";
  tables.gTblHendHoseiChiHyouData = "HendHoseiChiHyouData";
  tables.gTblKansokuSeikaDataDaen = "KansokuSeikaDataDaen";
  tables.gTblKansokuSeikaDataHend = "KansokuSeikaDataHend";
  tables.gTblKansokuSeikaDataHKSNB = "KansokuSeikaDataHKSNB";
  tables.gTblKansokuSeikaDataSeihyou = "KansokuSeikaDataSeihyou";
  tables.gTblKansokuSeikaDataTanrosen = "KansokuSeikaDataTanrosen";
  tables.gTblKansokuData = "KansokuData";
  return true;
}

void FcSetNumberFormats(JobContext& context) { context.gFmt = NumberFormats(context.grade()); }

}  // namespace job
