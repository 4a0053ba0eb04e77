#include "qt/application.h"

#include <gtest/gtest.h>

#include <memory>

#include "qt/offscreen.h"

namespace {

/// One application for all window tests, without a display.
class Offscreen : public testing::Environment {
 public:
  void SetUp() override {
    test::chooseOffscreen();
    application_ = std::make_unique<qt::Application>("qt_test");
  }
  void TearDown() override { application_.reset(); }

 private:
  std::unique_ptr<qt::Application> application_;
};

[[maybe_unused]] const testing::Environment* const offscreen =
    testing::AddGlobalTestEnvironment(new Offscreen);

}  // namespace
