#pragma once

#include <string>

#include "job/context.h"
#include "measure.h"
#include "quiet_desktop.h"
#include "route/selection.h"
#include "shell/start_up.h"

namespace bench {

/// The job context of the measuring job, found out as start-up does it.
inline job::JobContext started(const Job& job) {
  QuietDesktop desktop;
  job::JobContext context;
  shell::startUp({job.path, "/nonexistent"}, desktop, context)->close();
  return context;
}

/// The keys of the measuring job's only route.
route::Selection onlyRoute(const job::JobContext& context);

}  // namespace bench
