#include "accessible_names.hpp"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QChar>
#include <QStringList>
#include <QWidget>

#include "runtime/control.hpp"

namespace tessarine::desktop {

namespace {

struct SpokenName {
  const char* name;
  const char* spoken;
};

// Keys whose caption is a sign or an abbreviation that reads badly aloud, and
// whose name alone does not say it either.
constexpr SpokenName kSpokenNames[] = {
    {"Button0", "zero"},
    {"Button1", "one"},
    {"Button2", "two"},
    {"Button3", "three"},
    {"Button4", "four"},
    {"Button5", "five"},
    {"Button6", "six"},
    {"Button7", "seven"},
    {"Button8", "eight"},
    {"Button9", "nine"},
    {"ButtonDecimal", "decimal point"},
    {"ButtonEqual", "equals"},
    {"ButtonDeltaPercent", "percent change"},
    {"ButtonExp", "exponent"},
    {"ButtonSciNotation", "scientific notation"},
    {"ButtonOneOverX", "reciprocal"},
    {"ButtonLog", "common logarithm"},
    {"Buttonln", "natural logarithm"},
    {"ButtonLogBasen", "logarithm to base n"},
    {"ButtonNthRoot", "y-th root"},
    {"ButtonSquared", "x squared"},
    {"ButtonCubed", "x cubed"},
    {"ButtonXtotheY", "x to the power y"},
    {"ButtonTenToTheX", "ten to the power x"},
    {"ButtoneToTheX", "e to the power x"},
    {"StoragePlusButton", "memory plus"},
    {"StorageMinusButton", "memory minus"},
    {"StorageRecallButton", "memory recall"},
    {"StorageClearButton", "memory clear"},
    {"ExponentText", "exponent"},
};

const char* SpokenFor(const std::string& control_name) {
  const QString name = QString::fromStdString(control_name);
  for (const SpokenName& entry : kSpokenNames)
    if (name.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0) return entry.spoken;
  return nullptr;
}

// A caption may run over lines; a name is read as one.
QString Plain(const std::string& text) {
  QString s = QString::fromStdString(text).trimmed();
  s.replace(QLatin1Char('\r'), QLatin1Char(' '));
  return s;
}

bool IsKey(ControlKind kind) {
  return kind == ControlKind::BevelButton || kind == ControlKind::CalcBevelButton;
}

bool ShowsCaption(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
    case ControlKind::PushButton:
    case ControlKind::RadioButton:
    case ControlKind::CheckBox:
    case ControlKind::GroupBox:
      return true;
    default:
      return false;
  }
}

}  // namespace

QString WordsOfName(const std::string& control_name) {
  const QString name = QString::fromStdString(control_name);
  QStringList words;
  QString word;
  for (qsizetype i = 0; i < name.size(); ++i) {
    const QChar c = name[i];
    const bool starts_word = c.isUpper() && i > 0 && !name[i - 1].isUpper();
    if ((starts_word || c == QLatin1Char('_')) && !word.isEmpty()) {
      words << word;
      word.clear();
    }
    if (c != QLatin1Char('_')) word += c.toLower();
  }
  if (!word.isEmpty()) words << word;
  if (words.size() > 1) words.removeAll(QStringLiteral("button"));
  return words.join(QLatin1Char(' '));
}

QString AccessibleNameFor(const Control& control) {
  const std::string& name = control.Name();
  if (name == "Display" && !control.Text().empty()) return Plain(control.Text());
  if (name == "MemoryLabel" && control.Index() >= 1)
    return QStringLiteral("memory bank %1").arg(control.Index());
  if (name == "MemoryLabel") return QStringLiteral("memory in use");
  if (const char* spoken = SpokenFor(name)) return QString::fromLatin1(spoken);
  if (!IsKey(control.Kind()) && ShowsCaption(control.Kind())) {
    const QString caption = Plain(control.Text());
    if (!caption.isEmpty()) return caption;
  }
  return WordsOfName(name);
}

void SetAccessibleName(QWidget& widget, const QString& name) {
  if (widget.accessibleName() == name) return;
  widget.setAccessibleName(name);
  // A list's or text area's viewport is what assistive technology meets first;
  // its scroll bars and their frames are named for what they are.
  if (auto* area = qobject_cast<QAbstractScrollArea*>(&widget)) {
    for (QWidget* part : area->findChildren<QWidget*>())
      if (part->accessibleName().isEmpty())
        part->setAccessibleName(name + QStringLiteral(" scroll bar"));
    area->viewport()->setAccessibleName(name);
  }
  QAccessibleEvent changed(&widget, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

}  // namespace tessarine::desktop
