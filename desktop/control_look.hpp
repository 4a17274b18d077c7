// How a control of the model looks on screen: font, alignment, background. The
// text colour is the control's own TextColor; a TextSize other than 0 overrides
// the size below. Sizes are in pixels, since the layout is in points of 1 pixel.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <Qt>

#include "runtime/control.hpp"

namespace tessarine::desktop {

// The program's fonts, with metric-compatible free faces for the classic ones.
inline constexpr const char* kSansFamily = "Liberation Sans";    // Arial, Helvetica
inline constexpr const char* kMonoFamily = "Liberation Mono";    // Courier
inline constexpr const char* kSerifFamily = "Liberation Serif";  // Times New Roman

struct ControlLook {
  QString family;       // empty: the application's font
  int pixel_size = 12;  // when the control's TextSize is 0
  Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
  QColor background;  // invalid: the style's
};

ControlLook LookFor(const Control& control);

// The font a control is drawn in now (its TextSize included).
QFont FontFor(const Control& control, const QFont& application_font);

}  // namespace tessarine::desktop
