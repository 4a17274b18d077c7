// Texts between the model and the widgets: the program's carriage returns against Qt's
// line feeds, captions without mnemonics.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QString>
#include <string>

namespace tessarine::desktop {

inline QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

// The program ends its lines with a carriage return; Qt's text widgets with a
// line feed.
inline QString ToScreen(const std::string& text) {
  QString s = Q(text);
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return s;
}

// What a text widget shows, as the model's text shows on screen.
inline QString CurrentText(QWidget* widget) {
  if (auto* edit = qobject_cast<QLineEdit*>(widget)) return edit->text();
  if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) return area->toPlainText();
  return {};
}

inline std::string FromScreen(const QString& text) {
  QString s = text;
  s.replace(QLatin1Char('\n'), QLatin1Char('\r'));
  return s.toStdString();
}

// A caption is no mnemonic: a lone & stays an ampersand.
inline QString Caption(const std::string& text) {
  QString s = Q(text);
  s.replace(QLatin1Char('&'), QStringLiteral("&&"));
  return s;
}

}  // namespace tessarine::desktop
