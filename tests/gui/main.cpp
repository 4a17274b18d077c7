// The GUI tests: one Qt Test class per suite, chosen by the first argument
// (`gui_tests keypad`), the rest going to Qt Test. CTest runs each suite on the
// offscreen platform.
#include <QApplication>
#include <clocale>
#include <cstdio>
#include <cstring>
#include <string>

#include "desktop_app.hpp"
#include "suites.hpp"

namespace tessarine::desktop::testing {
std::map<std::string, SuiteRun>& Suites() {
  static std::map<std::string, SuiteRun> suites;
  return suites;
}
}  // namespace tessarine::desktop::testing

int main(int argc, char** argv) {
  auto& suites = tessarine::desktop::testing::Suites();
  suites.emplace("look", tessarine::desktop::testing::RunLookTests);
  if (argc < 2 || !suites.count(argv[1])) {
    std::string names;
    for (const auto& [name, run] : suites) names += (names.empty() ? "" : "|") + name;
    std::fprintf(stderr, "usage: gui_tests {%s} [Qt Test options]\n", names.c_str());
    return 2;
  }
  const auto& run = suites.at(argv[1]);
  // Qt Test sees the program's name and its own options.
  argv[1] = argv[0];
  --argc;
  ++argv;

  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  tessarine::desktop::ConfigureApplication(app);
  app.setQuitOnLastWindowClosed(false);
  return run(argc, argv);
}
