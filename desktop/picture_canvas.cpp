#include "picture_canvas.hpp"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QSvgRenderer>
#include <string_view>

#include "runtime/window.hpp"

// The icons are compiled into the desktop library; a static library must ask for
// its resources by name, from the global namespace.
static void InitIconResources() {
  Q_INIT_RESOURCE(icons);
}

namespace tessarine::desktop {

namespace {

struct Picture {
  const char* control;  // the control's full name
  const char* resource;
  bool toolbar_button;
};
constexpr Picture kPictures[] = {
    {"PreferencesWindow.GeneralButtonCanvas", ":/icons/general.svg", true},
    {"PreferencesWindow.SoundButtonCanvas", ":/icons/sound.svg", true},
    {"PreferencesWindow.ConstantsButtonCanvas", ":/icons/constants.svg", true},
    {"PreferencesWindow.ProxyButtonCanvas", ":/icons/network.svg", true},
    {"PreferencesWindow.DecimalsUpDownArrows", ":/icons/up_down_arrows.svg", false},
    {"RestoreConstantsConfirmationWindow.CautionIcon2", ":/icons/caution.svg", false},
    {"RestoreDefaultSoundsWindow.CautionIcon2", ":/icons/caution.svg", false},
};

// The grey of a toolbar's shades: value v of hue 0 and saturation 0.
QColor Grey(double v) {
  return QColor::fromHsvF(0, 0, static_cast<float>(v));
}

// A canvas painted with its picture; a toolbar button adds its caption, the shade
// of the selected button and its bottom line.
class PictureCanvas final : public QWidget {
 public:
  PictureCanvas(const Control& control, const char* resource, bool toolbar_button, QWidget* parent)
      : QWidget(parent),
        control_(control),
        renderer_(QString::fromLatin1(resource), this),
        toolbar_button_(toolbar_button) {
    setMouseTracking(true);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (!toolbar_button_) {
      renderer_.render(&p, QRectF(rect()));
      return;
    }
    p.fillRect(rect(), control_.Value() != 0 ? Grey(0.82) : QColor(Qt::white));
    const QSize icon = renderer_.defaultSize();
    const int icon_top = height() - icon.height() - 22;
    renderer_.render(&p,
                     QRectF((width() - icon.width()) / 2, icon_top, icon.width(), icon.height()));
    QFont font = p.font();
    font.setPixelSize(11);
    p.setFont(font);
    p.setPen(Qt::black);
    const QString caption = QString::fromStdString(control_.Text());
    const int text_width = QFontMetrics(font).horizontalAdvance(caption);
    p.drawText((width() - text_width) / 2, height() - 9, caption);
    p.setPen(Grey(0.64));
    p.drawLine(0, height() - 1, width() - 1, height() - 1);
  }

 private:
  const Control& control_;
  QSvgRenderer renderer_;
  bool toolbar_button_;
};

}  // namespace

QWidget* MakePictureCanvas(Control& control, QWidget* parent) {
  static const bool loaded = (InitIconResources(), true);
  (void)loaded;
  const std::string name = control.Owner().Name() + "." + control.FullName();
  for (const Picture& picture : kPictures)
    if (name == picture.control)
      return new PictureCanvas(control, picture.resource, picture.toolbar_button, parent);
  return nullptr;
}

}  // namespace tessarine::desktop
