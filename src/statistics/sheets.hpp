// How the Stats sheets show, close and write their results on the tape.
#pragma once

#include <string>

#include "calculator/calc_window.hpp"
#include "settings/app_context.hpp"

namespace tessarine::statistics {

// The main window, made if need be.
CalcWindow& GetCalcWindow(AppContext& app);

// Shows a registered window as a sheet on the main window, made anew if it is not open.
template <class T>
T& ShowSheet(AppContext& app, const char* name) {
  auto& window = app.windows.Instance<T>(name);
  app.platform.desktop.ShowWindow(window.Name(), true);
  return window;
}

// A sheet taking itself away; it comes back fresh on the next showing.
void CloseSheet(AppContext& app, Window& window);

// With the tape on, puts the text at the end of the tape, whatever the user selected.
void AppendResultToTape(AppContext& app, const std::string& text);

}  // namespace tessarine::statistics
