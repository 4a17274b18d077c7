#include "key_events.hpp"

#include <QKeySequence>

namespace tessarine::desktop {

namespace {

const char* NamedKey(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Return:
      return "Return";
    case Qt::Key_Enter:
      return "Enter";  // the keypad's
    case Qt::Key_Escape:
      return "Escape";
    case Qt::Key_Backspace:
      return "BackSpace";
    case Qt::Key_Space:
      return "space";
    default:
      return nullptr;
  }
}

bool IsModifierKey(int qt_key) {
  switch (qt_key) {
    case Qt::Key_Control:
    case Qt::Key_Shift:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
      return true;
    default:
      return false;
  }
}

bool IsPrintable(const QString& text) {
  if (text.isEmpty()) return false;
  for (const QChar c : text)
    if (c.category() == QChar::Other_Control) return false;
  return true;
}

}  // namespace

std::optional<KeyChord> ChordForKey(int qt_key, Qt::KeyboardModifiers modifiers,
                                    const QString& text) {
  if (IsModifierKey(qt_key)) return std::nullopt;
  KeyChord chord;
  chord.modifiers.ctrl = modifiers & Qt::ControlModifier;
  chord.modifiers.alt = modifiers & Qt::AltModifier;
  chord.modifiers.shift = modifiers & Qt::ShiftModifier;

  if (const char* name = NamedKey(qt_key)) {
    chord.key = name;
    return chord;
  }
  // Qt names printable keys by their unshifted character, letters in capitals.
  if ((chord.modifiers.ctrl || chord.modifiers.alt) && qt_key > 0x20 && qt_key < 0x7f) {
    char c = static_cast<char>(qt_key);
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    chord.key = std::string(1, c);
    return chord;
  }
  if (IsPrintable(text)) {
    chord.key = text.toStdString();
    return chord;
  }
  // F5, the arrows, Tab...: their names, which type nothing the map could use.
  chord.key = QKeySequence(qt_key).toString(QKeySequence::PortableText).toStdString();
  return chord;
}

}  // namespace tessarine::desktop
