// The main window drawn in the light and a dark palette, at the scale factor the
// run sets (QT_SCALE_FACTOR 1 and 2): the program's own colours stay, the rest
// follows the palette, and at 2 the text is drawn at the finer resolution, not
// magnified. Each case saves its picture (look-<palette>-<scale>x.png).
#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QStyle>
#include <QTest>

#include "app_palette.hpp"
#include "gui_fixture.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

namespace {

QPalette DarkPalette() {
  QPalette dark;
  dark.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2b));
  dark.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
  dark.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
  dark.setColor(QPalette::Button, QColor(0x3c, 0x3c, 0x3c));
  dark.setColor(QPalette::ButtonText, QColor(0xee, 0xee, 0xee));
  return dark;
}

// The part of the window's picture under a widget, in device pixels.
QImage PictureOf(const QImage& window, QWidget* top, QWidget* widget) {
  const qreal ratio = window.devicePixelRatio();
  const QRect logical(widget->mapTo(top, QPoint(0, 0)), widget->size());
  return window.copy(QRect((logical.topLeft() * ratio), logical.size() * ratio));
}

int CountNear(const QImage& image, QColor color, int tolerance = 40) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QColor c = image.pixelColor(x, y);
      if (std::abs(c.red() - color.red()) + std::abs(c.green() - color.green()) +
              std::abs(c.blue() - color.blue()) <
          tolerance)
        ++count;
    }
  return count;
}

// Whether some 2x2 block of device pixels is not one colour: a picture magnified
// from half the resolution has none.
bool HasFineDetail(const QImage& image) {
  for (int y = 0; y + 1 < image.height(); y += 2)
    for (int x = 0; x + 1 < image.width(); x += 2) {
      const QRgb p = image.pixel(x, y);
      if (image.pixel(x + 1, y) != p || image.pixel(x, y + 1) != p ||
          image.pixel(x + 1, y + 1) != p)
        return true;
    }
  return false;
}

}  // namespace

class LookTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { UseSystemPalette(QApplication::style()->standardPalette()); }

  void windowInPalette_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
  }
  void windowInPalette() {
    QFETCH(bool, dark);
    UseSystemPalette(dark ? DarkPalette() : QApplication::style()->standardPalette());
    GuiFixture f;
    f.Type(QStringLiteral("7"));
    QWidget& view = f.View();
    const QImage window = view.grab().toImage();
    const qreal ratio = view.devicePixelRatioF();
    QCOMPARE(window.size(), view.size() * ratio);
    window.save(
        QStringLiteral("look-%1-%2x.png").arg(QLatin1String(dark ? "dark" : "light")).arg(ratio));

    // The display keeps its white face and its blue digits in either palette.
    const QImage display = PictureOf(window, &view, f.Widget("DisplayBackground"));
    QVERIFY(CountNear(display, Qt::white, 10) > display.width() * display.height() / 2);
    QVERIFY(CountNear(PictureOf(window, &view, f.Widget("Display")), QColor(0x16, 0x49, 0x82)) > 0);
    // The clear key keeps its red face.
    const QImage clear = PictureOf(window, &view, f.Widget("ButtonClear"));
    QVERIFY(CountNear(clear, QColor(0xff, 0, 0), 90) > clear.width() * clear.height() / 3);
    // A plain key's caption follows the palette: light ink on dark, dark on light.
    const QImage seven = PictureOf(window, &view, f.Widget("Button7"));
    const QColor ink = dark ? QColor(0xee, 0xee, 0xee) : QColor(0, 0, 0);
    QVERIFY(CountNear(seven, ink, 60) > 0);
    // The window's own face, left of the display.
    const QPoint margin = f.Widget("DisplayBackground")->mapTo(&view, QPoint(-6, 4)) * ratio;
    const QColor window_face = window.pixelColor(margin);
    QCOMPARE(window_face.lightness() < 128, dark);

    if (ratio >= 2) QVERIFY(HasFineDetail(PictureOf(window, &view, f.Widget("Display"))));
  }
};

int RunLookTests(int argc, char** argv) {
  LookTest test;
  return QTest::qExec(&test, argc, argv);
}

}  // namespace tessarine::desktop::testing

#include "look_test.moc"
