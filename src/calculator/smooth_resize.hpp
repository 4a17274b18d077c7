// SmoothResize: brings a window to a new size while one corner stays put. The
// desktop front end animates the change of bounds; the end state is set here.
#pragma once

#include "runtime/window.hpp"

namespace tessarine {

// The corner that stays where it is.
enum class Anchor { TopLeft, TopRight, BottomLeft, BottomRight };

// Afterwards the top is at least 44 (below the menu bar) and the left at least 0.
void SmoothResize(Window& window, int new_width, int new_height, Anchor anchor);

}  // namespace tessarine
