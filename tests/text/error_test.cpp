#include "text/error.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

TEST(RuntimeError, DescribesItselfInJapanese) {
  const std::pair<text::ErrorCode, const char*> cases[] = {
      {text::ErrorCode::Overflow, "オーバーフローしました。"},
      {text::ErrorCode::DivisionByZero, "0 で除算しました。"},
      {text::ErrorCode::TypeMismatch, "型が一致しません。"},
      {text::ErrorCode::Subscript, "インデックスが有効範囲にありません。"},
      {text::ErrorCode::FileNotFound, "ファイルが見つかりません。"},
      {text::ErrorCode::PathNotFound, "パスが見つかりません。"},
  };
  for (const auto& [code, words] : cases) {
    const text::RuntimeError error(code);
    EXPECT_STREQ(error.what(), words);
    EXPECT_EQ(error.code(), code);
    EXPECT_STREQ(text::description(code), words);
  }
}

TEST(RuntimeError, MayHaveADescriptionOfItsOwn) {
  const text::RuntimeError error(text::ErrorCode::Database, "テーブル \"JobData\" がありません。");
  EXPECT_STREQ(error.what(), "テーブル \"JobData\" がありません。");
  EXPECT_EQ(error.code(), text::ErrorCode::Database);
}

TEST(RuntimeError, EveryCodeHasADescription) {
  EXPECT_NE(std::string(text::description(text::ErrorCode::Database)), "");
}

}  // namespace
