// Signals that survive their callbacks changing them, and the window registry's
// single instances: the open window, or a fresh one after a close, even when the
// close happens inside the old window's own handler.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "runtime/exceptions.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "runtime/signal.hpp"
#include "runtime/window_registry.hpp"

namespace tessarine {
namespace {

TEST(Signal, CallbacksChangingTheSignalWhileItRuns) {
  Signal<int> signal;
  std::vector<std::string> heard;
  Connection second;
  Connection added;
  Connection first = signal.Connect([&](int n) {
    heard.push_back("first " + std::to_string(n));
    second.Disconnect();  // not called in this round any more
    if (!added.Connected())
      added = signal.Connect([&](int m) { heard.push_back("added " + std::to_string(m)); });
  });
  second = signal.Connect([&](int n) { heard.push_back("second " + std::to_string(n)); });
  signal.Emit(1);
  signal.Emit(2);
  EXPECT_EQ(heard, (std::vector<std::string>{"first 1", "first 2", "added 2"}));
  first = Connection();  // dropping the handle disconnects
  added.Disconnect();
  signal.Emit(3);
  EXPECT_EQ(heard.size(), 3u);
  EXPECT_TRUE(signal.Empty());
}

class NamedWindow final : public Window {
 public:
  NamedWindow(Platform& platform, int serial) : Window(platform, "Sheet"), serial(serial) {}
  int serial;
};

TEST(WindowRegistry, OneOpenInstanceAndAFreshOneAfterAClose) {
  HeadlessPlatform headless(".", nullptr);
  WindowRegistry windows;
  int made = 0;
  windows.Register("Sheet",
                   [&] { return std::make_unique<NamedWindow>(headless.platform(), ++made); });
  int heard = 0;
  Connection watch = windows.WindowMade.Connect([&](Window&) { ++heard; });

  auto& sheet = windows.Instance<NamedWindow>("sheet");  // names ignore case
  EXPECT_TRUE(sheet.IsOpen());
  EXPECT_EQ(&windows.Instance<NamedWindow>("Sheet"), &sheet);
  EXPECT_EQ(windows.Front(), &sheet);

  // Closed inside its own handler and asked for again: the old one lives on
  // until its handler has returned.
  NamedWindow* fresh = nullptr;
  sheet.Dispatch("OKButton_Action", [&] {
    sheet.Close();
    fresh = &windows.Instance<NamedWindow>("Sheet");
    EXPECT_EQ(sheet.serial, 1);
  });
  ASSERT_NE(fresh, nullptr);
  EXPECT_EQ(fresh->serial, 2);
  EXPECT_EQ(windows.Existing("Sheet"), fresh);
  EXPECT_EQ(heard, 2);
  EXPECT_EQ(windows.FindOpen("Other"), nullptr);
  EXPECT_THROW(windows.Instance("Other"), NilObjectException);
}

}  // namespace
}  // namespace tessarine
