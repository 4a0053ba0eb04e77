#pragma once

#include <cstddef>
#include <functional>

#include "text/error.h"

namespace report {

/// Told how far a long work has come, in pieces of `all`; gives false where the operator has cancelled it.
/// May be empty.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;

/// The operator has cancelled the work; nothing of it is kept.
class Cancelled : public text::RuntimeError {
 public:
  Cancelled() : text::RuntimeError(text::ErrorCode::PathNotFound, "出力を中止しました。") {}
};

/// Tells `progress`, where there is one. Raises Cancelled.
inline void tell(const Progress& progress, std::size_t done, std::size_t all) {
  if (progress && !progress(done, all)) throw Cancelled();
}

}  // namespace report
