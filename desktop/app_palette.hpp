// The application's palette: Fusion's light one, unless the desktop's is dark.
#pragma once

#include <QPalette>

namespace tessarine::desktop {

// Whether a palette draws light text on dark windows.
bool IsDarkPalette(const QPalette& palette);

// Makes `system` the application's palette when it is dark; otherwise the Fusion
// style's light palette, the one the program's colours were chosen on.
void UseSystemPalette(const QPalette& system);

}  // namespace tessarine::desktop
