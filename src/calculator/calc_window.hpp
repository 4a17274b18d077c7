// CalcWindow: the main window and the keypad calculator that lives in it.
//
// How a key press travels. A click on a key raises its control's Action, whose
// handler forwards to the key's method (Button7 -> Button7Action); the keyboard
// map calls the same methods. The methods change the keypad's state, the fields
// below, and then show it:
//   digits        KeyType appends to StringResult and puts the raw text on Display;
//   operators     Calculate applies the pending function (Calculation2) and the
//                 pending operator (Calculation) to Result, then UpdateDisplay;
//   UpdateDisplay enters the error state on an infinity or not-a-number, else
//                 FormatResult writes Display and ExponentText by the masks.
// Every key also writes its tape line and gives its feedback (speech, sound)
// through the calls in tape.cpp and feedback.cpp.
//
// The methods are spread over files by concern: entry_keys.cpp (digits, point,
// sign, clear, clear entry), operator_keys.cpp (the four operators, equals,
// percent, Calculate), result_display.cpp (UpdateDisplay, FormatResult, Padded,
// Exp and Sci), error_state.cpp (ErrorHasOccurred), calc_window.cpp (making the
// window, opening it, wiring the controls to their handlers).
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "calculator/main_window_part.hpp"
#include "runtime/bounded_array.hpp"
#include "runtime/control.hpp"
#include "runtime/numbers.hpp"
#include "runtime/window.hpp"
#include "settings/app_context.hpp"
#include "settings/global_stuff.hpp"

namespace tessarine {

// The maker's home page, as the link and the Help menu open it.
std::string MakerHomePage();

class CalcWindow final : public Window {
 public:
  explicit CalcWindow(AppContext& app);
  ~CalcWindow() override;
  static constexpr const char* kName = "CalcWindow";

  // A subsystem's part of the window (a tab page's logic), which wires its own
  // controls' handlers. The window owns it; parts are added before it opens.
  void AddPart(std::unique_ptr<MainWindowPart> part);
  // The part of that type, or nullptr when none was added.
  template <class T>
  T* Part() const {
    for (const auto& part : parts_)
      if (auto* found = dynamic_cast<T*>(part.get())) return found;
    return nullptr;
  }

  // --- The keypad's state -------------------------------------------------
  double Result = 0;           // the current value: on display, read and written by every key
  double Stored = 0;           // left operand of the pending operator
  std::string Calculation;     // pending operator: "Add", "Subtract", "Multiply", "Divide", "None"
  double Stored2 = 0;          // left operand of the pending two-operand function
  std::string Calculation2;    // pending function: "NthRoot", "Power", ..., "Percent"
  bool ClearDisplay = false;   // next digit starts anew; Result is no fresh operand
  bool ClearDisplay2 = false;  // next digit starts anew; Result still counts as operand
  std::string StringResult;    // the digits typed so far, unsigned, at most 12 characters
  bool UserIsTypingExponent = false;
  std::string Exponent;  // exponent digits typed so far, at most 3, unsigned
  std::string DecimalCharacter;
  std::string CR;
  double Pi = 3.141592653589793;
  double PreciseResult = 0;  // kept for the preferences file's sake; nothing reads it
  bool TrigButtonNormalCaptions = true;
  bool UseESCforClear = false;
  bool ShowAdvancedFeatures = false;
  bool LongCalculationAborted = false;  // the abort chord ended a loop; swallow its period

  // --- Memory banks (memory_banks.cpp) --------------------------------------
  BoundedArray<double, 0, 11> StorageValue;  // banks 1 to 10
  std::string StorageAction;                 // "Add", "Minus", "Recall" or "Clear"
  void StoragePlusButton_Action() { OpenStorageMenu("Add"); }
  void StorageMinusButton_Action() { OpenStorageMenu("Minus"); }
  void StorageRecallButton_Action() { OpenStorageMenu("Recall"); }
  void StorageClearButton_Action();
  bool StorageMenu_CellClick(int row, int column, int x, int y);
  void StorageMenu_MouseMove(int x, int y);
  void StorageMenu_MouseExit();
  // The list's row text of bank i.
  std::string StorageRowText(int bank) const;

  // --- The session (session.cpp) --------------------------------------------
  bool TapeOnAtStartup = false;
  bool TapeVisibleAtStartup = false;

  // --- Keys ---------------------------------------------------------------
  void KeyType(int digit);
  void Button0Action() { DigitKey(0); }
  void Button1Action() { DigitKey(1); }
  void Button2Action() { DigitKey(2); }
  void Button3Action() { DigitKey(3); }
  void Button4Action() { DigitKey(4); }
  void Button5Action() { DigitKey(5); }
  void Button6Action() { DigitKey(6); }
  void Button7Action() { DigitKey(7); }
  void Button8Action() { DigitKey(8); }
  void Button9Action() { DigitKey(9); }
  void ButtonDecimalAction();
  void ButtonPlusAction();
  void ButtonMinusAction();
  void ButtonTimesAction();
  void ButtonDivideAction();
  void ButtonEqualAction();
  void ButtonPercentAction();
  void ButtonClearAction();
  void ButtonClearEntryAction();
  void ButtonChangeSignAction();
  void ButtonExpAction();
  void ButtonSciNotationAction();
  void Calculate();

