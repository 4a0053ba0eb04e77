#pragma once

#include <cstdint>
#include <string>

#include "job/grade.h"

namespace job {

/// The names of the tables of a job database. Queries take them from here.
struct TableNames {
  std::string gTblEditTextData;
  std::string gTblKansokuSeikaData;
  std::string gTblDaenHoseiChiHyouData;
  std::string gTblHendHoseiChiHyouData;
  std::string gTblKansokuSeikaDataDaen;
  std::string gTblKansokuSeikaDataHend;
  std::string gTblKansokuSeikaDataHKSNB;
  std::string gTblKansokuSeikaDataSeihyou;
  std::string gTblKansokuSeikaDataTanrosen;
  std::string gTblKansokuData;
};

/// What start-up finds out about the job. Made anew by each load of the menu, then read by screens and never
/// changed.
struct JobContext {
  std::string gDbPath;      ///< path of the job database: the whole command-line text
  std::string gAppPath;     ///< the program's folder with "\" behind it
  std::string gJobId;       ///< job identifier
  std::int16_t gTokyu = 0;  ///< survey grade; 1 = first grade
  std::string gExeDir;      ///< data folder, ends in "\"
  TableNames tables;
  NumberFormats gFmt{Grade(0)};  ///< gFmt[1] … gFmt[13]

  Grade grade() const { return Grade(gTokyu); }
};

/// Fills the ten table names. Returns true; it reads no file, whatever its name says.
bool FcSeiReadIni(TableNames& tables);

/// Fills gFmt according to gTokyu.
void FcSetNumberFormats(JobContext& context);

}  // namespace job
