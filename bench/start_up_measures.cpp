#include "measure.h"
#include "quiet_desktop.h"
#include "shell/program.h"

namespace bench {

std::vector<Measure> startUpMeasures(const Job& job) {
  const auto program = [job] {
    QuietDesktop desktop;
    shell::Program seikahyou({job.path, "/nonexistent"}, desktop);
    seikahyou.start();
  };
  const auto bare = [job] { job.bare()->readAll("SELECT * FROM JobData WHERE JikkouFlg = 1"); };
  return {{"start-up to menu", 10, {}, program, bare}};
}

}  // namespace bench
