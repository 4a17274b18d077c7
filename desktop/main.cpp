// tessarine: the desktop calculator.
#include <QApplication>
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
  calculator.Start();
  return QApplication::exec();
}
