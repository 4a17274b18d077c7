// The fixture of the in-process GUI tests: a fresh calculator (its own
// preferences folder) with its real main window on Qt's offscreen platform,
// started and showing its first value. Keys and clicks go to the real widgets.
//
// A modal dialog would block a test for ever: a watchdog closes any message box
// within 50 ms and keeps its text; a test takes the texts it expects
// (TakeDialogs), and the fixture fails the test for any it did not.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>
#include <string>

#include "calculator/calc_window.hpp"
#include "desktop_app.hpp"
#include "main_window_view.hpp"

class QWidget;

namespace tessarine::desktop::testing {

class GuiFixture {
 public:
  GuiFixture();
  ~GuiFixture();
  GuiFixture(const GuiFixture&) = delete;
  GuiFixture& operator=(const GuiFixture&) = delete;

  DesktopApp& App() { return *app_; }
  QtPlatform& Platform() { return app_->GetPlatform(); }
  MainWindowView& View() { return *app_->MainView(); }
  CalcWindow& Calc() { return View().Model(); }

  // The widget of a main window control; fails the test (returns nullptr) when
  // there is none.
  QWidget* Widget(const char* name, int index = -1);
  // The widget of a control of an open dialog window (a sheet, the preferences, the
  // About box), of class W; fails the test (returns nullptr) when there is none.
  template <class W = QWidget>
  W* DialogWidget(const char* window, const char* control, int index = -1) {
    W* widget = qobject_cast<W*>(FindDialogWidget(window, control, index));
    if (!widget) QTest::qFail(control, __FILE__, __LINE__);
    return widget;
  }
  // What the Display label shows.
  QString DisplayText();
  // A left click in the middle of the control's widget.
  void Click(const char* name, int index = -1);
  // Keys typed on the main window as the window system delivers them (to the
  // focused widget, through the shortcut map): one key click each ('2', '+', ...).
  void Type(const QString& keys);
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  // Lets the mode switch's animation end.
  void WaitForResize();
  // A click on the MORE/LESS key, then the animation's end.
  void ToggleAdvanced() {
    Click("ShowAdvancedFeaturesButton");
    WaitForResize();
  }

  // Texts of the message boxes closed by the watchdog since the last call.
  QStringList TakeDialogs();

 private:
  QWidget* FindDialogWidget(const char* window, const char* control, int index);

  QTemporaryDir preferences_;
  std::unique_ptr<DesktopApp> app_;
  QTimer watchdog_;
  QStringList dialogs_;
};

// The frame of every suite on the main window: a fresh calculator before each
// test function and, after it, no message box left unclaimed.
class GuiSuite : public QObject {
  Q_OBJECT

 protected:
  std::unique_ptr<GuiFixture> f_;

 private slots:
  void init() { f_ = std::make_unique<GuiFixture>(); }
  void cleanup() {
    const QStringList left = f_->TakeDialogs();
    f_.reset();
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QStringLiteral("; "))));
  }
};

}  // namespace tessarine::desktop::testing
