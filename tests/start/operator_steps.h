#pragma once

#include <QMainWindow>
#include <deque>
#include <functional>
#include <string>
#include <vector>

// A bodiless operator of the whole program: what he does, one step each time the program waits for one, also
// while a message box is open.

namespace test {

/// What the operator is still to do, and what he has seen: titles of windows, "title|text" of message boxes.
extern std::deque<std::function<void()>> steps;
extern std::vector<std::string> seen;

/// The main window that is open. Throws std::logic_error where there is none.
QMainWindow& openWindow();
/// Notes the title of the open window.
void look();
/// Presses the button of that name in the open window.
std::function<void()> push(const char* name);
/// Notes what the open message box says and presses OK.
void answer();
/// Runs the whole program with this command line, with settings of its own, to its end. Returns its exit
/// status.
int runProgram(const std::string& commandLine);

}  // namespace test
