// The caret and selection of a text widget, kept in step with its control's
// SelStart and SelLength. The control counts characters of its own text, where a
// line ends in CR (and CR LF counts two); the widget counts UTF-16 units of its
// text, where a line ends in one LF.
#pragma once

#include <QString>
#include <string>
#include <utility>

class QWidget;

namespace tessarine {
class Control;
}

namespace tessarine::desktop {

// The widget position of a character position of the control's text, and back.
int ScreenPosition(const std::string& text, int position);
int ModelPosition(const std::string& text, int screen_position);

// Shows the control's selection in its text widget (a line edit or a text area);
// other widgets are left alone.
void ShowSelection(QWidget* widget, const Control& control);
// The widget's selection as the control counts it: start and length.
std::pair<int, int> ReadSelection(QWidget* widget, const Control& control);

}  // namespace tessarine::desktop
