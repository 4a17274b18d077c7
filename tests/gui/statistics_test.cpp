// The Stats page on the desktop: values fed from the keyboard, the ANOVA sheet opened
// from the page, its result read from its own widgets, and its error sheet giving the
// ANOVA sheet back. The sample list, its Del key and the probability window are the
// Stats scripts'; typing into a sheet's field is the preferences and fractions suites'.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "gui_fixture.hpp"
#include "suites.hpp"
#include "window_canvas.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

class StatisticsTest : public GuiSuite {
  Q_OBJECT

  // The Stats page on show, with 1 2 3 in sample 1, 2 3 4 in sample 2 and 3 4 5 in
  // sample 3, typed with Shift+1 as the Input key.
  void FeedSamples() {
    f_->ToggleAdvanced();
    f_->Calc().Get("CalcTabSelector").SetValue(2);  // the Stats page
    const char* samples[] = {"1!2!3!", "2!3!4!", "3!4!5!"};
    for (int i = 0; i < 3; ++i) {
      f_->Calc().Get("CellNumberPopUp").SetListIndex(i);
      f_->Type(QString::fromLatin1(samples[i]));
    }
    f_->Calc().Get("CellNumberPopUp").SetListIndex(0);
  }

  void ShowComputation(int row) {
    f_->Calc().Get("ComputePopUp").SetListIndex(row);
    f_->Click("ShowComputationButton");
  }

 private slots:
  void anovaErrorBringsAFreshSheetBack() {
    FeedSamples();
    ShowComputation(1);
    QTest::mouseClick(f_->DialogWidget<QPushButton>("ANOVAWindow", "CalculateButton"),
                      Qt::LeftButton);
    QCOMPARE(f_->DialogWidget<QLabel>("ANOVAWindow", "ANOVAResultText")->text(),
             QStringLiteral("F (2,6) = 3.000, p = 0.1250"));
    QTest::mouseClick(f_->DialogWidget<QCheckBox>("ANOVAWindow", "SampleNumberCheckBox", 2),
                      Qt::LeftButton);
    QTest::mouseClick(f_->DialogWidget<QPushButton>("ANOVAWindow", "CalculateButton"),
                      Qt::LeftButton);
    QTRY_VERIFY(!f_->App().DialogFor("ANOVAWindow"));
    QVERIFY(f_->DialogWidget<QLabel>("StatsErrorWindow", "ErrorText")
                ->text()
                .startsWith(QStringLiteral("User Error. You must select three")));
    QTest::mouseClick(f_->DialogWidget<QPushButton>("StatsErrorWindow", "InputErrorCloseButton"),
                      Qt::LeftButton);
    QTRY_VERIFY(f_->App().DialogFor("ANOVAWindow"));
    QVERIFY(f_->DialogWidget<QCheckBox>("ANOVAWindow", "SampleNumberCheckBox", 2)->isChecked());
  }
};

TESSARINE_GUI_SUITE(StatisticsTest, "statistics");

}  // namespace tessarine::desktop::testing

#include "statistics_test.moc"
