// PictureCanvas: the widget of a canvas control. It paints at its top left the
// picture its control's text names: a PNG of the program's resources, or the
// desktop's caution icon for "CautionIcon"; any other text paints nothing.
#pragma once

#include <QPixmap>
#include <QString>
#include <QWidget>

namespace tessarine::desktop {

class PictureCanvas final : public QWidget {
  Q_OBJECT

 public:
  explicit PictureCanvas(QWidget* parent = nullptr);
  void SetPictureName(const QString& name);
  const QPixmap& Picture() const { return picture_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
};

}  // namespace tessarine::desktop
