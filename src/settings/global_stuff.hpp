// GlobalStuff: the settings every part of the program reads, with the values a
// first start uses. One instance lives for the whole program, owned by Program and
// handed down; the session fills it from the preferences file at start.
#pragma once

#include <string>

#include "runtime/bounded_array.hpp"

namespace tessarine {

struct GlobalStuff {
  // Display masks and the thresholds of scientific form.
  std::string NoExponentFormat = "-#.########";
  std::string ExponentFormat = "-#.########e+";
  std::string SmallPositiveNumber = "0.0000001";
  std::string SmallNegativeNumber = "-0.0000001";
  int NumberOfDecimals = 6;

  // Sound switches.
  bool UseNumberSound = true;
  bool UseCalculationSound = true;
  bool UseErrorSound = true;
  bool UseClearSound = true;
  bool UseResultSound = true;

  // The sound of each class, by its number in the catalogue (see
  // ChooseSoundFromNumber).
  int NumberSoundNumber = 6;
  int CalculationSoundNumber = 2;
  int ErrorSoundNumber = 1;
  int ClearSoundNumber = 5;
  int ResultSoundNumber = 10;

  bool ShowHelpTags = true;
  bool ShowMemoryButtons = false;
  std::string StartWithTabCalled = "Tab1";
  bool SaveDisplay = false;
  bool SaveMemoryBanks = false;
  int NumberOfLaunches = 1;

  // Where the tape window stands while it is hidden.
  int TapeWindowLeftPosition = 10;
  int TapeWindowTopPosition = 100;
  int TapeWindowHeight = 250;

  // Whether the tape's text changed since it was last saved, and the file its save
  // dialog picked.
  bool TapeChanged = false;
  std::string Document;

  // The Constants menu's entries. NumberOfConstants counts the menu's entries and
  // their keys; AlteredNumberOfConstants the arrays' while the preferences window
  // edits them, so the menu catches up only when that window closes.
  BoundedArray<std::string, 0, 200> ConstantName;
  BoundedArray<std::string, 0, 200> ConstantValue;
  int NumberOfConstants = 0;
  int AlteredNumberOfConstants = 0;

  // Rebuilds the four display strings from a number of decimals (0 to 10), as the
  // preferences do when the user changes it.
  void RebuildFormats(int decimals);
};

// The sound of a number from 0 to 10 by its resource name ("Pop", "Click", ...);
// nullptr for any other number.
const char* ChooseSoundFromNumber(int number);

}  // namespace tessarine
