// Spoken and sounded feedback of the keys. Speech follows the two check marks of
// the Speech menu; a key's click is heard only while "Speak Button" is off, and the
// error sound whatever speech does.
#include "calculator/calc_window.hpp"
#include "runtime/exceptions.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// A few texts carry phoneme commands for a speech engine that knows them; ours does
// not, so they are spoken as the words they mean, and any other such command is
// dropped.
std::string SpeakableText(const std::string& text) {
  static constexpr std::pair<const char*, const char*> kPhonemeTexts[] = {
      {"[[inpt PHON]]\\klIYr[[inpt TEXT]]", "clear"},
      {"[[inpt PHON]]klIYr=1\\EHn=trIY[[inpt TEXT]].", "clear entry"},
      {"Memory [[inpt PHON]]klIYr=1[[inpt TEXT]]all.", "memory clear all"},
  };
  for (const auto& [phonemes, words] : kPhonemeTexts)
    if (text == phonemes) return words;
  std::string plain = text;
  for (int start; (start = InStrB(plain, "[[")) > 0;) {
    const int end = InStrB(start, plain, "]]");
    if (end == 0) break;
    plain.erase(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(end + 1 - start + 1));
  }
  return plain;
}

}  // namespace

bool CalcWindow::MenuChecked(const char* item) {
  return app_.menu_bar.Item(item).checked;
}

void CalcWindow::SpeakButton(const std::string& text) {
  if (MenuChecked("SpeechSpeakButtonMenu")) platform_.feedback.Speak(SpeakableText(text));
}

void CalcWindow::SpeakTotal(const std::string& text) {
  if (MenuChecked("SpeechSpeakTotalMenu")) platform_.feedback.Speak(SpeakableText(text));
}

void CalcWindow::SpeakButtonsClicked() {
  MenuBar& bar = app_.menu_bar;
  MenuItem& item = bar.Item("SpeechSpeakButtonMenu");
  bar.SetChecked(item, !item.checked);
}

void CalcWindow::SpeakTotalClicked() {
  MenuBar& bar = app_.menu_bar;
  MenuItem& item = bar.Item("SpeechSpeakTotalMenu");
  bar.SetChecked(item, !item.checked);
}

// Voice commands do not exist in this program; the menu has no item for them.
void CalcWindow::VoiceRecognitionClicked() {}

void CalcWindow::PlayClassSound(bool use, int number) {
  if (MenuChecked("SpeechSpeakButtonMenu") || !use) return;
  PlaySoundNumber(number);
}

void CalcWindow::PlaySoundNumber(int number) {
  const char* sound = ChooseSoundFromNumber(number);
  // A class left without a sound is a missing object, as playing nothing is.
  if (!sound) throw NilObjectException("no sound of number " + std::to_string(number));
  platform_.feedback.PlaySound(sound);
}

void CalcWindow::PlayNumberSound() {
  PlayClassSound(globals_.UseNumberSound, globals_.NumberSoundNumber);
}
void CalcWindow::PlayCalculationSound() {
  PlayClassSound(globals_.UseCalculationSound, globals_.CalculationSoundNumber);
}
void CalcWindow::PlayResultSound() {
  PlayClassSound(globals_.UseResultSound, globals_.ResultSoundNumber);
}
void CalcWindow::PlayClearSound() {
  PlayClassSound(globals_.UseClearSound, globals_.ClearSoundNumber);
}
// The one sound that speech does not silence; ErrorHasOccurred checks its switch.
void CalcWindow::PlayErrorSound() {
  PlaySoundNumber(globals_.ErrorSoundNumber);
}

}  // namespace tessarine
