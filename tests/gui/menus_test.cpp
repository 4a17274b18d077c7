// The menu bar on screen: built from the model, enabled by the program's rules
// when a menu opens, commands and shortcuts, copy and paste through the real
// clipboard, the main window's close, and every menu opened from the keyboard on
// the narrow simple window. Ctrl+Q is typed into the real window end to end.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "gui_fixture.hpp"
#include "menu_bar_view.hpp"
#include "runtime/menu_bar.hpp"
#include "shell/tessarine_app.hpp"
#include "suites.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

class MenusTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void barMirrorsTheModel() {
    QMenuBar* bar = f_->View().menuBar();
    QStringList titles;
    for (QAction* action : bar->actions()) titles << action->text();
    // Mnemonics other than the keypad's Alt letters (S sine, C cosine, P, T, Y, D).
    QCOMPARE(titles, (QStringList{"&File", "&Edit", "C&onstants", "Speec&h", "He&lp"}));
    QAction* tape = f_->View().Menus().ActionFor("FileTapeControlMenu");
    QVERIFY(tape);
    QCOMPARE(tape->shortcut(), QKeySequence(QStringLiteral("Ctrl+T")));
    // Cmd+U moves to Ctrl+Shift+U: Ctrl+U rounds up on the keypad.
    QCOMPARE(f_->View().Menus().ActionFor("CheckForUpdatesMenu")->shortcut(),
             QKeySequence(QStringLiteral("Ctrl+Shift+U")));
    // A change of an item shows at once.
    MenuBar& model = f_->App().GetProgram().App().GetMenuBar();
    model.SetText(model.Item("EditClear"), "Clear Display");
    QCOMPARE(f_->View().Menus().ActionFor("EditClear")->text(), QStringLiteral("Clear Display"));
    // A change of the tree builds the bar anew, without the old menus.
    const auto menus = [bar] {
      return bar->findChildren<QMenu*>(Qt::FindDirectChildrenOnly).size();
    };
    const qsizetype before = menus();  // the five, and the bar's own overflow menu
    MenuItem extra;
    extra.name = "ExtraItem";
    extra.text = "Extra";
    model.AddMenu({"ExtraMenu", "Extra", {extra}});
    QCOMPARE(bar->actions().size(), 6);
    QVERIFY(f_->View().Menus().ActionFor("ExtraItem"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(menus(), before + 1);
  }

  void openingAMenuRunsTheEnablingRules() {
    MenuBar& model = f_->App().GetProgram().App().GetMenuBar();
    QAction* constant = f_->View().Menus().ActionFor("MenuConstant", 0);
    QAction* copy = f_->View().Menus().ActionFor("EditCopy");
    QVERIFY(constant && copy);
    // An entry of the constants without a name is hidden (and so disabled); a
    // named one shows.
    QVERIFY(constant->isVisible());
    model.SetText(model.Item("MenuConstant", 0), "");
    QVERIFY(!constant->isVisible());
    model.SetText(model.Item("MenuConstant", 0), "Pi");
    QVERIFY(constant->isVisible());
    // Disabled behind the program's back; opening the menu enables them again.
    model.SetEnabled(model.Item("EditCopy"), false);
    model.SetEnabled(model.Item("MenuConstant", 0), false);
    QVERIFY(!copy->isEnabled());
    OpenAndClose("UntitledMenu1");
    QVERIFY(copy->isEnabled());
    OpenAndClose("ConstantsMenu");
    QVERIFY(constant->isEnabled());
  }

  void copyAndPasteThroughTheClipboard() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    f_->Type(QStringLiteral("12.5"));
    f_->Key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(clipboard->text(), QStringLiteral("12.5"));
    clipboard->setText(QStringLiteral("3.25"));
    f_->Key(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(f_->DisplayText(), QStringLiteral("3.25"));
    // An empty system clipboard is no text to paste: nothing changes.
    f_->Type(QStringLiteral("c"));
    clipboard->clear();
    f_->View().Menus().ActionFor("EditPaste")->trigger();
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
  }

  void showTapeOpensItsOwnWindow() {
    // Ctrl+T shows the tape beside the main window, which keeps the keyboard.
    f_->Key(Qt::Key_T, Qt::ControlModifier);
    WindowDialog* tape = f_->App().DialogFor("TapeWindow");
    QVERIFY(tape);
    QVERIFY(QTest::qWaitForWindowExposed(tape));
    QCOMPARE(tape->windowModality(), Qt::NonModal);
    Window* model = f_->App().GetProgram().FindOpenWindow("TapeWindow");
    QVERIFY(model && model->Visible());
    QCOMPARE(tape->size(), QSize(model->Width(), model->Height()));
    QVERIFY(tape->findChild<QWidget*>(QStringLiteral("TapeEditField")));
    // Ctrl+T again hides it.
    f_->Key(Qt::Key_T, Qt::ControlModifier);
    QVERIFY(!f_->App().DialogFor("TapeWindow"));
    QVERIFY(!model->Visible());
    // Shown again and closed by the user: the model's window closes.
    f_->Key(Qt::Key_T, Qt::ControlModifier);
    tape = f_->App().DialogFor("TapeWindow");
    QVERIFY(tape);
    QVERIFY(tape->close());
    QVERIFY(!f_->App().DialogFor("TapeWindow"));
    QVERIFY(!f_->App().GetProgram().FindOpenWindow("TapeWindow"));
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

  void closingTheMainWindowEndsTheSession() {
    CalcWindow& calc = f_->Calc();
    QVERIFY(f_->View().close());
    QVERIFY(!calc.IsOpen());
    QVERIFY(f_->Platform().QuitRequested());
  }

 private:
  // Opens a menu of the bar as the user would, then closes it.
  void OpenAndClose(const char* menu_name) {
    auto* menu = f_->View().menuBar()->findChild<QMenu*>(QString::fromLatin1(menu_name));
    QVERIFY(menu);
    menu->popup(f_->View().mapToGlobal(QPoint(0, 0)));
    QTRY_VERIFY(menu->isVisible());
    menu->close();
  }
};

TESSARINE_GUI_SUITE(MenusTest, "menus");

}  // namespace tessarine::desktop::testing

#include "menus_test.moc"
