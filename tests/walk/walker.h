#pragma once

#include <cstdint>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string>

#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace test {

/// A stream of operation-script lines in which each line is made up at random when it is asked for, out of
/// what the open screen offers at that moment. The same seed on the same job gives the same walk.
class Walker : public std::streambuf {
 public:
  /// `screen` gives the open screen, null when the program has ended; the walk then ends too. Each line goes
  /// to `record`.
  Walker(std::uint32_t seed, int steps, std::function<ui::Screen*()> screen, std::ostream& record)
      : state_(seed), steps_(steps), screen_(std::move(screen)), record_(record) {}

 protected:
  int_type underflow() override;

 private:
  int below(int limit);
  std::string nextLine();
  std::string look(const ui::Control& control);
  std::string act(const ui::Screen& screen, const ui::Control& control);
  std::string press(const ui::Control& control);
  std::string choose(const ui::ItemControl& list);
  std::string write(const ui::TextBox& box);
  std::string work(const ui::Grid& grid);
  std::string keys();

  std::uint32_t state_;
  int steps_;
  std::function<ui::Screen*()> screen_;
  std::ostream& record_;
  std::string line_;
};

}  // namespace test
