#include "calculator/calc_window.hpp"

#include <functional>
#include <utility>

#include "calculator/main_window_layout.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// The controls locked while the display shows an error, in the order they are
// switched. Clear stays live: it is the way out.
// clang-format off
constexpr std::pair<std::string_view, int> kErrorStateControls[] = {
    {"ButtonPercent", -1},       {"Button0", -1},           {"Button1", -1},
    {"Button2", -1},             {"Button3", -1},           {"Button4", -1},
    {"Button5", -1},             {"Button6", -1},           {"Button7", -1},
    {"Button8", -1},             {"Button9", -1},           {"ButtonEqual", -1},
    {"ButtonDecimal", -1},       {"ButtonPlus", -1},        {"ButtonMinus", -1},
    {"ButtonTimes", -1},         {"ButtonDivide", -1},      {"ButtonClearEntry", -1},
    {"ButtonChangeSign", -1},    {"ButtonFactorial", -1},   {"CombinationsButton", -1},
    {"PermutationsButton", -1},  {"ProbabilityButton", -1}, {"ButtonExp", -1},
    {"ButtonSciNotation", -1},   {"ButtonSquareRoot", -1},  {"ButtonCubeRoot", -1},
    {"Buttonpi", -1},            {"ButtonLog", -1},         {"ButtonRoundUp", -1},
    {"ButtonRoundDown", -1},     {"ButtonSine", -1},        {"ButtonCosine", -1},
    {"ButtonTangent", -1},       {"ButtonArcSine", -1},     {"ButtonArcCosine", -1},
    {"ButtonArcTangent", -1},    {"ButtonRandom", -1},      {"ButtonRound", -1},
    {"StoragePlusButton", -1},   {"StorageMinusButton", -1}, {"StorageRecallButton", -1},
    {"StorageClearButton", -1},  {"UnitsRadio", 0},         {"UnitsRadio", 1},
    {"ButtonSquared", -1},       {"ButtonCubed", -1},       {"ButtoneToTheX", -1},
    {"ButtonDeltaPercent", -1},  {"Buttonln", -1},          {"ButtonLogBasen", -1},
    {"ButtonOneOverX", -1},      {"ButtonTenToTheX", -1},   {"ButtonXtotheY", -1},
    {"ButtonNthRoot", -1},       {"ButtonStatsInput", -1},  {"ConversionUpdateNowButton", -1},
    {"TrigGroupBox", -1},        {"TrigGroupBoxLabel", -1},
};
// clang-format on

}  // namespace

CalcWindow::CalcWindow(AppContext& app)
    : Window(app.platform, kName),
      app_(app),
      globals_(app.globals),
      controls_made_(MakeControls()),
      Display(Get("Display")),
      ExponentText(Get("ExponentText")),
      MessageText(Get("MessageText")),
      ButtonDecimal(Get("ButtonDecimal")),
      ShowAdvancedFeaturesButton(Get("ShowAdvancedFeaturesButton")),
      ToggleTrigButtonsTimer(AddTimer("ToggleTrigButtonsTimer", 500, Timer::kOff)),
      StartupMessageTimer(AddTimer("StartupMessageTimer", 100, Timer::kOff)) {
  SetBounds(0, 0, 670, 290);
  for (const auto& [name, index] : kErrorStateControls)
    error_state_controls_.push_back(index < 0 ? &Get(name) : &Item(name, index));
  WireHandlers();
}

bool CalcWindow::MakeControls() {
  for (const ControlDesign& design : MainWindowControls()) AddControl(design);
  return true;
}

