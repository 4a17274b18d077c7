// The names assistive technology reads for the program's controls.
#pragma once

#include <QString>
#include <string>

class QWidget;

namespace tessarine {
class Control;
}

namespace tessarine::desktop {

// What a control is called aloud: a key by what it does ("seven", "plus", "square
// root"), the display by the value it shows, a captioned button or label by its
// caption, anything else by the words of its name ("DisplayBackground" reads
// "display background"). Never empty.
QString AccessibleNameFor(const Control& control);

// Gives the widget the name and, when it changed, tells assistive technology, so
// that the display's new value is read out.
void SetAccessibleName(QWidget& widget, const QString& name);

// The words of a control's name, without the word "Button": "ButtonRoundDown"
// reads "round down".
QString WordsOfName(const std::string& control_name);

}  // namespace tessarine::desktop
