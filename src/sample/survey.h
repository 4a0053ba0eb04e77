#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "sample/terrain.h"

namespace sample {

/// How a route is observed.
struct Observation {
  std::chrono::sys_days firstDay;  ///< the bench marks are observed one after another from here
  std::chrono::sys_days before;    ///< first day of the epoch before
  DateForm form = DateForm::Plain;
  int knownEvery = 12;        ///< a known point at every so many bench marks, and at both ends
  int marksADay = 4;          ///< bench marks that are observed on one day
  std::vector<Place> places;  ///< along the route, in equal parts; one at least
};

/// Observes the bench marks of these numbers (2 or more) along a walk; the last one ends the route ("-1").
std::vector<Mark> survey(Walk& walk, const Observation& observation, const std::vector<std::string>& numbers,
                         Precision precision);

/// Makes the section from mark `at` one whose two runs stand apart: the mark is named with F and with B, and
/// the next one is reached twice ("-2") before the route goes on from it. `secondRise`: what the second run
/// gave (0.1 mm).
void separateRuns(std::vector<Mark>& marks, std::size_t at, long long secondRise);

/// Makes mark `at` newly established: the epoch before knows one section over it, from the mark before to the
/// one behind. Both sections must have an epoch before.
void establish(std::vector<Mark>& marks, std::size_t at);

/// Puts a side observation behind mark `at`: a record that belongs to no data category.
void addStray(std::vector<Mark>& marks, std::size_t at);

}  // namespace sample
