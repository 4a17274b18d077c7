// Program: the whole running calculator, built once by main (or by a test) on a
// platform. It owns what every part reads (the settings, the store, the random
// source, the menu bar, the windows) and hands it down as one AppContext. Each
// window is an implicit single instance, made by its factory in the registry:
// asking for one returns the open window or makes and opens a new one.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "runtime/menu_bar.hpp"
#include "runtime/platform/platform.hpp"
#include "runtime/random_source.hpp"
#include "runtime/window_registry.hpp"
#include "settings/app_context.hpp"
#include "settings/global_stuff.hpp"
#include "settings/prefs_module.hpp"

namespace tessarine {

class CalcWindow;
class TessarineApp;
class TapeWindow;

class Program {
 public:
  Program(Platform& platform, std::uint64_t random_seed);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Start-up: touches the main window, which opens it and starts the session.
  void Start();

  Platform& GetPlatform() { return platform_; }
  GlobalStuff& Globals() { return globals_; }
  PrefsModule& Prefs() { return prefs_; }
  RandomSource& Random() { return random_; }
  AppContext& Context() { return context_; }
  WindowRegistry& Windows() { return windows_; }

  // The application object, with the menu bar's handlers; made by Start.
  TessarineApp& App() { return *app_; }

  // The main window, opened if it is not.
  CalcWindow& GetCalcWindow();
  // The main window if it exists, without making it.
  CalcWindow* ExistingCalcWindow();

  // The paper tape: made (hidden) on first use.
  TapeWindow& GetTapeWindow();

  // An open window by name, or nullptr.
  Window* FindOpenWindow(std::string_view name) { return windows_.FindOpen(name); }

 private:
  void RegisterWindows();

  Platform& platform_;
  GlobalStuff globals_;
  PrefsModule prefs_;
  RandomSource random_;
  MenuBar menu_bar_;
  WindowRegistry windows_;
  AppContext context_;
  std::unique_ptr<TessarineApp> app_;
};

}  // namespace tessarine
