#include "fractions/fractions_tab.hpp"

#include "fractions/number_only_edit_field.hpp"

namespace tessarine {

namespace {

// The tab's input fields, each of which takes only what a number is typed with.
constexpr const char* kNumberOnlyFields[] = {"whole1",   "numtop1",    "numbottom1", "whole2",
                                             "numtop2",  "numbottom2", "main",       "topper",
                                             "bottomer", "dec"};

// The calculator's nine fields by control name, in the order Clear empties them.
struct CalculatorField {
  const char* control;
  std::string FractionCalculatorFields::*text;
};
constexpr CalculatorField kCalculatorFields[] = {
    {"whole1", &FractionCalculatorFields::whole1},
    {"numtop1", &FractionCalculatorFields::numtop1},
    {"numbottom1", &FractionCalculatorFields::numbottom1},
    {"whole2", &FractionCalculatorFields::whole2},
    {"numtop2", &FractionCalculatorFields::numtop2},
    {"numbottom2", &FractionCalculatorFields::numbottom2},
    {"ResultWhole", &FractionCalculatorFields::ResultWhole},
    {"ResultNumTop", &FractionCalculatorFields::ResultNumTop},
    {"ResultNumBottom", &FractionCalculatorFields::ResultNumBottom},
};

}  // namespace

FractionsTab::FractionsTab(CalcWindow& window, AppContext& app) : window_(window), app_(app) {
  // Both popups open on their first row: the calculator's page and the plus sign.
  window_.Get("PopupMenu1").SetListIndex(0);
  window_.Get("PopupMenu3").SetListIndex(0);

  window_.Get("PopupMenu1").events.Change = [this] { PopupMenu1_Change(); };
  window_.Get("FractionCalculateButton").events.Action = [this] {
    FractionCalculateButton_Action();
  };
  window_.Get("FractionClearButton").events.Action = [this] { FractionClearButton_Action(); };
  window_.Get("ConvertFractionToDecimalButton").events.Action = [this] {
    ConvertFractionToDecimalButton_Action();
  };
  window_.Get("ClearFractionToDecimalButton").events.Action = [this] {
    ClearFractionToDecimalButton_Action();
  };
  window_.Get("RoundedBevelButton7").events.Action = [this] { RoundedBevelButton7_Action(); };
  window_.Get("RoundedBevelButton8").events.Action = [this] { RoundedBevelButton8_Action(); };
  for (const char* name : kNumberOnlyFields)
    window_.Get(name).events.KeyDown = [](const std::string& key) {
      return NumberOnlyEditFieldKeyDown(key);
    };
}

void FractionsTab::PopupMenu1_Change() {
  window_.Get("FractionPagePanel").SetValue(window_.Get("PopupMenu1").ListIndex());
}

FractionCalculatorFields FractionsTab::ReadCalculator() const {
  FractionCalculatorFields fields;
  for (const CalculatorField& field : kCalculatorFields) fields.*field.text = Text(field.control);
  return fields;
}

void FractionsTab::WriteCalculator(const FractionCalculatorFields& fields) {
  for (const CalculatorField& field : kCalculatorFields) SetText(field.control, fields.*field.text);
}

void FractionsTab::Play(const FractionFeedback& feedback) {
  for (FractionSound sound : feedback.sounds) {
    if (sound == FractionSound::kPlayResultSound) window_.PlayResultSound();
    if (sound == FractionSound::kPlayClearSound) window_.PlayClearSound();
  }
}

void FractionsTab::FractionCalculateButton_Action() {
  FractionCalculatorFields fields = ReadCalculator();
  // The popup's text is its chosen row's.
  const Control& popup = window_.Get("PopupMenu3");
  const int row = popup.ListIndex();
  const std::string op = row < 0 ? "" : popup.Rows().at(static_cast<std::size_t>(row));
  // The box is modal: the fields behind it show where the calculation stands.
  const FractionFeedback feedback = FractionCalculateButtonAction(
      fields, op, app_.platform.decimal_separator,
      [this](const FractionCalculatorFields& now, const std::string& message) {
        WriteCalculator(now);
        app_.platform.desktop.MsgBox(message);
      });
  WriteCalculator(fields);
  Play(feedback);
}

void FractionsTab::FractionClearButton_Action() {
  FractionCalculatorFields fields = ReadCalculator();
  const FractionFeedback feedback = FractionClearButtonAction(fields);
  WriteCalculator(fields);
  Play(feedback);
}

void FractionsTab::TransferFractionResultToInput() {
  FractionCalculatorFields fields = ReadCalculator();
  if (!tessarine::TransferFractionResultToInput(fields)) return;
  WriteCalculator(fields);
  // The control model has no focus of its own to give whole2; the keys stop going
  // to whichever field had them.
  app_.platform.desktop.ClearFocus();
}

FractionToDecimalFields FractionsTab::ReadFractionToDecimal() const {
  return {Text("main"), Text("topper"), Text("bottomer"), Text("answerd")};
}

void FractionsTab::WriteFractionToDecimal(const FractionToDecimalFields& fields) {
  SetText("main", fields.main);
  SetText("topper", fields.topper);
  SetText("bottomer", fields.bottomer);
  SetText("answerd", fields.answerd);
}

void FractionsTab::ConvertFractionToDecimalButton_Action() {
  FractionToDecimalFields fields = ReadFractionToDecimal();
  ConvertFractionToDecimalButtonAction(fields, app_.platform.decimal_separator);
  WriteFractionToDecimal(fields);
}

void FractionsTab::ClearFractionToDecimalButton_Action() {
  FractionToDecimalFields fields = ReadFractionToDecimal();
  ClearFractionToDecimalButtonAction(fields);
  WriteFractionToDecimal(fields);
}

DecimalToFractionFields FractionsTab::ReadDecimalToFraction() const {
  return {Text("dec"), Text("main2"), Text("topnum"), Text("bnum")};
}

void FractionsTab::WriteDecimalToFraction(const DecimalToFractionFields& fields) {
  SetText("dec", fields.dec);
  SetText("main2", fields.main2);
  SetText("topnum", fields.topnum);
  SetText("bnum", fields.bnum);
}

void FractionsTab::RoundedBevelButton7_Action() {
  DecimalToFractionFields fields = ReadDecimalToFraction();
  RoundedBevelButton7Action(fields, app_.platform.decimal_separator);
  WriteDecimalToFraction(fields);
}

void FractionsTab::RoundedBevelButton8_Action() {
  DecimalToFractionFields fields = ReadDecimalToFraction();
  RoundedBevelButton8Action(fields);
  WriteDecimalToFraction(fields);
}

}  // namespace tessarine
