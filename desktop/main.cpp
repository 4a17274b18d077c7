// tessarine: the desktop calculator.
//
//   tessarine [--server HOST:PORT]
//
// --server sends every request the program makes (rates, version page) to HOST:PORT
// instead of the maker's server, as the driver's option of the same name does.
#include <QApplication>
#include <QStringList>
#include <chrono>
#include <clocale>
#include <random>

#include "desktop_app.hpp"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  // Qt set the C library's locale from the environment; the core formats and
  // reads numbers itself and wants the C library's numbers plain.
  std::setlocale(LC_NUMERIC, "C");
  tessarine::desktop::ConfigureApplication(app);

  const std::uint64_t seed =
      std::random_device{}() ^
      static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  tessarine::desktop::DesktopApp calculator(seed);
  const QStringList arguments = QCoreApplication::arguments();
  const qsizetype server = arguments.indexOf(QStringLiteral("--server"));
  if (server > 0 && server + 1 < arguments.size())
    calculator.GetPlatform().platform().server_override = arguments[server + 1].toStdString();
  calculator.Start();
  return QApplication::exec();
}
