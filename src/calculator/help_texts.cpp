// The help tags of the main window's controls: the only place where each key's
// keyboard equivalent is written out for the user. The texts are the product's own,
// kept letter for letter, doubled blanks and trailing blank included.
#include "calculator/help_texts.hpp"

namespace tessarine {

namespace {

constexpr HelpText kMainWindowHelpTexts[] = {
    {"ButtonChangeSign", -1,
     "Change Sign. Keyboard equivalent: [Control]+[-]. Press this button to change the sign from "
     "negative to positive or from positive to negative."},
    {"ButtonPercent", -1,
     "Percent. Keyboard equivalent: [P]. Percent calculation. For example, to subtract 15% from "
     "200, enter 200[-]15[%][=]"},
    {"ButtonClearEntry", -1,
     "Clear Entry. Keyboard equivalent: [Backspace]. Press this button to remove the last digit "
     "only. Use [Option]+[Backspace] to clear the entire display without starting the current "
     "calculation over."},
    {"ButtonDivide", -1,
     "Division. Keyboard equivalent: [/]. Press this button for a division calculation."},
    {"ButtonTimes", -1,
     "Multiplication. Keyboard equivalent: [*] or [X]. Press this button for a multiplication "
     "calculation."},
    {"ButtonMinus", -1,
     "Subtraction. Keyboard equivalent: [-]. Press this button for a subtraction calculation."},
    {"ButtonPlus", -1,
     "Addition. Keyboard equivalent: [+]. Press this button for an addition calculation."},
    {"ButtonEqual", -1,
     "Equal. Keyboard equivalent: [=] or keypad [Enter]. Press this button to end your calculation "
     "and display results."},
    {"Button0", -1,
     "Keyboard equivalent: [0]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button1", -1,
     "Keyboard equivalent: [1]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button2", -1,
     "Keyboard equivalent: [2]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button3", -1,
     "Keyboard equivalent: [3]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button4", -1,
     "Keyboard equivalent: [4]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button5", -1,
     "Keyboard equivalent: [5]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button6", -1,
     "Keyboard equivalent: [6]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button7", -1,
     "Keyboard equivalent: [7]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button8", -1,
     "Keyboard equivalent: [8]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"Button9", -1,
     "Keyboard equivalent: [9]. Numbers can be entered directly from the keyboard or from the "
     "keypad to the right of the keyboard."},
    {"ButtonDecimal", -1,
     "Decimal. Keyboard equivalent: [.] or [,]. Press this button for a decimal character."},
    {"ShowAdvancedFeaturesButton", -1,
     "Toggle Advanced Features. Keyboard Equivalent: [space bar]. Use this button to toggle "
     "between simple and advanced modes."},
    {"ButtonSquareRoot", -1,
     "Square Root. Keyboard equivalent: [Option]+[2] or [Control]+[R]. Use this button for square "
     "root calculations."},
    {"ButtonCubeRoot", -1,
     "Cube Root. Keyboard equivalent: [Option]+[3]. Use this button for cube root calculations."},
    {"ButtonSquared", -1,
     "Square. Keyboard equivalent: [Control]+[2]. Use this button to multiply the current value by "
     "itself."},
    {"Buttonpi", -1,
     "π (pi). Keyboard equivalent: [Control]+[P]. Use this button to input the value for π."},
    {"Buttonln", -1,
     "Natural Logarithm. Keyboard equivalent: [L]. Use this button to return the natural "
     "logarithm."},
    {"ButtonDeltaPercent", -1,
     "Delta Percent. Keyboard equivalent: [Option]+[P]. Press this button to calculate the change "
     "in percentage between two values. X[∆%]Y[=] Delta percent (((X-Y)÷Y)x100%)"},
    {"ButtonCubed", -1,
     "Cube. Keyboard equivalent: [Control]+[3]. Use this button to obtain the cube of the current "
     "value."},
    {"ButtonFactorial", -1,
     "n Factorial. Keyboard equivalent: [N]. Use this button to obtain n factorial. For example: "
     "5! = 5 X 4 X 3 X 2 X 1 = 120"},
    {"CombinationsButton", -1,
     "Combinations. Keyboard equivalent: [Control]+[5].  Use this button to obtain the number of "
     "combinations of n items taken k at a time."},
    {"PermutationsButton", -1,
     "Permutations. Keyboard equivalent: [Control]+[6]. Use this button to obtain the number of "
     "permutations of size n that can be taken from a set of size k."},
    {"ButtonLog", -1,
     "Base 10 Logarithm. Keyboard equivalent: [Control]+[L]. Use this button to return the base 10 "
     "natural logarithm."},
    {"ButtonRound", -1,
     "Round. Keyboard equivalent: [R]. Use this button to round the value up or down to the "
     "nearest integer."},
    {"ButtonNthRoot", -1,
     "Yth Root. Keyboard equivalent: [Option]+[Y]. Use this button for Yth root calculations. "
     "Example: 81[y√x]4[=]  produces 4√81=3."},
    {"ButtonXtotheY", -1,
     "X to the Power of Y. Keyboard equivalent: [Control]+[Y]. Use this button to raise X to the "
     "power of Y. Example: 3[Xy]4[=] produces 3 x 3 x 3 x 3 = 81."},
    {"ButtonTenToTheX", -1,
     "Inverse Base 10 Logarithm. Keyboard equivalent: [i]. Use this button to obtain the inverse "
     "base 10 logarithm of a value. "},
    {"ButtonLogBasen", -1,
     "Base n Logarithm. Keyboard equivalent: [Control]+[N]. Use this button to return the base n "
     "logarithm."},
    {"ButtonRandom", -1,
     "Random. Keyboard equivalent: [Control]+[A]. Use this button to generate a random real number "
     "between 0 and 1."},
    {"ButtonOneOverX", -1,
     "1 over X. Keyboard equivalent: [Control]+[1]. Use this button to obtain 1 divided by the "
     "current value displayed."},
    {"ButtoneToTheX", -1,
     "e to the power of X. Keyboard equivalent: [Control]+[E]. Use this button to raise e to the "
     "power of the current value displayed."},
    {"ButtonRoundUp", -1,
     "Round Up. Keyboard equivalent: [Control]+[U]. Use this button to round the value up to the "
     "nearest integer."},
    {"ButtonRoundDown", -1,
     "Round Down. Keyboard equivalent: [Control]+[D]. Use this button to round the value down to "
     "the nearest integer."},
    {"UnitsRadio", 0,
     "Radians. Select this option to use radian units for trigonometric calculations."},
    {"UnitsRadio", 1,
     "Degrees. Select this option to use degree units for trigonometric calculations."},
    {"ButtonSine", -1,
     "Sine. Keyboard equivalent: [Option]+[S]. Use this button to obtain the sine of the value.  "
     "Hold down the [Control] key while clicking this button to obtain the hyperbolic sine of the "
     "value."},
    {"ButtonCosine", -1,
     "Cosine. Keyboard equivalent: [Option]+[C]. Use this button to obtain the cosine of the "
     "value. Hold down the [Control] key while clicking this button to obtain the hyperbolic "
     "cosine of the value."},
    {"ButtonTangent", -1,
     "Tangent. Keyboard equivalent: [Option]+[T]. Use this button to obtain the tangent of the "
     "value.  Hold down the [Control] key while clicking this button to obtain the hyperbolic "
     "tangent of the value."},
    {"ButtonArcSine", -1,
     "Arc Sine. Keyboard equivalent: [Option]+[Shift]+[S]. Use this button to obtain the arc sine "
     "of the value.  Hold down the [Control] key while clicking this button to obtain the "
     "hyperbolic arc sine of the value."},
    {"ButtonArcCosine", -1,
     "Arc Cosine. Keyboard equivalent: [Option]+[Shift]+[C]. Use this button to obtain the arc "
     "cosine of the value.  Hold down the [Control] key while clicking this button to obtain the "
     "hyperbolic arc cosine of the value."},
    {"ButtonArcTangent", -1,
     "Arc Tangent. Keyboard equivalent: [Option]+[Shift]+[T]. Use this button to obtain the arc "
     "tangent of the value.  Hold down the [Control] key while clicking this button to obtain the "
     "hyperbolic arc tangent of the value."},
    {"StoragePlusButton", -1,
     "Memory Plus. Keyboard equivalent: [unassigned]. Click and release this button to add the "
     "displayed value to one of 10 memory banks."},
    {"StorageMinusButton", -1,
     "Memory Minus. Keyboard equivalent: [unassigned]. Click and release this button to subtract "
     "the displayed value to one of 10 memory banks."},
    {"StorageRecallButton", -1,
     "Memory Recall. Keyboard equivalent: [unassigned]. Click and release this button to recall a "
     "value from one of 10 memory banks."},
    {"StorageClearButton", -1,
     "Memory Clear/Clear all. Keyboard equivalent: [unassigned]. Click and release this button to "
     "clear a value from one of 10 memory banks. Hold down the [option] key while clicking to "
     "clear all memory banks."},
    {"ButtonExp", -1,
     "Exponent. Keyboard equivalent: [E]. Use this button to enter an exponent to the current "
     "value. To toggle the sign of the exponent, press the ± key."},
    {"ButtonSciNotation", -1,
     "Scientific Notation. Keyboard equivalent: [S]. Converts value to/from scientific notation."},
    {"ButtonStatsInput", -1,
     "Input. Keyboard equivalent: [Shift]+[1]. Use this button to add the contents of the "
     "calculator display to the selected sample."},
    {"ButtonStatsDel", -1,
     "Delete. Keyboard equivalent: [D]. Use this button to remove the last value inputed to the "
     "selected sample. Hold down the [Option] key while clicking, or press [Option]+[D] to remove "
     "all values from the selected sample."},
    {"CellNumberPopUp", -1,
     "Sample Number: Keyboard equivalent: [unassigned]. Use this pull-down menu to switch from one "
     "sample to another."},
    {"ExpressionField", -1, "Enter expression here. For example: 4*((2+3)-tan(2))"},
    {"FunctionPopUp", -1, "Selected function will be inserted into equation."},
    {"ClearExpressionButton", -1, "Press this button to clear contents of expression input box."},
    {"ExpressionResult", -1,
     "This is the result of the expression entered in the box above. Click anywhere in this box to "
     "transfer the result to the main calculator display."},
    {"ConversionCategoryPopup", -1, "Select your conversion category here."},
    {"ConversionFromPopup", -1, "Select source units here."},
    {"ConversionToPopup", -1, "Select destination units here."},
    {"ConversionResult", -1,
     "Result of conversion will appear here. Click anywhere in this box to transfer the result to "
     "the main calculator display."},
    {"ConversionUpdateNowButton", -1,
     "Convert Now: Keyboard equivalent: [unassigned]. Press this button to convert the value into "
     "the desired units."},
    {"BrindleyURL", -1,
     "Brindley Software, makers of Tessarine. Hold down the [control] key and click here to visit "
     "the Brindley Software web site."},
    {"ProbabilityButton", -1,
     "F-Distribution Probability: Use this button to calculate an exact p value from an F ratio "
     "and degrees of freedom. User can also input epsilon correction (e.g., Greenhouse-Geisser or "
     "Huynh-Feldt) for an adjusted p value."},
    {"ShowComputationButton", -1,
     "Show Computation. Keyboard equivalent: [unassigned]. Select the desired computation from the "
     "pull-down menu to the left, then click this button."},
    {"UpdateCurrencyButton", -1,
     "Update Currency: Keyboard equivalent: [unassigned]. Press this button to connect to the "
     "International Monetary Fund server and update currency conversion rates."},
};

}  // namespace

const std::string_view kButtonClearHelpWithEsc =
    "Clear. Keyboard equivalent: [C] or [ESC] or [clear]. Press this button to clear the current "
    "calculation and start over.";
const std::string_view kButtonClearHelpPlain =
    "Clear. Keyboard equivalent: [C]. Press this button to clear the current calculation and start "
    "over.";

std::span<const HelpText> MainWindowHelpTexts() {
  return kMainWindowHelpTexts;
}

}  // namespace tessarine
