#include "install_paths.hpp"

#include <QCoreApplication>
#include <QFileInfo>

namespace tessarine::desktop {

namespace {

// The installed tree's folders relative to the program's, so that the tree can be
// moved as a whole (DESTDIR, a package unpacked anywhere).
#ifndef TESSARINE_LIBRARY_FROM_BINARY
#define TESSARINE_LIBRARY_FROM_BINARY "../lib/tessarine"
#endif
#ifndef TESSARINE_DATA_FROM_BINARY
#define TESSARINE_DATA_FROM_BINARY "../share/tessarine"
#endif

QString FirstExisting(const QString& built, const QString& installed) {
  return QFileInfo::exists(built) || !QFileInfo::exists(installed) ? built : installed;
}

}  // namespace

QString FeedbackModulePath() {
  const QString folder = QCoreApplication::applicationDirPath();
  const QString name = QStringLiteral("/libtessarine_feedback.so");
  return FirstExisting(folder + name,
                       folder + QStringLiteral("/" TESSARINE_LIBRARY_FROM_BINARY) + name);
}

QString SoundsFolder() {
  const QString folder = QCoreApplication::applicationDirPath();
  return FirstExisting(folder + QStringLiteral("/../resources/sounds"),
                       folder + QStringLiteral("/" TESSARINE_DATA_FROM_BINARY "/sounds"));
}

}  // namespace tessarine::desktop
