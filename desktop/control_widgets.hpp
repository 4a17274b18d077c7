// The widgets that Qt has no ready equivalent for: the calculator's keys (a bevel
// with a caption that may carry a raised or lowered mark), the plain shapes
// (rounded rectangle, rectangle, separator line) and the tab panel, whose pages
// are not containers: the controls of every page sit on the window and show while
// their page is current.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QWidget>
#include <vector>

#include "key_caption.hpp"

class QPainter;
class QTabBar;

namespace tessarine::desktop {

class KeyButton final : public QAbstractButton {
  Q_OBJECT

 public:
  explicit KeyButton(QWidget* parent = nullptr);

  void SetRuns(std::vector<CaptionRun> runs);
  const std::vector<CaptionRun>& Runs() const { return runs_; }
  // The program shows the key pressed (a key typed on the keyboard flashes it).
  void SetShownDown(bool down);
  bool ShownDown() const { return shown_down_; }
  // The key's face colour; invalid for the style's.
  void SetFaceColor(const QColor& color);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintFace(QPainter& painter, bool down) const;

  std::vector<CaptionRun> runs_;
  bool shown_down_ = false;
  QColor face_;  // invalid: the style draws the bevel
};

class ShapeWidget final : public QWidget {
  Q_OBJECT

 public:
  enum class Shape { RoundRectangle, Rectangle, Separator };
  ShapeWidget(Shape shape, QWidget* parent = nullptr);
  Shape GetShape() const { return shape_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Shape shape_;
};

class TabPanelWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit TabPanelWidget(QWidget* parent = nullptr);

  QTabBar* Bar() const { return bar_; }
  void SetTabs(const QStringList& captions);
  // Shows the page without raising userChangedPage.
  void SetCurrentPage(int index);
  void SetBarFont(const QFont& font);

 signals:
  // The user picked a page (0-based).
  void userChangedPage(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void PlaceBar();
  QTabBar* bar_;
  bool setting_ = false;
};

}  // namespace tessarine::desktop
