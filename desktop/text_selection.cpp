#include "text_selection.hpp"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <algorithm>

#include "runtime/control.hpp"
#include "runtime/text.hpp"

namespace tessarine::desktop {

namespace {

// Walks the control's text one character at a time, with each character's width
// on screen, until `stop` says so; returns the character and screen positions.
template <typename Stop>
std::pair<int, int> Walk(const std::string& text, Stop stop) {
  int model = 0, screen = 0;
  std::size_t i = 0;
  while (i < text.size() && !stop(model, screen)) {
    const unsigned char lead = static_cast<unsigned char>(text[i]);
    std::size_t bytes = 1;
    if (lead >= 0xF0 && lead < 0xF8)
      bytes = 4;
    else if (lead >= 0xE0)
      bytes = 3;
    else if (lead >= 0xC0)
      bytes = 2;
    bytes = std::min(bytes, text.size() - i);
    // A CR LF pair is one line break on screen: the LF adds nothing there.
    const bool lf_after_cr = lead == '\n' && i > 0 && text[i - 1] == '\r';
    screen += lf_after_cr ? 0 : (bytes == 4 ? 2 : 1);
    i += bytes;
    ++model;
  }
  return {model, screen};
}

}  // namespace

int ScreenPosition(const std::string& text, int position) {
  return Walk(text, [position](int model, int) { return model >= position; }).second;
}

int ModelPosition(const std::string& text, int screen_position) {
  // A CR LF pair maps as a whole: the place after the CR is the place after the LF.
  auto [model, screen] =
      Walk(text, [screen_position](int, int screen) { return screen >= screen_position; });
  if (model < Len(text) && ScreenPosition(text, model + 1) == screen) ++model;
  return model;
}

void ShowSelection(QWidget* widget, const Control& control) {
  const std::string& text = control.Text();
  const int start = ScreenPosition(text, control.SelStart());
  const int end = ScreenPosition(text, control.SelStart() + control.SelLength());
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    if (end > start)
      edit->setSelection(start, end - start);
    else
      edit->setCursorPosition(start);
  } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) {
    QTextCursor cursor = area->textCursor();
    const int last = area->document()->characterCount() - 1;
    cursor.setPosition(std::min(start, last));
    cursor.setPosition(std::min(end, last), QTextCursor::KeepAnchor);
    area->setTextCursor(cursor);
  }
}

std::pair<int, int> ReadSelection(QWidget* widget, const Control& control) {
  int start = 0, end = 0;
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
    end = edit->hasSelectedText() ? edit->selectionEnd() : start;
  } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) {
    const QTextCursor cursor = area->textCursor();
    start = cursor.selectionStart();
    end = cursor.selectionEnd();
  }
  const std::string& text = control.Text();
  const int model_start = ModelPosition(text, start);
  return {model_start, ModelPosition(text, end) - model_start};
}

}  // namespace tessarine::desktop
