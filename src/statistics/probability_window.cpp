#include "statistics/probability_window.hpp"

#include "statistics/probability_calculator.hpp"
#include "statistics/probability_error_windows.hpp"
#include "statistics/sheets.hpp"
#include "statistics/stats_page.hpp"

namespace tessarine::statistics {

namespace {

constexpr std::uint32_t kEpsilonLabelDesign = 0x727272;
constexpr std::uint32_t kEpsilonLabelOff = 0x737373;  // RGB 115, 115, 115

struct Row {
  const char* name;
  ControlKind kind;
  const char* parent;
  int left, top, width, height;
  const char* text;
};

constexpr Row kRows[] = {
    {"StaticText1", ControlKind::Label, "", 17, 9, 300, 20,
     "F-Distribution Probability Calculator:"},
    {"InputBox", ControlKind::GroupBox, "", 17, 35, 218, 103, "Input Values"},
    {"FratioLabel", ControlKind::Label, "InputBox", 22, 63, 100, 16, "F ratio"},
    {"dfnumLabel", ControlKind::Label, "InputBox", 22, 83, 100, 16, "df Numerator"},
    {"dndenomLabel", ControlKind::Label, "InputBox", 22, 106, 100, 16, "df Denominator"},
    {"FInputField", ControlKind::TextField, "InputBox", 129, 60, 90, 20, ""},
    {"dfnInputField", ControlKind::TextField, "InputBox", 129, 83, 90, 20, ""},
    {"dfdInputField", ControlKind::TextField, "InputBox", 129, 106, 90, 20, ""},
    {"CalculateButton", ControlKind::PushButton, "", 247, 53, 70, 20, "Calculate"},
    {"ClearButton", ControlKind::PushButton, "", 247, 87, 70, 20, "Clear"},
    {"Epsilon_Box", ControlKind::GroupBox, "", 17, 140, 285, 50, "Epsilon:"},
    {"EpsilonCheckBox", ControlKind::CheckBox, "Epsilon_Box", 30, 164, 120, 15, "Use Correction"},
    {"EpsilonLabel", ControlKind::Label, "Epsilon_Box", 142, 164, 50, 15, "Value:"},
    {"EpsilonInputField", ControlKind::TextField, "Epsilon_Box", 197, 162, 90, 20, ""},
    {"OutputBox", ControlKind::GroupBox, "", 17, 195, 285, 67, "Estimated Probability"},
    {"UnadjustedLabel", ControlKind::Label, "OutputBox", 37, 215, 107, 20, "Unadjusted:"},
    {"AdjustedLabel", ControlKind::Label, "OutputBox", 166, 215, 119, 20, "Adjusted:"},
    {"Rectangle9", ControlKind::Rectangle, "OutputBox", 36, 230, 110, 20, ""},
    {"Rectangle10", ControlKind::Rectangle, "OutputBox", 166, 230, 110, 20, ""},
    {"ProbabilityOutput", ControlKind::Label, "Rectangle9", 41, 232, 100, 18, ""},
    {"AdjustedProbabilityOutput", ControlKind::Label, "Rectangle10", 171, 232, 100, 18, ""},
    {"ButtonClose", ControlKind::PushButton, "", 127, 268, 69, 20, "Close"},
};

constexpr const char* kInputFields[] = {"FInputField", "dfnInputField", "dfdInputField"};

}  // namespace

ProbabilityWindow::ProbabilityWindow(AppContext& app)
    : Window(app.platform, kName, "Probability"), app_(app) {
  for (const Row& row : kRows) {
    ControlDesign design =
        ControlDesign::At(row.name, row.kind, row.left, row.top, row.width, row.height, row.text);
    design.parent = row.parent;
    AddControl(design);
  }
  Get("EpsilonLabel").SetTextColor(kEpsilonLabelDesign);
  for (const char* name : {"CalculateButton", "ClearButton", "EpsilonInputField"})
    Get(name).SetEnabled(false);

  for (const char* name : kInputFields) {
    Get(name).events.TextChange = [this] { InputField_TextChange(); };
    Get(name).events.KeyDown = [](const std::string& key) { return NumberFieldSwallowsKey(key); };
  }
  Control& epsilon = Get("EpsilonInputField");
  epsilon.events.TextChange = [this] { EpsilonInputField_TextChange(); };
  epsilon.events.KeyDown = [](const std::string& key) { return NumberFieldSwallowsKey(key); };
  Get("CalculateButton").events.Action = [this] { CalculateButton_Action(); };
  Get("ClearButton").events.Action = [this] { ClearButton_Action(); };
  Get("EpsilonCheckBox").events.Action = [this] { EpsilonCheckBox_Action(); };
  Get("ButtonClose").events.Action = [this] { ButtonClose_Action(); };
  SetBounds(0, 0, 337, 300);
}

void ProbabilityWindow::InputField_TextChange() {
  Get("ProbabilityOutput").SetText("");
  EpsilonInputField_TextChange();
}

void ProbabilityWindow::EpsilonInputField_TextChange() {
  Get("AdjustedProbabilityOutput").SetText("");
  Get("ClearButton").SetEnabled(true);
  CalculateEnable();
}

void ProbabilityWindow::CalculateEnable() {
  Get("CalculateButton")
      .SetEnabled(CalculateEnabled(Get("FInputField").Text(), Get("dfnInputField").Text(),
                                   Get("dfdInputField").Text()));
}

void ProbabilityWindow::CalculateButton_Action() {
  const std::string& separator = app_.platform.decimal_separator;
  const MessageBox message_box = [this](const std::string& text) {
    app_.platform.desktop.MsgBox(text);
  };
  const UnadjustedOutcome unadjusted =
      CalculateUnadjusted(Get("FInputField").Text(), Get("dfnInputField").Text(),
                          Get("dfdInputField").Text(), separator, message_box);
  if (unadjusted.input_error) {
    app_.platform.feedback.Beep();
    ShowSheet<InputErrorWindow>(app_, InputErrorWindow::kName);
  } else {
    // Each rewrite that changes a field runs its change handler before the output shows.
    Get("FInputField").SetText(unadjusted.f_text);
    Get("dfnInputField").SetText(unadjusted.dfn_text);
    Get("dfdInputField").SetText(unadjusted.dfd_text);
    Get("ProbabilityOutput").SetText(unadjusted.output_text);
    GetCalcWindow(app_).PlayResultSound();
    Get("CalculateButton").SetEnabled(false);
  }
  // No early exit: the adjusted part runs on the values as read, valid or not.
  if (!Get("EpsilonCheckBox").IsDown()) return;
  const AdjustedOutcome adjusted =
      CalculateAdjusted(unadjusted, Get("EpsilonInputField").Text(), separator, message_box);
  if (adjusted.epsilon_error) {
    app_.platform.feedback.Beep();
    ShowSheet<EpsilonErrorWindow>(app_, EpsilonErrorWindow::kName);
    Get("EpsilonCheckBox").SetValue(false);
    CloseSheet(app_, *this);
    return;
  }
  Get("EpsilonInputField").SetText(adjusted.epsilon_text);
  GetCalcWindow(app_).PlayResultSound();
  Get("AdjustedProbabilityOutput").SetText(adjusted.output_text);
  Get("CalculateButton").SetEnabled(false);
}

void ProbabilityWindow::ClearButton_Action() {
  for (const char* name : {"FInputField", "dfnInputField", "dfdInputField", "ProbabilityOutput",
                           "AdjustedProbabilityOutput", "EpsilonInputField"})
    Get(name).SetText("");
  Get("EpsilonCheckBox").SetValue(false);
  Get("ClearButton").SetEnabled(false);
  app_.platform.desktop.ClearFocus();
}

void ProbabilityWindow::EpsilonCheckBox_Action() {
  Get("ClearButton").SetEnabled(true);
  if (Get("EpsilonCheckBox").IsDown()) {
    Get("EpsilonLabel").SetTextColor(0x000000);
    Get("EpsilonInputField").SetEnabled(true);
    CalculateEnable();
  } else {
    Get("EpsilonLabel").SetTextColor(kEpsilonLabelOff);
    Get("EpsilonInputField").SetEnabled(false);
    Get("AdjustedProbabilityOutput").SetText("");
  }
}

void ProbabilityWindow::ButtonClose_Action() {
  CloseSheet(app_, *this);
}

}  // namespace tessarine::statistics
