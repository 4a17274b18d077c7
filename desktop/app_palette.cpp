#include "app_palette.hpp"

#include <QApplication>
#include <QStyle>

namespace tessarine::desktop {

bool IsDarkPalette(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

void UseSystemPalette(const QPalette& system) {
  QApplication::setPalette(IsDarkPalette(system) ? system
                                                 : QApplication::style()->standardPalette());
}

}  // namespace tessarine::desktop
