// The help tags of the preferences window's constants page, in the order they are
// set, for PreferencesWindow::HelptagsEnabled.
#include "shell/preferences_help_texts.hpp"

#include "runtime/window.hpp"

namespace tessarine {

namespace {

constexpr HelpText kPreferencesHelpTexts[] = {
    {"RestoreDefaultConstantsButton", -1,
     "Restore Default Values. Press this button to revert all constants to their default values."},
    {"NewMenuItemNameEditField", -1,
     "Enter the name for the new constant here. This name will appear in the Constants menu."},
    {"NewMenuItemValueEditField", -1, "Enter the value for the new constant here."},
    {"AddConstantButton", -1,
     "Add Constant. Press this button to add the new constant to the list above. You must first "
     "enter a name and value for the new constant in the boxes on the left."},
    {"ConstantValueEditField", -1,
     "This is the value of the selected constant. To change it, replace this box with the new "
     "desired value and press the Change button."},
    {"ChangeValueButton", -1,
     "Change Constant Value. Press this button to save changes to the selected constant."},
    {"ConstantsListBox", -1,
     "List of constants. Select a constant to remove, edit, or reposition, then press the "
     "appropriate button."},
    {"MoveDownButton", -1, "Move the selected constant down one position."},
    {"MoveUpButton", -1, "Move the selected constant up one position."},
    {"RemoveConstantButton", -1, "Remove the selected constant from the list."},
};

}  // namespace

std::span<const HelpText> PreferencesHelpTexts() {
  return kPreferencesHelpTexts;
}

void SetPreferencesHelpTags(Window& window, bool enabled) {
  for (const HelpText& row : kPreferencesHelpTexts)
    window.Get(row.control).SetHelpTag(enabled ? std::string(row.text) : std::string());
}

}  // namespace tessarine
