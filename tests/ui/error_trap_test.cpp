#include "ui/error_trap.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <vector>

#include "support/recording_desktop.h"
#include "text/error.h"

namespace {

using Messages = std::vector<ui::Message>;

TEST(ErrorTrap, LetsAnActionComeToItsEnd) {
  test::RecordingDesktop desktop;
  bool done = false;
  EXPECT_TRUE(ui::trapped(&desktop, "FcDBOpen", [&] { done = true; }));
  EXPECT_TRUE(done);
  EXPECT_TRUE(desktop.messages.empty());
}

TEST(ErrorTrap, ReportsTheDescriptionUnderTheProceduresName) {
  test::RecordingDesktop desktop;
  bool after = false;
  EXPECT_FALSE(ui::trapped(&desktop, "FcDBOpen", [&] {
    if (desktop.breaths == 0) throw text::RuntimeError(text::ErrorCode::DivisionByZero);
    after = true;
  }));
  EXPECT_FALSE(after);
  EXPECT_EQ(desktop.messages, (Messages{{"FcDBOpen", "0 で除算しました。", ui::Icon::Critical}}));
}

TEST(ErrorTrap, ReportsErrorsOfTheStandardLibraryToo) {
  test::RecordingDesktop desktop;
  EXPECT_FALSE(ui::trapped(&desktop, "FcDbSave", [] { throw std::bad_alloc(); }));
  EXPECT_FALSE(ui::trapped(&desktop, "FcDbSave", [] { throw std::runtime_error("理由"); }));
  EXPECT_EQ(desktop.messages, (Messages{{"FcDbSave", "メモリが不足しています。", ui::Icon::Critical},
                                        {"FcDbSave", "理由", ui::Icon::Critical}}));
}

TEST(ErrorTrap, PassesTheErrorOnWithoutADesktop) {
  EXPECT_THROW(
      ui::trapped(nullptr, "FcDBOpen", [] { throw text::RuntimeError(text::ErrorCode::TypeMismatch); }),
      text::RuntimeError);
}

TEST(ErrorTrap, ReportsAnErrorOnceUnderTheInnermostName) {
  test::RecordingDesktop desktop;
  EXPECT_TRUE(ui::trapped(&desktop, "CmdDataOpen_Click", [&] {
    ui::trapped(&desktop, "FcDBOpen", [] { throw text::RuntimeError(text::ErrorCode::Overflow); });
  }));
  EXPECT_EQ(desktop.messages, (Messages{{"FcDBOpen", "オーバーフローしました。", ui::Icon::Critical}}));
}

}  // namespace
