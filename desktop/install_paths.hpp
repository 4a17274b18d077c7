// Where the program's companion files are: beside it in the build tree, or in the
// installed tree's library and data folders.
#pragma once

#include <QString>

namespace tessarine::desktop {

// The speech and sound module (libtessarine_feedback.so).
QString FeedbackModulePath();
// The folder of the feedback sounds (Boop.wav, Click.wav, ...).
QString SoundsFolder();

}  // namespace tessarine::desktop
