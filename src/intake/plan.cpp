#include "intake/plan.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "intake/lines.h"
#include "text/padding.h"

namespace intake {
namespace {

/// The observations of one route, or of one family, in the order of the block.
using Members = std::vector<Observation*>;

std::string named(const Observation& one) { return "事業 " + one.project + " 路線 " + one.route; }

/// Project, route (or family) and category.
using Keys = std::tuple<std::string, std::string, std::string>;

Keys routeKey(const Observation& one) { return {one.project, one.route, one.category}; }

/// What is loaded together: a route, in category "1" its family (characters 3 to 6 of the padded number).
Keys numberingKey(const Observation& one) {
  const std::string padded = text::padded(one.route, 8);
  return {one.project, one.category == "1" ? std::string(text::mid(padded, 3, 4)) : padded, one.category};
}

/// Finishes the observations of a block: orders and end marks that are missing, routes, remarks.
class Finisher {
 public:
  explicit Finisher(Plan& plan) : plan_(plan) {}

  void finish() {
    for (const Members& members : grouped(numberingKey)) number(members);
    for (const Members& members : grouped(routeKey)) finishRoute(members);
    std::sort(plan_.refusals.begin(), plan_.refusals.end(),
              [](const Refusal& a, const Refusal& b) { return a.line < b.line; });
  }

 private:
  /// The observations by `key`, groups in the order in which they begin. Lines of one route mostly follow
  /// each other: a key is looked up only where another route begins.
  std::vector<Members> grouped(Keys (*key)(const Observation&)) {
    std::vector<Members> groups;
    std::map<Keys, std::size_t> places;
    const Observation* before = nullptr;
    std::size_t place = 0;
    for (Observation& one : plan_.observations) {
      if (before == nullptr || routeKey(one) != routeKey(*before)) {
        place = places.try_emplace(key(one), groups.size()).first->second;
        if (place == groups.size()) groups.emplace_back();
      }
      groups[place].push_back(&one);
      before = &one;
    }
    return groups;
  }

  /// Orders that are all missing are made; where some are there, a line without one cannot be placed.
  void number(const Members& members) {
    const bool none = std::all_of(members.begin(), members.end(), [](auto* one) { return one->order == 0; });
    std::set<int> seen;
    int next = 0;
    for (Observation* one : members) {
      if (none)
        one->order = ++next;
      else if (one->order == 0)
        plan_.refusals.push_back({one->line, named(*one) + " には順番がありますが、この行にはありません。"});
      else if (!seen.insert(one->order).second)
        plan_.refusals.push_back(
            {one->line, named(*one) + " に順番 " + std::to_string(one->order) + " が二度あります。"});
    }
    if (none)
      plan_.remarks.push_back(named(*members.front()) + ": 順番を 1 から " + std::to_string(next) +
                              " まで付けます。");
  }

  void finishRoute(const Members& members) {
    Members inOrder = members;
    std::stable_sort(inOrder.begin(), inOrder.end(), [](auto* a, auto* b) { return a->order < b->order; });
    const Observation& first = *inOrder.front();
    const int count = static_cast<int>(members.size());
    plan_.routes.push_back({first.project, first.route, first.category, count});
    if (count > mostBenchMarks)
      plan_.refusals.push_back({inOrder.back()->line, named(first) + " は " + std::to_string(mostBenchMarks) +
                                                          " 点を超えます（" + std::to_string(count) +
                                                          " 点）。"});
    markEnd(inOrder);
    lookAtSections(inOrder);
  }

  void markEnd(const Members& inOrder) {
    if (std::any_of(inOrder.begin(), inOrder.end(), [](auto* one) { return one->end == "-1"; })) return;
    Observation& last = *inOrder.back();
    if (last.end == "-2") {
      plan_.refusals.push_back({last.line, named(last) + " は再測の点で終わり、終点がありません。"});
      return;
    }
    last.end = "-1";
    plan_.remarks.push_back(named(last) + ": 終点の印を「" + last.benchMark + "」に付けます。");
  }

  /// A section without a difference counts as level; that is worth a look.
  void lookAtSections(const Members& inOrder) {
    int without = 0;
    for (const Observation* one : inOrder)
      if (one->end.empty() && one->difference.empty()) ++without;
    if (without > 0)
      plan_.remarks.push_back(named(*inOrder.front()) + ": 中数のない区間が " + std::to_string(without) +
                              " あります。");
  }

  Plan& plan_;
};

void requireColumn(const Matching& matching, Field field, const std::string& byDefault, const Line& headings,
                   Plan& plan) {
  if (matching.contains(field) || !byDefault.empty()) return;
  plan.refusals.push_back(
      {headings.number, "見出しに「" + std::string(infoOf(field).heading) + "」の列がありません。"});
}

}  // namespace

Plan planObservations(const Block& block, const Matching& matching, const Defaults& defaults) {
  Plan plan;
  plan.jobId = defaults.jobId;
  requireColumn(matching, Field::Project, defaults.project, block.headings, plan);
  requireColumn(matching, Field::Route, defaults.route, block.headings, plan);
  requireColumn(matching, Field::BenchMark, "", block.headings, plan);
  if (!plan.refusals.empty()) return plan;
  LineReader reader(matching, defaults);
  for (const Line& line : block.lines) {
    if (line.cells.size() > block.headings.cells.size()) {
      plan.refusals.push_back({line.number, "見出しより多い列があります。"});
      continue;
    }
    plan.observations.push_back(reader.read(line, plan.refusals));
  }
  Finisher(plan).finish();
  return plan;
}

}  // namespace intake
