#pragma once

#include <optional>
#include <string_view>

#include "ui/grid.h"

namespace ui {

/// The way in which one looks through a grid.
enum class Way { Forward, Back };

/// The next cell of a visible column below the headers that holds `text`, in reading order from the cell that
/// keys go to, round from the last to the first, that cell itself last. Full-width and half-width forms and
/// small and large letters are alike. Nothing for an empty text.
std::optional<CellPlace> findNext(const Grid& grid, std::string_view text, Way way = Way::Forward);

/// The same, and goes there.
std::optional<CellPlace> find(Grid& grid, std::string_view text, Way way = Way::Forward);

/// The next entry after the cell that keys go to, in reading order, or the one before it; nothing behind the
/// last one.
std::optional<CellPlace> nextEntry(const Grid& grid, Way way);

}  // namespace ui
