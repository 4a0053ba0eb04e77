#pragma once

#include <string>
#include <vector>

#include "intake/plan.h"

namespace intake {

/// Reads the lines of a block one after another, each with the keys of the line before it where its own are
/// blank.
class LineReader {
 public:
  /// Both must outlive the reader.
  LineReader(const Matching& matching, const Defaults& defaults);

  /// The observation of a line; `order` is 0 where the line has none. What cannot be taken is appended to
  /// `refusals`, every fault of the line, and the observation is not to be used then.
  Observation read(const Line& line, std::vector<Refusal>& refusals);

 private:
  std::string cell(const Line& line, Field field) const;
  void readKeys(const Line& line, Observation& observation);
  std::string number(const Line& line, Field field);
  std::string day(const Line& line, Field field);
  std::string words(const Line& line, Field field);
  int order(const Line& line);
  void refuse(const Line& line, std::string why);

  const Matching& matching_;
  std::string project_;
  std::string route_;
  std::string category_;
  std::vector<Refusal>* refusals_ = nullptr;
};

}  // namespace intake