  // Function keys of one operand (function_keys.cpp).
  void ButtonSquareRootAction();
  void ButtonCubeRootAction();
  void ButtonSquaredAction();
  void ButtonCubedAction();
  void ButtonOneOverXAction();
  void ButtonlnAction();
  void ButtonLogAction();
  void ButtonTenToTheXAction();
  void ButtoneToTheXAction();
  void ButtonRoundAction();
  void ButtonRoundDownAction();
  void ButtonRoundUpAction();
  void ButtonRandomAction();
  void ButtonpiAction();
  // Function keys of two operands, finished by Calculate.
  void ButtonXtotheYAction();
  void ButtonNthRootAction();
  void ButtonLogBasenAction();
  void ButtonDeltaPercentAction();

  // Trigonometry (trigonometry_keys.cpp).
  void ButtonSineAction();
  void ButtonCosineAction();
  void ButtonTangentAction();
  void ButtonArcSineAction();
  void ButtonArcCosineAction();
  void ButtonArcTangentAction();
  void UnitsRadio_Action(int index);
  void ToggleTrigButtonsTimer_Action();

  // Factorial and combinatorics (combinatorics.cpp).
  void ButtonFactorialAction();
  void CombinationsButtonAction();
  void PermutationsButtonAction();

  // Keys of other tabs that the keyboard reaches.
  void ButtonStatsInputAction();
  void ButtonStatsDelAction();
  // The Stats page's part answers its two keys; until it is added they do nothing.
  std::function<void()> StatsInputHandler;
  std::function<void()> StatsDeleteHandler;
  void ButtonShowAdvancedFeaturesAction();
  void ToggleAdvancedFeatures();

  // Shows a key going down and up for 7 ticks, yielding meanwhile; runs no action,
  // except on a plain push button, whose Push raises its action.
  void Push(Control& key);

  // Menus (edit_menu.cpp).
  void Event_EnableMenuItems(MenuBar& bar) override;
  bool HandleMenuCommand(MenuBar& bar, std::string_view name, int index) override;
  void _EditCopy_Action();
  void _EditPaste_Action();
  void _EditClear_Action();
  void _MenuConstant_Action(int index);

  // The keyboard map (keyboard_map.cpp): a key that no focused field took, as
  // text. Always returns false.
  bool Event_KeyDown(const std::string& key) override;

  // --- The display --------------------------------------------------------
  void UpdateDisplay();
  void FormatResult(double x);
  void ErrorHasOccurred(bool is_error, const std::string& message);
  std::string Padded(double x) const;
  std::string ConvertPreciseResult(double x) const;
  bool ParseResult(const std::string& s) const;
  bool IsDigit(const std::string& s) const;
  bool IsHex(const std::string& s) const;

  // --- Feedback and the tape ----------------------------------------------
  void WriteToTape(const std::string& mark);
  void ShowTape();
  void SaveTapePlace();
  void SpeakButton(const std::string& text);
  void SpeakTotal(const std::string& text);
  void PlayNumberSound();
  void PlayCalculationSound();
  void PlayResultSound();
  void PlayClearSound();
  void SpeakButtonsClicked();
  void SpeakTotalClicked();
  void VoiceRecognitionClicked();

  // --- Two-operand functions computed by long loops ------------------------
  double ComputeCombinations();
  double ComputePermutations();

  // The maker's link under the keypad (maker_link.cpp).
  bool BrindleyURL_MouseDown(int x, int y);
  void BrindleyURL_MouseUp(int x, int y);

  // --- Start-up -----------------------------------------------------------
  void StartupMessageTimer_Action();
  // Shows the donation reminder over this window; the shell supplies it.
  std::function<void()> ShowDonationReminder;

  // Help tags on every control (help_tags.cpp).
  void HelpTagsEnabled(bool enabled);

  // A field of the keypad's logic by name, for the headless driver.
  std::optional<FieldValue> FieldByName(std::string_view name) const override;

  // The controls that the error state disables, in their order.
  const std::vector<Control*>& ErrorStateControls() const { return error_state_controls_; }

 protected:
  void Event_Open() override;
  void Event_Close() override;

 private:
  bool MakeControls();
  void OpenStorageMenu(const char* action);
  void RestoreWindowPosition();
  enum class KeyFlag { None, ClearDisplay, ClearDisplay2 };
  void RunOneOperandKey(const char* tape, double (*function)(double), KeyFlag flag,
                        const char* speech);
  void ArmTwoOperandFunction(const char* tape, const char* function, const char* speech);
  void ArmCombinatorics(const char* tape, const char* function, const char* speech);
  bool InRadians();
  void TrigEndingSineTangent();
  void TrigEndingArc();
  void DigitKey(int digit);
  void WireHandlers();
  void PlayErrorSound();
  bool MenuChecked(const char* item);
  void PlayClassSound(bool use, int number);
  void PlaySoundNumber(int number);
  bool TapeIsOn();
  void AppendToTape(const std::string& text);

  // The runtime's number primitives in the user's notation.
  std::string CStr(double x) const { return tessarine::CStr(x, platform_.decimal_separator); }
  double CDbl(std::string_view s) const { return tessarine::CDbl(s, platform_.decimal_separator); }
  std::string Format(double x, std::string_view mask) const {
    return tessarine::Format(x, mask, platform_.decimal_separator);
  }

  AppContext& app_;
  GlobalStuff& globals_;
  std::vector<std::unique_ptr<MainWindowPart>> parts_;
  bool controls_made_;  // made before the references below are bound

  // The controls the keypad touches on every key.
  Control& Display;
  Control& ExponentText;
  Control& MessageText;
  Control& ButtonDecimal;
  Control& ShowAdvancedFeaturesButton;
  Timer& ToggleTrigButtonsTimer;
  Timer& StartupMessageTimer;
  std::vector<Control*> error_state_controls_;
};

}  // namespace tessarine
