#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "daen/calculation.h"

namespace {

double correction(double start, double end, double height) {
  double result = 0;
  daen::FcDaenHoseichi(start, end, height, result);
  return result;
}

struct Case {
  double start;   // degrees
  double end;     // degrees
  double height;  // m
};

// Latitudes of both hemispheres, across the equator, near a pole, heights below the sea and above.
const std::vector<Case> cases = {
    {35.5, 36.25, 500},        {36.25, 35.5, 500},      {43 + 3.4 / 60, 43 + 12.9 / 60, 1234.5},
    {-35.5, -36.25, 500},      {-12.75, -11.5, 2890.1}, {1.5, -0.5, 320.7},
    {26 + 12.0 / 60, 26, 8.4}, {89.75, 88.5, 150},      {45, 44, -3.2},
};

// The textbook form in 64 bits of mantissa, by another road: seconds of arc over 206 264.806… and the sine of
// the sum taken apart, sin B1 cos B2 + cos B1 sin B2.
long double textbook(const Case& c) {
  constexpr long double pi = 3.14159265358979323846264338327950288L;
  constexpr long double secondsOfRadian = 206264.806247096355156473357330779L;
  const long double b1 = static_cast<long double>(c.start) * pi / 180;
  const long double b2 = static_cast<long double>(c.end) * pi / 180;
  const long double sine = std::sin(b1) * std::cos(b2) + std::cos(b1) * std::sin(b2);
  const long double seconds = (static_cast<long double>(c.start) - static_cast<long double>(c.end)) * 3600;
  return 5.28L * sine * seconds / secondsOfRadian * static_cast<long double>(c.height);
}

TEST(FcDaenHoseichi, AgreesWithTheTextbookFormInExtendedPrecision) {
  for (const Case& c : cases) {
    const auto expected = static_cast<double>(textbook(c));
    EXPECT_NEAR(correction(c.start, c.end, c.height), expected, 1e-13 + std::abs(expected) * 2e-15)
        << c.start << "° to " << c.end << "°, " << c.height << " m";
  }
}

// The integral of H · 5.28 · sin 2B dB from B2 to B1 is H · 5.28 · sin(B1 + B2) · sin(B1 − B2). The formula
// takes the arc for its sine, which is too large by a part of (B1 − B2)² / 6 and no more.
TEST(FcDaenHoseichi, StandsForTheIntegralAlongTheMeridian) {
  for (const Case& c : cases) {
    const double b1 = c.start * std::numbers::pi / 180;
    const double b2 = c.end * std::numbers::pi / 180;
    const double integral = c.height * 5.28 * (std::sin(b1) * std::sin(b1) - std::sin(b2) * std::sin(b2));
    const double arc = b1 - b2;
    EXPECT_NEAR(correction(c.start, c.end, c.height), integral * (1 + arc * arc / 6),
                std::abs(integral) * 1e-7 + 1e-12);
  }
}

// By hand: sin 71.75° = 0.9496991, 36.25 − 35.5 = 0.75° = 0.0130900 rad;
// 0.9496991 · 5.28 · (−0.0130900) · 500 = −32.8192 mm: the end lies north of the start.
TEST(FcDaenHoseichi, IsNegativeTowardsTheNorth) { EXPECT_NEAR(correction(35.5, 36.25, 500), -32.8192, 5e-4); }

TEST(FcDaenHoseichi, ChangesItsSignWithTheDirection) {
  EXPECT_EQ(correction(36.25, 35.5, 500), -correction(35.5, 36.25, 500));
}

// The mirror image at the equator: sine and difference both change their sign.
TEST(FcDaenHoseichi, IsTheSameInTheMirrorOfTheEquator) {
  EXPECT_DOUBLE_EQ(correction(-35.5, -36.25, 500), correction(35.5, 36.25, 500));
}

TEST(FcDaenHoseichi, IsZeroWithoutDifferenceOrHeightOrAcrossTheEquatorInTheMiddle) {
  EXPECT_EQ(correction(35.5, 35.5, 500), 0);
  EXPECT_EQ(correction(35.5, 36.25, 0), 0);
  EXPECT_EQ(correction(2, -2, 500), 0);  // sin(2° − 2°)
}

}  // namespace
