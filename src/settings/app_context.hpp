// AppContext: what every part of the running program reads and nothing owns alone:
// the platform, the settings, the preferences store, the random source, the menu
// bar and the windows. Program builds one and hands it down; each test builds its own.
#pragma once

#include "runtime/menu_bar.hpp"
#include "runtime/platform/platform.hpp"
#include "runtime/random_source.hpp"
#include "runtime/window_registry.hpp"
#include "settings/global_stuff.hpp"
#include "settings/prefs_module.hpp"

namespace tessarine {

struct AppContext {
  Platform& platform;
  GlobalStuff& globals;
  PrefsModule& prefs;
  RandomSource& random;
  MenuBar& menu_bar;
  WindowRegistry& windows;
};

}  // namespace tessarine
