#include "file_drop.hpp"

#include <QAbstractScrollArea>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <string>
#include <vector>

#include "runtime/control.hpp"

namespace tessarine::desktop {

namespace {

std::vector<std::string> LocalFiles(const QMimeData* data) {
  std::vector<std::string> paths;
  if (!data || !data->hasUrls()) return paths;
  for (const QUrl& url : data->urls())
    if (url.isLocalFile()) paths.push_back(url.toLocalFile().toStdString());
  return paths;
}

class DropFilter final : public QObject {
 public:
  DropFilter(QObject* parent, Control& control) : QObject(parent), control_(control) {}

  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: {
        auto* drag = static_cast<QDropEvent*>(event);
        if (LocalFiles(drag->mimeData()).empty()) return false;
        drag->acceptProposedAction();
        return true;
      }
      case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        const auto paths = LocalFiles(drop->mimeData());
        if (paths.empty()) return false;
        drop->acceptProposedAction();
        control_.UserDropFiles(paths);
        return true;
      }
      default:
        return false;
    }
  }

 private:
  Control& control_;
};

}  // namespace

void AcceptFileDrops(QWidget& widget, Control& control) {
  // A scrolling text field takes drops on its viewport.
  QWidget* target = &widget;
  if (auto* area = qobject_cast<QAbstractScrollArea*>(&widget)) target = area->viewport();
  target->setAcceptDrops(true);
  target->installEventFilter(new DropFilter(target, control));
}

}  // namespace tessarine::desktop
