#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "job/grade.h"
#include "text/pattern.h"
#include "ui/grid.h"

namespace daen {

/// The number patterns of the ellipsoidal correction.
struct Formats {
  text::Pattern correction;  ///< corrections (mm): one decimal in first grade, whole otherwise
  text::Pattern height;      ///< corrected heights (m): four decimals in first grade, three otherwise
  text::Pattern distance;    ///< distances on loading (km): three decimals
  text::Pattern loaded;      ///< heights on loading (m)
  text::Pattern difference;  ///< mean height differences on loading (m)
};

/// The patterns of a grade.
Formats FcDaenInit(job::Grade grade);

/// What the operator has chosen and typed for one section, as it stands on the screen. A latitude is its
/// degrees plus its minutes / 60, so a southern one carries its sign in both.
struct Section {
  std::string startBenchMark;
  std::string endBenchMark;
  std::string startDegrees;
  std::string startMinutes;
  std::string endDegrees;
  std::string endMinutes;
  std::string reference;  ///< correction (mm) at the start, taken over from another route; "" for none
};

/// What is computed for a section as a whole.
struct SectionValues {
  double meanHeight = 0;  ///< H, mean height of its bench marks, to 0.1 m
  double correction = 0;  ///< E, its correction (mm), to 0.1 mm
};

/// The ellipsoidal correction of a levelling section from its start to its end:
///
///     E = sin(φ₂ + φ₁) · 5.28 · (φ₁ − φ₂) · (1 / ρ) · H        ρ = 180 / π
///
/// `startLatitude` φ₁ and `endLatitude` φ₂ in degrees, north positive; `height` H in m, the mean height of
/// the section; `correction` E in mm, positive on northern latitudes where the start lies north of the end.
///
/// The textbooks write it K = 5.28 · sin(B₁ + B₂) · (B₁ − B₂)″ / ρ″ · H, with ρ″ = 206 265″: the normal
/// orthometric correction in Helmert's form. Level surfaces draw together towards the poles as normal gravity
/// grows by γ = γₑ (1 + β sin²φ); with β = 0.00528 a metre of height and a radian of latitude make 5.28 mm at
/// sin 2φ = 1.
void FcDaenHoseichi(double startLatitude, double endLatitude, double height, double& correction);

/// Computes one section of the route grid and distributes its correction over its bench marks in proportion
/// to the distance from its start. `show` is given the section's values as soon as they are known, before
/// anything is distributed.
///
/// The section is entered into `Grid2` (FcDaenSetGrid2Row). Column 3 of its bench marks becomes the share of
/// E, rounded to 0.1 mm half away from zero, plus the value accumulated up to the section computed before
/// (the reference where there is none); column 4 the height plus the correction as column 3 shows it. The
/// start itself gets that accumulated value where the section before ends on it, else 0.
///
/// A section may run up the rows (forward) or down them (backward). Backward the distance of the row just
/// beyond its end counts too, so the end gets less than E unless the route begins there; and a section
/// without distances keeps the starting value, where forward it is an error.
///
/// Returns false, with nothing written, where a bench mark is not in the grid or both are on the same row.
/// The current row of `Grid1` moves to the end bench mark, or to the last one where there is none.
/// Raises DivisionByZero for a forward section without distances, Overflow where a number leaves the range of
/// double; cells written before keep their texts.
bool FcSeiDaenCal(ui::Grid& Grid1, ui::Grid& Grid2, const Section& section, const Formats& formats,
                  const std::function<void(const SectionValues&)>& show);

/// A latitude as the section grid shows it, degrees ° minutes: "36°14.5".
std::string latitudeText(std::string_view degrees, std::string_view minutes);

/// Enters a section into the section grid as the row before the final empty one; a row of the same start and
/// end bench mark is taken out. Then column 8 of every row is summed up anew: its own correction plus column
/// 8 above it, in the first row plus the reference.
void FcDaenSetGrid2Row(ui::Grid& Grid2, const Section& section, const SectionValues& values);

}  // namespace daen
