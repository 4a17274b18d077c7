// TapeWindow: the paper tape, a running record of the keypad in a window of its
// own. Its text lives only in its field and is not saved between runs; the switch,
// the window's place and whether it shows are.
#pragma once

#include <string>

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

// The tape window, made hidden on first use; ExistingTapeWindow does not make it.
class TapeWindow;
TapeWindow& GetTapeWindow(AppContext& app);
TapeWindow* ExistingTapeWindow(const AppContext& app);

class TapeWindow final : public Window {
 public:
  explicit TapeWindow(AppContext& app);

  static constexpr const char* kName = "TapeWindow";

  Control& TapeEditField;
  Control& TapeOnButton;
  Control& TapeOffButton;

  std::string PageSetup;  // the printer setup, opaque; empty until page setup ran

  // Text files dropped on the tape: each appended whole, then a line end.
  void TapeEditField_DropObject(const std::vector<std::string>& paths);
  // The window was moved or resized: its place goes to the settings.
  void Event_Moved();

  // The width is fixed; the height from 100 up, the field taking what it gains.
  void UserMoved(int left, int top) override;
  void UserResized(int width, int height) override;
  int MinimumHeight() const override { return 100; }

  // Menus while the tape is in front: Select All, and Copy of the selection.
  void Event_EnableMenuItems(MenuBar& bar) override;
  bool HandleMenuCommand(MenuBar& bar, std::string_view name, int index) override;
  void _EditCopy_Action();
  void _EditSelectAll_Action();

 protected:
  void Event_Open() override;

 private:
  void LayOut();
  AppContext& app_;
};

}  // namespace tessarine
