#include "named_picture_canvas.hpp"

#include <QPainter>
#include <QStyle>

namespace tessarine::desktop {

PictureCanvas::PictureCanvas(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
}

void PictureCanvas::SetPictureName(const QString& name) {
  if (name == QLatin1String("CautionIcon"))
    picture_ = style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(32, 32);
  else if (name.isEmpty())
    picture_ = QPixmap();
  else
    picture_ = QPixmap(QStringLiteral(":/pictures/") + name + QStringLiteral(".png"));
  update();
}

void PictureCanvas::paintEvent(QPaintEvent*) {
  if (picture_.isNull()) return;
  QPainter painter(this);
  painter.drawPixmap(0, 0, picture_);
}

}  // namespace tessarine::desktop
