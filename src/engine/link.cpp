#include "engine/link.h"

namespace db {

void Link::requireNothingLost() const {
  if (lost_) throw lostError();
}

Column Link::find(const ResultColumns& result, std::string_view name) {
  const auto found = result.find(name, [this](std::string_view table) { return columns(table); });
  if (!found) throw error("の検索結果に列「" + std::string(name) + "」がありません。");
  return *found;
}

Error Link::error(std::string_view what) const {
  return Error("データベース「" + file_ + "」" + std::string(what));
}

Error Link::lostError() const {
  return error("への書き込みは、先に起きたエラーのためすべて取り消されました。");
}

void Link::raiseClosed() const { throw error("はすでに閉じられています。"); }

Error Link::unsettledError(std::string_view words) const {
  return error(
      "への保存を確定するところで失敗したため、保存されたかどうか分かりません。読み込み直して確かめてください"
      ": " +
      std::string(words));
}

}  // namespace db
