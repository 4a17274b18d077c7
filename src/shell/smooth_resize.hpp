// SmoothResize: brings a window to a new size while one corner stays put. The
// desktop front end animates the change of bounds; the end state is set here.
#pragma once

#include "runtime/window.hpp"

namespace tessarine {

inline constexpr int kAnchorTopLeft = 0, kAnchorTopRight = 1, kAnchorBottomLeft = 2,
                     kAnchorBottomRight = 3;

// Any other anchor keeps the window where it is. Afterwards the top is at least 44
// (below the menu bar) and the left at least 0.
void SmoothResize(Window& window, int new_width, int new_height, int anchor);

}  // namespace tessarine
