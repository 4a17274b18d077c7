// Help tags and the About box on the desktop: the tags as the widgets' tool tips
// and accessible descriptions, and the About box's texts, pictures and hidden
// compiler line.
#include <QLabel>
#include <QRegularExpression>
#include <QTest>

#include "gui_fixture.hpp"
#include "named_picture_canvas.hpp"
#include "shell/tessarine_app.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

class HelpTest : public GuiSuite {
  Q_OBJECT

  template <class W>
  W* AboutWidget(const char* control) {
    return f_->DialogWidget<W>("AboutWindow", control);
  }

 private slots:
  void toolTipsCarryTheHelpText() {
    const QString plus = QStringLiteral(
        "Addition. Keyboard equivalent: [+]. Press this button for an addition calculation.");
    QWidget* key = f_->Widget("ButtonPlus");
    QVERIFY(key);
    QCOMPARE(key->toolTip(), plus);
    QCOMPARE(key->accessibleDescription(), plus);
    QWidget* seven = f_->Widget("Button7");
    QVERIFY(seven);
    QVERIFY(seven->toolTip().startsWith(QStringLiteral("Keyboard equivalent: [7]. ")));
    // Switched off, every tip goes.
    f_->Calc().HelpTagsEnabled(false);
    QVERIFY(key->toolTip().isEmpty());
    QVERIFY(key->accessibleDescription().isEmpty());
    QVERIFY(seven->toolTip().isEmpty());
  }

  void aboutBoxShowsVersionPicturesAndCompilerLine() {
    // As the Help menu's item does once the menu has enabled it.
    QVERIFY(f_->App().GetProgram().App().MenuCommand("AppleAbout"));
    WindowDialog* about = f_->App().DialogFor("AboutWindow");
    QVERIFY(about);
    QCOMPARE(about->windowTitle(), QStringLiteral("About Tessarine"));
    QCOMPARE(about->size(), QSize(325, 394));
    auto* version = AboutWidget<QLabel>("VersionLabel");
    QVERIFY(version);
    QCOMPARE(version->text(), QStringLiteral("Version 4.5.2"));
    // The pictures are built in, at the sizes of their canvases.
    auto* logo = AboutWidget<PictureCanvas>("BrindleyLogoCanvas");
    auto* donate = AboutWidget<PictureCanvas>("PaypalCanvas");
    QVERIFY(logo && donate);
    QCOMPARE(logo->Picture().size(), QSize(150, 93));
    QCOMPARE(donate->Picture().size(), QSize(62, 31));
    // Command (Ctrl here), Control and Option held at the press show the compiler.
    QTest::keyPress(about, Qt::Key_Control);
    QTest::keyPress(about, Qt::Key_Alt, Qt::ControlModifier);
    QTest::mousePress(version, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier);
    static const QRegularExpression line(
        QStringLiteral("^Compiler: (GCC|Clang) \\S.*; \\d{1,2}-[A-Z][a-z]+-\\d{4}$"));
    QVERIFY2(line.match(version->text()).hasMatch(), qPrintable(version->text()));
    QTest::mouseRelease(version, Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(version->text(), QStringLiteral("Version 4.5.2"));
    QTest::keyRelease(about, Qt::Key_Alt, Qt::ControlModifier);
    QTest::keyRelease(about, Qt::Key_Control);
    // Without the chord the press changes nothing.
    QTest::mousePress(version, Qt::LeftButton);
    QCOMPARE(version->text(), QStringLiteral("Version 4.5.2"));
    QTest::mouseRelease(version, Qt::LeftButton);
  }
};

TESSARINE_GUI_SUITE(HelpTest, "help");

}  // namespace tessarine::desktop::testing

#include "help_test.moc"
