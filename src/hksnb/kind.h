#pragma once

#include <string>
#include <string_view>

#include "job/context.h"

namespace hksnb {

/// The correction that a book is built on. A job may hold a book of each kind under the same number.
enum class Kind { Orthometric, Ellipsoidal };

/// 補正値フラグ of the book's rows.
constexpr std::string_view rowsCode(Kind kind) { return kind == Kind::Orthometric ? "0" : "1"; }

/// 観測簿種類 of the book's observation periods.
constexpr std::string_view periodsCode(Kind kind) { return kind == Kind::Orthometric ? "1" : "2"; }

/// The name of the correction, as it heads its column.
constexpr std::string_view correctionName(Kind kind) {
  return kind == Kind::Orthometric ? "正標高補正" : "楕円補正";
}

/// The title of the book's variation diagram.
constexpr std::string_view diagramTitle(Kind kind) {
  return kind == Kind::Orthometric ? "成果変動図正標高" : "成果変動図楕円";
}

/// The table with the results of the correction.
inline const std::string& correctionTable(const job::JobContext& context, Kind kind) {
  return kind == Kind::Orthometric ? context.tables.gTblKansokuSeikaDataSeihyou
                                   : context.tables.gTblKansokuSeikaDataDaen;
}

}  // namespace hksnb
