#include "daen/saving.h"

#include "daen/columns.h"
#include "daen/data.h"
#include "daen/data_sections.h"
#include "route/records.h"
#include "ui/error_trap.h"

namespace daen {

bool saveBoth(const route::Selection& selection, const job::JobContext& context, const ui::Grid& Grid1,
              const ui::Grid& Grid2) {
  const route::Extent extent = route::extentOn(Grid1.desktop());
  if (extent == route::Extent::AsFarAsItCame)
    return FcDHseiSave(selection, context, Grid1) && FcDaenHoseichiHyouSave(selection, context, Grid2);
  return ui::trapped(Grid1.desktop(), "FcDHseiSave", [&] {
    route::save(context.gDbPath, extent, [&](db::Database& database) {
      replaceRoute(database, selection, context, Grid1);
      replaceSections(database, selection, context, Grid2);
    });
    route::reportSaved(*Grid1.desktop());
  });
}

route::SavedParts savedParts(const route::Selection& selection, const job::JobContext& context,
                             const ui::Grid& Grid1, const ui::Grid& Grid2, const std::string& what) {
  constexpr bool firstRouteOnly = true;
  return {{what, context.tables.gTblKansokuSeikaDataDaen, savedRouteSql(context, selection),
           route::countBenchMarks(Grid1, colEndMark, firstRouteOnly)},
          {what + " の区間計算", context.tables.gTblDaenHoseiChiHyouData,
           savedSectionsSql(context, selection), countSections(Grid2)}};
}

}  // namespace daen
