#include "sample/long_routes.h"

#include <algorithm>

#include "sample/survey.h"

namespace sample {
namespace {

constexpr std::chrono::sys_days firstSeason = std::chrono::year{2021} / 4 / 1;

struct Project {
  const char* number;  ///< as stored
  Terrain terrain;
  long long start;  ///< height of the first bench mark (0.1 mm)
  int firstMark;    ///< number of the first bench mark
  std::vector<Place> places;
};

std::vector<Project> projects() {
  return {{"2001",
           Terrain::hills(),
           9'000'000,
           5001,
           {{"長野県", "諏訪郡", "富士見町"},
            {"長野県", "諏訪郡", "原村"},
            {"長野県", "上伊那郡", "辰野町"},
            {"長野県", "上伊那郡", "箕輪町"}}},
          {"2002    ",
           Terrain::plain(),
           120'000,
           6001,
           {{"茨城県", "稲敷郡", "阿見町"}, {"茨城県", "稲敷郡", "美浦村"}, {"千葉県", "山武郡", "芝山町"}}},
          {"2003",
           Terrain::coast(),
           80'000,
           7001,
           {{"静岡県", "下田市", ""}, {"静岡県", "賀茂郡", "河津町"}, {"静岡県", "賀茂郡", "東伊豆町"}}}};
}

/// Surveys the routes of one project, one after another over the same land.
class Party {
 public:
  Party(const std::string& jobId, const Project& project, Precision precision, Random random)
      : jobId_(jobId),
        project_(project),
        precision_(precision),
        walk_(project.terrain, precision, project.start, random),
        nextMark_(project.firstMark) {}

  /// A route of `count` bench marks; with `goesOn` it begins on the bench mark at which the last one ended.
  Route route(const std::string& number, const char* category, int count, bool goesOn);
  /// A second route behind the first one under the same number.
  void addSecondEnd(Route& route, int count);
  Random& random() { return walk_.random(); }

 private:
  std::vector<std::string> numbers(int count, bool goesOn);
  std::string newNumber();
  Observation observation();

  std::string jobId_;
  const Project& project_;
  Precision precision_;
  Walk walk_;
  int nextMark_;
  std::string lastMark_;
};

std::string Party::newNumber() {
  const std::string number = std::to_string(nextMark_++);
  return nextMark_ % 15 == 0 ? "固" + number : number;
}

std::vector<std::string> Party::numbers(int count, bool goesOn) {
  std::vector<std::string> names{goesOn ? lastMark_ : newNumber()};
  while (static_cast<int>(names.size()) < count) names.push_back(newNumber());
  lastMark_ = names.back();
  return names;
}

Observation Party::observation() {
  Observation observation;
  observation.firstDay = firstSeason + std::chrono::days(random().between(0, 1000));
  observation.before = observation.firstDay - std::chrono::days(random().between(730, 3650));
  observation.form = random().oneIn(2) ? DateForm::Plain : DateForm::Slashed;
  observation.places = project_.places;
  return observation;
}

Route Party::route(const std::string& number, const char* category, int count, bool goesOn) {
  Route route{jobId_, project_.number, number, category, 1, {}};
  const Observation how = observation();
  route.marks = survey(walk_, how, numbers(count, goesOn), precision_);
  return route;
}

void Party::addSecondEnd(Route& route, int count) {
  const Observation how = observation();
  walk_.follow(walk_.section(0));  // it begins elsewhere
  const std::vector<Mark> second = survey(walk_, how, numbers(count, false), precision_);
  route.marks.insert(route.marks.end(), second.begin(), second.end());
}

/// Every ninth bench mark from the eighth on is newly established, route ends and their neighbours apart.
void establishSome(std::vector<Mark>& marks) {
  for (std::size_t at = 7; at + 1 < marks.size(); at += 9)
    if (marks[at - 1].previousDifference && marks[at].previousDifference && !marks[at].height)
      establish(marks, at);
}

void separateOne(std::vector<Mark>& marks, Random& random, Precision precision) {
  separateRuns(marks, 3, *marks[3].difference + precision.unit * random.between(-8, 8));
}

/// Two families of three routes, each route beginning where the one before ends.
void addMainRoutes(std::vector<Route>& routes, Party& party, Precision precision) {
  for (int i = 0; i < 6; ++i) {
    const std::string number = "01R00" + std::to_string(i / 3 + 1) + "0" + std::to_string(i % 3 + 1);
    const int count = i == 3 ? party.random().between(20, 27) : party.random().between(22, 54);
    Route route = party.route(number, "0", count, i > 0);
    if (i == 3) party.addSecondEnd(route, party.random().between(20, 27));
    establishSome(route.marks);
    if (i == 1) separateOne(route.marks, party.random(), precision);
    if (i == 4) addStray(route.marks, 10);
    if (i == 4) addStray(route.marks, 5);
    routes.push_back(std::move(route));
  }
}

/// One family of three routes in category "1", numbered through.
void addDatumTies(std::vector<Route>& routes, Party& party) {
  int order = 1;
  for (int i = 1; i <= 3; ++i) {
    Route route = party.route("0" + std::to_string(i) + "S00101", "1", party.random().between(20, 30), i > 1);
    route.firstSaveOrder = order;
    order += static_cast<int>(route.marks.size());
    routes.push_back(std::move(route));
  }
}

void addOthers(std::vector<Route>& routes, Party& party, Precision precision) {
  for (const auto& [letter, category] : {std::pair("T", "2"), {"U", "3"}, {"V", "4"}}) {
    for (int i = 1; i <= 2; ++i) {
      const std::string number = std::string("01") + letter + "00" + std::to_string(i) + "01";
      Route route = party.route(number, category, party.random().between(20, 54), i > 1);
      if (*category == '4') separateOne(route.marks, party.random(), precision);
      routes.push_back(std::move(route));
    }
  }
}

}  // namespace

std::vector<Route> longRoutes(const std::string& jobId, Precision precision, unsigned seed) {
  std::vector<Route> routes;
  for (const Project& project : projects()) {
    Party party(jobId, project, precision, Random(seed * 100ULL + static_cast<unsigned>(project.firstMark)));
    addMainRoutes(routes, party, precision);
    addDatumTies(routes, party);
    addOthers(routes, party, precision);
  }
  return routes;
}

Route measuringRoute(const std::string& jobId, Precision precision, int benchMarks) {
  Observation how;
  how.firstDay = firstSeason;
  how.before = firstSeason - std::chrono::days(1800);
  how.knownEvery = benchMarks >= 64 ? 32 : benchMarks;
  how.marksADay = std::max(4, benchMarks / 200);
  how.places = projects().front().places;
  std::vector<std::string> numbers;
  for (int i = 1; i <= benchMarks; ++i) numbers.push_back("N" + std::to_string(i));
  Walk walk(Terrain::hills(), precision, projects().front().start, Random(16000));
  return {jobId, "9001", "01N00101", "0", 1, survey(walk, how, numbers, precision)};
}

}  // namespace sample
