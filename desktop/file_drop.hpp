// File drops onto a widget whose control takes them: the local files dropped go to
// the control's DropObject, by path, instead of the widget's own handling.
#pragma once

class QWidget;

namespace tessarine {
class Control;
}

namespace tessarine::desktop {

void AcceptFileDrops(QWidget& widget, Control& control);

}  // namespace tessarine::desktop
