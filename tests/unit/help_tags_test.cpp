// Help tags where a driver script can't reach them: the preferences window's table
// applied to a window of its controls. The main window's tags, the clear key's with
// Escape (Escape always clears), are the help tags script's.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "runtime/headless/headless_platform.hpp"
#include "runtime/window.hpp"
#include "shell/preferences_help_texts.hpp"

namespace tessarine {
namespace {

TEST(HelpTags, PreferencesTableSetsAndClearsEachOfItsControls) {
  HeadlessPlatform headless;
  Window window(headless.platform(), "PreferencesWindow");
  const std::vector<std::string> controls = {"RestoreDefaultConstantsButton",
                                             "NewMenuItemNameEditField",
                                             "NewMenuItemValueEditField",
                                             "AddConstantButton",
                                             "ConstantValueEditField",
                                             "ChangeValueButton",
                                             "ConstantsListBox",
                                             "MoveDownButton",
                                             "MoveUpButton",
                                             "RemoveConstantButton"};
  for (const std::string& name : controls)
    window.AddControl(ControlDesign::At(name, ControlKind::PushButton, 0, 0, 10, 10));
  SetPreferencesHelpTags(window, true);
  for (const std::string& name : controls) EXPECT_NE(window.Get(name).HelpTag(), "") << name;
  EXPECT_EQ(window.Get("MoveUpButton").HelpTag(), "Move the selected constant up one position.");
  SetPreferencesHelpTags(window, false);
  for (const std::string& name : controls) EXPECT_EQ(window.Get(name).HelpTag(), "") << name;
}

}  // namespace
}  // namespace tessarine
