// PreferencesWindow: the settings the user changes, on four pages chosen from a
// toolbar (General, Sound, Constants, Network). Most settings take effect at once;
// the sounds, the proxy, the constants and the help tags reach the store and the
// main window when the window closes. There is no Cancel.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "runtime/window.hpp"
#include "settings/app_context.hpp"

namespace tessarine {

class PreferencesWindow final : public Window {
 public:
  explicit PreferencesWindow(AppContext& app);
  static constexpr const char* kName = "PreferencesWindow";

  // The toolbar's pages, as PreferencesPagePanel numbers them; 4 is the empty page.
  enum Page { kGeneral = 0, kSound = 1, kConstants = 2, kNetwork = 3, kBlank = 4 };
  // Switches page the way a toolbar button's Action does.
  void ShowPage(Page page);
  // Marks one toolbar button as the selected one, the others not.
  void SelectToolbarButton(std::string_view name);

  // General page.
  void DecimalsUpDownArrows_Up();
  void DecimalsUpDownArrows_Down();
  void NumberOfDecimalsEditField_TextChange();
  // FORWARD CALL: the help texts of this window come with the help tags.
  void HelptagsEnabled(bool enabled);

  // Sound page.
  void SoundPopUp_Change(int sound_class);
  void SoundCheckBox_Action(int sound_class);
  void RestoreSoundDefaults_Action();
  // The "Yes" of the sounds' confirmation: the five defaults, silently, all enabled.
  void RestoreDefaultSounds();

  // Constants page.
  void AddConstantEnable();
  void UpdateConstantsList();
  void AddConstantButton_Action();
  void ConstantsListBox_Change();
  bool ConstantValueEditField_KeyDown(const std::string& key);
  void ChangeValueButton_Action();
  void RemoveConstantButton_Action();
  void MoveUpButton_Action();
  void MoveDownButton_Action();
  void RestoreDefaultConstantsButton_Action();

  // Network page.
  void UseProxyCheckBox_Action();

  std::optional<FieldValue> FieldByName(std::string_view name) const override;

 protected:
  void Event_Open() override;
  void Event_Close() override;

 private:
  void MakeToolbar();
  void MakeGeneralPage();
  void MakeConstantsPage();
  void MakeNetworkPage();
  void ToolbarMouseDown(Control& button, Page page);
  void SwapConstants(int a, int b);

  AppContext& app_;
  // Whether each sound pop-up has had its first, silent change (number,
  // calculation, error, clear, result).
  std::array<bool, 6> SoundPopUpAlreadyOpened{};
};

// The Edit menu's "Preferences..." (the General page) and the Constants menu's
// "Customize..." (the Constants page).
void ShowPreferences(AppContext& app, PreferencesWindow::Page page);

}  // namespace tessarine
