#include "menu_bar_view.hpp"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>
#include <algorithm>
#include <cctype>

#include "runtime/menu_bar.hpp"
#include "shell/key_chords.hpp"
#include "shell/main_menu.hpp"
#include "shell/tessarine_app.hpp"

namespace tessarine::desktop {

namespace {

std::pair<std::string, int> Key(const std::string& name, int index) {
  std::string folded = name;
  for (char& c : folded) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return {folded, index};
}

// The menu's title with a mnemonic (Alt and the letter opens it): its first
// letter that no earlier title took and that Alt does not already give the keypad
// (Alt+S is the sine, Alt+C the cosine).
QString MenuTitle(const std::string& text, QString& taken) {
  QString title = QString::fromStdString(text);
  title.replace(QLatin1Char('&'), QStringLiteral("&&"));
  for (qsizetype i = 0; i < title.size(); ++i) {
    const QChar letter = title[i].toLower();
    if (!letter.isLetter() || letter.unicode() > 0x7f || taken.contains(letter)) continue;
    if (MapKeyForChord(std::string(1, static_cast<char>(letter.unicode())), {false, true, false}))
      continue;
    taken += letter;
    return title.insert(i, QLatin1Char('&'));
  }
  return title;
}

}  // namespace

MenuBarView::MenuBarView(TessarineApp& app, QMenuBar& bar) : QObject(&bar), app_(app), bar_(bar) {
  bar_.setAccessibleName(QStringLiteral("Menu bar"));
  // The overflow arrow of the narrow window, read by its purpose.
  if (auto* more = bar_.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button")))
    more->setAccessibleName(QStringLiteral("More menus"));
  Rebuild();
  QPointer<MenuBarView> self(this);
  app_.GetMenuBar().Observe([self](const MenuItem* item) {
    if (!self) return;
    if (item)
      self->Update(*item);
    else
      self->Rebuild();
  });
}

void MenuBarView::Rebuild() {
  // The old menus go once the event that changed the tree is over (it may be one
  // of their own items').
  for (QAction* action : bar_.actions())
    if (QMenu* menu = action->menu()) menu->deleteLater();
  bar_.clear();
  actions_.clear();
  QString mnemonics;
  for (const Menu& menu : app_.GetMenuBar().Menus()) {
    QMenu* qmenu = bar_.addMenu(MenuTitle(menu.text, mnemonics));
    qmenu->setObjectName(QString::fromStdString(menu.name));
    qmenu->setAccessibleName(QString::fromStdString(menu.text));
    qmenu->installEventFilter(this);
    connect(qmenu, &QMenu::aboutToShow, this, [this] { app_.EnableMenuItems(); });
    for (const MenuItem& item : menu.items) {
      if (item.IsSeparator()) {
        qmenu->addSeparator();
        continue;
      }
      QAction* action = qmenu->addAction(QString::fromStdString(item.text));
      action->setObjectName(QString::fromStdString(item.name));
      const std::string name = item.name;
      const int index = item.index;
      connect(action, &QAction::triggered, this,
              [this, name, index] { app_.MenuCommand(name, index); });
      if (!item.shortcut.empty()) {
        action->setShortcut(QKeySequence(QString::fromStdString(LinuxShortcut(item.shortcut))));
        // Shown in the menu; the main window tests the chord itself (TryShortcut).
        action->setShortcutContext(Qt::WidgetShortcut);
      }
      actions_[Key(item.name, item.index)] = action;
      Update(item);
    }
  }
}

void MenuBarView::Update(const MenuItem& item) {
  const auto it = actions_.find(Key(item.name, item.index));
  if (it == actions_.end() || !it->second) return;
  QAction* action = it->second;
  action->setText(QString::fromStdString(item.text));
  action->setEnabled(item.enabled);
  action->setCheckable(item.checked);
  action->setChecked(item.checked);
  // An entry of the constants without a name yet has nothing to show.
  action->setVisible(!item.text.empty());
}

QAction* MenuBarView::ActionFor(const std::string& name, int index) const {
  const auto it = actions_.find(Key(name, index));
  return it == actions_.end() ? nullptr : it->second.data();
}

bool MenuBarView::eventFilter(QObject* watched, QEvent* event) {
  // The menus behind the bar's overflow arrow would open past the window's right
  // edge when reached from the keyboard; they open under the arrow instead.
  auto* menu = qobject_cast<QMenu*>(watched);
  if (menu && event->type() == QEvent::Show && !bar_.isNativeMenuBar()) {
    const QPoint bar_right = bar_.mapToGlobal(QPoint(bar_.width(), bar_.height()));
    if (menu->x() >= bar_right.x() - 1)
      menu->move(std::max(bar_.mapToGlobal(QPoint(0, 0)).x(), bar_right.x() - menu->width()),
                 menu->y());
  }
  return QObject::eventFilter(watched, event);
}

void MenuBarView::OpenFirstMenu() {
  for (QAction* action : bar_.actions())
    if (action->menu() && action->isVisible()) {
      bar_.setActiveAction(action);
      return;
    }
}

bool MenuBarView::TryShortcut(const QKeyEvent& event) {
  if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::NoModifier) {
    OpenFirstMenu();
    return true;
  }
  const QKeyCombination chord(event.modifiers() & ~Qt::KeypadModifier,
                              static_cast<Qt::Key>(event.key()));
  for (const Menu& menu : app_.GetMenuBar().Menus()) {
    for (const MenuItem& item : menu.items) {
      if (item.shortcut.empty()) continue;
      const QKeySequence sequence(QString::fromStdString(LinuxShortcut(item.shortcut)));
      if (sequence.count() != 1 || sequence[0] != chord) continue;
      // MenuCommand runs the enabling rules first and does nothing for a disabled item.
      const std::string name = item.name;
      const int index = item.index;
      app_.MenuCommand(name, index);
      return true;
    }
  }
  return false;
}

}  // namespace tessarine::desktop
