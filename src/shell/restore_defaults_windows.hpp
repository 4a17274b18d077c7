// The two sheets that ask before the preferences window restores its defaults:
// the constants' and the sounds'. Each beeps as it opens.
#pragma once

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

// A question, a caution sign, "Yes" and "Cancel"; "Yes" runs the window's restore.
class RestoreDefaultsWindow : public Window {
 public:
  RestoreDefaultsWindow(AppContext& app, const char* name, const char* title, int width,
                        const char* message_name, const char* message);

 protected:
  void Event_Open() override;
  virtual void Restore() = 0;
  AppContext& app_;

 private:
  void Dismiss();
};

// "Are you sure you want to restore all constants ...": the ten defaults.
class RestoreConstantsConfirmationWindow final : public RestoreDefaultsWindow {
 public:
  explicit RestoreConstantsConfirmationWindow(AppContext& app);
  static constexpr const char* kName = "RestoreConstantsConfirmationWindow";

 protected:
  void Restore() override;
};

// "Are you sure you want to restore all sounds ...": the five default sounds.
class RestoreDefaultSoundsWindow final : public RestoreDefaultsWindow {
 public:
  explicit RestoreDefaultSoundsWindow(AppContext& app);
  static constexpr const char* kName = "RestoreDefaultSoundsWindow";

 protected:
  void Restore() override;
};

// Shown as sheets on the preferences window.
void ShowRestoreConstantsConfirmation(AppContext& app);
void ShowRestoreSoundsConfirmation(AppContext& app);

}  // namespace tessarine
