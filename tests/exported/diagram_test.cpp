#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "every_route.h"
#include "report/svg_writer.h"
#include "text/number.h"

namespace {

/// The places of the marks in an SVG file.
std::vector<std::pair<double, double>> marksIn(const std::string& svg) {
  std::vector<std::pair<double, double>> marks;
  const std::string x = "data-x=\"";
  const std::string y = "data-y=\"";
  for (std::size_t at = 0; (at = svg.find("<g class=\"mark\"", at)) != std::string::npos; ++at)
    if (svg.compare(svg.find('>', at) + 1, 7, "<title>") == 0)
      marks.emplace_back(std::atof(svg.c_str() + svg.find(x, at) + x.size()),
                         std::atof(svg.c_str() + svg.find(y, at) + y.size()));
  return marks;
}

TEST(Diagram, PointsOfTheSvgAreTheAmountsOfTheBook) {
  test::EveryRoute routes(1, 5);
  int books = 0;
  routes.visit([&](const auto& look) {
    if (look.name.substr(0, 6) != "fHHksb") return;
    ++books;
    std::vector<double> amounts;
    for (int row = 1; row < look.grid.rows(); row += 2)
      if (!look.grid.text(row, 10).empty()) amounts.push_back(text::readNumber(look.grid.text(row, 10)));
    const report::Figure figure = look.source.diagram({});
    const auto marks = marksIn(report::svgOf(figure.drawing, figure.title));
    ASSERT_EQ(marks.size(), amounts.size());
    const auto lowest = std::min_element(amounts.begin(), amounts.end()) - amounts.begin();
    const auto highest = std::max_element(amounts.begin(), amounts.end()) - amounts.begin();
    if (amounts.empty() ||
        amounts[static_cast<std::size_t>(highest)] == amounts[static_cast<std::size_t>(lowest)])
      return;
    const double perMillimetre =
        (marks[static_cast<std::size_t>(lowest)].second - marks[static_cast<std::size_t>(highest)].second) /
        (amounts[static_cast<std::size_t>(highest)] - amounts[static_cast<std::size_t>(lowest)]);
    // A pixel of a screen with 96 to the inch is 2.6 of these units; two decimals are kept.
    for (std::size_t i = 0; i < amounts.size(); ++i)
      EXPECT_NEAR(marks[static_cast<std::size_t>(lowest)].second - marks[i].second,
                  (amounts[i] - amounts[static_cast<std::size_t>(lowest)]) * perMillimetre, 0.05);
  });
  EXPECT_GT(books, 5);
}

}  // namespace
