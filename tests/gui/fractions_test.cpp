// The Fractions tab on screen: keys typed into its real fields pass its key
// filter, the mode popup shows each page and its buttons fill the result fields.
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include "gui_fixture.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

class FractionsTest : public GuiSuite {
  Q_OBJECT

 private:
  void OpenTab() {
    f_->ToggleAdvanced();
    f_->Calc().Get("CalcTabSelector").SetValue(3);
  }
  QLineEdit* Field(const char* name) { return qobject_cast<QLineEdit*>(f_->Widget(name)); }
  // A click into the field, then the keys as the window system delivers them.
  void TypeInto(const char* name, const QString& keys) {
    QLineEdit* field = Field(name);
    QVERIFY(field);
    QTest::mouseClick(field, Qt::LeftButton);
    QVERIFY(field->hasFocus());
    field->end(false);
    f_->Type(keys);
  }
  QString Text(const char* name) { return Field(name) ? Field(name)->text() : QString("?"); }

 private slots:
  void filterRefusesWhatIsNoNumberAndKeepsKeysFromTheKeypad() {
    OpenTab();
    TypeInto("whole1", QStringLiteral("1e2+ 3"));
    QCOMPARE(Text("whole1"), QStringLiteral("123"));
    TypeInto("numtop1", QStringLiteral("-,.-x9"));
    QCOMPARE(Text("numtop1"), QStringLiteral("-,.-9"));
    QCOMPARE(QString::fromStdString(f_->Calc().Get("numtop1").Text()), Text("numtop1"));
    // Backspace is a control key and still edits.
    f_->Key(Qt::Key_Backspace);
    QCOMPARE(Text("numtop1"), QStringLiteral("-,.-"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
  }

  void modePopupShowsEachPage() {
    OpenTab();
    auto* mode = qobject_cast<QComboBox*>(f_->Widget("PopupMenu1"));
    QVERIFY(mode);
    QCOMPARE(mode->currentIndex(), 0);
    QVERIFY(f_->Widget("whole1")->isVisible());
    mode->activated(2);
    QCOMPARE(f_->Calc().Get("FractionPagePanel").Value(), 2);
    QVERIFY(!f_->Widget("whole1")->isVisible());
    TypeInto("dec", QStringLiteral("2.5e"));
    f_->Click("RoundedBevelButton7");
    QCOMPARE(Text("main2"), QStringLiteral("2"));
    mode->activated(1);
    QVERIFY(f_->Widget("answerd")->isVisible());
    QVERIFY(!f_->Widget("dec")->isVisible());
  }
};

TESSARINE_GUI_SUITE(FractionsTest, "fractions");

}  // namespace tessarine::desktop::testing

#include "fractions_test.moc"
