// The main window as assistive technology and the keyboard meet it: every shown
// control has an accessible name and role, keys are named by what they do, the
// display announces its value, and every menu opens from the keyboard on the
// narrow simple window.
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWidget>

#include "conversion/version_update_error_window.hpp"
#include "gui_fixture.hpp"
#include "main_window_view.hpp"
#include "menu_bar_view.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

namespace {

// The shown widgets of the accessibility tree under `node` without a name or role.
void CollectUnnamed(QAccessibleInterface* node, QStringList& unnamed) {
  for (int i = 0; i < node->childCount(); ++i) {
    QAccessibleInterface* child = node->child(i);
    if (!child) continue;
    auto* widget = qobject_cast<QWidget*>(child->object());
    if (widget && !widget->isVisible()) continue;
    if (child->text(QAccessible::Name).trimmed().isEmpty() ||
        child->role() == QAccessible::NoRole) {
      const QObject* object = child->object();
      unnamed << (object ? object->objectName() + QLatin1Char('/') +
                               QString::fromLatin1(object->metaObject()->className())
                         : QStringLiteral("?"));
    }
    CollectUnnamed(child, unnamed);
  }
}

}  // namespace

class DesktopTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void everyShownControlIsNamed() {
    CalcWindow& calc = f_->Calc();
    f_->Key(Qt::Key_Space);  // advanced mode: the tab pages
    f_->WaitForResize();
    for (int page = 0; page < 5; ++page) {
      calc.Get("CalcTabSelector").SetValue(page);
      QStringList unnamed;
      CollectUnnamed(QAccessible::queryAccessibleInterface(&f_->View()), unnamed);
      QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QStringLiteral(", "))));
    }
  }

  void keysAreNamedByWhatTheyDo_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    QTest::newRow("digit") << "Button7"
                           << "seven" << int(QAccessible::Button);
    QTest::newRow("sign") << "ButtonPlus"
                          << "plus" << int(QAccessible::Button);
    QTest::newRow("drawn mark") << "ButtonSquareRoot"
                                << "square root" << int(QAccessible::Button);
    QTest::newRow("memory") << "StorageRecallButton"
                            << "memory recall" << int(QAccessible::Button);
    QTest::newRow("abbreviation") << "ButtonOneOverX"
                                  << "reciprocal" << int(QAccessible::Button);
    QTest::newRow("words of the name") << "ButtonArcCosine"
                                       << "arc cosine" << int(QAccessible::Button);
    QTest::newRow("display") << "Display"
                             << "0." << int(QAccessible::StaticText);
  }
  void keysAreNamedByWhatTheyDo() {
    QFETCH(QString, control);
    QFETCH(QString, name);
    QFETCH(int, role);
    f_->Key(Qt::Key_Space);
    f_->WaitForResize();
    QWidget* widget = f_->Widget(qPrintable(control));
    QVERIFY(widget);
    QAccessibleInterface* node = QAccessible::queryAccessibleInterface(widget);
    QCOMPARE(node->text(QAccessible::Name), name);
    QCOMPARE(int(node->role()), role);
  }

  void displayIsNamedByItsValue() {
    // Its name is what it shows, so a screen reader hears each new value (the
    // offscreen platform delivers no accessibility events to watch).
    f_->Type(QStringLiteral("12+"));
    QAccessibleInterface* display = QAccessible::queryAccessibleInterface(f_->Widget("Display"));
    QCOMPARE(display->text(QAccessible::Name), QStringLiteral("12."));
  }

  void menusOpenFromTheKeyboardOnTheNarrowWindow() {
    MainWindowView& view = f_->View();
    QMenuBar* bar = view.menuBar();
    QCOMPARE(view.width(), 171);
    // Not every title fits: some wait behind the overflow arrow.
    const QList<QAction*> titles = bar->actions();
    QVERIFY(bar->actionGeometry(titles.last()).right() > bar->width());
    f_->Key(Qt::Key_F10);
    QTRY_COMPARE(bar->activeAction(), titles.first());
    QTRY_VERIFY(titles.first()->menu()->isVisible());
    titles.first()->menu()->close();
    bar->setActiveAction(nullptr);
    // Alt and the underlined letter of a hidden title: its menu opens inside the
    // window's width, under the arrow.
    f_->Key(Qt::Key_L, Qt::AltModifier);  // He&lp
    QMenu* help = titles.last()->menu();
    QTRY_VERIFY(help->isVisible());
    const int window_right = view.mapToGlobal(QPoint(view.width(), 0)).x();
    QVERIFY2(help->geometry().left() < window_right,
             qPrintable(QStringLiteral("%1 >= %2").arg(help->geometry().left()).arg(window_right)));
    help->close();
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

TESSARINE_GUI_SUITE(DesktopTest, "desktop");

}  // namespace tessarine::desktop::testing

#include "desktop_test.moc"
