// The main window's widgets against the model: one per control where the control
// shows, at its place and size, every shown part named for assistive technology
// (the screen reader's walk over AT-SPI checks the names of the keys and the display); the
// program's colours and fonts; the raised and lowered marks of the keys; a fault that no handler
// caught, reported in a message box while the program goes on.
#include <QAccessible>
#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QTest>

#include "control_look.hpp"
#include "control_widgets.hpp"
#include "conversion/version_update_error_window.hpp"
#include "gui_fixture.hpp"
#include "runtime/exceptions.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop::testing {

namespace {

// The rows of ink (pixels much darker than the key's face) of a key drawn with
// these runs: first and last.
std::pair<int, int> InkRows(const std::vector<CaptionRun>& runs) {
  KeyButton key;
  key.resize(47, 40);
  QFont font(QString::fromLatin1(kSansFamily));
  font.setPixelSize(16);
  key.setFont(font);
  key.SetRuns(runs);
  const QImage image = key.grab().toImage();
  int first = -1, last = -1;
  for (int y = 4; y < image.height() - 4; ++y)
    for (int x = 4; x < image.width() - 4; ++x)
      if (qGray(image.pixel(x, y)) < 110) {
        if (first < 0) first = y;
        last = y;
        break;
      }
  return {first, last};
}

// The shown widgets of the accessibility tree under `node` without a name or role.
void CollectUnnamed(QAccessibleInterface* node, QStringList& unnamed) {
  for (int i = 0; i < node->childCount(); ++i) {
    QAccessibleInterface* child = node->child(i);
    if (!child) continue;
    auto* widget = qobject_cast<QWidget*>(child->object());
    if (widget && !widget->isVisible()) continue;
    if (child->text(QAccessible::Name).trimmed().isEmpty() || child->role() == QAccessible::NoRole)
      unnamed << (child->object() ? child->object()->objectName() + QLatin1Char('/') +
                                        QLatin1String(child->object()->metaObject()->className())
                                  : QStringLiteral("?"));
    CollectUnnamed(child, unnamed);
  }
}

}  // namespace

class ViewTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void everyShownControlHasItsWidget() {
    f_->ToggleAdvanced();
    CalcWindow& calc = f_->Calc();
    WindowCanvas& canvas = f_->View().Canvas();
    QSet<const Control*> seen;
    // Every tab page, and every page of the fraction panel.
    for (int page = 0; page < 5; ++page) {
      calc.Get("CalcTabSelector").SetValue(page);
      for (int panel = 0; panel < (page == 3 ? 3 : 1); ++panel) {
        if (page == 3) calc.Get("FractionPagePanel").SetValue(panel);
        for (const auto& control : calc.Controls()) {
          const QRect rect(control->Left(), control->Top(), control->Width(), control->Height());
          const bool expected = canvas.Shows(*control) && canvas.Viewport().intersects(rect);
          QWidget* widget = canvas.WidgetFor(*control);
          const QString name = QString::fromStdString(control->FullName());
          if (!expected) {
            QVERIFY2(!widget || !widget->isVisible(), qPrintable(name + " shows"));
            continue;
          }
          seen.insert(control.get());
          QVERIFY2(widget && widget->isVisible(), qPrintable(name + " missing"));
          QCOMPARE(widget->geometry(), rect);
          QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(name + " unnamed"));
          QCOMPARE(widget->isEnabled(), control->Enabled());
        }
        // Every shown part, scroll bars and frames included, has a name and a role.
        QStringList unnamed;
        CollectUnnamed(QAccessible::queryAccessibleInterface(&f_->View()), unnamed);
        QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral(", "))));
      }
    }
    // Everything but the hidden memory labels, the hidden list, the message, and the
    // currency update key and line, which show only for "Currency".
    QCOMPARE(seen.size(), static_cast<qsizetype>(calc.Controls().size()) - 14);
  }

  void coloursAndFonts() {
    // The display's ink and the clear key's red face are the look test's, in both palettes.
    auto* display = qobject_cast<QLabel*>(f_->Widget("Display"));
    QVERIFY(display->alignment() & Qt::AlignRight);
    QCOMPARE(display->font().pixelSize(), 15);  // set by start-up
    auto* exponent = qobject_cast<QLabel*>(f_->Widget("ExponentText"));
    QCOMPARE(QFontInfo(exponent->font()).family(), QStringLiteral("Liberation Mono"));
    QCOMPARE(exponent->palette().color(QPalette::WindowText), QColor(0x18, 0x60, 0x5a));
    QCOMPARE(QFontInfo(f_->Widget("Button7")->font()).family(), QStringLiteral("Liberation Sans"));
    // The program changes a colour: it shows at once.
    f_->Calc().Get("Display").SetTextColor(0x00ff00);
    QCOMPARE(display->palette().color(QPalette::WindowText), QColor(0, 0xff, 0));

    // The clear key's caption is white.
    const QImage face = f_->Widget("ButtonClear")->grab().toImage();
    bool white = false;
    for (int x = 0; x < face.width(); ++x)
      white = white || qGray(face.pixel(x, face.height() / 2)) > 230;
    QVERIFY(white);
    f_->ToggleAdvanced();
    QCOMPARE(QFontInfo(f_->Widget("ButtonSquared")->font()).family(),
             QStringLiteral("Liberation Serif"));
    auto* url = qobject_cast<QLabel*>(f_->Widget("BrindleyURL"));
    QVERIFY(url);
    QCOMPARE(url->palette().color(QPalette::WindowText), QColor(0x66, 0x66, 0x66));
    QCOMPARE(QFontInfo(url->font()).family(), QStringLiteral("Liberation Sans"));
  }

  void keysCarryTheirMarks() {
    f_->ToggleAdvanced();
    const auto runs = [this](const char* name) {
      QString text;
      for (const CaptionRun& run : qobject_cast<KeyButton*>(f_->Widget(name))->Runs())
        text += run.place == CaptionRun::Place::Raised    ? QStringLiteral("^") + run.text
                : run.place == CaptionRun::Place::Lowered ? QStringLiteral("_") + run.text
                                                          : run.text;
      return text;
    };
    QCOMPARE(runs("ButtonSquared"), QStringLiteral("x^2"));
    QCOMPARE(runs("ButtonSquareRoot"), QStringLiteral("\u221A"));
    QCOMPARE(runs("ButtonCubeRoot"), QStringLiteral("^3\u221A"));
    QCOMPARE(runs("ButtonLogBasen"), QStringLiteral("log_n"));
    QCOMPARE(runs("ButtonSine"), QStringLiteral("sin"));
    QCOMPARE(f_->Widget("ButtonSquared")->accessibleName(), QStringLiteral("x squared"));

    // Drawn: a raised mark's ink ends well above the same glyph set on the line, a
    // lowered one's starts well below it.
    const auto base2 = InkRows({{QStringLiteral("2"), CaptionRun::Place::Base}});
    const auto raised2 = InkRows({{QStringLiteral("2"), CaptionRun::Place::Raised}});
    QVERIFY2(raised2.second <= base2.second - 4,
             qPrintable(QStringLiteral("%1 vs %2").arg(raised2.second).arg(base2.second)));
    QVERIFY(raised2.second - raised2.first < base2.second - base2.first);  // smaller
    const auto base_n = InkRows({{QStringLiteral("n"), CaptionRun::Place::Base}});
    const auto lowered_n = InkRows({{QStringLiteral("n"), CaptionRun::Place::Lowered}});
    QVERIFY2(lowered_n.second >= base_n.second + 3,
             qPrintable(QStringLiteral("%1 vs %2").arg(lowered_n.second).arg(base_n.second)));
  }

  void unhandledFaultIsReportedAndTheProgramGoesOn() {
    f_->Calc().Get("ButtonPercent").events.Action = [] {
      throw OutOfBoundsException("a test's fault");
    };
    f_->Click("ButtonPercent");
    const QStringList dialogs = f_->TakeDialogs();
    QCOMPARE(dialogs.size(), 1);
    QVERIFY2(dialogs[0].startsWith(
                 QStringLiteral("An exception of class OutOfBoundsException was not handled.")),
             qPrintable(dialogs[0]));
    QVERIFY(dialogs[0].contains(QStringLiteral("ButtonPercent_Action")));
    f_->Type(QStringLiteral("8"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("8"));
  }

  // A sheet asked for while the main window is not on screen (a failed rate update
  // at start, before the window is mapped) waits for the window.
  void aSheetWaitsForItsWindow() {
    f_->View().hide();
    QTRY_VERIFY(!f_->View().windowHandle()->isExposed());
    ShowNetworkError(f_->App().GetProgram().Context(), "no network");
    QCoreApplication::processEvents();
    QVERIFY(!f_->App().DialogFor("VersionUpdateErrorWindow"));
    f_->View().show();
    QTRY_VERIFY(f_->App().DialogFor("VersionUpdateErrorWindow"));
    QVERIFY(f_->View().windowHandle()->isExposed());
  }
};

TESSARINE_GUI_SUITE(ViewTest, "view");

}  // namespace tessarine::desktop::testing

#include "view_test.moc"
