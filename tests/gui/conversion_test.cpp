// The Convert page through the real widgets: a category and two units chosen in
// the popups as a user does, the Convert key clicked, the answer on its label.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <QTest>

#include "control_widgets.hpp"
#include "gui_fixture.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {

namespace {

// Opens the popup's list and clicks the row, as the user picks it.
void Choose(QComboBox* combo, int row) {
  combo->showPopup();
  QAbstractItemView* list = combo->view();
  QTRY_VERIFY(list->isVisible());
  const QRect place = list->visualRect(list->model()->index(row, 0));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place.center());
  QTRY_VERIFY(!list->isVisible());
}

}  // namespace

class ConversionTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void choosingUnitsAndPressingConvert() {
    f_->ToggleAdvanced();
    auto* panel = qobject_cast<TabPanelWidget*>(f_->Widget("CalcTabSelector"));
    QVERIFY(panel);
    QTabBar* bar = panel->Bar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    QVERIFY(f_->Widget("ConversionUpdateNowButton")->isVisible());

    auto* category = qobject_cast<QComboBox*>(f_->Widget("ConversionCategoryPopup"));
    auto* from = qobject_cast<QComboBox*>(f_->Widget("ConversionFromPopup"));
    auto* to = qobject_cast<QComboBox*>(f_->Widget("ConversionToPopup"));
    QVERIFY(category && from && to);
    QCOMPARE(category->count(), 11);
    QCOMPARE(from->currentText(), QStringLiteral("Acres"));
    // The currency line hides outside "Currency".
    QWidget* update = f_->View().WidgetFor("UpdateCurrencyButton");
    QVERIFY(!update || !update->isVisible());

    Choose(category, 7);
    QCOMPARE(from->count(), 3);
    QCOMPARE(to->currentText(), QStringLiteral("Celsius"));
    Choose(to, 1);
    QCOMPARE(f_->Calc().Get("ConversionToPopup").ListIndex(), 1);

    f_->Type(QStringLiteral("100"));
    f_->Click("ConversionUpdateNowButton");
    auto* answer = qobject_cast<QLabel*>(f_->Widget("ConversionResult"));
    QVERIFY(answer);
    QCOMPARE(answer->text(), QStringLiteral("212"));
    QCOMPARE(f_->DisplayText(), QStringLiteral("100"));

    // Another unit takes the answer away; a click on the answer brings it to the display.
    Choose(from, 2);
    QCOMPARE(answer->text(), QString());
    f_->Click("ConversionUpdateNowButton");
    QCOMPARE(answer->text(), QStringLiteral("-279.68800000000005"));
    QTest::mouseClick(answer, Qt::LeftButton);
    QCOMPARE(f_->DisplayText(), QStringLiteral("-279.688"));

    // "Currency" shows its update key and the age of the rates, in red at first.
    Choose(category, 1);
    QVERIFY(f_->Widget("UpdateCurrencyButton")->isVisible());
    auto* age = qobject_cast<QLabel*>(f_->Widget("CurrencyConversionInfo"));
    QVERIFY(age && age->isVisible());
    QCOMPARE(age->text(), QStringLiteral("Last updated: NEVER"));
  }
};

TESSARINE_GUI_SUITE(ConversionTest, "conversion");

}  // namespace tessarine::desktop::testing

#include "conversion_test.moc"
