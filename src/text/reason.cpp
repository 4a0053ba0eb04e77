#include "text/reason.h"

#include <new>
#include <stdexcept>

namespace text {

std::string reasonOf(const std::exception& error) {
  const bool noMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
                        dynamic_cast<const std::length_error*>(&error) != nullptr;
  return noMemory ? "メモリが不足しています。" : error.what();
}

}  // namespace text
