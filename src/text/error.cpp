#include "text/error.h"

namespace text {

const char* description(ErrorCode code) {
  switch (code) {
    case ErrorCode::Overflow:
      return "オーバーフローしました。";
    case ErrorCode::DivisionByZero:
      return "0 で除算しました。";
    case ErrorCode::TypeMismatch:
      return "型が一致しません。";
    case ErrorCode::Subscript:
      return "インデックスが有効範囲にありません。";
    case ErrorCode::FileNotFound:
      return "ファイルが見つかりません。";
    case ErrorCode::PathNotFound:
      return "パスが見つかりません。";
    case ErrorCode::Database:
      return "データベースのエラーです。";
  }
  return "";
}

RuntimeError::RuntimeError(ErrorCode code) : RuntimeError(code, description(code)) {}

RuntimeError::RuntimeError(ErrorCode code, const std::string& description)
    : std::runtime_error(description), code_(code) {}

}  // namespace text
