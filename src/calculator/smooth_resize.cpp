#include "calculator/smooth_resize.hpp"

#include <algorithm>

namespace tessarine {

void SmoothResize(Window& window, int new_width, int new_height, Anchor anchor) {
  const int dw = new_width - window.Width();
  const int dh = new_height - window.Height();
  int top = window.Top();
  int left = window.Left();
  if (anchor == Anchor::TopRight || anchor == Anchor::BottomRight) left -= dw;
  if (anchor == Anchor::BottomLeft || anchor == Anchor::BottomRight) top -= dh;
  window.SetBounds(std::max(left, 0), std::max(top, 44), new_width, new_height);
}

}  // namespace tessarine
