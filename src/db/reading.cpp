#include "db/reading.h"

#include <utility>

namespace db {
namespace {

thread_local ReadingWatch* innermost = nullptr;

}  // namespace

ReadingWatch::ReadingWatch(std::function<void()> each)
    : each_(std::move(each)), outer_(std::exchange(innermost, this)) {}

ReadingWatch::~ReadingWatch() { innermost = outer_; }

void ReadingWatch::tell() {
  if (innermost != nullptr) innermost->each_();
}

}  // namespace db
