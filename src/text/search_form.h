#pragma once

#include <string>
#include <string_view>

namespace text {

/// A text in the form in which texts are compared when one looks for them: letters, figures, signs and blanks
/// half-width, kana full-width, ASCII letters small. "ＢＭ－１　ﾊﾞﾝ" and "bm-1 バン" have the same form.
std::string searchForm(std::string_view text);

}  // namespace text
