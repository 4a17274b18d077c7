// The model's changes shown on the widgets: text, value, rows, list index and look.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>

#include "accessible_names.hpp"
#include "control_look.hpp"
#include "control_widgets.hpp"
#include "key_caption.hpp"
#include "named_picture_canvas.hpp"
#include "screen_text.hpp"
#include "text_selection.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop {

void WindowCanvas::ApplyAll(const Bound& bound) {
  applying_ = true;
  ApplyRows(bound);
  ApplyListIndex(bound);
  ApplyText(bound);
  ApplyValue(bound);
  ShowSelection(bound.widget, *bound.control);
  ApplyLook(bound);
  Apply(bound, Property::Enabled);
  Apply(bound, Property::HelpTag);
  Apply(bound, Property::Maximum);
  Apply(bound, Property::Bounds);
  applying_ = false;
}

void WindowCanvas::OnChanged(Control* control, Property property) {
  if (!control) {
    if (property == Property::Bounds && on_window_bounds) on_window_bounds();
    return;
  }
  const auto it = index_.find(control);
  if (it == index_.end()) return;
  const Bound& bound = bound_[it->second];
  const ControlKind kind = control->Kind();
  const bool panel_page = property == Property::Value &&
                          (kind == ControlKind::TabPanel || kind == ControlKind::PagePanel);
  if (bound.widget) {
    applying_ = true;
    Apply(bound, property);
    applying_ = false;
  }
  if (panel_page || property == Property::Visible || property == Property::Bounds) SyncVisibility();
  if (panel_page && kind == ControlKind::TabPanel && on_page_change) on_page_change();
}

void WindowCanvas::Apply(const Bound& bound, Property property) {
  const Control& control = *bound.control;
  QWidget* widget = bound.widget;
  switch (property) {
    case Property::Text:
      ApplyText(bound);
      break;
    case Property::Value:
      ApplyValue(bound);
      break;
    case Property::Rows:
      ApplyRows(bound);
      break;
    case Property::ListIndex:
      ApplyListIndex(bound);
      break;
    case Property::Enabled:
      widget->setEnabled(control.Enabled());
      break;
    case Property::Visible:
      break;  // SyncVisibility
    case Property::HelpTag:
      // The tag is the tip and, for those who can't see it, the description.
      widget->setToolTip(Q(control.HelpTag()));
      widget->setAccessibleDescription(Q(control.HelpTag()));
      break;
    case Property::TextColor:
    case Property::TextSize:
      ApplyLook(bound);
      break;
    case Property::Bounds:
      widget->setGeometry(control.Left(), control.Top(), control.Width(), control.Height());
      break;
    case Property::Maximum:
      if (auto* bar = qobject_cast<QProgressBar*>(widget)) bar->setMaximum(control.Maximum());
      break;
    case Property::Selection:
      if (!user_editing_) ShowSelection(widget, control);
      break;
  }
  // A canvas paints from its control's state (a toolbar button's caption and selection).
  if (control.Kind() == ControlKind::Canvas) widget->update();
}

void WindowCanvas::ApplyText(const Bound& bound) {
  const Control& control = *bound.control;
  QWidget* widget = bound.widget;
  const QString name = Q(control.Name());
  if (auto* key = qobject_cast<KeyButton*>(widget)) {
    const QString caption = Q(control.Text());
    key->SetRuns(KeyCaptionRuns(name, caption));
  } else if (auto* label = qobject_cast<QLabel*>(widget)) {
    label->setText(ToScreen(control.Text()));
  } else if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
    const QString text = Q(control.Text());
    if (edit->text() != text) {
      edit->setText(text);
      ShowSelection(edit, control);  // setText put the caret at the end
    }
  } else if (auto* area = qobject_cast<QPlainTextEdit*>(widget)) {
    const QString text = ToScreen(control.Text());
    if (area->toPlainText() != text) {
      const bool was = applying_;
      applying_ = true;
      area->setPlainText(text);
      ShowSelection(area, control);  // setPlainText put the caret at the start
      applying_ = was;
    }
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(Caption(control.Text()));
  } else if (auto* picture = qobject_cast<PictureCanvas*>(widget)) {
    picture->SetPictureName(Q(control.Text()));
  } else if (auto* box = qobject_cast<QGroupBox*>(widget)) {
    box->setTitle(Caption(control.Text()));
  }
  SetAccessibleName(*widget, AccessibleNameFor(control));
}

void WindowCanvas::ApplyValue(const Bound& bound) {
  const Control& control = *bound.control;
  QWidget* widget = bound.widget;
  if (auto* key = qobject_cast<KeyButton*>(widget)) {
    key->SetShownDown(control.IsDown());
  } else if (auto* push = qobject_cast<QPushButton*>(widget)) {
    push->setDown(control.IsDown());
  } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    const QSignalBlocker block(button);
    button->setChecked(control.Value() != 0);
  } else if (auto* panel = qobject_cast<TabPanelWidget*>(widget)) {
    panel->SetCurrentPage(control.Value());
  } else if (auto* bar = qobject_cast<QProgressBar*>(widget)) {
    bar->setValue(control.Value());
  }
}

void WindowCanvas::ApplyRows(const Bound& bound) {
  const Control& control = *bound.control;
  QStringList rows;
  for (const std::string& row : control.Rows()) rows << Q(row);
  if (auto* combo = qobject_cast<QComboBox*>(bound.widget)) {
    const QSignalBlocker block(combo);
    combo->clear();
    combo->addItems(rows);
    combo->setCurrentIndex(control.ListIndex());
  } else if (auto* list = qobject_cast<QListWidget*>(bound.widget)) {
    const QSignalBlocker block(list);
    list->clear();
    list->addItems(rows);
    list->setCurrentRow(control.ListIndex());
  } else if (auto* panel = qobject_cast<TabPanelWidget*>(bound.widget)) {
    panel->SetTabs(rows);
    panel->SetCurrentPage(control.Value());
  }
}

void WindowCanvas::ApplyListIndex(const Bound& bound) {
  const int index = bound.control->ListIndex();
  if (auto* combo = qobject_cast<QComboBox*>(bound.widget)) {
    const QSignalBlocker block(combo);
    combo->setCurrentIndex(index);
  } else if (auto* list = qobject_cast<QListWidget*>(bound.widget)) {
    const QSignalBlocker block(list);
    list->setCurrentRow(index);
  }
}

void WindowCanvas::ApplyLook(const Bound& bound) {
  const Control& control = *bound.control;
  QWidget* widget = bound.widget;
  const ControlLook look = LookFor(control);
  const QFont font = FontFor(control, QApplication::font());
  if (auto* panel = qobject_cast<TabPanelWidget*>(widget))
    panel->SetBarFont(font);
  else
    widget->setFont(font);
  if (auto* label = qobject_cast<QLabel*>(widget)) label->setAlignment(look.alignment);
  if (auto* key = qobject_cast<KeyButton*>(widget)) key->SetFaceColor(look.background);

  // The text colour for the active and inactive window; a disabled control keeps
  // the style's grey. Black is no colour of the program's: such text follows the
  // palette (light on a dark one), except on a key with a face of its own.
  QPalette palette;
  if (control.TextColor() != 0 || look.background.isValid()) {
    const QColor color = QColor::fromRgb(control.TextColor());
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
      for (const QPalette::ColorRole role :
           {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(group, role, color);
  }
  // A face of the program's own (the display's) stays in any palette.
  if (look.background.isValid() && !qobject_cast<KeyButton*>(widget))
    palette.setColor(QPalette::Base, look.background);
  widget->setPalette(palette);
}

}  // namespace tessarine::desktop
