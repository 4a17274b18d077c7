#include "calculator/main_window_layout.hpp"

#include <cstdint>
#include <string>

namespace tessarine {

namespace {

struct Box {
  int left, top, width, height;
};

ControlSpec Row(std::string_view name, int index, ControlKind kind, std::string_view parent,
                Box box, std::string_view text, std::vector<std::string> rows, int tab_page,
                int panel_page, bool visible, std::uint32_t text_color) {
  ControlSpec spec = ControlSpec::At(name, kind, box.left, box.top, box.width, box.height, text);
  spec.index = index;
  spec.parent = parent;
  spec.rows = std::move(rows);
  spec.tab_page = tab_page;
  spec.panel_page = panel_page;
  spec.visible = visible;
  spec.text_color = text_color;
  return spec;
}

}  // namespace

const std::vector<ControlSpec>& MainWindowControls() {
  using K = ControlKind;
  // Order matters: it is the order of the window's design, and parents come
  // before their children.
  static const std::vector<ControlSpec> controls = [] {
    // clang-format off: one row a control, as the design lists them
    std::vector<ControlSpec> table = {
      Row("DisplayBackground", -1, K::RoundRectangle, "", {11, 10, 150, 34}, "", {}, 0, 0, true, 0),
      Row("Display", -1, K::Label, "DisplayBackground", {16, 19, 137, 16}, "Initializing...", {}, 0, 0, true, 0x164982),
      Row("MemoryLabel", 10, K::Label, "DisplayBackground", {20, 11, 5, 8}, "M", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 1, K::Label, "DisplayBackground", {26, 11, 5, 8}, "1", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 2, K::Label, "DisplayBackground", {32, 11, 5, 8}, "2", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 3, K::Label, "DisplayBackground", {38, 11, 5, 8}, "3", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 4, K::Label, "DisplayBackground", {44, 11, 5, 8}, "4", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 5, K::Label, "DisplayBackground", {50, 11, 5, 8}, "5", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 6, K::Label, "DisplayBackground", {56, 11, 5, 8}, "6", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 7, K::Label, "DisplayBackground", {62, 11, 5, 8}, "7", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 8, K::Label, "DisplayBackground", {68, 11, 5, 8}, "8", {}, 0, 0, false, 0xcc0000),
      Row("MemoryLabel", 9, K::Label, "DisplayBackground", {74, 11, 5, 8}, "9", {}, 0, 0, false, 0xcc0000),
      Row("CalcTabSelector", -1, K::TabPanel, "", {173, 10, 345, 265}, "", {}, 0, 0, true, 0),
      Row("BrindleyURL", -1, K::Label, "", {15, 272, 140, 10}, kMakerHostName, {}, 0, 0, true, 0x666666),
      Row("ExponentText", -1, K::Label, "", {126, 7, 25, 20}, "", {}, 0, 0, true, 0x18605a),
      Row("MessageText", -1, K::Label, "", {18, 29, 132, 20}, "", {}, 0, 0, false, 0),
      Row("StorageMinusButton", -1, K::BevelButton, "", {52, 249, 30, 18}, "M-", {}, 0, 0, true, 0xffffff),
      Row("StorageRecallButton", -1, K::BevelButton, "", {90, 249, 30, 18}, "MR", {}, 0, 0, true, 0xffffff),
      Row("StorageClearButton", -1, K::BevelButton, "", {128, 249, 30, 18}, "MC", {}, 0, 0, true, 0xffffff),
      Row("ButtonClearEntry", -1, K::CalcBevelButton, "", {51, 53, 33, 26}, "CE", {}, 0, 0, true, 0),
      Row("ShowAdvancedFeaturesButton", -1, K::CalcBevelButton, "", {88, 53, 71, 26}, "ADVANCED", {}, 0, 0, true, 0),
      Row("ButtonPercent", -1, K::CalcBevelButton, "", {12, 85, 33, 26}, "%", {}, 0, 0, true, 0),
      Row("ButtonChangeSign", -1, K::CalcBevelButton, "", {50, 85, 33, 26}, "±", {}, 0, 0, true, 0),
      Row("ButtonDivide", -1, K::CalcBevelButton, "", {88, 85, 33, 26}, "÷", {}, 0, 0, true, 0),
      Row("ButtonTimes", -1, K::CalcBevelButton, "", {126, 85, 33, 26}, "x", {}, 0, 0, true, 0),
      Row("Button7", -1, K::CalcBevelButton, "", {12, 117, 33, 26}, "7", {}, 0, 0, true, 0),
      Row("Button8", -1, K::CalcBevelButton, "", {50, 117, 33, 26}, "8", {}, 0, 0, true, 0),
      Row("Button9", -1, K::CalcBevelButton, "", {88, 117, 33, 26}, "9", {}, 0, 0, true, 0),
      Row("Button4", -1, K::CalcBevelButton, "", {12, 149, 33, 26}, "4", {}, 0, 0, true, 0),
      Row("Button1", -1, K::CalcBevelButton, "", {13, 181, 33, 26}, "1", {}, 0, 0, true, 0),
      Row("Button5", -1, K::CalcBevelButton, "", {50, 149, 33, 26}, "5", {}, 0, 0, true, 0),
      Row("Button2", -1, K::CalcBevelButton, "", {51, 181, 33, 26}, "2", {}, 0, 0, true, 0),
      Row("Button6", -1, K::CalcBevelButton, "", {88, 149, 33, 26}, "6", {}, 0, 0, true, 0),
      Row("Button3", -1, K::CalcBevelButton, "", {89, 181, 33, 26}, "3", {}, 0, 0, true, 0),
      Row("ButtonMinus", -1, K::CalcBevelButton, "", {126, 117, 33, 26}, "-", {}, 0, 0, true, 0),
      Row("ButtonPlus", -1, K::CalcBevelButton, "", {126, 149, 33, 26}, "+", {}, 0, 0, true, 0),
      Row("Button0", -1, K::CalcBevelButton, "", {13, 213, 71, 26}, "0", {}, 0, 0, true, 0),
      Row("ButtonEqual", -1, K::CalcBevelButton, "", {126, 181, 33, 59}, "=", {}, 0, 0, true, 0),
      Row("ButtonDecimal", -1, K::CalcBevelButton, "", {89, 213, 33, 26}, ".", {}, 0, 0, true, 0),
      Row("StoragePlusButton", -1, K::BevelButton, "", {14, 249, 30, 18}, "M+", {}, 0, 0, true, 0xffffff),
      Row("StorageMenu", -1, K::Listbox, "", {74, 320, 120, 112}, "", {"1:             0", "2:             0", "3:             0", "4:             0", "5:             0", "6:             0", "7:             0", "8:             0", "9:             0", "M:             0"}, 0, 0, false, 0),
      Row("ButtonClear", -1, K::CalcBevelButton, "", {13, 53, 33, 26}, "C", {}, 0, 0, true, 0xffffff),
      Row("UnitsRadio", 0, K::RadioButton, "CalcTabSelector", {234, 202, 50, 20}, "Rad", {}, 1, 0, true, 0),
      Row("UnitsRadio", 1, K::RadioButton, "CalcTabSelector", {234, 223, 50, 20}, "Deg", {}, 1, 0, true, 0),
      Row("TrigGroupBox", -1, K::GroupBox, "CalcTabSelector", {215, 189, 252, 80}, "", {}, 1, 0, true, 0),
      Row("ButtonSine", -1, K::CalcBevelButton, "TrigGroupBox", {295, 203, 47, 24}, "sin", {}, 1, 0, true, 0),
      Row("ButtonCosine", -1, K::CalcBevelButton, "TrigGroupBox", {346, 203, 47, 24}, "cos", {}, 1, 0, true, 0),
      Row("ButtonTangent", -1, K::CalcBevelButton, "TrigGroupBox", {397, 203, 47, 24}, "tan", {}, 1, 0, true, 0),
      Row("ButtonArcTangent", -1, K::CalcBevelButton, "TrigGroupBox", {397, 233, 47, 24}, "atan", {}, 1, 0, true, 0),
      Row("ButtonArcCosine", -1, K::CalcBevelButton, "TrigGroupBox", {346, 233, 47, 24}, "acos", {}, 1, 0, true, 0),
      Row("ButtonArcSine", -1, K::CalcBevelButton, "TrigGroupBox", {295, 233, 47, 24}, "asin", {}, 1, 0, true, 0),
      Row("ButtonExp", -1, K::CalcBevelButton, "CalcTabSelector", {214, 52, 47, 24}, "Exp", {}, 1, 0, true, 0),
      Row("ButtonSquareRoot", -1, K::CalcBevelButton, "CalcTabSelector", {318, 52, 47, 24}, "", {}, 1, 0, true, 0),
      Row("ButtonNthRoot", -1, K::CalcBevelButton, "CalcTabSelector", {422, 52, 47, 24}, "", {}, 1, 0, true, 0),
      Row("Buttonpi", -1, K::CalcBevelButton, "CalcTabSelector", {422, 80, 47, 24}, "π", {}, 1, 0, true, 0),
      Row("ButtonSquared", -1, K::CalcBevelButton, "CalcTabSelector", {214, 80, 47, 24}, "x", {}, 1, 0, true, 0),
      Row("ButtonCubed", -1, K::CalcBevelButton, "CalcTabSelector", {267, 80, 47, 24}, "x", {}, 1, 0, true, 0),
      Row("ButtonXtotheY", -1, K::CalcBevelButton, "CalcTabSelector", {318, 80, 47, 24}, "x", {}, 1, 0, true, 0),
      Row("ButtonOneOverX", -1, K::CalcBevelButton, "CalcTabSelector", {370, 80, 47, 24}, "1/x", {}, 1, 0, true, 0),
      Row("Buttonln", -1, K::CalcBevelButton, "CalcTabSelector", {214, 109, 47, 24}, "ln", {}, 1, 0, true, 0),
      Row("ButtonLog", -1, K::CalcBevelButton, "CalcTabSelector", {267, 109, 47, 24}, "log", {}, 1, 0, true, 0),
      Row("ButtonLogBasen", -1, K::CalcBevelButton, "CalcTabSelector", {318, 109, 47, 24}, "log", {}, 1, 0, true, 0),
      Row("ButtonTenToTheX", -1, K::CalcBevelButton, "CalcTabSelector", {370, 109, 47, 24}, "10", {}, 1, 0, true, 0),
      Row("ButtoneToTheX", -1, K::CalcBevelButton, "CalcTabSelector", {422, 109, 47, 24}, "e", {}, 1, 0, true, 0),
      Row("ButtonDeltaPercent", -1, K::CalcBevelButton, "CalcTabSelector", {214, 138, 47, 24}, "∆%", {}, 1, 0, true, 0),
      Row("ButtonRound", -1, K::CalcBevelButton, "CalcTabSelector", {318, 138, 47, 24}, "roun", {}, 1, 0, true, 0),
      Row("ButtonRandom", -1, K::CalcBevelButton, "CalcTabSelector", {267, 138, 47, 24}, "rand", {}, 1, 0, true, 0),
      Row("ButtonRoundDown", -1, K::CalcBevelButton, "CalcTabSelector", {370, 138, 47, 24}, "down", {}, 1, 0, true, 0),
      Row("ButtonRoundUp", -1, K::CalcBevelButton, "CalcTabSelector", {422, 138, 47, 24}, "up", {}, 1, 0, true, 0),
      Row("ButtonSciNotation", -1, K::CalcBevelButton, "CalcTabSelector", {266, 52, 47, 24}, "Sci", {}, 1, 0, true, 0),
      Row("ButtonCubeRoot", -1, K::CalcBevelButton, "CalcTabSelector", {370, 52, 47, 24}, "", {}, 1, 0, true, 0),
      Row("TrigGroupBoxLabel", -1, K::Label, "CalcTabSelector", {220, 170, 100, 20}, "Trigonometry", {}, 1, 0, true, 0),
      Row("ConversionCategoryPopup", -1, K::PopupMenu, "CalcTabSelector", {271, 56, 175, 20}, "", {}, 2, 0, true, 0),
      Row("ConvertFromLabel", -1, K::Label, "CalcTabSelector", {186, 100, 80, 20}, "From:", {}, 2, 0, true, 0),
      Row("ConvertToLabel", -1, K::Label, "CalcTabSelector", {186, 125, 80, 20}, "To:", {}, 2, 0, true, 0),
      Row("ConversionFromPopup", -1, K::PopupMenu, "CalcTabSelector", {271, 100, 175, 20}, "", {}, 2, 0, true, 0),
      Row("ConversionCategoryLabel", -1, K::Label, "CalcTabSelector", {187, 55, 80, 20}, "Convert:", {}, 2, 0, true, 0),
      Row("ConversionToPopup", -1, K::PopupMenu, "CalcTabSelector", {271, 125, 175, 20}, "", {}, 2, 0, true, 0),
      Row("ConversionResultLabel", -1, K::Label, "CalcTabSelector", {188, 170, 80, 20}, "Result:", {}, 2, 0, true, 0),
      Row("ConversionResultBG", -1, K::Rectangle, "CalcTabSelector", {275, 168, 105, 22}, "", {}, 2, 0, true, 0),
      Row("CurrencyConversionInfo", -1, K::Label, "CalcTabSelector", {297, 230, 216, 20}, "Last updated: NEVER", {}, 2, 0, true, 0),
      Row("UpdateCurrencyButton", -1, K::PushButton, "CalcTabSelector", {220, 230, 70, 20}, "Update", {}, 2, 0, true, 0),
      Row("ConversionUpdateNowButton", -1, K::PushButton, "CalcTabSelector", {389, 169, 75, 20}, "Convert", {}, 2, 0, true, 0),
      Row("ConversionResult", -1, K::Label, "CalcTabSelector", {281, 170, 93, 20}, "", {}, 2, 0, true, 0),
      Row("CellNumberPopUp", -1, K::PopupMenu, "CalcTabSelector", {271, 71, 60, 20}, "", {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}, 3, 0, true, 0),
      Row("CellNumberLabel", -1, K::Label, "CalcTabSelector", {182, 70, 85, 20}, "Sample #:", {}, 3, 0, true, 0),
      Row("StatsEditField", -1, K::TextArea, "CalcTabSelector", {202, 102, 271, 35}, "", {}, 3, 0, true, 0),
      Row("GroupBox7", -1, K::GroupBox, "CalcTabSelector", {193, 43, 304, 150}, "Data:", {}, 3, 0, true, 0),
      Row("ComputePopUp", -1, K::PopupMenu, "GroupBox7", {246, 153, 125, 20}, "", {"Descriptives", "ANOVA", "t-test"}, 3, 0, true, 0),
      Row("ShowComputationButton", -1, K::PushButton, "GroupBox7", {382, 152, 65, 20}, "Show", {}, 3, 0, true, 0),
      Row("ButtonStatsInput", -1, K::PushButton, "GroupBox7", {346, 69, 65, 20}, "Input", {}, 3, 0, true, 0),
      Row("ButtonStatsDel", -1, K::PushButton, "GroupBox7", {417, 69, 65, 20}, "Delete", {}, 3, 0, true, 0),
      Row("ButtonFactorial", -1, K::CalcBevelButton, "CalcTabSelector", {215, 212, 61, 24}, "n!", {}, 3, 0, true, 0),
      Row("PermutationsButton", -1, K::CalcBevelButton, "CalcTabSelector", {348, 212, 61, 24}, "P(n,k)", {}, 3, 0, true, 0),
      Row("ProbabilityButton", -1, K::CalcBevelButton, "CalcTabSelector", {415, 212, 61, 24}, "Prob", {}, 3, 0, true, 0),
      Row("CombinationsButton", -1, K::CalcBevelButton, "CalcTabSelector", {282, 212, 61, 24}, "C(n,k)", {}, 3, 0, true, 0),
      Row("PopupMenu1", -1, K::PopupMenu, "CalcTabSelector", {248, 49, 230, 20}, "", {"Fraction Calculator", "Convert Fraction to Decimal", "Convert Decimal to Fraction"}, 4, 0, true, 0),
      Row("StaticText1", -1, K::Label, "CalcTabSelector", {178, 48, 65, 20}, "Mode:", {}, 4, 0, true, 0),
      Row("FractionPagePanel", -1, K::PagePanel, "CalcTabSelector", {182, 74, 327, 200}, "", {}, 4, 0, true, 0),
      Row("PopupMenu3", -1, K::PopupMenu, "FractionPagePanel", {208, 161, 45, 22}, "", {"+", "–", "x", "÷"}, 4, 1, true, 0),
      Row("ResultWhole", -1, K::TextField, "FractionPagePanel", {374, 129, 40, 20}, "", {}, 4, 1, true, 0),
      Row("ResultNumTop", -1, K::TextField, "FractionPagePanel", {426, 109, 50, 20}, "", {}, 4, 1, true, 0),
      Row("ResultNumBottom", -1, K::TextField, "FractionPagePanel", {426, 148, 50, 20}, "", {}, 4, 1, true, 0),
      Row("GroupBox1", -1, K::GroupBox, "FractionPagePanel", {361, 96, 134, 80}, "", {}, 4, 1, true, 0),
      Row("Separator8", -1, K::Separator, "GroupBox1", {420, 133, 63, 4}, "", {}, 4, 1, true, 0),
      Row("GroupBox2", -1, K::GroupBox, "FractionPagePanel", {196, 96, 153, 159}, "", {}, 4, 1, true, 0),
      Row("whole1", -1, K::NumberOnlyEditField, "GroupBox2", {224, 124, 40, 20}, "", {}, 4, 1, true, 0),
      Row("numtop1", -1, K::NumberOnlyEditField, "GroupBox2", {276, 104, 50, 20}, "", {}, 4, 1, true, 0),
      Row("numbottom1", -1, K::NumberOnlyEditField, "GroupBox2", {276, 143, 50, 20}, "", {}, 4, 1, true, 0),
      Row("whole2", -1, K::NumberOnlyEditField, "GroupBox2", {224, 204, 40, 20}, "", {}, 4, 1, true, 0),
      Row("numtop2", -1, K::NumberOnlyEditField, "GroupBox2", {276, 185, 50, 20}, "", {}, 4, 1, true, 0),
      Row("numbottom2", -1, K::NumberOnlyEditField, "GroupBox2", {276, 224, 50, 20}, "", {}, 4, 1, true, 0),
      Row("Separator6", -1, K::Separator, "GroupBox2", {270, 131, 63, 4}, "", {}, 4, 1, true, 0),
      Row("Separator7", -1, K::Separator, "GroupBox2", {270, 212, 63, 4}, "", {}, 4, 1, true, 0),
      Row("FractionCalculateButton", -1, K::PushButton, "FractionPagePanel", {392, 199, 80, 20}, "Calculate", {}, 4, 1, true, 0),
      Row("FractionClearButton", -1, K::PushButton, "FractionPagePanel", {392, 226, 80, 20}, "Clear", {}, 4, 1, true, 0),
      Row("FractionInputBoxLabel", -1, K::Label, "FractionPagePanel", {197, 79, 100, 20}, "Input", {}, 4, 1, true, 0),
      Row("FractionResultBoxLabel", -1, K::Label, "FractionPagePanel", {362, 79, 100, 20}, "Result", {}, 4, 1, true, 0),
      Row("GroupBox3", -1, K::GroupBox, "FractionPagePanel", {361, 111, 134, 85}, "", {}, 4, 2, true, 0),
      Row("answerd", -1, K::TextField, "GroupBox3", {377, 145, 100, 20}, "", {}, 4, 2, true, 0),
      Row("GroupBox4", -1, K::GroupBox, "FractionPagePanel", {196, 111, 153, 85}, "", {}, 4, 2, true, 0),
      Row("Separator4", -1, K::Separator, "GroupBox4", {271, 152, 63, 4}, "", {}, 4, 2, true, 0),
      Row("main", -1, K::NumberOnlyEditField, "GroupBox4", {224, 145, 40, 20}, "", {}, 4, 2, true, 0),
      Row("topper", -1, K::NumberOnlyEditField, "GroupBox4", {276, 125, 50, 20}, "", {}, 4, 2, true, 0),
      Row("bottomer", -1, K::NumberOnlyEditField, "GroupBox4", {276, 164, 50, 20}, "", {}, 4, 2, true, 0),
      Row("ConvertFractionToDecimalButton", -1, K::PushButton, "FractionPagePanel", {252, 217, 80, 20}, "Calculate", {}, 4, 2, true, 0),
      Row("ClearFractionToDecimalButton", -1, K::PushButton, "FractionPagePanel", {356, 217, 80, 20}, "Clear", {}, 4, 2, true, 0),
      Row("FractionInputBoxLabel2", -1, K::Label, "FractionPagePanel", {197, 94, 100, 20}, "Input", {}, 4, 2, true, 0),
      Row("FractionResultBoxLabel2", -1, K::Label, "FractionPagePanel", {361, 94, 100, 20}, "Result", {}, 4, 2, true, 0),
      Row("main2", -1, K::TextField, "FractionPagePanel", {368, 144, 40, 20}, "", {}, 4, 3, true, 0),
      Row("topnum", -1, K::TextField, "FractionPagePanel", {420, 123, 50, 20}, "", {}, 4, 3, true, 0),
      Row("bnum", -1, K::TextField, "FractionPagePanel", {420, 161, 50, 20}, "", {}, 4, 3, true, 0),
      Row("GroupBox5", -1, K::GroupBox, "FractionPagePanel", {196, 111, 134, 85}, "", {}, 4, 3, true, 0),
      Row("dec", -1, K::NumberOnlyEditField, "GroupBox5", {212, 143, 100, 20}, "", {}, 4, 3, true, 0),
      Row("FractionInputBoxLabel21", -1, K::Label, "GroupBox5", {197, 94, 100, 20}, "Input", {}, 4, 3, true, 0),
      Row("GroupBox6", -1, K::GroupBox, "FractionPagePanel", {342, 111, 153, 85}, "", {}, 4, 3, true, 0),
      Row("Separator5", -1, K::Separator, "GroupBox6", {415, 150, 63, 4}, "", {}, 4, 3, true, 0),
      Row("PText", -1, K::Label, "FractionPagePanel", {217, 190, 250, 20}, "", {}, 4, 3, true, 0),
      Row("RoundedBevelButton7", -1, K::PushButton, "FractionPagePanel", {252, 217, 80, 20}, "Calculate", {}, 4, 3, true, 0),
      Row("RoundedBevelButton8", -1, K::PushButton, "FractionPagePanel", {356, 217, 80, 20}, "Clear", {}, 4, 3, true, 0),
      Row("FractionResultBoxLabel21", -1, K::Label, "FractionPagePanel", {345, 94, 100, 20}, "Result", {}, 4, 3, true, 0),
      Row("ExpressionField", -1, K::TextArea, "CalcTabSelector", {199, 88, 275, 100}, "Click here to enter an expression to solve using your keyboard. For example: 4*((2+3)-tan(2))", {}, 5, 0, true, 0),
      Row("ResultCaption", -1, K::Label, "CalcTabSelector", {179, 209, 60, 20}, "Result:", {}, 5, 0, true, 0),
      Row("FunctionPopUp", -1, K::PopupMenu, "CalcTabSelector", {260, 53, 210, 20}, "", {}, 5, 0, true, 0),
      Row("FunctionCaption", -1, K::Label, "CalcTabSelector", {177, 53, 80, 19}, "Function:", {}, 5, 0, true, 0),
      Row("Rectangle11", -1, K::Rectangle, "CalcTabSelector", {241, 209, 155, 22}, "", {}, 5, 0, true, 0),
      Row("ExpressionResult", -1, K::Label, "Rectangle11", {246, 211, 145, 18}, "", {}, 5, 0, true, 0),
      Row("ClearExpressionButton", -1, K::PushButton, "CalcTabSelector", {402, 209, 80, 20}, "Clear", {}, 5, 0, true, 0),
    };
    // clang-format on
    for (ControlSpec& spec : table) {
      // The tab panel's rows are its page captions.
      if (spec.name == "CalcTabSelector")
        spec.rows.assign(std::begin(kTabCaptions), std::end(kTabCaptions));
      // Radians are on at start.
      if (spec.name == "UnitsRadio" && spec.index == 0) spec.value = 1;
    }
    return table;
  }();
  return controls;
}

}  // namespace tessarine
