#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What the operator has arranged to his liking and the program remembers: sizes of windows, widths of
/// columns, the look, ways of typing. Nothing of a job is kept here, and no calculation asks for it.
///
/// Texts under keys, in one file with a line "key=text" for each. Keys are of letters, digits, "." and "-";
/// texts are UTF-8. A file that is missing, damaged or written by another version costs nothing but what it
/// remembered.
class Settings {
 public:
  /// Remembers nothing beyond its own life: for scripts and tests.
  Settings() = default;
  /// Remembers in this file, which need not be there yet (path text).
  explicit Settings(std::string file);

  /// The text under a key; `otherwise` where there is none.
  std::string text(std::string_view key, std::string_view otherwise = {}) const;
  /// The whole number under a key; `otherwise` where there is none or something else.
  int number(std::string_view key, int otherwise) const;
  /// True for "1", false for "0" under the key, else `otherwise`.
  bool flag(std::string_view key, bool otherwise) const { return number(key, otherwise ? 1 : 0) == 1; }

  /// Puts a text under a key, at once and for good; what other running programs have put under other keys
  /// meanwhile stays. Returns false where the file cannot be written: the text then lasts as long as this
  /// object.
  bool set(std::string_view key, std::string_view text);
  bool set(std::string_view key, int number) { return set(key, std::to_string(number)); }
  /// Takes the text under a key away, at once and for good. Returns what set returns.
  bool erase(std::string_view key);

  /// The keys that begin with `prefix` and have a text, in their order.
  std::vector<std::string> keys(std::string_view prefix) const;

 private:
  void read();
  bool write();

  std::string file_;
  std::map<std::string, std::string, std::less<>> texts_;  ///< all of them
  std::map<std::string, std::optional<std::string>, std::less<>>
      own_;  ///< what this object has put; nothing where it has taken the text away
};

/// The settings file of the user who runs the program, in the user's own settings folder: below
/// $XDG_CONFIG_HOME or ~/.config, on Windows below %APPDATA%. "" where the system names no such folder.
std::string settingsFile();

}  // namespace platform
