#pragma once

#include <functional>
#include <string>

#include "ui/screen.h"

namespace route {

/// Runs a work that reads from the job, called `words` ("読み込んでいます"), and fills a screen from it. The
/// operator sees how it goes on and may give it up: then the screen shows what it showed before, with all
/// that could be taken back, and `bringBack` brings back what the screen knows besides. Returns false then.
/// Errors of the work pass on.
bool runUnlessGivenUp(ui::Screen& screen, const std::string& words, const std::function<void()>& work,
                      const std::function<void()>& bringBack);

}  // namespace route
