// The suites of the GUI tests, each a Qt Test class in its own file that adds itself
// to the list by the name CTest gives it (TESSARINE_GUI_SUITE).
#pragma once

#include <QTest>
#include <functional>
#include <map>
#include <string>

namespace tessarine::desktop::testing {

using SuiteRun = std::function<int(int, char**)>;
std::map<std::string, SuiteRun>& Suites();
inline bool AddSuite(const char* name, SuiteRun run) {
  return Suites().emplace(name, std::move(run)).second;
}

int RunLookTests(int argc, char** argv);

}  // namespace tessarine::desktop::testing

#define TESSARINE_GUI_SUITE(Suite, name)                                        \
  [[maybe_unused]] static const bool kAdded##Suite =                            \
      ::tessarine::desktop::testing::AddSuite(name, [](int argc, char** argv) { \
        Suite suite;                                                            \
        return QTest::qExec(&suite, argc, argv);                                \
      })
