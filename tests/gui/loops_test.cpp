// Yields of long loops on the desktop: the event loop runs often enough to keep
// the window drawn and timers going, input is held back while a loop runs and
// delivered after it, and Ctrl + period ends C(n,k) under its progress sheet.
#include <QApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

#include "gui_fixture.hpp"
#include "suites.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

namespace {

// A handler's long loop: work of about `round_us` microseconds per round, a
// yield every round, for `ms` milliseconds. Returns the number of rounds.
long RunLoop(Platform& platform, int ms, int round_us) {
  QElapsedTimer clock;
  clock.start();
  long rounds = 0;
  while (clock.elapsed() < ms) {
    const qint64 start = clock.nsecsElapsed();
    while (clock.nsecsElapsed() - start < round_us * 1000) {
    }
    platform.desktop.Yield();
    ++rounds;
  }
  return rounds;
}

}  // namespace

class LoopsTest : public GuiSuite {
  Q_OBJECT

 private slots:
  void yieldsPumpOftenAndCheaply() {
    int ticks = 0;
    QTimer timer;
    timer.setInterval(10);
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start();
    const std::int64_t pumps = f_->Platform().Pumps();
    const long rounds = RunLoop(f_->App().GetProgram().GetPlatform(), 400, 5);
    const std::int64_t pumped = f_->Platform().Pumps() - pumps;
    // The event loop ran about every 16 ms, no more: most yields only read the clock.
    QVERIFY2(pumped >= 400 / QtPlatform::kPumpIntervalMs / 3, qPrintable(QString::number(pumped)));
    QVERIFY2(pumped <= 400 / QtPlatform::kPumpIntervalMs + 2, qPrintable(QString::number(pumped)));
    QVERIFY2(rounds > 20 * pumped, qPrintable(QString::number(rounds)));
    // Timers ran inside the loop.
    QVERIFY2(ticks >= 10, qPrintable(QString::number(ticks)));
  }

  void inputWaitsForTheLoopToEnd() {
    QTimer::singleShot(60, &f_->View(), [this] { f_->Key(Qt::Key_7); });
    QTimer::singleShot(80, &f_->View(), [this] { f_->Key(Qt::Key_8); });
    RunLoop(f_->App().GetProgram().GetPlatform(), 250, 5);
    // Nothing reached the keypad while the loop ran; the four events wait.
    QCOMPARE(f_->DisplayText(), QStringLiteral("0."));
    QCOMPARE(f_->Platform().DeferredInputCount(), std::size_t{4});
    // Back in the event loop, they arrive in order.
    QTRY_COMPARE(f_->DisplayText(), QStringLiteral("78"));
    QTRY_COMPARE(f_->Platform().DeferredInputCount(), std::size_t{0});
  }

  void abortChordEndsCombinations() {
    // C(999999999, 2) runs a billion rounds under the progress sheet.
    f_->Type(QStringLiteral("999999999"));
    f_->Key(Qt::Key_5, Qt::ControlModifier);
    f_->Type(QStringLiteral("2"));
    bool sheet_shown = false;
    int progress = -1;
    QTimer::singleShot(400, &f_->View(), [&] {
      if (WindowDialog* sheet = f_->App().DialogFor("ProgressBarWindow")) {
        sheet_shown = sheet->isVisible() && sheet->windowModality() == Qt::WindowModal &&
                      sheet->parentWidget() == &f_->View();
        if (auto* bar = sheet->findChild<QProgressBar*>()) progress = bar->value();
      }
      // The user types the chord into the window that has the keyboard: the sheet.
      QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key_Period, Qt::ControlModifier);
    });
    QElapsedTimer clock;
    clock.start();
    f_->Key(Qt::Key_Return);
    QVERIFY2(clock.elapsed() < 3000, qPrintable(QString::number(clock.elapsed())));
    QVERIFY(sheet_shown);
    QVERIFY(progress >= 1);
    QVERIFY(!f_->App().DialogFor("ProgressBarWindow"));
    QVERIFY(!QApplication::activeModalWidget());
    // The chord's period reached the keypad after the loop (Qt Test lets the event
    // loop turn after each key), and was swallowed: no point was typed.
    QTRY_VERIFY(!f_->Calc().LongCalculationAborted);
    QCOMPARE(f_->DisplayText(), QStringLiteral("2."));
    // The next period is a decimal point again: it starts a new number.
    f_->Type(QStringLiteral(".5"));
    QCOMPARE(f_->DisplayText(), QStringLiteral(".5"));
  }
};

TESSARINE_GUI_SUITE(LoopsTest, "loops");

}  // namespace tessarine::desktop::testing

#include "loops_test.moc"
