// The keypad through the real widgets: keys typed on the main window, clicks on
// the keys, the flash of a typed key, and the error state's locked keys.
#include <QAbstractButton>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include "control_widgets.hpp"
#include "gui_fixture.hpp"
#include "key_events.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop::testing {

class KeypadTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void keypadKeysReachTheDisplay() {
    // Typed digits and Return are the end-to-end test's, on the real window; here the
    // keypad's keys, its Enter and Escape: 5 x 4 on the keypad, then Escape clears.
    f_->Type(QStringLiteral("5"));
    f_->Key(Qt::Key_Asterisk, Qt::KeypadModifier);
    f_->Key(Qt::Key_4, Qt::KeypadModifier);
    f_->Key(Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(f_->DisplayText(), QStringLiteral("20."));
    f_->Key(Qt::Key_Escape);
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
  }

  void qtKeysBecomeChords() {
    // What a Qt key event is to the core's translation; what the map makes of a chord
    // is the core's own table test. Digits, the keypad's Enter, Escape and Space are
    // typed by the suites that need them.
    struct Case {
      int key;
      Qt::KeyboardModifiers modifiers;
      QString text;
      const char* chord;  // nullptr: no chord at all
    };
    const Case cases[] = {
        {Qt::Key_Period, Qt::ControlModifier, "", "."},
        {Qt::Key_Minus, Qt::ControlModifier, "\x1f", "-"},
        {Qt::Key_S, Qt::AltModifier | Qt::ShiftModifier, "S", "s"},
        {Qt::Key_Exclam, Qt::ShiftModifier, "!", "!"},
        {Qt::Key_plusminus, Qt::NoModifier, "\u00b1", "\u00b1"},
        {Qt::Key_F5, Qt::NoModifier, "", "F5"},
        {Qt::Key_Control, Qt::ControlModifier, "", nullptr},
    };
    for (const Case& c : cases) {
      const auto chord = ChordForKey(c.key, c.modifiers, c.text);
      const QString what = QKeySequence(QKeyCombination(c.modifiers, Qt::Key(c.key))).toString();
      QVERIFY2(chord.has_value() == (c.chord != nullptr), qPrintable(what));
      if (chord) QCOMPARE(QString::fromStdString(chord->key), QString::fromUtf8(c.chord));
    }
  }

  void memoryListOpensAtThePointerAndTakesARow() {
    // The memory keys show below the keypad in advanced mode.
    f_->ToggleAdvanced();
    f_->Click("Button5");
    f_->Click("StoragePlusButton");  // in the middle of the key
    QWidget* key = f_->Widget("StoragePlusButton");
    QWidget* list = f_->Widget("StorageMenu");
    QVERIFY(key && list && list->isVisible());
    // The pointer stands over the list's last row: 15 in from its left, 105 down.
    const QPoint pointer = key->geometry().topLeft() + key->rect().center();
    QCOMPARE(list->geometry().topLeft(), pointer - QPoint(15, 105));
    // The last row (bank 10, "M:") under the pointer, then a click on it.
    auto* rows = qobject_cast<QListWidget*>(list);
    QVERIFY(rows);
    const QRect last = rows->visualItemRect(rows->item(9));
    QTest::mouseMove(rows->viewport(), last.center());
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, last.center());
    QTRY_VERIFY(!list->isVisible());
    QCOMPARE(f_->Calc().StorageValue(10), 5.0);
  }

  void typedKeyFlashesDown() {
    // Push shows the key down for 7 ticks, yielding meanwhile: a timer due in the
    // middle sees the key drawn down, and it is up again afterwards.
    auto* key = qobject_cast<KeyButton*>(f_->Widget("Button7"));
    QVERIFY(key);
    bool down_in_the_middle = false;
    QTimer::singleShot(50, key, [&] { down_in_the_middle = key->ShownDown(); });
    QElapsedTimer clock;
    clock.start();
    f_->Type(QStringLiteral("7"));
    QVERIFY(clock.elapsed() >= 100);  // about 117 ms
    QVERIFY(down_in_the_middle);
    QVERIFY(!key->ShownDown());
  }

  void errorStateLocksTheListedKeys() {
    f_->Type(QStringLiteral("5/0="));
    QCOMPARE(f_->DisplayText(), QStringLiteral("Error."));
    auto* message = qobject_cast<QLabel*>(f_->Widget("MessageText"));
    QVERIFY(message && message->isVisible());
    QVERIFY(!message->text().isEmpty());
    // Every locked control whose widget exists now is disabled on screen; the tab
    // pages' widgets are made disabled when advanced mode shows them.
    const auto check_locked = [&](bool locked) {
      int seen = 0;
      for (const Control* control : f_->Calc().ErrorStateControls()) {
        QWidget* widget = f_->View().Canvas().WidgetFor(*control);
        if (!widget) continue;
        ++seen;
        if (widget->isEnabled() == locked)
          return QString::fromStdString(control->FullName()) + QStringLiteral(" wrong");
      }
      return seen > 0 ? QString() : QStringLiteral("no widget seen");
    };
    QCOMPARE(check_locked(true), QString());
    QVERIFY(f_->Widget("ButtonClear")->isEnabled());
    f_->ToggleAdvanced();
    QVERIFY(!f_->Widget("ButtonSine")->isEnabled());
    QCOMPARE(check_locked(true), QString());
    f_->Click("ButtonClear");
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
    QVERIFY(!message->isVisible());
    QCOMPARE(check_locked(false), QString());
  }
};

TESSARINE_GUI_SUITE(KeypadTest, "keypad");

}  // namespace tessarine::desktop::testing

#include "keypad_test.moc"
