#include "control_widgets.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QTabBar>
#include <algorithm>
#include <cmath>

namespace tessarine::desktop {

// --- KeyButton --------------------------------------------------------------

namespace {

// A mark is set in a smaller size, raised by about half the caption's ascent or
// lowered by about its descent, as a typesetter sets an exponent or an index.
constexpr double kMarkScale = 0.64;
constexpr double kRaise = 0.45;  // of the base font's ascent
constexpr double kLower = 0.30;  // of the base font's ascent

QFont MarkFont(const QFont& base) {
  QFont mark = base;
  const int size = base.pixelSize() > 0 ? base.pixelSize() : QFontInfo(base).pixelSize();
  mark.setPixelSize(std::max(7, static_cast<int>(std::lround(size * kMarkScale))));
  return mark;
}

}  // namespace

KeyButton::KeyButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

void KeyButton::SetRuns(std::vector<CaptionRun> runs) {
  runs_ = std::move(runs);
  QString plain;
  for (const CaptionRun& run : runs_) plain += run.text;
  // The plain text serves QAbstractButton's own users (tests, accessibility).
  setText(plain);
  update();
}

void KeyButton::SetShownDown(bool down) {
  if (down == shown_down_) return;
  shown_down_ = down;
  update();
}

void KeyButton::SetFaceColor(const QColor& color) {
  face_ = color;
  update();
}

void KeyButton::PaintFace(QPainter& painter, bool down) const {
  // A coloured key keeps its colour: the style's bevel would wash it out. Drawn
  // like the style's keys, a rounded face with a slight gradient and a darker rim.
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  QColor face = face_;
  if (!isEnabled()) face = face.lighter(125);
  if (down) face = face.darker(118);
  const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  QLinearGradient gradient(box.topLeft(), box.bottomLeft());
  gradient.setColorAt(0, down ? face : face.lighter(112));
  gradient.setColorAt(1, down ? face.lighter(106) : face);
  painter.setPen(QPen(face.darker(150), 1));
  painter.setBrush(gradient);
  painter.drawRoundedRect(box, 2.5, 2.5);
  painter.restore();
}

QSize KeyButton::sizeHint() const {
  return QSize(33, 26);
}

void KeyButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const bool down = isDown() || shown_down_;
  if (face_.isValid()) {
    PaintFace(painter, down);
  } else {
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= down ? (QStyle::State_Sunken | QStyle::State_On) : QStyle::State_Raised;
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
  }

  painter.setRenderHint(QPainter::TextAntialiasing);
  const QFont base = font();
  const QFont mark = MarkFont(base);
  const QFontMetricsF base_metrics(base);
  const QFontMetricsF mark_metrics(mark);
  qreal width = 0;
  for (const CaptionRun& run : runs_)
    width += (run.place == CaptionRun::Place::Base ? base_metrics : mark_metrics)
                 .horizontalAdvance(run.text);
  // The caption's ink centred: the baseline sits half the cap height below the
  // middle. A pressed key's caption moves down a pixel with the bevel.
  qreal x = (this->width() - width) / 2;
  const qreal baseline =
      std::round(this->height() / 2.0 + base_metrics.capHeight() / 2) + (down ? 1 : 0);
  const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::ButtonText));
  for (const CaptionRun& run : runs_) {
    qreal y = baseline;
    if (run.place == CaptionRun::Place::Base) {
      painter.setFont(base);
    } else {
      painter.setFont(mark);
      y += (run.place == CaptionRun::Place::Raised ? -kRaise : kLower) * base_metrics.ascent();
    }
    painter.drawText(QPointF(x, y), run.text);
    x += (run.place == CaptionRun::Place::Base ? base_metrics : mark_metrics)
             .horizontalAdvance(run.text);
  }
}

// --- ShapeWidget ------------------------------------------------------------

ShapeWidget::ShapeWidget(Shape shape, QWidget* parent) : QWidget(parent), shape_(shape) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor border = palette().color(QPalette::Dark);
  switch (shape_) {
    case Shape::RoundRectangle: {
      const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
      painter.setPen(QPen(border, 1));
      painter.setBrush(palette().color(QPalette::Base));
      painter.drawRoundedRect(box, 7, 7);
      break;
    }
    case Shape::Rectangle: {
      const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
      painter.setPen(QPen(border, 1));
      painter.setBrush(palette().color(QPalette::Base));
      painter.drawRect(box);
      break;
    }
    case Shape::Separator: {
      painter.setRenderHint(QPainter::Antialiasing, false);
      const int y = height() / 2;
      painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
      painter.drawLine(0, y, width() - 1, y);
      break;
    }
  }
}

// --- TabPanelWidget ---------------------------------------------------------

TabPanelWidget::TabPanelWidget(QWidget* parent) : QWidget(parent), bar_(new QTabBar(this)) {
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  connect(bar_, &QTabBar::currentChanged, this, [this](int index) {
    if (!setting_ && index >= 0) emit userChangedPage(index);
  });
}

void TabPanelWidget::SetTabs(const QStringList& captions) {
  setting_ = true;
  const int current = bar_->currentIndex();
  while (bar_->count() > 0) bar_->removeTab(bar_->count() - 1);
  for (const QString& caption : captions) bar_->addTab(caption);
  if (current >= 0 && current < bar_->count()) bar_->setCurrentIndex(current);
  setting_ = false;
  PlaceBar();
}

void TabPanelWidget::SetCurrentPage(int index) {
  setting_ = true;
  if (index >= 0 && index < bar_->count()) bar_->setCurrentIndex(index);
  setting_ = false;
}

void TabPanelWidget::SetBarFont(const QFont& font) {
  bar_->setFont(font);
  PlaceBar();
}

void TabPanelWidget::PlaceBar() {
  const QSize size = bar_->sizeHint();
  bar_->setGeometry((width() - size.width()) / 2, 0, size.width(), size.height());
  update();
}

void TabPanelWidget::resizeEvent(QResizeEvent*) {
  PlaceBar();
}

void TabPanelWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionTabWidgetFrame frame;
  frame.initFrom(this);
  frame.shape = QTabBar::RoundedNorth;
  frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
  const int overlap = style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, this);
  const int top = std::max(0, bar_->height() - overlap);
  frame.rect = rect().adjusted(0, top, 0, 0);
  frame.tabBarSize = bar_->size();
  frame.tabBarRect = bar_->geometry().translated(0, -top);
  frame.selectedTabRect = bar_->tabRect(bar_->currentIndex()).translated(bar_->pos().x(), 0);
  style()->drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &painter, this);
}

}  // namespace tessarine::desktop
