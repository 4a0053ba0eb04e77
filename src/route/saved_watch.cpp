#include "route/saved_watch.h"

#include <new>
#include <utility>

#include "open/open.h"
#include "route/observations.h"
#include "route/records.h"
#include "route/safeguards.h"

namespace route {

SavedPart savedBenchMarks(const job::JobContext& context, const Selection& selection, std::string what,
                          const std::string& table, const ui::Grid& grid, int flagCol) {
  return {std::move(what), table, savedRecordsSql(context, selection, table), countBenchMarks(grid, flagCol)};
}

SavedWatch::States SavedWatch::read(db::Database& database, const SavedParts& parts) {
  States states;
  for (const SavedPart& part : parts) states.push_back(SavedState::read(database, part.table, part.records));
  return states;
}

SavedWatch::States SavedWatch::read(std::string_view dbPath, const SavedParts& parts) {
  const auto database = db::openDatabase(dbPath);
  States states = read(*database, parts);
  database->close();
  return states;
}

void SavedWatch::look(std::string_view dbPath, const SavedParts& parts) {
  forget();
  const auto database = db::openDatabase(dbPath);
  bar_ = database->writeBar();
  seen_ = read(*database, parts);
  database->close();
}

void SavedWatch::lookBehind(const ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts) {
  forget();
  if (!desktop.safeguards()) return;
  try {
    look(dbPath, parts);
  } catch (const db::Error&) {
    forget();
  } catch (const std::bad_alloc&) {
    forget();
  }
}

void SavedWatch::forget() {
  seen_.reset();
  bar_ = db::WriteBar::None;
}

std::string SavedWatch::notice() const {
  switch (bar_) {
    case db::WriteBar::ReadOnly:
      return "ジョブは読み取り専用です。保存できません。";
    case db::WriteBar::Locked:
      return "ほかのプログラムがジョブを使用中です。今は保存できません。";
    case db::WriteBar::None:
      break;
  }
  return {};
}

bool SavedWatch::maySave(ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts) const {
  if (!desktop.safeguards()) return true;
  States now = read(dbPath, parts);
  if (seen_ && !mayReplace(desktop, dbPath, parts, now)) return false;
  for (std::size_t i = 0; i < parts.size(); ++i)
    if (!mayShrink(desktop, parts[i].what, {now[i].count(), parts[i].writes})) return false;
  return true;
}

bool SavedWatch::mayReplace(ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts,
                            States& now) const {
  for (States known = *seen_;;) {
    std::size_t different = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) different += known[i].differences(now[i]);
    if (different == 0) return true;
    if (!mayReplaceOthers(desktop, parts.front().what, different)) return false;
    known = std::exchange(now, read(dbPath, parts));
  }
}

}  // namespace route
