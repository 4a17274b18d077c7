// What the program asks of the desktop around it: message boxes, windows and
// sheets, the browser, the event loop for long work, and the report of a fault
// that no handler caught.
#pragma once

#include <string>

namespace tessarine {

class Desktop {
 public:
  virtual ~Desktop() = default;
  virtual void MsgBox(const std::string& text) = 0;
  // A secondary window became visible, as a sheet on the main window or on its own.
  virtual void ShowWindow(const std::string& window_name, bool as_sheet) = 0;
  virtual void CloseWindow(const std::string& window_name) = 0;
  virtual void ShowURL(const std::string& url) = 0;
  // Lets queued events (timers, redraws) run inside a long loop. Key events are
  // held back until the loop ends.
  virtual void Yield() = 0;
  // A handler let a runtime fault escape. The program keeps running.
  virtual void ReportUnhandledException(const std::string& exception_class,
                                        const std::string& handler_name) = 0;
  // Ends the program after the current event.
  virtual void Quit() = 0;
  // Takes the keyboard focus from whatever control holds it, so that keys go on
  // reaching the window's keyboard map.
  virtual void ClearFocus() = 0;
};

}  // namespace tessarine
