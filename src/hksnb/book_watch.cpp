#include "hksnb/book_watch.h"

#include "db/database.h"
#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "route/observations.h"
#include "route/safeguards.h"
#include "text/padding.h"

namespace hksnb {
namespace {

std::size_t countBenchMarks(const ui::Grid& grid) {
  std::size_t count = 0;
  for (int row = 1; row < grid.rows(); row += 2)
    if (!text::trimmed(grid.text(row, colBenchMark)).empty()) ++count;
  return count;
}

}  // namespace

route::SavedParts BookWatch::parts(Kind kind, const std::string& number, std::size_t benchMarks) const {
  const std::string what = "計算簿 " + number;
  return {
      {what, context_->tables.gTblKansokuSeikaDataHKSNB, bookRowsSql(*context_, kind, number), benchMarks},
      {what + " の期間", "KansokuKikan", bookPeriodsSql(*context_, kind, number), 1}};
}

void BookWatch::own(ui::Desktop& desktop, Kind kind, const std::string& number) {
  owned_ = true;
  number_ = number;
  stored_.lookBehind(desktop, context_->gDbPath, parts(kind, number, 0));
}

void BookWatch::disown(ui::Desktop& desktop) {
  owned_ = false;
  number_.clear();
  stored_.lookBehind(desktop, context_->gDbPath, {});
}

std::string BookWatch::name() const { return number_.empty() ? "新しい計算簿" : "計算簿 " + number_; }

bool BookWatch::mayStore(ui::Desktop& desktop, Kind kind, const std::string& number,
                         const ui::Grid& grid) const {
  if (!desktop.safeguards()) return true;
  if (text::trimmed(number).empty() && !route::mayStoreWithoutNumber(desktop)) return false;
  const bool own = owned_ && text::trimmedRight(number) == text::trimmedRight(number_);
  return own ? stored_.maySave(desktop, context_->gDbPath, parts(kind, number, countBenchMarks(grid)))
             : mayReplaceOther(desktop, kind, number);
}

bool BookWatch::mayReplaceOther(ui::Desktop& desktop, Kind kind, const std::string& number) const {
  std::size_t benchMarks = 0;
  std::string year;
  route::readRecords(context_->gDbPath, bookRowsSql(*context_, kind, number),
                     [&](db::Database&, db::Recordset& records) {
                       for (; !records.eof(); records.moveNext())
                         if (++benchMarks == 1) year = db::FcNullToBlank(records.field("今回観測日付"));
                     });
  const std::string what = "番号 " + number + " の" + std::string(correctionName(kind)) + "の計算簿";
  return benchMarks == 0 || route::mayReplaceBook(desktop, what, text::trimmed(year), benchMarks);
}

}  // namespace hksnb
