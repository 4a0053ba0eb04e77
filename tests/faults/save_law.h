#pragma once

#include <string>
#include <vector>

#include "ui/desktop.h"

namespace test {

/// What the tables of a save hold after it: "old" or "new" where all of a table's records are, else what is
/// there.
using TableStates = std::vector<std::string>;

/// Holds a save that something was done to against the law: each table is all old or all new, with safeguards
/// all tables the same; after "saved" they are new, but for a table whose own failure was told behind it;
/// with safeguards no error is told behind "saved"; nobody is told that the old results are there where they
/// are not; something is told in any case. `where` names the case in what is reported.
void judge(const TableStates& states, const std::vector<ui::Message>& told, bool guarded,
           const std::string& where);

}  // namespace test
