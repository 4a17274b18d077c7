// The preferences window on the desktop: its size follows the page, and the
// constants list edits through the real widgets and reaches the menu at close.
#include <QAction>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include "gui_fixture.hpp"
#include "menu_bar_view.hpp"
#include "shell/tessarine_app.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

class PreferencesTest : public GuiSuite {
  Q_OBJECT

  WindowDialog* Preferences() { return f_->App().DialogFor("PreferencesWindow"); }

  template <class W>
  W* Widget(const char* control) {
    return f_->DialogWidget<W>("PreferencesWindow", control);
  }

  void Menu(const char* item) { f_->App().GetProgram().App().MenuCommand(item); }

 private slots:
  void opensAtItsPageSizeAndResizesWithThePage() {
    Menu("EditPreferences");
    QTRY_VERIFY(Preferences() && Preferences()->isVisible());
    QTRY_COMPARE(Preferences()->size(), QSize(355, 240));
    QCOMPARE(Preferences()->windowTitle(), QStringLiteral("Tessarine Preferences"));
    auto* sound = Widget<QWidget>("SoundButtonCanvas");
    QVERIFY(sound);
    QTest::mouseClick(sound, Qt::LeftButton);
    QTRY_COMPARE(Preferences()->size(), QSize(290, 425));
    QTRY_VERIFY(Widget<QWidget>("NumberSoundPopUp")->isVisible());
    QVERIFY(!Widget<QWidget>("ShowHelpTagsCheckBox")->isVisible());
    QTest::mouseClick(Widget<QWidget>("ProxyButtonCanvas"), Qt::LeftButton);
    QTRY_COMPARE(Preferences()->size(), QSize(365, 310));
  }

  void constantsListEditsThroughTheWidgets() {
    Menu("MenuCustomize");
    QTRY_VERIFY(Preferences() && Preferences()->isVisible());
    QTRY_COMPARE(Preferences()->size(), QSize(365, 405));
    auto* list = Widget<QListWidget>("ConstantsListBox");
    auto* name = Widget<QLineEdit>("NewMenuItemNameEditField");
    auto* value = Widget<QLineEdit>("NewMenuItemValueEditField");
    auto* add = Widget<QPushButton>("AddConstantButton");
    QVERIFY(list && name && value && add);
    QCOMPARE(list->count(), 10);
    QVERIFY(!add->isEnabled());
    QTest::keyClicks(name, QStringLiteral("Answer"));
    QVERIFY(!add->isEnabled());
    QTest::keyClicks(value, QStringLiteral("42"));
    QVERIFY(add->isEnabled());
    QTest::mouseClick(add, Qt::LeftButton);
    QCOMPARE(list->count(), 11);
    QCOMPARE(list->currentRow(), 10);
    QCOMPARE(Widget<QLineEdit>("ConstantValueEditField")->text(), QStringLiteral("42"));
    QVERIFY(name->text().isEmpty());
    // Remove the first row with a real click on the row and on the button.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(0)).center());
    QTRY_COMPARE(list->currentRow(), 0);
    QTest::mouseClick(Widget<QPushButton>("RemoveConstantButton"), Qt::LeftButton);
    QCOMPARE(list->count(), 10);
    QCOMPARE(list->item(0)->text(), QStringLiteral("Boltzmann Constant (J/K)"));
    // The menu's texts catch up only when the window closes.
    MenuBarView& menus = f_->View().Menus();
    QCOMPARE(menus.ActionFor("MenuConstant", 0)->text(),
             QStringLiteral("Avogadro's Number (atoms/mole)"));
    Preferences()->close();
    QTRY_VERIFY(!Preferences());
    // The desktop's close runs the window's own close: the menu catches up.
    QTRY_VERIFY(menus.ActionFor("MenuConstant", 9));
    QCOMPARE(menus.ActionFor("MenuConstant", 0)->text(),
             QStringLiteral("Boltzmann Constant (J/K)"));
    QCOMPARE(menus.ActionFor("MenuConstant", 9)->text(), QStringLiteral("Answer"));
    menus.ActionFor("MenuConstant", 9)->trigger();
    QCOMPARE(f_->DisplayText(), QStringLiteral("42."));
  }
};

TESSARINE_GUI_SUITE(PreferencesTest, "preferences");

}  // namespace tessarine::desktop::testing

#include "preferences_test.moc"
