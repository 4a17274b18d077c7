#include "window_canvas.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QTextCursor>
#include <algorithm>

#include "accessible_names.hpp"
#include "control_forwarders.hpp"
#include "control_look.hpp"
#include "control_widgets.hpp"
#include "file_drop.hpp"
#include "key_caption.hpp"
#include "named_picture_canvas.hpp"
#include "picture_canvas.hpp"
#include "runtime/text.hpp"
#include "screen_text.hpp"
#include "text_selection.hpp"

namespace tessarine::desktop {
namespace {

bool IsBackdrop(ControlKind kind) {
  switch (kind) {
    case ControlKind::GroupBox:
    case ControlKind::TabPanel:
    case ControlKind::PagePanel:
    case ControlKind::RoundRectangle:
    case ControlKind::Rectangle:
    case ControlKind::Separator:
      return true;
    default:
      return false;
  }
}

}  // namespace

WindowCanvas::WindowCanvas(Window& window, QWidget& canvas)
    : QObject(&canvas), window_(window), canvas_(canvas) {
  for (const auto& control : window_.Controls()) {
    index_[control.get()] = bound_.size();
    bound_.push_back(Bound{control.get(), nullptr});
  }
  tab_panel_ = FirstOfKind(ControlKind::TabPanel);
  page_panel_ = FirstOfKind(ControlKind::PagePanel);
  QPointer<WindowCanvas> self(this);
  window_.Observe([self](Control* control, Property property) {
    if (self) self->OnChanged(control, property);
  });
}

const Control* WindowCanvas::FirstOfKind(ControlKind kind) const {
  for (const Bound& bound : bound_)
    if (bound.control->Kind() == kind) return bound.control;
  return nullptr;
}

Control* WindowCanvas::ParentOf(const Control& control) const {
  return control.Parent().empty() ? nullptr : window_.FindControl(control.Parent());
}

bool WindowCanvas::Shows(const Control& control) const {
  if (!control.Visible()) return false;
  if (control.TabPage() > 0 && tab_panel_ && tab_panel_->Value() + 1 != control.TabPage())
    return false;
  if (control.PanelPage() > 0 && page_panel_ && page_panel_->Value() + 1 != control.PanelPage())
    return false;
  const Control* parent = ParentOf(control);
  return !parent || parent == &control || Shows(*parent);
}

QWidget* WindowCanvas::WidgetFor(const Control& control) const {
  const auto it = index_.find(&control);
  return it == index_.end() ? nullptr : bound_[it->second].widget.data();
}

std::size_t WindowCanvas::BuiltCount() const {
  std::size_t count = 0;
  for (const Bound& bound : bound_) count += bound.widget ? 1 : 0;
  return count;
}

void WindowCanvas::SetViewport(const QRect& viewport) {
  viewport_ = viewport;
  SyncVisibility();
}

void WindowCanvas::SyncVisibility() {
  bool made = false;
  for (Bound& bound : bound_) {
    const Control& control = *bound.control;
    const bool shows = Shows(control);
    if (!bound.widget) {
      const QRect rect(control.Left(), control.Top(), control.Width(), control.Height());
      if (!shows || !viewport_.intersects(rect)) continue;
      bound.widget = Make(*bound.control);
      ApplyAll(bound);
      made = true;
    }
    bound.widget->setVisible(shows);
  }
  if (made) Restack();
}

void WindowCanvas::Restack() {
  // Backdrops first, in the design's order (a group box above its tab panel), then
  // everything else in that order.
  for (const bool backdrop : {true, false})
    for (const Bound& bound : bound_)
      if (bound.widget && IsBackdrop(bound.control->Kind()) == backdrop) bound.widget->raise();
}

QWidget* WindowCanvas::Make(Control& control) {
  QWidget* widget = nullptr;
  Control* c = &control;
  switch (control.Kind()) {
    case ControlKind::Label: {
      auto* label = new QLabel(&canvas_);
      label->setTextFormat(Qt::PlainText);
      label->setMouseTracking(true);
      // A label taller than a line, as a sheet's message, wraps its words.
      label->setWordWrap(control.Height() > 30);
      widget = label;
      break;
    }
    case ControlKind::BevelButton:
    case ControlKind::CalcBevelButton: {
      auto* key = new KeyButton(&canvas_);
      connect(key, &QAbstractButton::clicked, this, [c] { c->Click(); });
      widget = key;
      break;
    }
    case ControlKind::PushButton: {
      auto* button = new QPushButton(&canvas_);
      button->setFocusPolicy(Qt::NoFocus);
      button->setAutoDefault(false);
      connect(button, &QAbstractButton::clicked, this, [c] { c->Click(); });
      widget = button;
      break;
    }
    case ControlKind::RadioButton:
    case ControlKind::CheckBox: {
      QAbstractButton* button = control.Kind() == ControlKind::RadioButton
                                    ? static_cast<QAbstractButton*>(new QRadioButton(&canvas_))
                                    : new QCheckBox(&canvas_);
      button->setFocusPolicy(Qt::NoFocus);
      button->setAutoExclusive(false);  // the model clears the others of its group
      connect(button, &QAbstractButton::clicked, this, [this, c, button] {
        c->Click();
        // Whatever Qt toggled, the model's value is what shows.
        const QSignalBlocker block(button);
        button->setChecked(c->Value() != 0);
      });
      widget = button;
      break;
    }
    case ControlKind::PopupMenu: {
      auto* combo = new QComboBox(&canvas_);
      combo->setFocusPolicy(Qt::NoFocus);
      connect(combo, &QComboBox::activated, this, [this, c](int index) {
        if (!applying_) c->UserSetListIndex(index);
      });
      widget = combo;
      break;
    }
    case ControlKind::Listbox: {
      auto* list = new QListWidget(&canvas_);
      list->setFocusPolicy(Qt::NoFocus);
      connect(list, &QListWidget::currentRowChanged, this, [this, c](int row) {
        if (!applying_) c->UserSetListIndex(row);
      });
      // A press on a row is a click on that cell; the pointer over the rows is
      // followed, as the list's own logic highlights by position.
      connect(list, &QAbstractItemView::pressed, this, [c, list](const QModelIndex& index) {
        const QPoint p = list->viewport()->mapFromGlobal(QCursor::pos());
        c->UserCellClick(index.row(), 0, p.x(), p.y());
      });
      list->viewport()->setMouseTracking(true);
      list->viewport()->installEventFilter(new MouseForwarder(control, list->viewport()));
      widget = list;
      break;
    }
    case ControlKind::TextField:
    case ControlKind::NumberOnlyEditField: {
      auto* edit = new QLineEdit(&canvas_);
      edit->setFocusPolicy(Qt::ClickFocus);  // a field takes the keys only when clicked
      if (control.Name() == "PasswordEditField") edit->setEchoMode(QLineEdit::Password);
      connect(edit, &QLineEdit::textEdited, this,
              [this, c, edit](const QString& text) { UserEdited(*c, edit, text.toStdString()); });
      connect(edit, &QLineEdit::cursorPositionChanged, this,
              [this, c, edit] { UserMovedCaret(*c, edit); });
      connect(edit, &QLineEdit::selectionChanged, this,
              [this, c, edit] { UserMovedCaret(*c, edit); });
      edit->installEventFilter(new KeyForwarder(control, edit));
      widget = edit;
      break;
    }
    case ControlKind::TextArea: {
      auto* edit = new QPlainTextEdit(&canvas_);
      edit->setFocusPolicy(Qt::ClickFocus);
      connect(edit, &QPlainTextEdit::textChanged, this, [this, c, edit] {
        if (!applying_) UserEdited(*c, edit, FromScreen(edit->toPlainText()));
      });
      connect(edit, &QPlainTextEdit::cursorPositionChanged, this,
              [this, c, edit] { UserMovedCaret(*c, edit); });
      connect(edit, &QPlainTextEdit::selectionChanged, this,
              [this, c, edit] { UserMovedCaret(*c, edit); });
      // The clicks land on the area's viewport, not on the area.
      edit->viewport()->installEventFilter(new MouseForwarder(control, edit->viewport()));
      widget = edit;
      break;
    }
    case ControlKind::GroupBox: {
      auto* box = new QGroupBox(&canvas_);
      box->setAttribute(Qt::WA_TransparentForMouseEvents);
      widget = box;
      break;
    }
    case ControlKind::TabPanel: {
      auto* panel = new TabPanelWidget(&canvas_);
      connect(panel, &TabPanelWidget::userChangedPage, this,
              [c](int index) { c->SetValue(index); });
      widget = panel;
      break;
    }
    case ControlKind::PagePanel:
      widget = new QWidget(&canvas_);
      widget->setAttribute(Qt::WA_TransparentForMouseEvents);
      break;
    case ControlKind::Canvas: {
      if ((widget = MakePictureCanvas(control, &canvas_))) break;
      if (Left(control.Name(), 11) == "CautionIcon") {
        // The caution icon the program draws on its alerts: the desktop theme's.
        auto* icon = new QLabel(&canvas_);
        const int side = std::min(control.Width(), control.Height());
        icon->setPixmap(QApplication::style()
                            ->standardIcon(QStyle::SP_MessageBoxWarning)
                            .pixmap(QSize(side, side), icon->devicePixelRatioF()));
        icon->setAlignment(Qt::AlignCenter);
        widget = icon;
        break;
      }
      // Any other canvas paints the picture its text names, if any.
      widget = new PictureCanvas(&canvas_);
      widget->setMouseTracking(true);
      break;
    }
    case ControlKind::RoundRectangle:
      widget = new ShapeWidget(ShapeWidget::Shape::RoundRectangle, &canvas_);
      break;
    case ControlKind::Rectangle:
      widget = new ShapeWidget(ShapeWidget::Shape::Rectangle, &canvas_);
      break;
    case ControlKind::Separator:
      widget = new ShapeWidget(ShapeWidget::Shape::Separator, &canvas_);
      break;
    case ControlKind::ProgressBar: {
      auto* bar = new QProgressBar(&canvas_);
      bar->setTextVisible(false);
      widget = bar;
      break;
    }
  }
  widget->setObjectName(Q(control.FullName()));
  widget->installEventFilter(new MouseForwarder(control, widget));
  if (control.events.DropObject) AcceptFileDrops(*widget, control);
  return widget;
}

void WindowCanvas::UserEdited(Control& control, QWidget* widget, std::string text) {
  // The widget's caret is already where the edit left it; the model's selection
  // follows once its text has, and the model's clamping of the old selection to the
  // new text must not move the caret meanwhile.
  user_editing_ = true;
  control.UserSetText(std::move(text));
  user_editing_ = false;
  if (!widget) return;
  if (CurrentText(widget) == ToScreen(control.Text())) {
    const auto [start, length] = ReadSelection(widget, control);
    control.UserSetSelection(start, length);
  } else {
    // A handler rewrote the text: the model's selection is what shows.
    applying_ = true;
    ShowSelection(widget, control);
    applying_ = false;
  }
}

void WindowCanvas::UserMovedCaret(Control& control, QWidget* widget) {
  if (applying_ || user_editing_) return;
  if (CurrentText(widget) != ToScreen(control.Text())) return;  // the text follows first
  const auto [start, length] = ReadSelection(widget, control);
  control.UserSetSelection(start, length);
}

}  // namespace tessarine::desktop
