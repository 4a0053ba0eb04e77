#include "report/svg_writer.h"

#include <gtest/gtest.h>

namespace {

using namespace report;

bool holds(const std::string& all, const std::string& part) { return all.find(part) != std::string::npos; }

TEST(Svg, HasTheSizeOfThePaper) {
  const std::string svg = svgOf({2970, 2100, {}}, "変動図");
  EXPECT_TRUE(holds(svg, "width=\"297mm\" height=\"210mm\" viewBox=\"0 0 2970 2100\""));
  EXPECT_TRUE(holds(svg, "<title>変動図</title>"));
}

TEST(Svg, DrawsEveryShape) {
  Drawing drawing{100, 100, {}};
  drawing.shapes.emplace_back(Line{{{1, 2}, {3.456, -4}}, Pen{2, {255, 0, 16}, Dash::Dashed}});
  drawing.shapes.emplace_back(Area{{{1, 2}, 3, 4}, {0, 128, 0}});
  drawing.shapes.emplace_back(Mark{{10, 20}, Sign::Disc, 8, black, 3, "A1 <1 mm>"});
  drawing.shapes.emplace_back(Words{{5, 6}, "A & B", 30, Anchor::Middle, true});
  drawing.shapes.emplace_back(Picture{{{0, 0}, 9, 9}, std::make_shared<const std::string>("BM1")});
  const std::string svg = svgOf(drawing, "");
  EXPECT_TRUE(holds(svg,
                    "<polyline points=\"1,2 3.46,-4\" fill=\"none\" stroke=\"#ff0010\" stroke-width=\"2\" "
                    "stroke-dasharray=\"12 6\"/>"));
  EXPECT_TRUE(holds(svg, "<rect x=\"1\" y=\"2\" width=\"3\" height=\"4\" fill=\"#008000\"/>"));
  EXPECT_TRUE(holds(svg,
                    "data-x=\"10\" data-y=\"20\"><title>A1 &lt;1 mm&gt;</title><circle cx=\"10\" cy=\"20\" "
                    "r=\"4\""));
  EXPECT_TRUE(holds(svg, "text-anchor=\"middle\" transform=\"rotate(-90 5 6)\" fill=\"#000000\">A &amp; B<"));
  EXPECT_TRUE(holds(svg, "href=\"data:image/bmp;base64,Qk0x\""));  // "BM1" in base 64
}

TEST(Svg, TellsSignsApart) {
  std::vector<std::string> files;
  for (const Sign sign :
       {Sign::Disc, Sign::Circle, Sign::Square, Sign::Triangle, Sign::Diamond, Sign::Cross}) {
    Drawing drawing{10, 10, {}};
    drawing.shapes.emplace_back(Mark{{5, 5}, sign, 4});
    const std::string svg = svgOf(drawing, "");
    for (const std::string& other : files) EXPECT_NE(svg, other);
    files.push_back(svg);
  }
}

}  // namespace
