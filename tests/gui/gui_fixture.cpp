#include "gui_fixture.hpp"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

#include "runtime/posix/posix_file_system.hpp"
#include "settings/preference_keys.hpp"
#include "window_canvas.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop::testing {

namespace {

constexpr std::uint64_t kSeed = 20261122;

// The offscreen platform says, for each window, what it cannot do (raise it,
// grab the keyboard, pass size hints on); none of it matters to these tests.
QtMessageHandler test_handler = nullptr;

void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtWarningMsg && message.startsWith(QStringLiteral("This plugin does not support")))
    return;
  if (test_handler) test_handler(type, context, message);
}

}  // namespace

GuiFixture::GuiFixture() {
  // Qt Test's own handler is in place once a test runs: keep it behind ours.
  if (!test_handler) test_handler = qInstallMessageHandler(QuietHandler);
  watchdog_.setInterval(50);
  QObject::connect(&watchdog_, &QTimer::timeout, [this] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    QString text = box->text();
    if (!box->informativeText().isEmpty()) text += QLatin1Char('\n') + box->informativeText();
    dialogs_ << text;
    box->done(QMessageBox::Ok);
  });
  watchdog_.start();

  // The rate update at start would meet whatever listens on the build's server port
  // and may drop an error sheet over the keypad; these tests leave it off.
  {
    PosixFileSystem files(preferences_.path().toStdString());
    PrefsModule prefs(files, ".");
    prefs.SetName("Tessarine4 Preferences", "PREF");
    WritePref(prefs, prefs::UpdateExchangeRates, false);
    prefs.WriteOut();
  }
  app_ = std::make_unique<DesktopApp>(kSeed, preferences_.path().toStdString());
  app_->Start();
  QVERIFY(QTest::qWaitForWindowExposed(app_->MainView()));
  // The start-up timer puts the first value on the display after 100 ms.
  QTRY_COMPARE_WITH_TIMEOUT(DisplayText(), QStringLiteral("0."), 5000);
}

GuiFixture::~GuiFixture() {
  watchdog_.stop();
  app_.reset();
  // Widgets deleted later (closed dialogs) go now, before the next test.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget* GuiFixture::Widget(const char* name, int index) {
  QWidget* widget = View().WidgetFor(name, index);
  if (!widget)
    QTest::qFail(qPrintable(QStringLiteral("no widget for %1").arg(name)), __FILE__, __LINE__);
  return widget;
}

QWidget* GuiFixture::FindDialogWidget(const char* window, const char* control, int index) {
  WindowDialog* dialog = App().DialogFor(window);
  Window* model = App().GetProgram().Windows().FindOpen(window);
  Control* item = model ? model->FindControl(control, index) : nullptr;
  return dialog && item ? dialog->Canvas().WidgetFor(*item) : nullptr;
}

QString GuiFixture::DisplayText() {
  auto* label = qobject_cast<QLabel*>(View().WidgetFor("Display"));
  return label ? label->text() : QString();
}

void GuiFixture::Click(const char* name, int index) {
  if (QWidget* widget = Widget(name, index)) QTest::mouseClick(widget, Qt::LeftButton);
}

void GuiFixture::Type(const QString& keys) {
  for (const QChar key : keys) QTest::keyClick(View().windowHandle(), key.toLatin1());
}

void GuiFixture::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(View().windowHandle(), key, modifiers);
}

void GuiFixture::WaitForResize() {
  QTRY_VERIFY_WITH_TIMEOUT(!View().Animating(), 3000);
}

QStringList GuiFixture::TakeDialogs() {
  QStringList taken;
  taken.swap(dialogs_);
  return taken;
}

}  // namespace tessarine::desktop::testing
