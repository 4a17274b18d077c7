// Help tags where a driver script can't reach them: the clear key's text without
// Escape, and the preferences window's table applied to a window of its controls.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calculator/calc_window.hpp"
#include "runtime/headless/headless_platform.hpp"
#include "shell/preferences_help_texts.hpp"
#include "shell/program.hpp"

namespace tessarine {
namespace {

TEST(HelpTags, ClearKeyNamesEscapeOnlyWhileEscapeClears) {
  HeadlessPlatform headless;
  Program program(headless.platform(), 1);
  program.Start();
  headless.Wait(100);
  CalcWindow& calc = program.GetCalcWindow();
  calc.UseESCforClear = false;
  calc.HelpTagsEnabled(true);
  EXPECT_EQ(calc.Get("ButtonClear").HelpTag(), kButtonClearHelpPlain);
  calc.UseESCforClear = true;
  calc.HelpTagsEnabled(true);
  EXPECT_EQ(calc.Get("ButtonClear").HelpTag(), kButtonClearHelpWithEsc);
  calc.HelpTagsEnabled(false);
  calc.HelpTagsEnabled(false);
  EXPECT_EQ(calc.Get("ButtonClear").HelpTag(), "");
  EXPECT_EQ(calc.Item("UnitsRadio", 0).HelpTag(), "");
}

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