void CalcWindow::WireHandlers() {
  // Each key's Action is a one-line forwarder to the key's method; the keyboard
  // map calls the same methods.
  const std::pair<std::string_view, void (CalcWindow::*)()> keys[] = {
      {"Button0", &CalcWindow::Button0Action},
      {"Button1", &CalcWindow::Button1Action},
      {"Button2", &CalcWindow::Button2Action},
      {"Button3", &CalcWindow::Button3Action},
      {"Button4", &CalcWindow::Button4Action},
      {"Button5", &CalcWindow::Button5Action},
      {"Button6", &CalcWindow::Button6Action},
      {"Button7", &CalcWindow::Button7Action},
      {"Button8", &CalcWindow::Button8Action},
      {"Button9", &CalcWindow::Button9Action},
      {"ButtonDecimal", &CalcWindow::ButtonDecimalAction},
      {"ButtonPlus", &CalcWindow::ButtonPlusAction},
      {"ButtonMinus", &CalcWindow::ButtonMinusAction},
      {"ButtonTimes", &CalcWindow::ButtonTimesAction},
      {"ButtonDivide", &CalcWindow::ButtonDivideAction},
      {"ButtonEqual", &CalcWindow::ButtonEqualAction},
      {"ButtonPercent", &CalcWindow::ButtonPercentAction},
      {"ButtonClear", &CalcWindow::ButtonClearAction},
      {"ButtonClearEntry", &CalcWindow::ButtonClearEntryAction},
      {"ButtonChangeSign", &CalcWindow::ButtonChangeSignAction},
      {"ButtonExp", &CalcWindow::ButtonExpAction},
      {"ButtonSciNotation", &CalcWindow::ButtonSciNotationAction},
      {"ButtonSquareRoot", &CalcWindow::ButtonSquareRootAction},
      {"ButtonCubeRoot", &CalcWindow::ButtonCubeRootAction},
      {"ButtonSquared", &CalcWindow::ButtonSquaredAction},
      {"ButtonCubed", &CalcWindow::ButtonCubedAction},
      {"ButtonOneOverX", &CalcWindow::ButtonOneOverXAction},
      {"Buttonln", &CalcWindow::ButtonlnAction},
      {"ButtonLog", &CalcWindow::ButtonLogAction},
      {"ButtonTenToTheX", &CalcWindow::ButtonTenToTheXAction},
      {"ButtoneToTheX", &CalcWindow::ButtoneToTheXAction},
      {"ButtonRound", &CalcWindow::ButtonRoundAction},
      {"ButtonRoundDown", &CalcWindow::ButtonRoundDownAction},
      {"ButtonRoundUp", &CalcWindow::ButtonRoundUpAction},
      {"ButtonRandom", &CalcWindow::ButtonRandomAction},
      {"Buttonpi", &CalcWindow::ButtonpiAction},
      {"ButtonXtotheY", &CalcWindow::ButtonXtotheYAction},
      {"ButtonNthRoot", &CalcWindow::ButtonNthRootAction},
      {"ButtonLogBasen", &CalcWindow::ButtonLogBasenAction},
      {"ButtonDeltaPercent", &CalcWindow::ButtonDeltaPercentAction},
      {"ButtonSine", &CalcWindow::ButtonSineAction},
      {"ButtonCosine", &CalcWindow::ButtonCosineAction},
      {"ButtonTangent", &CalcWindow::ButtonTangentAction},
      {"ButtonArcSine", &CalcWindow::ButtonArcSineAction},
      {"ButtonArcCosine", &CalcWindow::ButtonArcCosineAction},
      {"ButtonArcTangent", &CalcWindow::ButtonArcTangentAction},
      {"ButtonFactorial", &CalcWindow::ButtonFactorialAction},
      {"CombinationsButton", &CalcWindow::CombinationsButtonAction},
      {"PermutationsButton", &CalcWindow::PermutationsButtonAction},
      {"ButtonStatsInput", &CalcWindow::ButtonStatsInputAction},
      {"ButtonStatsDel", &CalcWindow::ButtonStatsDelAction},
      {"ShowAdvancedFeaturesButton", &CalcWindow::ButtonShowAdvancedFeaturesAction},
      {"StoragePlusButton", &CalcWindow::StoragePlusButton_Action},
      {"StorageMinusButton", &CalcWindow::StorageMinusButton_Action},
      {"StorageRecallButton", &CalcWindow::StorageRecallButton_Action},
      {"StorageClearButton", &CalcWindow::StorageClearButton_Action},
  };
  for (const auto& [name, method] : keys) {
    auto action = method;
    Get(name).events.Action = [this, action] { (this->*action)(); };
  }
  for (int index : {0, 1})
    Item("UnitsRadio", index).events.Action = [this, index] { UnitsRadio_Action(index); };
  Control& storage_menu = Get("StorageMenu");
  storage_menu.events.CellClick = [this](int row, int column, int x, int y) {
    return StorageMenu_CellClick(row, column, x, y);
  };
  storage_menu.events.MouseMove = [this](int x, int y) { StorageMenu_MouseMove(x, y); };
  storage_menu.events.MouseExit = [this] { StorageMenu_MouseExit(); };
  Control& link = Get("BrindleyURL");
  link.events.MouseDown = [this](int x, int y) { return BrindleyURL_MouseDown(x, y); };
  link.events.MouseUp = [this](int x, int y) { BrindleyURL_MouseUp(x, y); };
  StartupMessageTimer.Action = [this] { StartupMessageTimer_Action(); };
  ToggleTrigButtonsTimer.Action = [this] { ToggleTrigButtonsTimer_Action(); };
}

std::optional<FieldValue> CalcWindow::FieldByName(std::string_view name) const {
  const std::pair<std::string_view, std::function<FieldValue()>> fields[] = {
      {"Result", [this] { return FieldValue{Result}; }},
      {"Stored", [this] { return FieldValue{Stored}; }},
      {"Stored2", [this] { return FieldValue{Stored2}; }},
      {"Calculation", [this] { return FieldValue{Calculation}; }},
      {"Calculation2", [this] { return FieldValue{Calculation2}; }},
      {"ClearDisplay", [this] { return FieldValue{ClearDisplay}; }},
      {"ClearDisplay2", [this] { return FieldValue{ClearDisplay2}; }},
      {"StringResult", [this] { return FieldValue{StringResult}; }},
      {"UserIsTypingExponent", [this] { return FieldValue{UserIsTypingExponent}; }},
      {"Exponent", [this] { return FieldValue{Exponent}; }},
      {"DecimalCharacter", [this] { return FieldValue{DecimalCharacter}; }},
      {"CR", [this] { return FieldValue{CR}; }},
      {"Pi", [this] { return FieldValue{Pi}; }},
      {"PreciseResult", [this] { return FieldValue{PreciseResult}; }},
      {"TrigButtonNormalCaptions", [this] { return FieldValue{TrigButtonNormalCaptions}; }},
      {"UseESCforClear", [this] { return FieldValue{UseESCforClear}; }},
      {"ShowAdvancedFeatures", [this] { return FieldValue{ShowAdvancedFeatures}; }},
      {"LongCalculationAborted", [this] { return FieldValue{LongCalculationAborted}; }},
      {"StorageAction", [this] { return FieldValue{StorageAction}; }},
      {"TapeOnAtStartup", [this] { return FieldValue{TapeOnAtStartup}; }},
      {"TapeVisibleAtStartup", [this] { return FieldValue{TapeVisibleAtStartup}; }},
  };
  for (const auto& [field, read] : fields)
    if (StrEq(field, name)) return read();
  for (const auto& part : parts_)
    if (auto value = part->FieldByName(name)) return value;
  return std::nullopt;
}

CalcWindow::~CalcWindow() = default;

void CalcWindow::AddPart(std::unique_ptr<MainWindowPart> part) {
  parts_.push_back(std::move(part));
}

}  // namespace tessarine
