#include "job/names.h"

namespace job {

std::string correctionUnit(Grade grade) { return grade.isFirst() ? "0.1 mm" : "mm"; }

std::string jobName(const JobContext& context) {
  return context.gJobId.empty() ? std::string() : "ジョブ " + context.gJobId;
}

std::string unitNames(const JobContext& context) {
  if (context.gJobId.empty()) return {};
  return std::to_string(context.gTokyu) + "級  補正数 " + correctionUnit(context.grade());
}

}  // namespace job
