// Simple and advanced mode on screen: the window's size and place from the
// model's bounds, the animation, the tab pages, what is built at start, and the
// rules of the keyboard focus.
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTest>

#include "control_widgets.hpp"
#include "gui_fixture.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop::testing {

class ModesTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void startsSimpleWithOnlyTheKeypadBuilt() {
    MainWindowView& view = f_->View();
    const int menu = view.menuBar()->height();
    QCOMPARE(view.CanvasWidget()->size(), QSize(171, 249));
    QCOMPARE(view.geometry(), QRect(220, 100, 171, 249 + menu));
    // Not resizable by the user.
    QCOMPARE(view.minimumSize(), view.maximumSize());
    // Nothing of the tab pages is made while the window is too narrow to show it.
    QVERIFY(!view.WidgetFor("CalcTabSelector"));
    QVERIFY(!view.WidgetFor("ButtonSine"));
    QVERIFY(view.WidgetFor("Button7"));
    QVERIFY(view.Canvas().BuiltCount() < f_->Calc().Controls().size() / 2);
  }

  void advancedModeGrowsUpAndRightThenBack() {
    MainWindowView& view = f_->View();
    const QRect simple = view.geometry();
    f_->Click("ShowAdvancedFeaturesButton");
    // The size changes in steps, not at once.
    QTest::qWait(MainWindowView::kResizeMs / 2);
    QVERIFY(view.Animating());
    QVERIFY(view.width() > simple.width() && view.width() < simple.width() + 364);
    f_->WaitForResize();
    // 535 x 290, the bottom-left corner where it was.
    QCOMPARE(view.CanvasWidget()->size(), QSize(535, 290));
    QCOMPARE(view.geometry().bottomLeft(), simple.bottomLeft());
    QCOMPARE(view.geometry(), view.ModelGeometry());
    QCOMPARE(f_->Calc().Top(), 100 - 41);
    QCOMPARE(view.minimumSize(), view.maximumSize());
    QCOMPARE(qobject_cast<KeyButton*>(f_->Widget("ShowAdvancedFeaturesButton"))->text(),
             QStringLiteral("LESS"));
    QVERIFY(f_->Widget("ButtonSine")->isVisible());

    // The space bar is the same command.
    f_->Key(Qt::Key_Space);
    f_->WaitForResize();
    QCOMPARE(view.geometry(), simple);
    QCOMPARE(qobject_cast<KeyButton*>(f_->Widget("ShowAdvancedFeaturesButton"))->text(),
             QStringLiteral("MORE..."));
  }

  void tabsShowOnlyTheirPage() {
    f_->ToggleAdvanced();
    auto* panel = qobject_cast<TabPanelWidget*>(f_->Widget("CalcTabSelector"));
    QVERIFY(panel);
    QCOMPARE(panel->Bar()->count(), 5);
    QCOMPARE(panel->Bar()->tabText(3), QStringLiteral("Fractions"));
    // A click on the "Stats" tab: the model's page changes, its keys show and
    // the keys of "Math" hide.
    QTabBar* bar = panel->Bar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(2).center());
    QCOMPARE(f_->Calc().Get("CalcTabSelector").Value(), 2);
    QVERIFY(f_->Widget("CombinationsButton")->isVisible());
    QVERIFY(!f_->Widget("ButtonSine")->isVisible());
    // The program changes the page: the tab follows.
    f_->Calc().Get("CalcTabSelector").SetValue(4);
    QCOMPARE(bar->currentIndex(), 4);
    QVERIFY(f_->Widget("ExpressionField")->isVisible());
    QVERIFY(!f_->Widget("CombinationsButton")->isVisible());
  }

  void fieldsTakeTheKeysOnlyWhenClicked() {
    f_->ToggleAdvanced();
    // No control holds the focus at start: keys reach the keypad.
    QVERIFY(!f_->View().focusWidget() || !f_->View().focusWidget()->hasFocus());
    f_->Calc().Get("CalcTabSelector").SetValue(4);
    auto* field = qobject_cast<QPlainTextEdit*>(f_->Widget("ExpressionField"));
    QVERIFY(field);
    QTest::mouseClick(field->viewport(), Qt::LeftButton);
    QVERIFY(field->hasFocus());
    f_->Type(QStringLiteral("7"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
    QVERIFY(field->toPlainText().contains(QLatin1Char('7')));
    // The field's text is the control's text.
    QCOMPARE(QString::fromStdString(f_->Calc().Get("ExpressionField").Text()),
             field->toPlainText());
    // A change of tab takes the focus away: the keys are the keypad's again.
    auto* panel = qobject_cast<TabPanelWidget*>(f_->Widget("CalcTabSelector"));
    QTest::mouseClick(panel->Bar(), Qt::LeftButton, {}, panel->Bar()->tabRect(0).center());
    QVERIFY(!field->hasFocus());
    f_->Type(QStringLiteral("7"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("7"));
  }

  void leavingAdvancedModeClearsTheFocus() {
    f_->ToggleAdvanced();
    f_->Calc().Get("CalcTabSelector").SetValue(3);
    f_->Calc().Get("FractionPagePanel").SetValue(0);
    auto* whole = qobject_cast<QLineEdit*>(f_->Widget("whole1"));
    QVERIFY(whole);
    QTest::mouseClick(whole, Qt::LeftButton);
    QVERIFY(whole->hasFocus());
    f_->ToggleAdvanced();
    QVERIFY(!whole->hasFocus());
    f_->Type(QStringLiteral("4"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("4"));
  }

  void userMoveIsTheNewCorner() {
    MainWindowView& view = f_->View();
    view.move(300, 400);
    // The model's corner is the window's, wherever the frame put it.
    QTRY_COMPARE(f_->Calc().Left(), view.geometry().x());
    QCOMPARE(f_->Calc().Top(), view.geometry().y());
    QVERIFY(f_->Calc().Left() >= 300 && f_->Calc().Top() >= 400);
  }
};

TESSARINE_GUI_SUITE(ModesTest, "modes");

}  // namespace tessarine::desktop::testing

#include "modes_test.moc"
