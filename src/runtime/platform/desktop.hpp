// What the program asks of the desktop around it: message boxes, windows and
// sheets, the browser, the event loop for long work, and the report of a fault
// that no handler caught.
#pragma once

#include <optional>
#include <string>

namespace tessarine {

class Control;

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
  // The size of the primary screen, in points.
  virtual int ScreenWidth() const = 0;
  virtual int ScreenHeight() const = 0;

  // The save dialog for a text file: the path picked, or nothing when cancelled.
  virtual std::optional<std::string> AskSaveFile() { return std::nullopt; }
  // The page setup dialog, starting from an opaque setup text (empty: the
  // default); the new setup text, or nothing when cancelled.
  virtual std::optional<std::string> PageSetupDialog(const std::string&) { return std::nullopt; }
  // Prints plain text in a monospaced font: the print dialog, then pages with the
  // text in blocks of the given width and height (points) at the given margins.
  // False when the user cancelled.
  struct PrintJob {
    std::string text;
    std::string page_setup;  // empty: the printer's default page
    int left = 36, top = 36;
    int block_width = 0, block_height = 0;
  };
  virtual bool PrintText(const PrintJob&) { return false; }
  // Takes the keyboard focus from whatever control holds it, so that keys go on
  // reaching the window's keyboard map.
  virtual void ClearFocus() = 0;
  // Gives the keyboard focus to a text field of a window on show. Headless, no
  // control holds the focus.
  virtual void SetFocus(const Control&) {}
};

}  // namespace tessarine
