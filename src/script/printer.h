#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "report/exporting.h"
#include "script/hands.h"

namespace script {

// What the transcript of a script is made of. Every function prints whole lines.

/// A text in double quotes, with `\"`, `\\`, `\t` and `\n` for the characters that would break the line.
std::string quoted(std::string_view text);

/// What the operator sees of a control: its text, its state or, line by line, its items or rows.
void printReading(std::ostream& out, std::string_view name, const Reading& reading);

/// `NAME: WIDTH x HEIGHT`, in whole twips.
void printSize(std::ostream& out, std::string_view name, const Size& size);

/// `screen: fSHsei "正標高補正"`.
void printScreen(std::ostream& out, std::string_view name, std::string_view caption);
/// `screen: none`: the program has ended.
void printNoScreen(std::ostream& out);

/// The message boxes, one a line, or `messages: none`.
void printMessages(std::ostream& out, const std::vector<ui::Message>& messages);

/// `pasted: 12 taken, 3 passed over`.
void printPasted(std::ostream& out, const ui::BlockCount& count);
/// `copied: "text"`.
void printCopied(std::ostream& out, std::string_view text);
/// `undo: NAME`, or `undo: nothing` for an empty name; `way` is "undo" or "redo".
void printMoved(std::ostream& out, std::string_view way, std::string_view name);
/// `found: ROW,COL` or `found: nothing`.
void printFound(std::ostream& out, const std::optional<ui::CellPlace>& cell);

/// `exported: FILE_NAME, N pages`, with what is counted, or `exported: FILE_NAME` where nothing is.
void printExported(std::ostream& out, const report::Exported& exported);

/// `unhandled error: DESCRIPTION`, in one line.
void printUnhandled(std::ostream& out, std::string_view description);

/// The findings of a screen, one a line: `check: error 4,2 "text"`, `-,-` for one that belongs to no cell;
/// `checks: none` where there are none.
void printFindings(std::ostream& out, const ui::Findings& findings);

}  // namespace script
