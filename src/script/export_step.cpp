#include "script/export_step.h"

#include <numeric>
#include <vector>

#include "report/saved_results.h"
#include "report/source.h"
#include "script/line_error.h"

namespace script {
namespace {

const report::SavedResults& savedOf(const ui::Screen& screen) {
  const auto* saved = dynamic_cast<const report::SavedResults*>(&screen);
  if (saved == nullptr) throw LineError("この画面には保存した路線がありません。");
  return *saved;
}

report::Document savedDocument(const ui::Screen& screen) {
  const report::SavedResults& saved = savedOf(screen);
  std::vector<std::size_t> all(saved.savedRoutes().size());
  std::iota(all.begin(), all.end(), 0U);
  if (all.empty()) throw LineError("保存した路線がありません。データ形式と事業番号を先に選びます。");
  return saved.savedDocument(all, {});
}

report::Document resultList(const ui::Screen& screen) {
  const report::SavedResults& saved = savedOf(screen);
  if (!saved.hasResultList()) throw LineError("この画面には成果一覧がありません。");
  return saved.resultList(saved.chosenProject(), {});
}

}  // namespace

report::Exported exported(const Export& step, const ui::Screen& screen, const report::Exporting& how) {
  if (step.what == Export::What::Saved) return report::exportDocument(savedDocument(screen), step.path, how);
  if (step.what == Export::What::Results) return report::exportDocument(resultList(screen), step.path, how);
  const auto* source = dynamic_cast<const report::Source*>(&screen);
  if (source == nullptr) throw LineError("この画面には出力するものがありません。");
  if (step.what == Export::What::Diagram) return report::exportDrawing(source->diagram({}), step.path, how);
  return report::exportDocument(source->document(), step.path, how);
}

}  // namespace script
