// Canvases that show a picture of the program's own: the preferences toolbar's
// buttons (icon, caption, the selected one shaded), the decimals' arrows and the
// caution sign of the confirmation sheets. Drawn from SVG, clean at any scale.
#pragma once

#include <QWidget>

#include "runtime/control.hpp"

namespace tessarine::desktop {

// The widget for a canvas that has a picture, or nullptr for any other canvas.
QWidget* MakePictureCanvas(Control& control, QWidget* parent);

}  // namespace tessarine::desktop
