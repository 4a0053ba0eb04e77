#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace text {

/// The number a text begins with: leading blanks are skipped, then the longest prefix of the form sign,
/// digits, decimal point, digits, exponent (taken only where digits follow it) counts. No such prefix: 0.
/// "1,234" is 1, "-.5" is −0.5. Raises Overflow where the number is outside the range of double.
double readNumber(std::string_view text);

/// The number of a plain decimal: an optional "-", at most 15 digits and perhaps a point among them or at an
/// end, and nothing else. Nothing for any other text. readNumber gives the same for it.
std::optional<double> plainNumber(std::string_view text);

/// The decimal text of a number: at most 15 significant digits, shortest form, no trailing zeros, exponent as
/// "1E-05". Raises Overflow for a number that is not finite.
std::string numberText(double number);

/// True where a text is a number and nothing else: blanks at the ends aside, an optional sign, digits with an
/// optional decimal point (it may end the text, "35."), an optional exponent.
bool isNumeric(std::string_view text);

/// The greatest integer not above `number`.
double Int(double number);

/// `number` cut off towards zero.
double Fix(double number);

/// −1, 0 or 1.
double sign(double number);

/// The greatest integer not above the value of the decimal text of `number`: 2.9999999999999996, whose text
/// is "3", gives 3, so that the noise of floating-point sums costs no unit. −0.5 gives −1.
double FcIntOfText(double number);

/// `number` rounded to `unitsInOne` units in a whole one, halves upwards: (1.0001 + 1.0002) / 2 in 10000
/// units is 1.0002, −4.0005 / 2 is −2.0002. A half counts as one where the decimal text of the number in
/// units reads so (FcIntOfText), so the noise of floating-point sums never turns it into less. Every mean is
/// rounded here.
double roundHalfUp(double number, double unitsInOne);

/// The same with halves away from zero: −0.05 in 10 units is −0.1. Every computed correction is rounded here.
double roundHalfAway(double number, double unitsInOne);

/// `degrees` × π / 180, with π as 4 × arctangent of 1.
double FcDegToRad(double degrees);

/// A counter of 16 bits. Raises Overflow where `number` does not fit.
std::int16_t toInt16(long long number);

/// The whole number that a text stands for as a whole (as a field or a cell is taken into a 16-bit variable);
/// a fraction is rounded to the nearest, halves to the even one. Raises TypeMismatch where the text is not
/// numeric, Overflow where it does not fit.
std::int16_t readInt16(std::string_view text);

}  // namespace text
