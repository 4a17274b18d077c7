// MenuBarView: a QMenuBar built from the program's menu bar model and kept in step
// with it. Before a menu opens, and before a shortcut is tested, the program's
// enabling rules run (TessarineApp::EnableMenuItems); a chosen item becomes
// TessarineApp::MenuCommand(name, index).
//
// The shortcuts are the Linux chords of the items' literals (LinuxShortcut). The
// menu shows them, but the main window tests them itself (TryShortcut), after the
// keypad's own chords, so that a chord has one meaning whichever way it comes.
// F10 opens the first menu, Alt and a title's underlined letter that menu.
#pragma once

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <map>
#include <string>
#include <utility>

class QAction;
class QKeyEvent;
class QMenuBar;

namespace tessarine {
class TessarineApp;
struct MenuItem;
}  // namespace tessarine

namespace tessarine::desktop {

class MenuBarView final : public QObject {
  Q_OBJECT

 public:
  MenuBarView(TessarineApp& app, QMenuBar& bar);

  // The action of an item, or nullptr.
  QAction* ActionFor(const std::string& name, int index = -1) const;
  // Runs the menu command whose shortcut the event is. False when none is.
  bool TryShortcut(const QKeyEvent& event);
  // Opens the first menu for the keyboard (F10); the arrows go on from there.
  void OpenFirstMenu();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Rebuild();
  void Update(const MenuItem& item);

  TessarineApp& app_;
  QMenuBar& bar_;
  // By item name (folded to lower case) and index.
  std::map<std::pair<std::string, int>, QPointer<QAction>> actions_;
};

}  // namespace tessarine::desktop
